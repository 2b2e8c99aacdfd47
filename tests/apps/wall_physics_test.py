"""What must hold of a wall whatever the program computes it with."""

import cmath
import math
import random
import unittest

import host
from wall_input import BRICK, CAVITY, PLASTER, SHEET, WOOL, interfaces, job, read

EXAMPLES = host.examples("wall")
GIVEN = {"inside_resistance": 0.13, "outside_resistance": 0.04}  # m²K/W
RSI, RSE = GIVEN.values()


def resistance(layer):
    return layer.get("resistance") or layer.get("thickness", 0) / 1000 / layer.get("conductivity", 1)


def vapour_resistance(layer):
    """In GN s/kg; an air gap has that of still air."""
    return layer.get("vapour_resistance") or layer["thickness"] / 1000 * layer.get("vapour_resistivity", 5)


def u_value(layers):
    return 1 / (RSI + sum(map(resistance, layers)) + RSE)


def matrix(layer):
    """Of the quadrupole of a layer for a swing in 24 hours."""
    if layer.get("density") is None:
        return ((1, resistance(layer)), (0, 1))
    capacity = layer["density"] * layer["specific_heat"] * layer["thickness"] / 1000
    g = cmath.sqrt(2j * math.pi / 86400 * capacity * resistance(layer))
    return ((cmath.cosh(g), resistance(layer) * cmath.sinh(g) / g), (g * cmath.sinh(g) / resistance(layer), cmath.cosh(g)))


def product(a, b):
    return tuple(tuple(sum(a[i][k] * b[k][j] for k in (0, 1)) for j in (0, 1)) for i in (0, 1))


def cyclic(layers):
    """Admittance, decrement factor, surface factor, each complex."""
    m = ((1, RSI), (0, 1))
    for layer in layers:
        m = product(m, matrix(layer))
    m = product(m, ((1, RSE), (0, 1)))
    admittance = m[1][1] / m[0][1]
    return admittance, 1 / (u_value(layers) * m[0][1]), 1 - RSI * admittance


def random_layers(source):
    def solid():
        return PLASTER | {"thickness": source.randint(5, 250), "conductivity": round(source.uniform(0.03, 2), 3),
                          "density": source.randint(20, 2400), "specific_heat": source.randint(800, 1600),
                          "vapour_resistivity": source.randint(5, 200)}
    return [source.choice([solid, solid, lambda: CAVITY, lambda: SHEET])() for _ in range(source.randint(1, 6))] + [solid()]


WALLS = [random_layers(random.Random(seed)) for seed in range(8)] + [[WOOL], [PLASTER, WOOL, BRICK], [PLASTER, WOOL, CAVITY, BRICK]]
SHEETED = [[SHEET, WOOL, BRICK], [PLASTER, WOOL, SHEET, BRICK]]


def saturation(t):
    """Sonntag (1990), in Pa, over water and over ice."""
    a, b, c, d, e = ((-6096.9385, 16.635794, -2.711193e-2, 1.673952e-5, 2.433502) if t >= 0 else
                     (-6024.5282, 24.721994, 1.0613868e-2, -1.3198825e-5, -0.49382577))
    k = t + 273.15
    return 100 * math.exp(a / k + b + c * k + d * k * k + e * math.log(k))


class Heat(unittest.TestCase):
    def test_u_value_is_that_of_the_resistances_in_series(self):
        for layers in WALLS:
            with self.subTest(layers):
                self.assertAlmostEqual(interfaces(*layers, wall=GIVEN)[0]["u_value_W_m2K"], u_value(layers), delta=1e-4)

    def test_daily_swing_against_the_matrices_in_double_precision(self):
        def shift(number, sign):
            return sign * cmath.phase(number) * 12 / math.pi % 24
        for layers in WALLS:
            with self.subTest(layers):
                got = interfaces(*layers, wall=GIVEN)[0]
                y, f, s = cyclic(layers)
                self.assertAlmostEqual(got["admittance_W_m2K"], abs(y), delta=1e-3)
                self.assertAlmostEqual(got["decrement_factor"], abs(f), delta=1e-4)
                self.assertAlmostEqual(got["surface_factor"], abs(s), delta=1e-3)
                for name, expected in [("admittance_lead_h", shift(y, 1)), ("decrement_lag_h", shift(f, -1)),
                                       ("surface_lag_h", shift(s, -1))]:
                    self.assertLess(abs((got[name] - expected + 12) % 24 - 12), 0.02, name)
                self.assertTrue(0 <= got["decrement_factor"] <= 1.0001)
                self.assertTrue(got["u_value_W_m2K"] <= got["admittance_W_m2K"] + 2e-4 and
                                got["admittance_W_m2K"] < 1 / RSI)

    def test_surfaces_and_gaps_follow_direction_and_exposure(self):
        def u(**wall):
            return interfaces(PLASTER, {"name": "Gap", "thickness": 50, "emissivities": [0.9, 0.9]}, PLASTER, wall=wall)[0][
                "u_value_W_m2K"]
        self.assertTrue(u(heat_flow="up") > u(heat_flow="horizontal") > u(heat_flow="down"))
        self.assertTrue(u(exposure="severe") > u(exposure="normal") > u(exposure="sheltered"))
        self.assertEqual(u(), u(heat_flow=1, exposure=2))

    def test_temperature_falls_in_proportion_to_resistance(self):
        for layers in WALLS:
            resistances = [RSI, *map(resistance, layers), RSE]
            passed = 0
            for row, r in zip(interfaces(*layers, wall=GIVEN), resistances):
                passed += r
                self.assertAlmostEqual(row["temperature_C"], 20 - 20 * passed / sum(resistances), delta=2e-3)
                self.assertAlmostEqual(row["saturation_Pa"] / saturation(row["temperature_C"]), 1, delta=2e-3)


class Vapour(unittest.TestCase):
    def flows(self, rows, layers):
        """Outwards through each layer, in g/m² a day."""
        return [(a["vapour_Pa"] - b["vapour_Pa"]) / vapour_resistance(layer) * 86400e-6
                for a, b, layer in zip(rows, rows[1:], layers)]

    def test_what_enters_an_interface_leaves_it_or_condenses_there(self):
        """And nothing evaporates: together that is Glaser's solution, and no other."""
        tropics = {"inside_temperature": 18, "outside_temperature": 35, "outside_humidity": 90}
        for layers, climate in [(layers, {"inside_humidity": 70}) for layers in WALLS + SHEETED] + [(SHEETED[0], tropics)]:
            rows = interfaces(*layers, climate=climate)
            flows = self.flows(rows, layers)
            wet = [row["interface"] for row in rows if row["condenses"]]
            for row, arriving, leaving in zip(rows[1:-1], flows, flows[1:]):
                self.assertLessEqual(row["vapour_Pa"], row["saturation_Pa"])
                self.assertEqual(row["condenses"] == 1, row["vapour_Pa"] == row["saturation_Pa"])
                rounding = 0.002 + 1e-5 * (abs(arriving) + abs(leaving)) + 86400e-6 * 0.02 / min(map(vapour_resistance, layers))
                self.assertAlmostEqual(arriving - leaving, row["condensate_g_m2_day"] or 0, delta=rounding)
                self.assertGreaterEqual(row["condensate_g_m2_day"] or 0, 0)
            if layers in SHEETED:  # which keeps the wall dry on its warm side only
                self.assertEqual(wet, ["1|2"] if climate is tropics else [[], ["2|3"]][SHEETED.index(layers)])

    def test_no_climate_difference_gives_no_gradient(self):
        rows = interfaces(PLASTER, WOOL, BRICK, climate={"outside_temperature": 20, "outside_humidity": 50})
        for key in ("temperature_C", "saturation_Pa", "vapour_Pa"):
            self.assertLess(max(row[key] for row in rows) - min(row[key] for row in rows), 0.02)

    def test_surface_colder_than_the_dew_point_is_wet(self):
        glassy = PLASTER | {"thickness": 4, "conductivity": 1.0}
        first, last = interfaces(glassy)
        self.assertEqual((first["condenses"], last["condenses"]), (1, 0))
        self.assertIsNone(first["condensate_g_m2_day"])

    def test_convex_saturation_can_be_exceeded_within_a_layer(self):
        """Thick insulation under a tight covering is wet inside, near its cold face."""
        thick, felt = WOOL | {"thickness": 300}, {"name": "Felt", "vapour_resistance": 500}
        for humidity, said in [(80, "condenses at 1|2 and within layer 1."), (50, "condenses at 1|2.")]:
            text = job(thick, felt, PLASTER, climate={"inside_humidity": humidity})
            self.assertIn(said, host.run("job.toml", files={"job.toml": text}).stdout.decode())


class Examples(unittest.TestCase):
    def test_vapour_condenses_where_it_is_expected(self):
        """In the cavity wall on the back of the outer leaf, behind internal insulation on the old wall in
        the cold months, in the roof nowhere."""
        expected = {"cavity_wall": {"4|5"}, "internally_insulated_wall": {"2|3"}, "flat_roof": set()}
        rows = {name: read((EXAMPLES / f"{name}.toml").read_bytes()) for name in expected}
        for name, wet in expected.items():
            self.assertEqual({row["interface"] for row in rows[name] if row["condenses"]}, wet, name)
        months = {row["case"] for row in rows["internally_insulated_wall"] if row["condenses"]}
        self.assertEqual(months, {"November", "December", "January", "February", "March"})

    def test_the_cure_written_in_the_example_cures_it(self):
        lines = (EXAMPLES / "internally_insulated_wall.toml").read_text(encoding="utf-8").splitlines()
        cure = [line[2:] if line.startswith(("# [[layer]]", "# name", "# vapour_resistance")) else line for line in lines]
        rows = read("\n".join(cure))
        self.assertEqual(len(rows), 12 * 6)
        self.assertFalse(any(row["condenses"] for row in rows))


if __name__ == "__main__":
    unittest.main()
