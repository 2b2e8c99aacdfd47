"""The models of the sky's diffuse radiation, and the outdoor air of a climate data file."""

import itertools
import math
import struct
import tempfile
import unittest
from pathlib import Path

import host
from climate_input import QUANTITIES, offset, row_of
from designday_input import hours, job, window

NOON = 11
MODELS = ("perez", "muneer", "muneer-north", "muneer-south")


def noon(orientation, tilt, model):
    return hours(window("W", orientation, tilt=tilt), site={"sky_model": model, "class": 1})["W"][NOON]


class SkyModels(unittest.TestCase):
    def test_level_planes_see_the_whole_sky_or_none(self):
        for model in MODELS:
            day = hours(window("up", 180, tilt=0), window("down", 180, tilt=180), site={"sky_model": model})
            for up, down in zip(day["up"], day["down"]):
                if (up["sun_altitude_deg"] or 0) > 6:
                    self.assertAlmostEqual(up["diffuse_W_m2"], up["diffuse_horizontal_W_m2"], delta=0.05, msg=model)
                self.assertAlmostEqual(down["diffuse_W_m2"], 0, delta=0.01, msg=model)

    def test_perez_under_a_brilliant_sky(self):
        """The published model with its coefficients for the clearest skies; in June 1325 W/m² arrive."""
        for orientation, tilt in [(180, 90), (180, 40), (90, 90), (0, 20)]:
            row = noon(orientation, tilt, "perez")
            altitude, beta = math.radians(row["sun_altitude_deg"]), math.radians(tilt)
            direct, diffuse = row["direct_normal_W_m2"], row["diffuse_horizontal_W_m2"]
            zenith = math.pi / 2 - altitude
            kappa = 1.041 * zenith ** 3
            self.assertGreater(((diffuse + direct) / diffuse + kappa) / (1 + kappa), 6.2)
            brightness = diffuse / math.sin(altitude) / 1325
            f1 = 0.678 - 0.327 * brightness - 0.250 * zenith
            f2 = 0.156 - 1.377 * brightness + 0.251 * zenith
            towards = max(0, math.cos(math.radians(row["incidence_deg"])))
            expected = diffuse * ((1 - f1) * (1 + math.cos(beta)) / 2 + f1 * towards / math.sin(altitude) +
                                  f2 * math.sin(beta))
            self.assertAlmostEqual(row["diffuse_W_m2"], expected, delta=0.005 * diffuse)

    def test_muneer_in_the_sun(self):
        for orientation, tilt in [(180, 90), (180, 40), (150, 60)]:
            beta = math.radians(tilt)
            spread = math.sin(beta) - beta * math.cos(beta) - math.pi * math.sin(beta / 2) ** 2
            for model in MODELS[1:]:
                row = noon(orientation, tilt, model)
                k = row["direct_normal_W_m2"] / 1325
                b = {"muneer": 2 * -0.62 / (math.pi * (3 + 2 * -0.62)), "muneer-north": 0.00333 - 0.415 * k - 0.6987 * k * k,
                     "muneer-south": 0.00263 - 0.712 * k - 0.6883 * k * k}[model]
                background = math.cos(beta / 2) ** 2 + b * spread
                ratio = math.cos(math.radians(row["incidence_deg"])) / math.sin(math.radians(row["sun_altitude_deg"]))
                self.assertAlmostEqual(row["diffuse_W_m2"] / row["diffuse_horizontal_W_m2"],
                                       background * (1 - k) + k * ratio, delta=0.005, msg=model)

    def test_only_the_diffuse_part_changes(self):
        plain = noon(150, 60, "design")
        for model in MODELS:
            row = noon(150, 60, model)
            for key in ("direct_W_m2", "ground_W_m2", "diffuse_horizontal_W_m2", "direct_transmittance"):
                self.assertEqual(row[key], plain[key], f"{model} {key}")


def climate_file(*stations):
    """They are (times, air at A, air at B): functions of set, band 1 to 10 and month 1 to 12."""
    data = bytearray(struct.pack("<2i", 0, 2) + bytes(offset(len(stations) + 1, 0, 0, H=2) - 8))
    for number, (times, *air) in enumerate(stations, 1):
        for s, month in itertools.product((1, 2), range(1, 13)):
            values = dict(zip((row_of(s, "time_A"), row_of(s, "time_B")), times))
            for band in range(1, 11):
                values |= {row_of(s, q, band): 99 for q in QUANTITIES} | {row_of(s, "F", band): band / 10}
                values |= {row_of(s, q, band): of(s, band, month) for q, of in zip(("Q3", "Q4"), air)}
            for row, value in values.items():
                struct.pack_into("<f", data, offset(number, row, month - 1, H=2), value)
    return bytes(data)


STATIONS = climate_file(
    ((15, 4), lambda s, band, month: 40 - 2 * band + month / 4 - 3 * s, lambda s, band, month: 16 - band - s),
    ((16, 6), lambda s, band, month: 10 - band / 2, lambda s, band, month: 5 - band / 2),
    ((15, 4), lambda s, band, month: 10, lambda s, band, month: math.nan if month == 6 else 11),
    ((3, 4), lambda s, band, month: 10, lambda s, band, month: 5))


def from_file(station, percentage, **keys):
    climate = {"file": "Zürich – Böen.dat", "station": station, "percentage": percentage}
    return {"outdoor_min": None, "outdoor_max": None, "climate": climate | keys}


class ClimateFile(unittest.TestCase):
    files = {"Zürich – Böen.dat": STATIONS}

    def test_temperatures_are_reached_at_their_hours(self):
        cases = [(1, 25, 1, 15, 40 - 5 + 1.5 - 3, 4, 16 - 2.5 - 1), (1, 100, 2, 15, 40 - 20 + 1.5 - 6, 4, 4),
                 (1, 0, 1, 15, 40 - 2 + 1.5 - 3, 4, 14), (2, 60, 1, 16, 7, 6, 2)]
        for station, percentage, band_set, hour_a, highest, hour_b, lowest in cases:
            day = from_file(station, percentage, set=band_set)
            outdoor = [row["outdoor_C"] for row in hours(day=day, files=self.files)["South"]]
            with self.subTest(station=station, percentage=percentage):
                self.assertAlmostEqual(outdoor[hour_a - 1], highest, delta=0.006)
                self.assertAlmostEqual(outdoor[hour_b - 1], lowest, delta=0.006)
                self.assertEqual((max(outdoor), min(outdoor)), (outdoor[hour_a - 1], outdoor[hour_b - 1]))

    def test_the_report_names_the_file_which_lies_beside_the_input(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, "Zürich – Böen.dat").write_bytes(STATIONS)
            Path(folder, "job.toml").write_text(job(day=from_file(1, 25)))
            process = host.run(str(Path(folder, "job.toml")))
        self.assertIn("outdoor air from Zürich – Böen.dat, station 1, at 25 % of set 1: 12.5 °C at 04:00, "
                      "33.5 °C at 15:00 solar time\n", process.stdout.decode())

    def test_what_the_file_does_not_have_gets_one_line(self):
        for station, data, message in [
                (1, None, "file: Zürich – Böen.dat cannot be read"), (1, b"", "file: Zürich – Böen.dat cannot be read"),
                (5, STATIONS, "station: Zürich – Böen.dat has no station 5"),
                (1, STATIONS[:5000], "station: Zürich – Böen.dat has no station 1"),
                (1, STATIONS[:4] + b"\x7f" * 4 + STATIONS[8:], "station: Zürich – Böen.dat has no station 1"),
                (3, STATIONS, "station: Zürich – Böen.dat, station 3: no day's temperatures in June"),
                (4, STATIONS, "station: Zürich – Böen.dat, station 4: no day's temperatures in June")]:
            files = {"job.toml": job(day=from_file(station, 50))} | ({"Zürich – Böen.dat": data} if data is not None else {})
            with self.subTest(message):
                host.assert_refused(self, ["job.toml"], files, rf"job\.toml:\d+: day\.climate\.{message}")


if __name__ == "__main__":
    unittest.main()
