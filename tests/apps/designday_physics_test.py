"""What must hold of a design day whatever the program computes it with."""

import math
import unittest

from designday_input import CLEAR, COATED, hours, window

NOON = 11

def spencer(day):
    """Declination in degrees and equation of time in minutes, by Spencer's Fourier series (1971)."""
    x = 2 * math.pi * (day - 1) / 365
    def series(*terms):
        return sum(a * math.cos(k * x) + b * math.sin(k * x) for k, (a, b) in enumerate(terms))
    declination = series((0.006918, 0), (-0.399912, 0.070257), (-0.006758, 0.000907), (-0.002697, 0.00148))
    equation = series((0.000075, 0), (0.001868, -0.032077), (-0.014615, -0.040849))
    return math.degrees(declination), equation * 720 / math.pi


class Sun(unittest.TestCase):
    def test_noon_altitude_is_that_of_latitude_and_declination(self):
        for latitude, month, day_of_year in [(51.5, "June", 172), (40.4, 3, 80), (64, "December", 355),
                                             (-33.9, "January", 21), (5, "August", 234)]:
            with self.subTest(latitude=latitude, month=month):
                noon = hours(site={"latitude": latitude}, day={"month": month})["South"][NOON]
                angle = latitude - spencer(day_of_year)[0]
                self.assertAlmostEqual(noon["sun_altitude_deg"], 90 - abs(angle), delta=0.4)
                self.assertAlmostEqual(noon["sun_azimuth_deg"] % 360, 180 if angle > 0 else 0, delta=0.05)

    def test_clock_follows_longitude_zone_and_season(self):
        """London, Madrid and Sydney: the sun is south or north when 4 minutes a degree say so."""
        for longitude, utc_offset, month, day_of_year in [(-0.29, 1, "June", 172), (-3.68, 2, "July", 204),
                                                          (151.2, 10, "November", 326), (18, 1, 2, 52)]:
            noon = hours(site={"longitude": longitude, "utc_offset": utc_offset}, day={"month": month})["South"][NOON]
            hour, minute = map(int, noon["clock"].split(":"))
            expected = 720 + 60 * utc_offset - 4 * longitude - spencer(day_of_year)[1]
            self.assertAlmostEqual(60 * hour + minute, expected, delta=1.5)

    def test_polar_day_and_night(self):
        for month, sunlit in [("June", 24), ("December", 0)]:
            day = hours(site={"latitude": 75}, day={"month": month})["South"]
            self.assertEqual(sum(row["incident_W_m2"] > 0 for row in day), sunlit)


class Irradiance(unittest.TestCase):
    def test_planes_receive_what_they_face(self):
        """Direct sun by the cosine of its incidence; of the ground's half reflected light what tilt and cosine tell."""
        faces = [window(f"{azimuth} {tilt}", azimuth, tilt=tilt) for azimuth, tilt in
                 [(0, 90), (70, 90), (180, 60), (250, 30), (300, 120), (90, 0)]]
        for name, day in hours(*faces, site={"class": 4, "sky": "bright"}, day={"month": 4}).items():
            seen = (1 - math.cos(math.radians(float(name.split()[1])))) / 2
            for row in filter(lambda row: row["incidence_deg"] is not None, day):
                beam, diffuse = row["direct_normal_W_m2"], row["diffuse_horizontal_W_m2"]
                cosine = max(0, math.cos(math.radians(row["incidence_deg"])))
                self.assertAlmostEqual(row["direct_W_m2"], beam * cosine, delta=0.1, msg=name)
                on_ground = beam * math.sin(math.radians(row["sun_altitude_deg"])) + diffuse
                self.assertAlmostEqual(row["ground_W_m2"], seen * 0.5 * on_ground, delta=0.1, msg=name)
                if seen == 0:
                    self.assertAlmostEqual(row["diffuse_W_m2"], diffuse, delta=0.02)

    def test_east_and_west_mirror_each_other_about_noon(self):
        shading = {"shading": {"short_wave": 0.4, "long_wave": 0.1, "panes": 2}}
        day = hours(window("E", 90), window("W", 270), window("NE", 30, tilt=50, **shading),
                    window("NW", 330, tilt=50, **shading))
        for east, west in [("E", "W"), ("NE", "NW")]:
            for morning, afternoon in zip(day[east][:23], reversed(day[west][:23])):
                for key in ("direct_W_m2", "diffuse_W_m2", "ground_W_m2", "transmitted_W", "absorbed_W"):
                    self.assertAlmostEqual(morning[key], afternoon[key], delta=0.1, msg=f"{east} {key}")

    def test_every_site_class_has_a_sky(self):
        noon = {number: hours(site={"class": number})["South"][NOON] for number in range(1, 7)}
        for number, direct, diffuse in [(1, 0.82, 0.66), (2, 0.58, 0.92), (3, 0.5, 1.1), (4, 1.1, 0.9), (6, 1, 1)]:
            for key, factor in [("direct_normal_W_m2", direct), ("diffuse_horizontal_W_m2", diffuse)]:
                self.assertAlmostEqual(noon[number][key], factor * noon[5][key], delta=0.02, msg=f"class {number}")

    def test_height_lets_more_sun_through(self):
        sea, mountain = (hours(site={"height": height})["South"][NOON] for height in (0, 2500))
        self.assertGreater(mountain["direct_normal_W_m2"], 1.1 * sea["direct_normal_W_m2"])


class Glazing(unittest.TestCase):
    def test_panes_at_normal_incidence(self):
        """A window that faces the noon sun: one pane gives its own values, two the geometric series."""
        tilt = 90 - hours()["South"][NOON]["sun_altitude_deg"]
        a, b = COATED, {"transmittance": 0.6, "reflectance": 0.2}
        panes = {"clear": [CLEAR], "coated": [a], "both": [a, b], "reverse": [b, a]}
        noon = {name: day[NOON] for name, day in hours(
            *[window(name, 180, tilt=tilt, panes=list_of_panes) for name, list_of_panes in panes.items()]).items()}
        series = 0.4 * 0.6 / (1 - 0.3 * 0.2)
        for name, transmittance in [("clear", 0.8), ("coated", 0.4), ("both", series), ("reverse", series)]:
            self.assertAlmostEqual(noon[name]["direct_transmittance"], transmittance, delta=2e-4, msg=name)
        self.assertAlmostEqual(noon["coated"]["direct_absorptance"], 0.3, delta=2e-4)
        # Reflected light passes the outer pane twice: the reflectances follow from energy balance.
        for name, (first, second) in {"both": (a, b), "reverse": (b, a)}.items():
            reflectance = first["reflectance"] + first["transmittance"] ** 2 * second["reflectance"] / 0.94
            absorptance = 1 - reflectance - series
            self.assertAlmostEqual(noon[name]["direct_absorptance"], absorptance, delta=2e-4, msg=name)


class Temperatures(unittest.TestCase):
    def test_outdoor_temperature_keeps_its_extremes(self):
        outdoor = [row["outdoor_C"] for row in hours(day={"hour_of_max": 16})["South"]]
        self.assertEqual((min(outdoor), max(outdoor)), (10, 20))
        self.assertEqual(outdoor.index(20) + 1, 16)
        self.assertEqual(outdoor.index(10) + 1, 4)  # the sun rises shortly before
        rising, falling = outdoor[3:16], outdoor[15:] + outdoor[:4]
        self.assertEqual(rising, sorted(rising))
        self.assertEqual(falling, sorted(falling, reverse=True))

    def test_single_pane_between_its_two_surface_resistances(self):
        """0.12 m²K/W on the room side, 0.06 outside; the library's coefficients have two decimals."""
        for row in hours(window("one", 180, panes=[CLEAR]))["one"]:
            absorbed = row["absorbed_W"] / 2
            expected = (0.06 * 20 + 0.12 * row["outdoor_C"] + 0.12 * 0.06 * absorbed) / 0.18
            self.assertAlmostEqual(row["pane1_C"], expected, delta=0.05)
            self.assertIsNone(row["pane2_C"])

    def test_panes_grow_colder_outwards_at_night(self):
        day = hours(*[window(str(n), 180, panes=[CLEAR] * n) for n in range(1, 6)])
        for n, rows in ((int(name), rows) for name, rows in day.items()):
            panes = [rows[0][f"pane{k}_C"] for k in range(1, n + 1)]
            self.assertEqual(panes, sorted(panes, reverse=True))
            self.assertTrue(rows[0]["outdoor_C"] < panes[-1] and panes[0] < 20)
            self.assertIsNone(rows[0].get(f"pane{n + 1}_C"))

    def test_the_pane_that_absorbs_is_the_warm_one(self):
        dark = {"transmittance": 0.3}
        day = hours(window("outside", 180, panes=[dark, CLEAR]), window("inside", 180, panes=[CLEAR, dark]))
        outside, inside = day["outside"][NOON], day["inside"][NOON]
        self.assertGreater(outside["pane2_C"], inside["pane2_C"])
        self.assertGreater(inside["pane1_C"], outside["pane1_C"])

    def test_outer_panes_of_a_known_unit_take_the_larger_share(self):
        """Of two panes 0.6 and 0.4, raising the room-side one by 0.02 and 0.07 K per W/m²."""
        for row in hours(window("unit", 180, shading={"short_wave": 0.4, "long_wave": 0.1, "panes": 2}))["unit"]:
            absorbed = row["absorbed_W"] / 2
            warming = (0.02 * 0.6 + 0.07 * 0.4) * absorbed
            self.assertAlmostEqual(row["pane1_C"], 0.62 * 20 + 0.38 * row["outdoor_C"] + warming, delta=0.02)


if __name__ == "__main__":
    unittest.main()
