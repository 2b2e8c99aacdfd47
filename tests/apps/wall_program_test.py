"""quorvel wall and quorvel materials as their users run them: faults of the input, the text, the charts."""

import re
import sys
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

import host
from wall_input import BRICK, CAVITY, CLIMATE, PLASTER, SHEET, WALL, WOOL, YEAR, answer, figure, job, rows

ROOT = Path(__file__).parents[2]
EXAMPLES = ROOT / "apps" / "examples" / "wall"
sys.path.insert(0, str(ROOT / "tools" / "climate"))
from make_weather_year import weather_year  # noqa: E402

PARTS = [{"fraction": 0.2, "name": "stud", "material": "timber 500"}, {"fraction": 0.8, "material": "mineral wool"}]
FRAME = {"name": "Frame", "thickness": 100, "parts": PARTS}
BY_FILE = {"outside_temperature": None, "outside_humidity": None}


def layer(of, **keys):
    """The first layer changed, without the keys that are None."""
    return job(of | keys, BRICK)


def part(**keys):
    return job(FRAME | {"parts": [{key: value for key, value in (PARTS[0] | keys).items() if value is not None}, PARTS[1]]})


def climate(**keys):
    return job(climate=keys)


BAD = [
    (job(wall={"heat_flow": "sideways"}), 'wall.heat_flow: value "sideways"; allowed up, horizontal, down'),
    (job(wall={"exposure": 0}), "wall.exposure: value 0; allowed sheltered, normal, severe"),
    (job(wall={"inside_resistance": 0}), "wall.inside_resistance: value 0; allowed 0.01 to 1 m²K/W"),
    (job(wall={"tilt": 90}), "wall.tilt: unknown key; known are name, heat_flow"),
    (job(FRAME, wall={"section": "joist"}), 'wall.section: no layer has a part "joist"'),
    (layer(PLASTER, thickness=0), "layer[1].thickness: value 0; allowed 0.1 to 1000 mm"),
    (layer(PLASTER, thickness=None), "layer[1]: missing thickness"),
    (layer(PLASTER, conductivity=0), "layer[1].conductivity: value 0; allowed 0.005 to 500 W/mK"),
    (layer(PLASTER, density=float("nan")), "layer[1].density: value nan; allowed 0.5 to 12000 kg/m³"),
    (layer(PLASTER, specific_heat=1), "layer[1].specific_heat: value 1; allowed 100 to 5000 J/kgK"),
    (layer(PLASTER, vapour_resistivity=float("inf")), "layer[1].vapour_resistivity: value inf; allowed 1 to"),
    (layer(PLASTER, vapour_resistivity=None), "layer[1]: missing one of vapour_resistivity, mu, s_d"),
    (layer(PLASTER, mu=10), "layer[1].mu: given beside vapour_resistivity; allowed is one of them"),
    (layer(PLASTER, density=None), "layer[1]: missing density, or a material by name"),
    (layer(PLASTER, material="oak"), 'layer[1].material: unknown material "oak"; known are'),
    (layer(PLASTER, state="wet"), "layer[1].state: goes with mu"),
    (layer(PLASTER, vapour_resistivity=None, mu=10, state="damp"), 'layer[1].state: value "damp"; allowed dry, wet'),
    (layer(PLASTER, drawing="marble"), 'layer[1].drawing: value "marble"; allowed plain, masonry'),
    (layer(PLASTER, resistance=0.1), "layer[1].conductivity: unknown key; known are name, resistance"),
    (layer(PLASTER, air_voids=3), "layer[1].air_voids: value 3; allowed whole numbers 0 to 2"),
    (layer(PLASTER, fasteners={"number": 5}), "layer[1].fasteners: missing conductivity, area"),
    (layer(PLASTER, omit=1), "layer[1].omit: value 1; allowed true or false"),
    (layer(CAVITY, resistance=0), "layer[1].resistance: value 0; allowed 0.01 to 10 m²K/W"),
    (layer(CAVITY, thickness=501), "layer[1].thickness: value 501; allowed 1 to 500 mm"),
    (layer(CAVITY, emissivities=[0.9, 0.9]), "layer[1]: an air gap needs either resistance or emissivities"),
    (layer(CAVITY, resistance=None, emissivities=[0.9]), "layer[1].emissivities: value list of 1; allowed 2 numbers"),
    (layer(CAVITY, resistance=None, emissivities=[0.9, 0]), "layer[1].emissivities[2]: value 0; allowed 0.01 to 1"),
    (layer(CAVITY, resistance=None, ventilated=True), "layer[1].ventilated: the innermost layer cannot be"),
    (layer(SHEET, vapour_resistance=-1), "layer[1].vapour_resistance: value -1; allowed 0.01 to"),
    (layer(SHEET, thickness=1), "layer[1].thickness: unknown key; known are name, material, vapour_resistance"),
    (part(fraction=0.3), "layer[1].parts: fractions that make 1.1; allowed 1"),
    (part(fraction=None), "layer[1].parts[1]: missing fraction"),
    (part(thickness=3), "layer[1].parts[1].thickness: unknown key"),
    (part(material="aluminium foil"), "layer[1].parts[1]: a part of a layer needs a conductivity or a resistance"),
    (job(FRAME | {"in_line": True}), "layer[1].in_line: needs a layer before it with parts of the same fractions"),
    (job(*[FRAME] * 7), "wall: the parts of the layers cross in more than 64 ways"),
    (job(*[PLASTER] * 21), "layer: value list of 21; allowed 1 to 20 tables"),
    (job(PLASTER | {"omit": True}), "layer: all layers are omitted"),
    (climate(inside_temperature=61), "climate.inside_temperature: value 61; allowed -50 to 60 °C"),
    (climate(inside_humidity=-1), "climate.inside_humidity: value -1; allowed 0 to 100 %"),
    (climate(humidity_class=3), "climate: needs either inside_humidity or humidity_class"),
    (climate(inside_humidity=None, humidity_class=6), "climate.humidity_class: value 6; allowed whole numbers 1 to 5"),
    (climate(outside_temperature=YEAR[:11]), "climate.outside_temperature: value list of 11; allowed 12 numbers"),
    (climate(outside_humidity=[80] * 11 + [101]), "climate.outside_humidity[12]: value 101; allowed 0 to 100 %"),
    (climate(**BY_FILE, file="europe.climate"), "climate: missing station"),
    (climate(weather="a.epw"), "climate.outside_humidity: unknown key; known are weather, inside_temperature"),
    (job(more="[mould]\nsurface_humidity = 20\n"), "mould.surface_humidity: value 20; allowed 50 to 100 %"),
    (host.table("[wall]", WALL) + host.table("[climate]", CLIMATE), "missing layer"),
    (job().replace("outside_humidity = 85", ""), "climate: missing outside_humidity"),
]


class BadInput(unittest.TestCase):
    def test_each_fault_gets_one_line_and_status_2(self):
        for text, message in BAD:
            with self.subTest(message):
                host.assert_refused(self, ["wall", "job.toml"], {"job.toml": text}, rf"job\.toml(:\d+)?: {re.escape(message)}")

    def test_the_line_is_that_of_the_value(self):
        text = climate(outside_temperature=YEAR[:11] + [99]).replace(" 5, 7,", " 5,\n7,").replace("99", "\n99")
        line = text.splitlines().index("99]") + 1
        host.assert_refused(self, ["wall", "job.toml"], {"job.toml": text}, rf"job\.toml:{line}: climate\.outside_temperature\[12\]")

    def test_files_that_are_not_there(self):
        for keys, line in [({"weather": "no.epw"}, "no.epw: cannot be read"),
                           ({"file": "no.climate", "station": 1}, "no.climate: cannot be read"),
                           ({"file": "no.toml"}, "no.toml: cannot be read")]:
            host.assert_refused(self, ["wall", "job.toml"], {"job.toml": climate(**BY_FILE, **keys)}, line)


class Output(unittest.TestCase):
    def report(self, name, text, *arguments, files=None):
        process = host.run("wall", *arguments, name, files={name: text} | (files or {}))
        self.assertEqual((process.returncode, process.stderr), (0, b""), name)
        return process.stdout.decode()

    def test_examples_run_within_a_hundred_columns(self):
        stations = {path.name: path.read_bytes() for path in (ROOT / "apps" / "examples" / "climate").glob("*.toml")}
        files = {f"climate/{name}": text for name, text in stations.items()}
        examples = sorted(EXAMPLES.glob("*.toml"))
        self.assertGreaterEqual(len(examples), 7)
        for example in examples:
            text = self.report(f"wall/{example.name}", example.read_bytes(), "--tables", files=files)
            self.assertNotRegex(text, r"\b(nan|inf)\b|-0\.0\b| \n|\r")
            self.assertLessEqual(max(map(len, text.splitlines())), 100, example.name)

    def test_report_says_what_the_values_say(self):
        text = job(PLASTER, WOOL, BRICK, climate={"outside_temperature": YEAR, "inside_humidity": 55})
        of, report = answer(text), self.report("job.toml", text)
        self.assertRegex(report, rf"U-value +{figure(of, 'u_value'):.3f}  W/m²K")
        self.assertRegex(report, rf"Most water +{figure(of, 'peak_content'):.1f}  g/m², at the end of ")
        for row in rows(of):
            name, (t, ps, p) = re.escape(row["interface"]), (row["temperature"], row["saturation"], row["vapour_pressure"])
            self.assertRegex(report, rf"\n  {name} .* {t:.1f} +{ps:.0f} +{p:.0f} ")
        self.assertIn("Vapour condenses at 2|3, behind Wool, November to March", " ".join(report.split()))
        cold = self.report("job.toml", job(WOOL, climate={"inside_temperature": -20, "outside_temperature": 25}))
        self.assertIn("Vapour condenses in layer 1, ", cold)

    def test_water_of_places_and_of_months_is_the_same(self):
        of = answer(job(PLASTER, WOOL, BRICK, climate={"outside_temperature": YEAR, "inside_humidity": 65}))
        content = {row["month"]: row["content"] for row in rows(of, "months")}
        for row in rows(of, "water"):
            self.assertAlmostEqual(sum(v for k, v in row.items() if k != "month"), content[row["month"]], delta=0.11)
        self.assertEqual(max(content.values()), figure(of, "peak_content"))

    def test_walls_beyond_reckoning_show_a_dash(self):
        block = BRICK | {"thickness": 1000, "conductivity": 0.01, "density": 10000}
        self.assertRegex(self.report("job.toml", job(*[block] * 20)), r"Decrement factor +–\n")

    def test_weather_that_had_to_be_mended_is_told_and_refused_when_strict(self):
        lines = weather_year("maritime").splitlines()
        fields = lines[100].split(",")
        fields[8] = "104"
        lines[100] = ",".join(fields)
        files = {"job.toml": climate(**BY_FILE, weather="year.epw"), "year.epw": "\n".join(lines) + "\n"}
        process = host.run("wall", "job.toml", files=files)
        self.assertEqual(process.returncode, 0)
        self.assertRegex(process.stderr.decode(), r"^job.toml: .*relative humidity.*\n$")
        self.assertEqual(host.run("wall", "--strict", "job.toml", files=files).returncode, 2)

    def test_materials(self):
        text = host.run("materials", "wool").stdout.decode()
        self.assertRegex(text, r"\n  mineral wool +0.035 +30 +1030 +1 +1 ")
        self.assertNotIn("plywood", text)
        own = host.run("materials", "hemp", "--library", "own.toml", files={"own.toml": '[material."hemp lime"]\nmu = [5, 4]\n'})
        self.assertRegex(own.stdout.decode(), r"\n  hemp lime +– +– +– +5 +4 ")
        self.assertIn("none", host.run("materials", "unobtainium").stdout.decode())

    def test_faults_of_own_materials(self):
        for text, line in [("conductivty = 1", r"own\.toml:2: material\.hemp\.conductivty: unknown key"),
                           ("mu = 3", r"own\.toml:1: material\.hemp: missing conductivity"),
                           ("mu = [3, 2, 1]\nconductivity = 1\ndensity = 9\nspecific_heat = 900",
                            r"own\.toml:2: material\.hemp\.mu: value list of 3; allowed 2 numbers")]:
            files = {"job.toml": job({"material": "hemp", "thickness": 10}), "own.toml": f"[material.hemp]\n{text}\n"}
            host.assert_refused(self, ["wall", "--library", "own.toml", "job.toml"], files, line)

    def test_every_shipped_material_can_be_a_layer(self):
        names = [row["name"] for row in host.rows(host.run("materials", "--csv").stdout.decode())]
        self.assertGreater(len(names), 60)
        for i in range(0, len(names), 15):
            layers = [{"material": name, "thickness": 10} for name in names[i:i + 15]]
            sheets = ("sheet", "foil", "film", "paper", "paint", "membrane", "check")
            answer(job(BRICK, *[{"material": of["material"]} if any(word in of["material"] for word in sheets) and
                                of["material"] not in ("bitumen sheet", "PVC sheet, softened") else of for of in layers]))


@host.needs_gnuplot
class Chart(unittest.TestCase):
    def draw(self, text, names):
        """The pictures, which are the same twice and all that is left behind; and the words in them."""
        one, other = (host.run("wall", "--svg", "chart.svg", "job.toml", files={"job.toml": text}) for _ in range(2))
        self.assertEqual((one.returncode, one.stderr, sorted(one.written)), (0, b"", names))
        self.assertEqual(one.written, other.written)
        pictures = [one.written[name].decode() for name in names]
        return [(picture, " ".join(ElementTree.fromstring(picture).itertext())) for picture in pictures]

    def test_pictures_are_to_scale_and_name_everything(self):
        layers = [PLASTER | {"name": "A & <'B'>", "drawing": "plaster"}, SHEET, WOOL, CAVITY, BRICK | {"drawing": "masonry"}]
        text = job(*layers, wall={"name": "St. John's"}, climate={"outside_temperature": YEAR, "inside_humidity": 98})
        (_, year), (svg, words) = self.draw(text, ["chart-year.svg", "chart.svg"])
        of = answer(text)
        for word in ("St. John's", "A & <'B'>", "Sheet", "Brick", "January: inside 20.0 °C", "at saturation",
                     f"U-value {figure(of, 'u_value'):.3f} W/m²K", *(f"{row['resistance']:.3f} m²K/W" for row in rows(of, "layers")
                                                                   if row["resistance"])):
            self.assertIn(word, words)
        for word in ("St. John's", f"f_Rsi {figure(of, 'f_rsi'):.3f}", "needed against mould"):
            self.assertIn(word, year)
        edge = r"stroke='rgb\(124, 132, 148\)'  d='M([\d.]+),([\d.]+) L\1,([\d.]+) "
        upright = re.findall(edge, svg)
        faces = sorted({float(x) for x, low, high in upright if abs(float(high) - float(low)) > 200})
        places = [0, 13, 93, 143, 363]  # mm; the sheet stands at 13
        self.assertEqual(len(faces), len(places))
        for face, place in zip(faces, places):
            self.assertAlmostEqual((face - faces[0]) / (faces[-1] - faces[0]), place / 363, delta=1e-3)

    def test_every_layer_count_and_drawing_can_be_drawn(self):
        drawings = ["plain", "masonry", "concrete", "insulation", "timber", "plaster", "bitumen"]
        many = [PLASTER | {"thickness": 0.1 + 20 * (i % 3), "drawing": drawings[i % 7]} for i in range(20)]
        for layers in ([SHEET], [PLASTER | {"thickness": 0.1}], many):
            self.draw(job(*layers), ["chart.svg"])

    def test_variants_have_one_chart(self):
        text = (EXAMPLES / "internal_insulation_variants.toml").read_text(encoding="utf-8")
        [(_, words)] = self.draw(text, ["chart.svg"])
        for name in ("as it is", "With a vapour check", "With polythene", "With wood fibre board"):
            self.assertIn(name, words)


if __name__ == "__main__":
    unittest.main()
