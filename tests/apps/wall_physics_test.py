"""What quorvel wall answers, held against the formulas in double precision and other ways to the same answer."""

import math
import sys
import unittest
from pathlib import Path

import host
from wall_input import BRICK, CAVITY, PLASTER, SHEET, WOOL, YEAR, answer, figure, job, rows

ROOT = Path(__file__).parents[2]
EXAMPLES = ROOT / "apps" / "examples" / "wall"
sys.path.insert(0, str(ROOT / "tools" / "climate"))
from make_weather_year import weather_year  # noqa: E402

RSI, RSE = 0.13, 0.04
WALLS = [[PLASTER, BRICK], [WOOL, BRICK], [PLASTER, WOOL, CAVITY, BRICK], [SHEET, WOOL, BRICK], [PLASTER, WOOL, SHEET, BRICK]]


def resistance(layer):
    return layer.get("resistance") or layer.get("thickness", 0) / 1000 / layer.get("conductivity", 1)


def vapour_resistance(layer):
    """In GN s/kg; an air gap has that of still air."""
    return layer.get("vapour_resistance") or layer["thickness"] / 1000 * layer.get("vapour_resistivity", 5)


def saturation(t):
    """Sonntag (1990), in Pa, over water and over ice."""
    a, b, c, d, e = ((-6096.9385, 16.635794, -2.711193e-2, 1.673952e-5, 2.433502) if t >= 0 else
                     (-6024.5282, 24.721994, 1.0613868e-2, -1.3198825e-5, -0.49382577))
    k = t + 273.15
    return 100 * math.exp(a / k + b + c * k + d * k * k + e * math.log(k))


def interfaces(of):
    """Without what lies within layers."""
    return [row for row in rows(of) if not row["interface"].startswith("in ")]


class Steady(unittest.TestCase):
    def test_temperature_falls_in_proportion_to_resistance(self):
        for layers in WALLS:
            with self.subTest(layers):
                of, passed = answer(job(*layers)), 0
                steps = [RSI, *map(resistance, layers), RSE]
                self.assertAlmostEqual(figure(of, "u_value"), 1 / sum(steps), delta=6e-4)
                for row, step in zip(interfaces(of), steps):
                    passed += step
                    self.assertAlmostEqual(row["temperature"], 20 - 20 * passed / sum(steps), delta=0.06)
                    self.assertAlmostEqual(row["saturation"] / saturation(row["temperature"]), 1, delta=6e-3)

    def test_what_enters_an_interface_leaves_it_or_condenses_there(self):
        """From the inside to the outside, the flows of vapour differ by what is gained on the way."""
        tropics = {"inside_temperature": 18, "outside_temperature": 35, "outside_humidity": 90}
        for layers in WALLS:
            for climate in ({"inside_humidity": 70}, tropics):
                of = answer(job(*layers, climate=climate))
                at, resistances = interfaces(of), list(map(vapour_resistance, layers))
                gained = sum(row["gain"] for row in rows(of))
                first, last = ((at[i]["vapour_pressure"] - at[i + 1]["vapour_pressure"]) / r * 86400e-6
                               for i, r in ((0, resistances[0]), (-2, resistances[-1])))
                rounding = 86400e-6 * (1 / resistances[0] + 1 / resistances[-1]) + 0.01
                within = 86400e-6 * 300 if any(row["interface"].startswith("in ") for row in rows(of)) else 0
                with self.subTest(layers=layers, climate=climate):
                    self.assertAlmostEqual(first - last, gained, delta=rounding + within)
                    for row in at:
                        self.assertLessEqual(row["vapour_pressure"], row["saturation"])
                        self.assertGreaterEqual(row["gain"], 0)

    def test_surfaces_and_gaps_follow_direction_and_exposure(self):
        def u(**wall):
            free = {"inside_resistance": None, "outside_resistance": None}
            gap = {"name": "Gap", "thickness": 50, "emissivities": [0.9, 0.9]}
            return figure(answer(job(PLASTER, gap, PLASTER, wall=free | wall)), "u_value")
        self.assertTrue(u(heat_flow="up") > u(heat_flow="horizontal") > u(heat_flow="down"))
        self.assertTrue(u(exposure="severe") > u(exposure="normal") > u(exposure="sheltered"))
        self.assertEqual(u(), u(heat_flow=1, exposure=2))

    def test_a_ventilated_gap_ends_the_wall(self):
        free = {"inside_resistance": None, "outside_resistance": None}
        ventilated = {"name": "Gap", "thickness": 30, "ventilated": True}
        of = answer(job(WOOL, BRICK, ventilated, PLASTER, wall=free))
        self.assertAlmostEqual(figure(of, "u_value"), 1 / (2 * 0.1215 + 2 + 0.22 / 0.75), delta=1e-3)
        self.assertEqual(len(interfaces(of)), 3)


class Language(unittest.TestCase):
    """Different words for the same wall."""

    def same(self, one, other, **settings):
        one, other = answer(one, **settings), answer(other, **settings)
        self.assertEqual([one["figures"], one["tables"]], [other["figures"], other["tables"]])

    def test_resistances_to_vapour(self):
        of = PLASTER | {"vapour_resistivity": None}
        for keys in ({"mu": 10}, {"s_d": 0.13}):
            self.same(job(PLASTER, WOOL, BRICK), job(of | keys, WOOL, BRICK))
        self.same(job(SHEET, BRICK), job({"name": "Sheet", "s_d": 50}, BRICK))

    def test_materials_and_own_ones(self):
        oak = {"name": "oak", "thickness": 20, "conductivity": 0.2, "density": 700, "specific_heat": 1600}
        files = {"own.toml": '[material."oak"]\nconductivity = 0.2\ndensity = 700\nspecific_heat = 1600\nmu = [200, 50]\n'
                             '[material.foil]\ns_d = 50\n'}
        for state, mu in ((None, 200), ("wet", 50)):
            of = {"material": "oak", "thickness": 20, "state": state}
            text = job(of, {"material": "foil"}, BRICK), job(oak | {"mu": mu}, SHEET | {"name": "foil"}, BRICK)
            one, other = (answer(t, "--library", "own.toml", files=files) for t in text)
            self.assertEqual([one["figures"], one["tables"]], [other["figures"], other["tables"]])
        shipped = answer(job({"material": "mineral wool", "thickness": 100}))
        self.assertEqual(rows(shipped, "layers")[0]["conductivity"], 0.035)

    def test_parts(self):
        parts = [{"fraction": 0.15, "name": "stud", "conductivity": 0.13, "density": 500, "specific_heat": 1600, "mu": 50},
                 {"fraction": 0.85, "name": "wool", "conductivity": 0.038, "density": 20, "specific_heat": 1030, "mu": 1}]
        layers = [PLASTER, {"name": "Frame", "thickness": 140, "parts": parts}, BRICK]
        of = answer(job(*layers, wall={"section": "stud"}))
        rest = RSI + RSE + 0.013 / 0.57 + 0.22 / 0.75
        upper = 1 / (0.15 / (rest + 0.14 / 0.13) + 0.85 / (rest + 0.14 / 0.038))
        lower = rest + 1 / (0.15 * 0.13 / 0.14 + 0.85 * 0.038 / 0.14)
        self.assertAlmostEqual(figure(of, "u_value"), 2 / (upper + lower), delta=6e-4)
        stud = answer(job(PLASTER, parts[0] | {"fraction": None, "thickness": 140}, BRICK))
        self.assertEqual(rows(of), [row | {"behind": "Frame" if row["behind"] == "stud" else row["behind"]}
                                    for row in rows(stud)])

    def test_omitted_layers_and_variants(self):
        text = job(PLASTER, SHEET | {"omit": True}, WOOL, BRICK, climate={"outside_temperature": YEAR})
        self.same(job(PLASTER, WOOL, BRICK, climate={"outside_temperature": YEAR}), text)
        more = ('[[variant]]\nname = "Tight"\n[[variant.layer]]\nname = "Sheet"\nomit = false\n'
                '[[variant]]\nname = "Moist"\n[variant.climate]\nhumidity_class = 5\n')
        row = {r["variant"]: r for r in rows(answer(text + more), "variants")}
        base = {"climate": {"outside_temperature": YEAR}}
        moist = {"climate": {"outside_temperature": YEAR, "inside_humidity": None, "humidity_class": 5}}
        for name, alone in [("as it is", job(PLASTER, WOOL, BRICK, **base)), ("Tight", job(PLASTER, SHEET, WOOL, BRICK, **base)),
                            ("Moist", job(PLASTER, WOOL, BRICK, **moist))]:
            of = answer(alone)
            self.assertEqual([row[name][key] for key in ("u_value", "f_rsi", "required_f_rsi", "peak_content", "left_content")],
                             [figure(of, key) for key in ("u_value", "f_rsi", "required_f_rsi", "peak_content", "left_content")])


class Climates(unittest.TestCase):
    def test_months_of_a_dry_wall_are_those_of_single_cases(self):
        layers = [PLASTER, BRICK]
        of = answer(job(*layers, climate={"outside_temperature": YEAR, "inside_humidity": 40}))
        for month, name in ((0, "January"), (6, "July")):
            alone = answer(job(*layers, climate={"outside_temperature": YEAR[month], "inside_humidity": 40}))
            self.assertEqual([row for row in rows(of, "profiles") if row["month"] == name],
                             [{"month": name} | row for row in rows(alone)])
            asked = answer(job(*layers, climate={"outside_temperature": YEAR, "inside_humidity": 40}), "--month", str(month + 1))
            self.assertEqual(rows(asked), rows(alone))

    def test_weather(self):
        epw = weather_year("maritime")
        files = {"year.epw": epw}
        climate = {"outside_temperature": None, "outside_humidity": None, "weather": "year.epw"}
        got = rows(answer(job(climate=climate), files=files), "months")
        self.assertEqual(got, rows(answer(job(), "--weather", "year.epw", files=files), "months"))
        hours = [line.split(",") for line in epw.splitlines()[8:]]
        for number, row in enumerate(got, 1):
            of = [(float(h[6]), float(h[8])) for h in hours if int(h[1]) == number]
            t = sum(t for t, rh in of) / len(of)
            p = sum(min(rh, 100) / 100 * saturation(t) for t, rh in of) / len(of)
            self.assertAlmostEqual(row["outside_temperature"], t, delta=0.06)
            self.assertAlmostEqual(row["outside_humidity"], 100 * p / saturation(t), delta=1)

    def test_a_station_derived_from_weather_has_its_months(self):
        """Within what bands can hold of a year: two hours of the day, with the wet bulb then."""
        epw = weather_year("maritime")
        derived = host.run("climate", "from-hourly", "year.epw", "-o", "station.toml", files={"year.epw": epw})
        files = {"year.epw": epw, "station.toml": derived.written["station.toml"]}
        at = {"outside_temperature": None, "outside_humidity": None}
        weather = rows(answer(job(climate=at | {"weather": "year.epw"}), files=files), "months")
        station = rows(answer(job(climate=at | {"file": "station.toml"}), files=files), "months")
        packed = host.run("climate", "pack", "europe.climate", "station.toml", files=files)
        files["europe.climate"] = packed.written["europe.climate"]
        number = {"file": "europe.climate", "station": 1}
        self.assertEqual(rows(answer(job(climate=at | number), files=files), "months"), station)
        for one, other in zip(weather, station):
            self.assertAlmostEqual(one["outside_temperature"], other["outside_temperature"], delta=0.7)
            self.assertAlmostEqual(one["outside_humidity"], other["outside_humidity"], delta=6)

    def test_humidity_classes(self):
        climate = {"inside_humidity": None, "humidity_class": 3, "outside_temperature": YEAR}
        for row, t in zip(rows(answer(job(climate=climate)), "months"), YEAR):
            p = 0.85 * saturation(t) + 810 * (1 - t / 20)
            self.assertAlmostEqual(row["inside_humidity"], 100 * p / saturation(20), delta=0.6)


class Examples(unittest.TestCase):
    def test_vapour_condenses_where_it_is_expected(self):
        """In the cavity wall on the back of the outer leaf, behind internal insulation on the old wall in
        the cold months, in the roof with a vapour barrier nowhere; without one it never dries."""
        def of(name, change=lambda text: text):
            return answer(change((EXAMPLES / f"{name}.toml").read_text(encoding="utf-8")))
        def wet(of, table):
            return {row["interface"] for row in rows(of, table) if row["gain"] > 0}
        self.assertEqual(wet(of("cavity_wall"), "profile"), {"4|5"})
        self.assertEqual(wet(of("internally_insulated_wall"), "profiles"), {"2|3"})
        self.assertEqual(wet(of("flat_roof"), "profiles"), set())
        roof = of("flat_roof_wet")
        self.assertGreater(figure(roof, "left_content"), 1000)
        self.assertIn("does not dry", roof["text"][0])
        self.assertEqual(figure(of("timber_frame"), "peak_content"), 0)

    def test_the_cure_written_in_the_example_cures_it(self):
        lines = (EXAMPLES / "internally_insulated_wall.toml").read_text(encoding="utf-8").splitlines()
        cure = [line[2:] if line.startswith(("# [[layer]]", "# name", "# vapour_resistance")) else line for line in lines]
        of = answer("\n".join(cure))
        self.assertEqual(len(interfaces(of)), 6)
        self.assertEqual(figure(of, "peak_content"), 0)


if __name__ == "__main__":
    unittest.main()
