"""quorvel window as its users run it: faults of the input, things by name, variants, years, text and charts."""

import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import host
from window_input import CLEAR, COATED, answer, figure, job, rows, shaded

ROOT = Path(__file__).parents[2]
EXAMPLES = ROOT / "apps" / "examples" / "window"
sys.path.insert(0, str(ROOT / "tools" / "climate"))
from make_weather_year import weather_year  # noqa: E402

SLATS = {"kind": "slatted", "side": "outside", "spacing": 70, "width": 80, "angle": 30, "absorptance": 0.4}
ROLLER = {"kind": "roller", "side": "inside", "transmittance": 0.1, "reflectance": 0.6}
BY_NAME = {"panes": None, "gap": None, "unit": "double low-e argon"}
FIN = {"depth": 0.5}


def blind(keys, of=SLATS):
    return job({"blind": {key: value for key, value in (of | keys).items() if value is not None}})


BAD = [
    (job(site={"latitude": 95}), "site.latitude: value 95; allowed -90 to 90 degrees north"),
    (job(site={"longitude": "nan"}).replace('"nan"', "nan"), "site.longitude: value nan; allowed -180 to 180"),
    (job(site={"class": 7}), "site.class: value 7; allowed whole numbers 1 to 6"),
    (job(site={"utc_offset": 1, "longitude": None}), "site.utc_offset: needs the longitude too"),
    (job(site={"sky_model": "blue"}), 'site.sky_model: value "blue"; allowed design, perez'),
    (job(site={"albedo": 1}), "site.albedo: unknown key; known are name, latitude"),
    (job(day={"month": 13}), "day.month: value 13; allowed January"),
    (job(day={"month": None}), "day: missing month"),
    (job(day={"day_of_year": 3}), "day: needs either month or day_of_year"),
    (job(day={"outdoor_min": 25}), "day.outdoor_max: value 20; allowed 25 to 60 °C"),
    (job(day={"room": None}), "day: missing room"),
    (job(day={"climate": {}}), "day.climate: stands in place of outdoor_min"),
    (job({"area": 0}), "window[1].area: value 0; allowed 0.01 to 1000 m²"),
    (job({"area": None}), "window[1]: missing width, height; or area"),
    (job({"width": 2}), "window[1].area: stands in place of width and height"),
    (job({"overhang": FIN}), "window[1].area: shading needs the width and the height"),
    (job({"orientation": "S"}), 'window[1].orientation: value "S"; allowed 0 to 360'),
    (job({"panes": []}), "window[1].panes: value list of 0; allowed 1 to 5"),
    (job({"panes": [CLEAR, {"transmittance": 0.95}]}), "window[1].panes[2].transmittance: value 0.95; allowed 0.05 to 0.91"),
    (job({"panes": [{"transmittance": 0.8, "reflectance": 0.3}]}),
     "window[1].panes[1].reflectance: value 0.3; allowed 0.01 to 0.2 beside"),
    (job({"panes": [COATED | {"emissivity": 0.04}]}), "window[1].panes[1]: missing coating"),
    (job({"panes": ["clear 7"]}), 'window[1].panes: unknown glass "clear 7"; known are clear'),
    (job({"panes": ["low-e 4"]}), 'window[1].panes: "low-e 4" has a coating; write'),
    (job({"gas": "helium"}), 'window[1].gas: unknown gas "helium"; known are air, argon'),
    (job({"gap": [12, 12]}), "window[1].gap: value list of 2; allowed 1 number"),
    (job({"unit": "double"}), "window[1]: needs one of unit, panes and shading"),
    (job(BY_NAME | {"gas": "argon"}), "window[1]: gas and gap go with panes"),
    (job({"panes": None, "gap": None, "blind": ROLLER}), "window[1].blind: needs a unit or panes"),
    (job({"blind": {}}), "window[1].blind: needs kind (slatted, roller) and side (inside, outside, between)"),
    (blind({"kind": "curtain"}), 'window[1].blind.kind: value "curtain"; allowed slatted, roller'),
    (blind({"width": None}), "window[1].blind: missing width"),
    (blind({"side": "between"}), "window[1].blind.width: the slats are wider than the gap"),
    (blind({"reflectance": 0.95}, ROLLER), "window[1].blind.reflectance: value 0.95; allowed 0 to 0.9 beside"),
    (blind({"openness": 0.2}, ROLLER), "window[1].blind.openness: value 0.2; allowed 0 to 0.1"),
    (blind({"sealed": 1}, ROLLER), "window[1].blind.sealed: value 1; allowed true or false"),
    (job(*[{}] * 7), "window: value list of 7; allowed 1 to 6 tables"),
    (job({}, {}), "window[2].name: is that of another window, or of all together"),
    (job({}, {}) + host.table("[overhang]", FIN), "window: is more than one; what shades each"),
    (shaded(left_fin={"depth": 21}), "left_fin.depth: value 21; allowed 0.01 to 20 m"),
    (shaded(overhang=FIN | {"slope": 90}), "overhang.slope: value 90; allowed -80 to 80 degrees, falling outwards"),
    (shaded({}, {"width": 0}), "obstruction[2].width: value 0; allowed 0.01 to 1000 m"),
    (shaded({"base": 6}), "obstruction[1].top: must be above the base"),
    (shaded(window={"overhang": FIN}, overhang=FIN), "overhang: stands in the table of the window too"),
    (shaded(*[{}] * 21), "obstruction: value list of 21; allowed 1 to 20 tables"),
    (job() + "[shutter]\n", "shutter: unknown key; known are site, day, window"),
    (job() + "[[variant]]\n", "variant[1]: missing name"),
    (job() + '[[variant]]\nname = "A"\n' * 2, "variant[2].name: is that of another variant too"),
    (job() + '[[variant]]\nname = "A"\n[variant.site]\nclass = 9\n', "site.class: value 9; allowed whole numbers 1 to 6"),
]


class BadInput(unittest.TestCase):
    def test_each_fault_gets_one_line_and_status_2(self):
        for text, message in BAD:
            with self.subTest(message):
                host.assert_refused(self, ["window", "job.toml"], {"job.toml": text}, rf"job\.toml(:\d+)?: {re.escape(message)}")

    def test_the_line_is_that_of_the_value_in_a_variant_too(self):
        text = job() + '[[variant]]\nname = "A"\n[[variant.window]]\nname = "South"\ntilt = 200\n'
        line = text.splitlines().index("tilt = 200") + 1
        host.assert_refused(self, ["window", "job.toml"], {"job.toml": text}, rf"job\.toml:{line}: window\[1\]\.tilt: value 200")


class ThingsByName(unittest.TestCase):
    def unit(self, keys, *arguments, files=None):
        return answer(job(keys), *arguments, files=files)["parts"]["South"]

    def test_units_have_the_values_that_their_tables_promise(self):
        for name, u_value, g in [("single clear", 5.8, 0.85), ("double clear", 2.7, 0.75), ("double low-e air", 1.4, 0.62),
                                 ("double low-e argon", 1.1, 0.62), ("double solar control argon", 1.1, 0.40),
                                 ("double dark solar control argon", 1.1, 0.25), ("triple low-e argon", 0.7, 0.47),
                                 ("triple low-e krypton", 0.5, 0.47), ("double hard low-e air", 1.7, 0.71)]:
            unit = self.unit(BY_NAME | {"unit": name})
            with self.subTest(name):
                self.assertAlmostEqual(figure(unit, "u_value"), u_value, delta=0.051)
                self.assertAlmostEqual(figure(unit, "g"), g, delta=0.02)

    def test_own_tables_add_and_take_the_place_of_others(self):
        own = ('[glass."mine"]\ntransmittance = 0.5\n[glass."clear 4"]\ntransmittance = 0.3\n'
               '[unit."pair"]\npanes = ["mine", "clear 4"]\ngas = "mix"\ngap = 10\n'
               "[gas.mix]\nmixture = { argon = 0.5, air = 0.5 }\n")
        unit = self.unit(BY_NAME | {"unit": "pair"}, "--library", "own.toml", files={"own.toml": own})
        self.assertAlmostEqual(figure(unit, "transmittance"), 0.15, delta=0.01)
        for text, line in [("[paint.red]\n", r"own\.toml:1: paint: unknown kind; known are gas, glass"),
                           ('[glass."clear 4"]\ncolour = 1\n', r"own\.toml:2: glass\.clear 4\.colour: unknown key"),
                           ('[glass."clear 4"]\n', r"own\.toml:1: glass\.clear 4: missing transmittance")]:
            files = {"job.toml": job({"panes": ["clear 4", "clear 4"]}), "own.toml": text}
            host.assert_refused(self, ["window", "--library", "own.toml", "job.toml"], files, line)


class Variants(unittest.TestCase):
    TEXT = job({"blind": SLATS}) + """
[[variant]]
name = "Inside"
[[variant.window]]
name = "South"
blind = { side = "inside" }

[[variant]]
name = "Bare, by name"
[[variant.window]]
name = "South"
blind = false
gap = false
unit = "double low-e argon"
"""

    def test_they_are_the_inputs_that_they_describe(self):
        table = {row["variant"]: row for row in rows(answer(self.TEXT), "variants")}
        self.assertEqual(list(table), ["as given", "Inside", "Bare, by name"])
        for name, keys in [("as given", {"blind": SLATS}), ("Inside", {"blind": SLATS | {"side": "inside"}}),
                           ("Bare, by name", BY_NAME)]:
            alone = answer(job(keys))["parts"]["South"]
            for key in ("u_value", "g", "solar_gain", "net", "peak_gain"):
                self.assertEqual(table[name][key], figure(alone, key), f"{name} {key}")
        self.assertLess(table["as given"]["solar_gain"], 0.6 * table["Inside"]["solar_gain"])


class Year(unittest.TestCase):
    def test_of_weather(self):
        files = {"year.epw": weather_year("maritime")}
        year = answer(job({"blind": ROLLER | {"lowered_above": 200}}), "--weather", "year.epw", files=files)
        months = rows(year["parts"]["South"], "months")
        self.assertEqual(len(months), 13)
        for key in ("irradiation", "solar_gain", "net", "hours_blind_down"):
            self.assertAlmostEqual(sum(row[key] for row in months[:12]), months[12][key], delta=0.7)
        self.assertGreater(months[6]["irradiation"], 2 * months[11]["irradiation"])
        self.assertGreater(months[12]["solar_gain_without_blind"], months[12]["solar_gain"])
        self.assertIn("52.00° N, 5.00° E", year["subtitle"])

    def test_of_design_days_with_temperatures_by_the_month(self):
        text = job(day={"month": None, "outdoor_min": list(range(1, 13)), "outdoor_max": [20] * 12})
        months = rows(answer(text, "--months")["parts"]["South"], "months")
        june = answer(job(day={"outdoor_min": 6, "outdoor_max": 20}))["parts"]["South"]
        self.assertAlmostEqual(months[5]["solar_gain"], 30 * figure(june, "solar_gain"), delta=0.3)


class Text(unittest.TestCase):
    def text(self, text, *arguments):
        process = host.run("window", *arguments, "job.toml", files={"job.toml": text})
        self.assertEqual((process.returncode, process.stderr), (0, b""), process.stderr)
        return process.stdout.decode()

    def test_examples_run_and_say_the_same_twice(self):
        examples = sorted(EXAMPLES.glob("*.toml"))
        self.assertGreaterEqual(len(examples), 10)
        for example in examples:
            months = ["--months"] * ("[day]" in (text := example.read_text()) and "\nmonth =" not in text and "day_of_year" not in text)
            first, second = (host.run("window", "--tables", *months, "job.toml", files={"job.toml": text}) for _ in range(2))
            self.assertEqual(first, second)
            self.assertEqual(first.returncode, 0, f"{example.name}: {first.stderr.decode()}")
            self.assertNotRegex(first.stdout.decode(), r"\b(nan|inf)\b|-0\.0\b| \n")

    def test_sunlight_and_shade_alone_are_answered(self):
        """An input without glazing and temperatures: the sunlit part and the irradiance."""
        text = self.text(shaded({"base": 1}, overhang=FIN | {"left": 0.5}, left_fin=FIN, window={"sill": 2, "reveal": 0.1}))
        for part in ("2 × 1.5 m, facing 180° (S), vertical", "Reveal: 0.1 m deep", "Left fin: 0.5 m deep",
                     "Sky left by what shades it", "Overhang: 0.5 m deep, 0.5 m beyond it on the left", "% of the direct sun reaches the glass",
                     "Screen: 4 m wide, from 1 m up to 6 m above the ground, 5 m away"):
            self.assertIn(part, text)
        self.assertNotIn("Solar heat gain", text)

    def test_panes_are_counted_as_they_are_given(self):
        for panes, warmer in [([{"transmittance": 0.4}, CLEAR], 1), ([CLEAR, {"transmittance": 0.4}], 2)]:
            noon = rows(answer(job({"panes": panes}))["parts"]["South"])[11]
            self.assertGreater(noon[f"pane_{warmer}"], noon[f"pane_{3 - warmer}"] + 2)

    def test_a_day_of_the_year_is_the_design_day_of_its_month(self):
        self.assertEqual(answer(shaded(day={"month": "June"}))["parts"], answer(shaded(day={"day_of_year": 172}))["parts"])

    def test_north_is_zero_degrees(self):
        """At the pole and in the south the noon sun stands in the north by a hair on either side."""
        for latitude in (-30, -60, 60):
            sun = rows(answer(job(site={"latitude": latitude})), "sun")
            self.assertFalse([row for row in sun if row["azimuth"] == 360])
        self.assertIn("the sun does not set", self.text(job(site={"latitude": 90})))
        self.assertIn("the sun does not rise", self.text(job(site={"latitude": -90})))

    def test_what_is_taken_for_granted_is_said(self):
        process = host.run("window", "job.toml", files={"job.toml": job({"panes": [COATED, CLEAR], "gap": None})})
        self.assertEqual(process.returncode, 0)
        for part in ("no gap between the panes is given", "the emissivity of a coated pane is not given"):
            self.assertIn(part, process.stderr.decode())
        self.assertIn("by the library's pane temperatures", self.text(job({"gap": 7})))
        self.assertIn("by a heat balance of the layers", self.text(job()))

    def test_help_names_every_key(self):
        text = host.run("window", "--help").stdout.decode()
        keys = ["latitude", "ground_reflectance", "sky_model", "utc_offset", "day_of_year", "hour_of_max", "climate", "unit",
                "panes", "gas", "gap", "shading", "blind", "openness", "emissivity", "sealed", "cavity", "lowered_above",
                "reveal", "left_fin", "overhang", "obstruction", "rotation", "[[variant]]", "coated_reflectance", "--weather",
                "--months", "--library", "--hours"]
        self.assertEqual([key for key in keys if key not in text], [])
        self.assertLessEqual(max(map(len, text.splitlines())), 78)


def polygons(svg, colour):
    """Of the polygons filled with a colour, the corners in pixels, down from the top."""
    shapes = [shape for shape in ElementTree.fromstring(svg).iter("{http://www.w3.org/2000/svg}polygon")
              if tuple(map(int, re.findall(r"\d+", shape.get("fill")))) == colour]
    return [[tuple(map(float, point.split(","))) for point in shape.get("points").split()] for shape in shapes]


def holds(corners, x, y):
    """Whether the edges to the right of a point are odd in number."""
    edges = zip(corners, corners[1:] + corners[:1])
    return sum((a[1] > y) != (b[1] > y) and x < a[0] + (y - a[1]) / (b[1] - a[1]) * (b[0] - a[0]) for a, b in edges) % 2 == 1


@host.needs_gnuplot
class Charts(unittest.TestCase):
    def draw(self, text, *options):
        """The pictures, which are the same twice; and the words in the first."""
        one, other = (host.run("window", "--svg", "chart.svg", *options, "job.toml", files={"job.toml": text}) for _ in range(2))
        self.assertEqual((one.returncode, one.stderr), (0, b""), one.stderr)
        self.assertEqual(one.written, other.written)
        picture = one.written["chart.svg"].decode()
        return one.written, " ".join(ElementTree.fromstring(picture).itertext())

    def test_pictures_name_everything(self):
        written, words = self.draw(job({"name": "A_1 & <'B'>", "blind": ROLLER}, {"name": "Rückseite {^}"}, site={"name": "St. John's"}))
        for part in ("St. John's, 21 June", "A_1 & <'B'>", "Rückseite {^}", "W/m²", "at hour 12", "outdoor air", "without blind"):
            self.assertIn(part, words)
        self.assertEqual(list(written), ["chart.svg"])
        written, words = self.draw(job({"area": None, "width": 2, "height": 1, "overhang": FIN}))
        self.assertEqual(len(written), 2)  # and the shadows
        _, words = self.draw(Variants.TEXT)
        self.assertIn("Bare, by name", words)
        _, words = self.draw(job(day={"month": None}), "--months")
        self.assertIn("Dec", words)

    def test_shadow_drawn_is_the_one_reported(self):
        """Of a grid of points on each window drawn, those outside all shadows are the sunlit part."""
        keys = {"window": {"orientation": 200, "sill": 1}, "overhang": FIN, "right_fin": FIN | {"offset": 0.3}}
        text = shaded({"offset": 2, "depth": 2, "rotation": 20}, **keys)
        written, words = self.draw(text, "--hours", "11,13,15,17")
        self.assertIn("% sunlit", words)
        svg = written["chart.svg"].decode()
        windows = [corners for corners in polygons(svg, (251, 210, 106)) if len(corners) <= 5]
        self.assertEqual(len(windows), 4)
        reported = rows(answer(text)["parts"]["South"])
        for corners, hour in zip(windows, (11, 13, 15, 17)):
            (left, right), (top, bottom) = ((min(values), max(values)) for values in zip(*corners))
            self.assertAlmostEqual((right - left) / (bottom - top), 2 / 1.5, delta=0.01)
            shadows = [shadow for shadow in polygons(svg, (130, 150, 179)) if
                       all(left - 1 < x < right + 1 and top - 1 < y < bottom + 1 for x, y in shadow)]
            points = [(left + (i + 0.5) * (right - left) / 80, top + (j + 0.5) * (bottom - top) / 80)
                      for i in range(80) for j in range(80)]
            sunlit = sum(not any(holds(shadow, *point) for shadow in shadows) for point in points) / len(points)
            sunlit_told = reported[hour - 1]["sunlit"]
            self.assertTrue(0 < sunlit_told < 100)
            self.assertAlmostEqual(100 * sunlit, sunlit_told, delta=2)

    def test_hours(self):
        for given in ("25", "-1", "noon"):
            process = host.run("window", "--hours", given, "job.toml", files={"job.toml": job()})
            self.assertEqual(process.returncode, 2)
            self.assertIn("allowed 0 to 24 h", process.stderr.decode())


if __name__ == "__main__":
    unittest.main()
