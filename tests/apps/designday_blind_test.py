"""Blinds beside the panes of a window, against geometry and the balance of energy."""

import math
import unittest

from designday_input import CLEAR, COATED, hours, window

NOON = 11


def slats(side="inside", **keys):
    return {"kind": "slatted", "side": side, "spacing": 20, "width": 25, "angle": 0, "absorptance": 0.5} | keys


def roller(transmittance, reflectance, side="inside"):
    return {"kind": "roller", "side": side, "transmittance": transmittance, "reflectance": reflectance}


def profile(row, orientation, tilt):
    """The sun's angle [rad] off the normal in the plane of normal and slope."""
    altitude = math.radians(row["sun_altitude_deg"])
    towards = math.cos(altitude) * math.cos(math.radians(row["sun_azimuth_deg"] - orientation))
    tilt = math.radians(tilt)
    return math.atan2(math.sin(altitude) * math.sin(tilt) - towards * math.cos(tilt),
                      towards * math.sin(tilt) + math.sin(altitude) * math.cos(tilt))


class Slats(unittest.TestCase):
    def test_black_slats_pass_what_they_do_not_shade(self):
        """Nothing is sent back by black slats: the transmittance is the bare window's times the gap's."""
        for orientation, tilt, angle, width in [(180, 90, 0, 25), (120, 90, 40, 12), (250, 90, -35, 40),
                                                (180, 40, 20, 15), (100, 120, -20, 30)]:
            blind = {side: slats(side, angle=angle, width=width, absorptance=1) for side in ("inside", "outside")}
            day = hours(window("bare", orientation, tilt=tilt),
                        *[window(side, orientation, tilt=tilt, blind=blind[side]) for side in blind])
            sunlit = [i for i, row in enumerate(day["bare"]) if (row["incidence_deg"] or 90) < 88]
            self.assertGreater(len(sunlit), 3)
            for i in sunlit:
                bare, phi = day["bare"][i], profile(day["bare"][i], orientation, tilt)
                self.assertAlmostEqual(math.radians(bare["profile_deg"]), phi, delta=1e-3)
                gap = max(0, 1 - width * abs(math.sin(phi + math.radians(angle))) / (20 * math.cos(phi)))
                for side in blind:
                    self.assertAlmostEqual(day[side][i]["direct_transmittance"], gap * bare["direct_transmittance"],
                                           delta=2e-3, msg=f"{side} {orientation} {tilt} {i + 1}")

    def test_closed_slats_stop_all_and_slats_along_the_beam_nothing(self):
        altitude = hours()["South"][NOON]["sun_altitude_deg"]
        day = hours(window("bare", 180), window("closed in", 180, blind=slats(angle=90)),
                    window("closed out", 180, blind=slats("outside", angle=90, absorptance=1)),
                    window("along in", 180, blind=slats(angle=-altitude)),
                    window("along out", 180, blind=slats("outside", angle=-altitude)))
        for name in ("closed in", "closed out"):
            for row in day[name]:
                self.assertAlmostEqual(row["transmitted_W"], 0, delta=1e-4 * row["incident_W_m2"] + 0.01, msg=name)
        for row in day["closed out"]:  # black: nothing reaches the glass, nothing returns
            for key in ("absorbed_W", "blind_absorbed_W"):
                self.assertAlmostEqual(row[key], 2 * row["incident_W_m2"], delta=0.02)
        for name in ("along in", "along out"):
            for key in ("direct_transmittance", "direct_absorptance"):
                self.assertEqual(day[name][NOON][key], day["bare"][NOON][key], name)
            self.assertLess(day[name][NOON]["transmitted_W"], day["bare"][NOON]["transmitted_W"])

    def test_the_face_in_the_sun_counts(self):
        noon = {name: rows[NOON] for name, rows in hours(
            *[window(name, 180, blind=slats("outside", absorptance=faces))
              for name, faces in {"bright above": [0.3, 0.6], "dark above": [0.6, 0.3], "both": [0.6, 0.6]}.items()],
            site={"class": 2}).items()}
        self.assertLess(noon["bright above"]["direct_absorptance"], noon["dark above"]["direct_absorptance"] - 0.1)
        self.assertLess(noon["bright above"]["blind_absorbed_W"], noon["both"]["blind_absorbed_W"])

    def test_diffuse_light_comes_from_above_and_below(self):
        """In the shade: lowered outer edges bar the sky and let the ground in, raised ones the other way."""
        def transmitted(angle, ground, tilt=90):
            day = hours(window("N", 0, tilt=tilt, blind=slats("outside", angle=angle, absorptance=1)),
                        site={"class": 4 if ground else 5, "latitude": 70}, day={"month": "March"})
            row = day["N"][NOON]
            direct = row["direct_W_m2"] * (row["direct_transmittance"] or 0)
            return (row["transmitted_W"] / 2 - direct) / (row["diffuse_W_m2"] + row["ground_W_m2"])
        self.assertGreater(transmitted(50, True), transmitted(50, False))
        self.assertLess(transmitted(-50, True), transmitted(-50, False))
        # Face up there is sky on either side, face down ground: the sense of the slats is all one.
        for tilt in (0, 180):
            self.assertAlmostEqual(transmitted(50, True, tilt), transmitted(-50, True, tilt), delta=0.001)


PANES = {"panes": [CLEAR, COATED, CLEAR, COATED, CLEAR]}
GLAZINGS = {
    "single": {"panes": [CLEAR]},
    "five": PANES,
    "mirror": {"panes": [{"transmittance": 0.5, "reflectance": 0.5}] * 2},
    "shading": {"shading": {"short_wave": 0.4, "long_wave": 0.1, "panes": 3}},
    "dark": {"shading": {"short_wave": 0.05, "long_wave": 0.3, "panes": 1}},
    "bright slats": PANES | {"blind": slats(absorptance=0)},
    "dense slats, unlike": PANES | {"blind": slats("outside", spacing=10, width=80, absorptance=[0.9, 0.1])},
    "unlike slats": PANES | {"blind": slats(angle=60, absorptance=[0.1, 1])},
    "white roller": PANES | {"blind": roller(0, 1)},
    "thin roller": PANES | {"blind": roller(0.9, 0.1)},
}


class Balance(unittest.TestCase):
    def test_no_more_leaves_than_arrives(self):
        names = list(GLAZINGS)
        for orientation, tilt in [(180, 90), (90, 90), (270, 90), (100, 40)]:
            for half in (names[:5], names[5:]):
                day = hours(*[window(name, orientation, tilt=tilt, **GLAZINGS[name]) for name in half])
                for name, row in ((name, row) for name, rows in day.items() for row in rows):
                    with self.subTest(name, hour=row["hour"], orientation=orientation):
                        incident = 2 * row["incident_W_m2"]
                        self.assertLessEqual(row["transmitted_W"] + row["absorbed_W"], incident + 0.03)
                        self.assertTrue(0 <= (row["blind_absorbed_W"] or 0) <= row["absorbed_W"])
                        if "blind" not in GLAZINGS[name]:
                            self.assertEqual(row["transmitted_W"] > 0, incident > 0)

    def test_roller_blind_and_pane_make_a_geometric_series(self):
        tilt = 90 - hours()["South"][NOON]["sun_altitude_deg"]
        blinds = {"bare": None, "inside": roller(0.2, 0.5), "outside": roller(0.2, 0.5, "outside"), "none": roller(1, 0)}
        day = hours(*[window(name, 180, tilt=tilt, panes=[CLEAR], blind=blind) for name, blind in blinds.items()])
        noon = {name: rows[NOON] for name, rows in day.items()}
        t, a = noon["bare"]["direct_transmittance"], noon["bare"]["direct_absorptance"]
        between = 1 - (1 - t - a) * 0.5
        for side in ("inside", "outside"):
            self.assertAlmostEqual(noon[side]["direct_transmittance"], 0.2 * t / between, delta=2e-4)
        reflectance = {"inside": 1 - t - a + t * t * 0.5 / between, "outside": 0.5 + 0.04 * (1 - t - a) / between}
        for side, r in reflectance.items():
            absorptance = 1 - r - 0.2 * t / between
            self.assertAlmostEqual(noon[side]["direct_absorptance"], absorptance, delta=3e-4, msg=side)
        self.assertLess(noon["outside"]["pane1_C"], noon["inside"]["pane1_C"])
        for bare, behind in zip(day["bare"], day["none"]):
            for key in ("transmitted_W", "absorbed_W", "pane1_C"):
                self.assertAlmostEqual(bare[key], behind[key], delta=0.011)
            self.assertIsNone(bare["blind_absorbed_W"])


if __name__ == "__main__":
    unittest.main()
