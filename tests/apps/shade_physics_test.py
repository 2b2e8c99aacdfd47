"""What must hold of a shaded window whatever the program computes it with."""

import math
import random
import unittest

import shade_rays
from shade_input import SCREEN, WINDOW, hours, sunny

ENDLESS = 50  # m that make a plate as good as endless
WIDTH, HEIGHT = WINDOW["width"], WINDOW["height"]
ROUNDING = 0.02  # %


def tangents(row, orientation=180):
    """Of the sun's profile angles before a vertical window: how far up and to the left (looking out: to
    the right) it moves for each metre out."""
    altitude, beside = math.radians(row["sun_altitude_deg"]), math.radians(row["sun_azimuth_deg"] - orientation)
    return math.tan(altitude) / math.cos(beside), math.tan(beside)


def left_of(shadow, size):
    """The fraction of a size that a shadow leaves."""
    return 1 - min(max(shadow / size, 0), 1)


class ShadowsByProfileAngle(unittest.TestCase):
    """Endless plates before a vertical window throw shadows with straight edges."""

    def check(self, expected, orientation=180, **keys):
        rows = sunny(window={"orientation": orientation}, **keys)
        self.assertGreater(len(rows), 5)
        for row in rows:
            fraction = expected(*tangents(row, orientation))
            steep = 1 / math.cos(math.radians(row["incidence_deg"])) ** 2  # what rounding of the angles does
            self.assertAlmostEqual(row["sunlit_pct"], 100 * fraction, delta=ROUNDING + 0.005 * steep, msg=row["hour"])

    def test_overhang(self):
        for offset, slope in [(0, 0), (0.3, 0), (0.3, 25), (0, -30)]:
            overhang = {"depth": 0.6, "offset": offset, "left": ENDLESS, "right": ENDLESS, "slope": slope}
            a = math.radians(slope)
            with self.subTest(overhang):
                self.check(lambda up, _: left_of(0.6 * (math.cos(a) * up + math.sin(a)) - offset, HEIGHT),
                           orientation=200, overhang=overhang)

    def test_fins(self):
        fin = {"depth": 0.5, "above": ENDLESS, "below": ENDLESS}
        for offset in (0, 0.2):
            near = fin | {"offset": offset}
            self.check(lambda _, left: left_of(-0.5 * left - offset, WIDTH), right_fin=near)
            self.check(lambda _, left: left_of(0.5 * left - offset, WIDTH), left_fin=near)
            self.check(lambda _, left: left_of(0.5 * abs(left) - offset, WIDTH), left_fin=near, right_fin=near)


class AllOrNothing(unittest.TestCase):
    def test_open_window_is_sunlit_whenever_the_sun_is_before_it(self):
        for orientation, tilt in [(180, 90), (75, 90), (310, 60), (0, 0), (180, 120)]:
            for row in hours(window={"orientation": orientation, "tilt": tilt}):
                before = row["incidence_deg"] is not None and row["incidence_deg"] < 89.9
                self.assertEqual(row["sunlit_pct"], 100 if before else None)
                cosine = math.cos(math.radians(row["incidence_deg"])) if before else 0
                self.assertEqual(row["direct_unshaded_W_m2"] > 0, before)
                self.assertEqual(row["direct_W_m2"], row["direct_unshaded_W_m2"])
                self.assertLess(row["direct_W_m2"], 1000 * cosine + 0.01)

    def test_night_has_no_sun(self):
        rows = hours(site={"latitude": 80}, day={"month": "January"})
        self.assertEqual({row["sunlit_pct"] for row in rows}, {None})


def bars(count, **keys):
    """Upright ones before the window, 0.3 m from one to the next."""
    return [{"distance": 0.2, "width": 0.1, "offset": 0.3 * k - 0.15 * (count - 1)} | keys for k in range(count)]


WHOLE = {"distance": 3, "width": 4, "base": 1, "top": 4}
SIGN = {"distance": 0.2, "width": 0.5, "base": 2.5, "top": 2.9}
FACADE = {"distance": 15, "width": 1000, "top": 8}

# Boxes before a window 2 m above the ground: parts with edges in common, which make one shadow; shadows that
# leave holes and many pieces, or cross an edge more often than one clip can deal with; shadows of all and none.
SCENES = {
    "halves": [WHOLE | {"width": 2, "offset": offset} for offset in (-1, 1)],
    "overlapping": [WHOLE | {"width": 2.8, "offset": offset} for offset in (-0.6, 0.6)],
    "storeys": [WHOLE | {"top": 2.5}, WHOLE | {"base": 2.5}],
    "one inside the other": [WHOLE, WHOLE | {"width": 1, "base": 2, "top": 3}],
    "three times the same": [WHOLE] * 3,
    "hanging signs": [SIGN | {"offset": -0.5, "base": 2.9, "top": 3.3}, SIGN | {"offset": 0.4},
                      SIGN | {"offset": -0.3, "base": 3.0, "top": 3.4}],
    "comb with a bar": bars(7, base=2.9, top=9) + [{"distance": 0.2, "width": 9, "base": 3.1, "top": 3.2}],
    "grid": bars(8, top=30) + [{"distance": 0.2, "width": 30, "base": 1 + 0.5 * k, "top": 1.1 + 0.5 * k} for k in range(8)],
    "long screen opposite": [FACADE], "long building opposite": [FACADE | {"depth": 12}],
    "high wall": [{"distance": 0.4, "width": 500, "top": 500}],
    "behind": [{"distance": -20, "width": 60, "depth": 19.9, "top": 90}, {"distance": -0.5, "width": 60, "top": 50}],
    "below": [{"distance": 2, "width": 60, "depth": 30, "top": 1.99}],
}
SUNNY = {"behind": 100, "below": 100, "high wall": 0}  # %, at all hours


def random_case(source):
    """Aligned and crooked, touching and far, before, behind and through the plane of the window."""
    def some(low, high):
        return round(source.choice([0, source.uniform(low, high)]), 2)
    def fin():
        return {"depth": round(source.uniform(0.05, 1.5), 2), "offset": some(0, 0.5), "above": some(0, 1), "below": some(0, 1)}
    def box():
        base = some(0, 3)
        keys = {"distance": source.choice([0, 1, round(source.uniform(-3, 15), 2)]), "offset": some(-8, 8),
                "width": round(source.uniform(0.2, 10), 2), "base": base, "top": round(base + source.uniform(0.3, 9), 2),
                "rotation": source.choice([0, 90, source.randint(-180, 180)])}
        return keys | source.choice([{}, {"depth": round(source.uniform(0.2, 8), 2)}])
    keys = {"site": {"latitude": source.choice([-35, 0, 28, 50, 66])}, "day": {"day_of_year": source.randint(1, 365)},
            "window": {"width": round(source.uniform(0.4, 5), 2), "height": round(source.uniform(0.4, 3), 2),
                       "orientation": source.choice([0, 90, 180, 270, source.randint(0, 360)]),
                       "tilt": source.choice([90, 90, 90, 0, source.randint(0, 150)]), "sill": some(0, 5)}}
    for name in ("left_fin", "right_fin"):
        if source.random() < 0.4:
            keys[name] = fin()
    if source.random() < 0.5:
        keys["overhang"] = {"depth": round(source.uniform(0.05, 2), 2), "offset": some(0, 0.5), "left": some(0, 2),
                            "right": some(0, 2), "slope": some(-40, 40)}
    return [box() for _ in range(source.randint(0, 5))], keys


class AgainstRays(unittest.TestCase):
    def test_scenes(self):
        for name, boxes in SCENES.items():
            rows = sunny(*boxes, window={"sill": 2}, day={"month": 1})
            if name in SUNNY:
                self.assertEqual({row["sunlit_pct"] for row in rows}, {SUNNY[name]}, name)
                continue
            partly = [row for row in rows if 0 < row["sunlit_pct"] < 100]
            self.assertTrue(partly, name)
            for row in partly[:3:2]:
                rays = shade_rays.sunlit_fraction(row, [SCREEN | box for box in boxes], {"sill": 2}, cells=80)
                self.assertAlmostEqual(row["sunlit_pct"] / 100, rays, delta=0.008, msg=f"{name}, hour {row['hour']}")

    def test_random_windows(self):
        partly = 0
        for seed in range(40):
            source = random.Random(seed)
            boxes, keys = random_case(source)
            rows = sunny(*boxes, **keys)
            shading = {name: keys.get(name) for name in ("left_fin", "right_fin", "overhang")}
            for row in source.sample(rows, min(3, len(rows))):
                rays = shade_rays.sunlit_fraction(row, [SCREEN | box for box in boxes], keys["window"], **shading)
                partly += 0 < rays < 1
                with self.subTest(seed=seed, hour=row["hour"]):
                    self.assertAlmostEqual(row["sunlit_pct"] / 100, rays, delta=0.008)
        self.assertGreater(partly, 35)


if __name__ == "__main__":
    unittest.main()
