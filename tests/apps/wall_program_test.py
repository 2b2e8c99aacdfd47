"""The program around the numbers: faults of the input, the text, the chart."""

import re
import unittest

import host
from wall_input import BRICK, CAVITY, CLIMATE, PLASTER, SHEET, WALL, WOOL, interfaces, job

EXAMPLES = host.examples("wall")
YEAR = [4, 5, 7, 9, 12, 15, 18, 17, 15, 11, 7, 5]


def layer(of, **keys):
    """The first layer changed, without the keys that are None."""
    return job({key: value for key, value in (of | keys).items() if value is not None}, BRICK)


def climate(**keys):
    return job(climate=keys)


BAD = [
    (job(wall={"heat_flow": "sideways"}), 'wall.heat_flow: value "sideways"; allowed up, horizontal, down, or 0 to 2'),
    (job(wall={"exposure": 0}), "wall.exposure: value 0; allowed sheltered, normal, severe, or 1 to 3"),
    (job(wall={"inside_resistance": 0}), "wall.inside_resistance: value 0; allowed 0.01 to 1 m²K/W"),
    (job(wall={"tilt": 90}), "wall.tilt: unknown key; known are name, heat_flow"),
    (layer(PLASTER, thickness=0), "layer[1].thickness: value 0; allowed 0.1 to 1000 mm"),
    (layer(PLASTER, conductivity=0), "layer[1].conductivity: value 0; allowed 0.005 to 500 W/mK"),
    (layer(PLASTER, density=float("nan")), "layer[1].density: value nan; allowed 0.5 to 12000 kg/m³"),
    (layer(PLASTER, specific_heat=1), "layer[1].specific_heat: value 1; allowed 100 to 5000 J/kgK"),
    (layer(PLASTER, vapour_resistivity=float("inf")), "layer[1].vapour_resistivity: value inf; allowed 1 to"),
    (layer(PLASTER, vapour_resistivity=None, density=None), "layer[1]: missing density, vapour_resistivity"),
    (layer(PLASTER, drawing="marble"), 'layer[1].drawing: value "marble"; allowed plain, masonry'),
    (layer(PLASTER, resistance=0.1), "layer[1].conductivity: unknown key; known are name, thickness, resistance"),
    (layer(CAVITY, resistance=0), "layer[1].resistance: value 0; allowed 0.01 to 10 m²K/W"),
    (layer(CAVITY, thickness=501), "layer[1].thickness: value 501; allowed 1 to 500 mm"),
    (layer(CAVITY, emissivities=[0.9, 0.9]), "layer[1]: an air gap needs either resistance or emissivities"),
    (layer(CAVITY, resistance=None, emissivities=[0.9]), "layer[1].emissivities: value list of 1; allowed 2 numbers"),
    (layer(CAVITY, resistance=None, emissivities=[0.9, 0]), "layer[1].emissivities[2]: value 0; allowed 0.01 to 1"),
    (layer(SHEET, vapour_resistance=-1), "layer[1].vapour_resistance: value -1; allowed 0.01 to"),
    (layer(SHEET, thickness=1), "layer[1].thickness: unknown key; known are name, vapour_resistance"),
    (job(*[PLASTER] * 21), "layer: value list of 21; allowed 1 to 20 tables"),
    (climate(inside_temperature=61), "climate.inside_temperature: value 61; allowed -50 to 60 °C"),
    (climate(inside_humidity=-1), "climate.inside_humidity: value -1; allowed 0 to 100 %"),
    (climate(outside_temperature=YEAR[:11]), "climate.outside_temperature: value list of 11; allowed 12 numbers"),
    (climate(outside_humidity=[80] * 11 + [101]), "climate.outside_humidity[12]: value 101; allowed 0 to 100 %"),
    (host.table("[wall]", WALL) + host.table("[climate]", CLIMATE), "missing layer"),
    (job().replace("outside_humidity = 85", ""), "climate: missing outside_humidity"),
]


class BadInput(host.InputCase, unittest.TestCase):
    good, bad = job(), BAD
    at_line = (climate(outside_temperature=YEAR[:11] + [99]).replace(" 5, 7,", " 5,\n7,").replace("99", "\n99"), "99]",
               "climate.outside_temperature[12]: value 99")


class Output(host.ReportCase, unittest.TestCase):
    examples = EXAMPLES
    keys = [*WALL, *PLASTER, *CAVITY, *SHEET, *CLIMATE, "heat_flow", "exposure", "inside_resistance",
            "outside_resistance", "emissivities", "drawing", "--svg", "--csv"]

    def test_months_are_those_of_single_cases(self):
        """Numbers stand for the whole year, lists for its months; the two may be mixed."""
        layers = [PLASTER, WOOL, BRICK]
        rows = interfaces(*layers, climate={"outside_temperature": YEAR})
        self.assertEqual([row["case"] for row in rows[::4]][::11], ["January", "December"])
        for month in (0, 6):
            alone = interfaces(*layers, climate={"outside_temperature": YEAR[month]})
            self.assertEqual([row | {"case": None} for row in rows[4 * month:4 * month + 4]], alone)

    def test_report_says_what_the_values_say(self):
        layers = [PLASTER, WOOL, BRICK]
        rows, text = interfaces(*layers), self.report(job(*layers))
        self.assertIn(f"U-value           {rows[0]['u_value_W_m2K']:.3f}  W/m²K", text)
        self.assertRegex(text, rf"Admittance +{rows[0]['admittance_W_m2K']:.2f}  W/m²K, leads by")
        for row in rows:
            name, (t, ps, p) = re.escape(row["interface"]), (row["temperature_C"], row["saturation_Pa"], row["vapour_Pa"])
            self.assertRegex(text, rf"\n  {name} .* {t:.1f} +{ps:.0f} +{p:.0f} ")
        self.assertRegex(text, r"\n  2\|3 .* 100    condenses [\d.]+\n")
        self.assertIn("Vapour condenses at 2|3.", text)

    def test_walls_beyond_reckoning_show_a_dash(self):
        block = BRICK | {"thickness": 1000, "conductivity": 0.01, "density": 10000}
        self.assertRegex(self.report(job(*[block] * 20)), r"Decrement factor +–  lags by – h")


class Chart(host.ChartCase, unittest.TestCase):
    def test_picture_is_to_scale_and_names_everything(self):
        layers = [PLASTER | {"name": "A & <'B'>", "drawing": "plaster"}, SHEET, WOOL, CAVITY, BRICK | {"drawing": "masonry"}]
        text = job(*layers, wall={"name": "St. John's"}, climate={"outside_temperature": YEAR})
        svg, words = self.draw(text)
        for part in ("St. John's", "A & <'B'>", "Sheet", "Brick", "January: inside 20 °C", "U-value 0.3", "at saturation"):
            self.assertIn(part, words)
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
            self.draw(job(*layers))


if __name__ == "__main__":
    unittest.main()
