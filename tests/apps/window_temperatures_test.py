"""Outdoor temperatures from a climate data file."""

import itertools
import math
import struct
import tempfile
import unittest
from pathlib import Path

import host
from climate_input import QUANTITIES, offset, row_of
from window_input import answer, job, rows

NAME = "Zürich – Böen.dat"


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
    ((14, 23), lambda s, band, month: 10, lambda s, band, month: 5),
    ((14, 5), lambda s, band, month: 5, lambda s, band, month: 10),
    ((15, 15), lambda s, band, month: 10, lambda s, band, month: 5))


def from_file(station, percentage, **keys):
    climate = {"file": NAME, "station": station, "percentage": percentage}
    return {"outdoor_min": None, "outdoor_max": None, "climate": climate | keys}


class ClimateFile(unittest.TestCase):
    files = {NAME: STATIONS}

    def test_temperatures_are_reached_at_their_hours(self):
        """Also where the coldest hour is late in the evening, and where hour B is the warmer one."""
        cases = [(1, 25, 1, 15, 40 - 5 + 1.5 - 3, 4, 16 - 2.5 - 1), (1, 100, 2, 15, 40 - 20 + 1.5 - 6, 4, 4),
                 (1, 0, 1, 15, 40 - 2 + 1.5 - 3, 4, 14), (2, 60, 1, 16, 7, 6, 2), (4, 50, 1, 14, 10, 23, 5),
                 (5, 50, 1, 5, 10, 14, 5)]
        for station, percentage, band_set, warmest, highest, coldest, lowest in cases:
            day = from_file(station, percentage, set=band_set)
            outdoor = [row["outdoor"] for row in rows(answer(job(day=day), files=self.files), "sun")]
            with self.subTest(station=station, percentage=percentage):
                self.assertAlmostEqual(outdoor[warmest - 1], highest, delta=0.051)
                self.assertAlmostEqual(outdoor[coldest - 1], lowest, delta=0.051)
                self.assertEqual((max(outdoor), min(outdoor)), (outdoor[warmest - 1], outdoor[coldest - 1]))

    def test_an_hour_that_is_assumed_is_told_and_refused_when_strict(self):
        files = {"job.toml": job(day=from_file(6, 50)), NAME: STATIONS}
        process = host.run("window", "job.toml", files=files)
        self.assertIn("5.0 °C at 05:00, 10.0 °C at 15:00", " ".join(process.stdout.decode().split()))
        self.assertRegex(process.stderr.decode(), "^job.toml: warning: .*, station 6: its hours A and B in June are the same")
        self.assertEqual(host.run("window", "--strict", "job.toml", files=files).returncode, 2)

    def test_the_report_names_the_file_which_lies_beside_the_input(self):
        with tempfile.TemporaryDirectory() as folder:
            Path(folder, NAME).write_bytes(STATIONS)
            Path(folder, "job.toml").write_text(job(day=from_file(1, 25)))
            process = host.run("window", str(Path(folder, "job.toml")))
        self.assertIn(f"Outdoor air from {NAME}, station 1, at 25 % of set 1: 12.5 °C at 04:00, 33.5 °C at 15:00 solar time",
                      " ".join(process.stdout.decode().split()))

    def test_what_the_file_does_not_have_gets_one_line(self):
        for station, data, message in [
                (1, None, f"file: {NAME}: cannot be read"), (1, b"", f"file: {NAME}: station 1: not in the file"),
                (7, STATIONS, f"file: {NAME}: station 7: not in the file"),
                (1, STATIONS[:5000], f"file: {NAME}: station 1: not in the file"),
                (1, STATIONS[:4] + b"\x7f" * 4 + STATIONS[8:], f"file: {NAME}: station 1: not in the file"),
                (3, STATIONS, f"station: {NAME}, station 3: no day's temperatures in June")]:
            files = {"job.toml": job(day=from_file(station, 50))} | ({NAME: data} if data is not None else {})
            with self.subTest(message):
                host.assert_refused(self, ["window", "job.toml"], files, rf"job\.toml:\d+: day\.climate\.{message}")


if __name__ == "__main__":
    unittest.main()
