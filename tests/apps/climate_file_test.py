"""Climate data files: what pack writes, what show and check read through the library."""

import math
import struct
import tomllib
import unittest

from climate_input import (MONTHS, QUANTITIES, changed, offset, packed, row_of, run, station, text, with_header,
                           with_value)


def single(value):
    return struct.unpack("<f", struct.pack("<f", value))[0]


def ask(command, data, *arguments, beside=""):
    """What a command says of a climate data file."""
    files = {"Ötztal.climate": data} | ({"Ötztal.climate.toml": beside} if beside else {})
    process = run(command, "Ötztal.climate", *map(str, arguments), files=files)
    assert (process.returncode, process.stderr) == (0, b""), process.stderr.decode()
    return process.stdout.decode()


def tables(of):
    """A station without its name, all its numbers as the file holds them."""
    if isinstance(of, dict):
        return {key: tables(value) for key, value in of.items() if key != "name"}
    return [single(value) for value in of] if isinstance(of, list) else of


class RoundTrip(unittest.TestCase):
    def test_library_reads_what_was_packed(self):
        """In fresh processes, with stations in several places: H is read once in each."""
        data = packed(station(5), station(1), station(2))
        self.assertEqual(len(data), offset(6, 0, 0))
        self.assertEqual((data[:864], data[offset(3, 0, 0):offset(5, 0, 0)]), (bytes(864), bytes(2 * 19 * 432)))
        for H, number in ((0, 1), (0, 5), (1, 5), (18, 2), (19, 1), (40, 5), (-1, 2)):
            with self.subTest(H=H, number=number):
                shown = tomllib.loads(ask("unpack", with_header(data, H), number))
                self.assertEqual(tables(shown), tables(station(number)))

    def test_folder_and_numbers_for_all(self):
        files = {"in/b.toml": text(station(1)), "in/a.toml": text(changed(["set2", "time_B"], 6, station(2))), "in/c.txt": "none"}
        process = run("pack", "out.climate", "in", files=files)
        self.assertEqual(process.returncode, 0)
        data = process.written["out.climate"]
        self.assertEqual(struct.unpack_from("<12f", data, offset(2, row_of(2, "time_B"), 0)), (6.0,) * 12)
        self.assertEqual(tables(tomllib.loads(ask("unpack", data, 1))), tables(station(1)))

    def test_tables_show_the_values(self):
        data, of = packed(station(1)), station(1)
        whole, part = ask("show", data, 1), ask("show", data, 1, "--month", 7, "--set", 2)
        self.assertEqual(whole.count("time A "), 24)
        self.assertIn(part[part.index("Set 2, July"):], whole)
        july = [of["set2"][q]["July"] for q in QUANTITIES]
        lines = [line.split() for line in part.splitlines()]
        times = [float(line[2]) for line in lines if line[:1] == ["time"]]
        self.assertEqual(times, [of["set2"][time][6] for time in ("time_A", "time_B")])
        tables = [list(map(float, line)) for line in lines if len(line) == 9 and line[0].isdigit()]
        self.assertEqual([cells[0] for cells in tables], list(range(1, 11)))
        for band, cells in enumerate(tables):
            for cell, values in zip(cells[1:], july, strict=True):
                self.assertAlmostEqual(cell, values[band], delta=0.0051)

    def test_places_stand_beside_the_file(self):
        """As given, by the numbers of the stations; without them stations have numbers only."""
        place = {"latitude": -33.9, "longitude": 151.2, "height": 39, "zone": 10}
        files = {"a.toml": text(station(3) | {"name": r"São \\ \"X\""}), "b.toml": text(place | station(1))}
        written = run("pack", "out.climate", *files, files=files).written
        beside = tomllib.loads(written["out.climate.toml"].decode())["station"]
        self.assertEqual(beside, [{"number": 1, "name": "Station 1"} | place, {"number": 3, "name": 'São \\ "X"'}])
        data, of_places = written["out.climate"], written["out.climate.toml"]
        listed = [line.split() for line in ask("list", data, beside=of_places).splitlines()]
        self.assertEqual(listed[-2:], [["1", "Station", "1", "-33.9", "151.2", "39", "10"],
                                       ["3", "São", "\\", '"X"', *4 * ["–"]]])
        self.assertEqual(ask("list", data).splitlines()[-1].split(), ["3", "Station", "3", *4 * ["–"]])
        again = tomllib.loads(ask("unpack", data, 1, beside=of_places))
        self.assertEqual({key: again[key] for key in place}, place)


class Check(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.sound = packed(station(1), station(2))

    def check(self, data, *arguments):
        """The violations, in a process that tells by its status whether there are any."""
        process = run("check", "Ötztal.climate", *map(str, arguments), files={"Ötztal.climate": data})
        name, verdict, *found = [line.strip() for line in process.stdout.decode().splitlines() if line]
        found = found[1:]  # below the heading
        self.assertEqual((process.returncode, process.stderr, name), (1 if found else 0, b"", "Ötztal.climate"))
        self.assertTrue(verdict.endswith(f", {len(found)} violation{'s' * (len(found) != 1)}" if found else ", no rule violated"))
        return found

    def test_sound_files_are_clean(self):
        """One band without days included, and numbers left out."""
        of = changed(["set1", "F", "May", 4], station(1)["set1"]["F"]["May"][3])
        for data in (self.sound, packed(of), packed(station(3)), with_header(self.sound, 40)):
            self.assertEqual(self.check(data), [])

    def test_each_planted_violation_is_found_alone(self):
        planted = [
            (("F", 10, "July", 0.98), "F is 0.98; allowed 1 in band 10"),
            (("F", 5, "March", 0.01), "F falls from "),
            (("F", 1, "May", -0.1), "F is -0.1; allowed 0 to 1"),
            (("F", 3, "May", math.nan), "F is not a number; allowed 0 to 1"),
            (("Q1", 1, "January", -0.01), "Q1 is -0.01; allowed 0 to 10"),
            (("Q2", 2, "June", 11), "Q2 is 11; allowed 0 to 10"),
            (("Q3", 10, "December", 61), "Q3 is 61; allowed -90 to 60 °C"),
            (("Q4", 9, "April", -273), "Q4 is -273; allowed -90 to 60 °C"),
            (("Q5", 4, "August", math.nan), "Q5 is not a number; allowed"),
            (("Q6", 6, "October", math.inf), "Q6 is inf; allowed -90 to 60 °C"),
            (("Q7", 8, "September", 50), "Q7 is 50; allowed 0 to 1"),
            (("time_A", 1, "November", 24.5), "time_A is 24.5; allowed 0 to 24 h"),
            (("time_B", 1, "February", -1), "time_B is -1; allowed 0 to 24 h"),
        ]
        for i, ((quantity, band, month, value), fault) in enumerate(planted):
            s = 1 + i % 2
            with self.subTest(fault):
                data = with_value(self.sound, 2, s, quantity, band, month, value)
                found = self.check(data, 2)
                self.assertEqual((self.check(data), self.check(data, 1)), (found, []))
                place = f"station 2, set {s}, {month}" + f", band {band}" * (not quantity.startswith("time"))
                self.assertEqual([line.startswith(f"{place}: {fault}") for line in found], [True], found)

    def test_length_and_header(self):
        cases = [
            (self.sound + b"\0", "file length: 17281 bytes are no whole number of records of 432"),
            (self.sound[:-432], "file length: station 2 has only 18 of its 19 records"),
            (struct.pack("<2i", 0, -7) + self.sound[8:], "header: H = -7 lets station 1 begin at record -4, ahead of"),
            (struct.pack("<2i", 0, 2**31 - 1) + self.sound[8:], "header: H = 2147483647 lets station 1 begin at record"),
            (struct.pack("<2i", 0, -2**31) + self.sound[8:], "header: H = -2147483648 lets station 1 begin at record"),
            (bytes(431), "file length: 431 bytes are no whole number of records of 432"),
            (b"", "file length: no room for the header"),
            (bytes(432), "header: H = 0 lets station 1 begin at record 3, behind the 1 records"),
            (bytes(len(self.sound)), "no station has any values"),
        ]
        for data, line in cases:
            with self.subTest(line):
                self.assertTrue(self.check(data)[0].startswith(line), self.check(data))


if __name__ == "__main__":
    unittest.main()
