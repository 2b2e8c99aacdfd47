"""quorvel climate around the numbers: faults of the input, output left as it was, help."""

import re
import unittest

import climate_input
from climate_input import changed, packed, run, station, text

OLD = b"an older file"

# What is wrong with a station file; what the one line must name after "a.toml:LINE: ".
BAD = [
    (changed(["name"], ""), 'name: value ""; allowed text'),
    (changed(["station"], 0), "station: value 0; allowed whole numbers 1 to 9999"),
    (changed(["station"], 1.5), "station: value 1.5 is no whole number; allowed whole"),
    (changed(["set3"], {"x": 1}), "set3: unknown key; known are name, station, set1, set2, latitude"),
    (changed(["set2"], None), "missing set2"),
    (changed(["set1", "time_A"], [14] * 11), "set1.time_A: value list of 11; allowed 12 numbers"),
    (changed(["set1", "time_B", 3], 24.1), "set1.time_B[4]: value 24.1; allowed 0 to 24 h"),
    (changed(["set1", "Q3", "Juli"], [1] * 10), "set1.Q3.Juli: unknown key"),
    (changed(["set1", "Q3", "July"], None), "set1.Q3: missing July"),
    (changed(["set1", "Q3", "July"], [1] * 9), "set1.Q3.July: value list of 9; allowed 10 numbers"),
    (changed(["set1", "Q3", "July", 2], 61), "set1.Q3.July[3]: value 61; allowed -90 to 60 °C"),
    (changed(["set1", "Q7", "May", 9], "much"), 'set1.Q7.May[10]: value "much"; allowed 0 to 1'),
    (changed(["set2", "F", "May", 9], 0.99), "set2.F.May: band 10: F is 0.99; allowed 1 in band 10"),
    (changed(["set2", "F", "May", 4], 0.1), "set2.F.May: band 5: F falls from "),
    (changed(["set2", "F", "May", 4], 1.1), "set2.F.May[5]: value 1.1; allowed 0 to 1"),
]


class BadInput(unittest.TestCase):
    def assert_refused(self, arguments, files, line, status=2):
        climate_input.assert_refused(self, arguments, files | {"out.climate": OLD}, line, status)

    def test_station_files(self):
        for of, message in BAD:
            with self.subTest(message):
                self.assert_refused(["pack", "out.climate", "good.toml", "a.toml"],
                                    {"good.toml": text(station(2)), "a.toml": text(of)}, r"a\.toml:\d+: " + re.escape(message))

    def test_the_line_is_that_of_the_value(self):
        content = text(changed(["set1", "Q3", "July", 2], 61))
        line = next(i for i, line in enumerate(content.splitlines(), 1) if "61, " in line)
        self.assert_refused(["pack", "out.climate", "a.toml"], {"a.toml": content}, f"a.toml:{line}: set1.Q3.July")

    def test_files_of_pack(self):
        good = text(station())
        for arguments, files, line in [
                (["out.climate", "none.toml"], {}, "none.toml: cannot be read"),
                (["out.climate", "a.toml"], {"a.toml": "station = "}, "a.toml:1: not valid TOML"),
                (["out.climate", "a.toml"], {"a.toml": packed(station())}, "a.toml:1: not valid TOML"),
                (["out.climate", "."], {"a.txt": good}, r"\.: no .toml file in this folder"),
                (["out.climate", "a.toml", "b.toml"], {"a.toml": good, "b.toml": good}, "b.toml: station 1 is already that of a.toml"),
                (["a.toml", "b.toml"], {"a.toml": good, "b.toml": good}, "a.toml: a station file cannot be"),
                (["a.txt", "a.txt"], {"a.txt": good}, "a.txt: is to be read and written")]:
            with self.subTest(line):
                self.assert_refused(["pack", *arguments], files, line)

    def test_output_that_cannot_be_written(self):
        files = {"a.toml": text(station()), "out.climate": OLD}
        self.assertEqual(run("pack", "out.climate", "a.toml", files=files).written["out.climate"], packed(station()))
        for output in (".", "none/out.climate"):
            with self.subTest(output):
                self.assert_refused(["pack", output, "a.toml"], files, f"quorvel: {re.escape(output)}.*: cannot be written", status=1)

    def test_places_at_fault(self):
        good = '[[station]]\nnumber = 1\nname = "A"\n'
        for beside, line in [("[[station]]\nnumber = 1", "1: station.1.: missing name"),
                             (good + "zone = 15", "4: station.1..zone: value 15; allowed -12 to 14 h"),
                             (good + good, r"5: station.2..number: station 1 is there twice")]:
            with self.subTest(line):
                self.assert_refused(["list", "in.climate"], {"in.climate": packed(station()), "in.climate.toml": beside},
                                    "in.climate.toml:" + line)

    def test_climate_data_files(self):
        files = {"in.climate": packed(station(2))}
        for command in ("show", "check", "unpack"):
            for arguments, line in [(["none.climate", "1"], "none.climate: cannot be read"),
                                    ([".", "1"], r"\.: cannot be read"),
                                    (["in.climate", "3"], "in.climate: station 3: not in the file"),
                                    (["in.climate", "0"], "in.climate: station 0: not in the file"),
                                    (["in.climate", "2147483647"], "in.climate: station 2147483647: not in the file"),
                                    (["in.climate", "1"], "in.climate: station 1: all its values are 0")]:
                with self.subTest(command, arguments=arguments):
                    self.assert_refused([command, *arguments], files, line)

        self.assert_refused(["show", "short.climate", "1"], {"short.climate": bytes(431)}, "short.climate: station 1: not in")
        self.assert_refused(["list", "weather.epw"], {"weather.epw": b"LOCATION" * 500}, "weather.epw: has no station")

    def test_command_line(self):
        for arguments in ([], ["unpack"], ["pack"], ["pack", "out.climate"], ["show", "out.climate"], ["show", "x", "one"],
                          ["show", "x", "1", "--month", "13"], ["show", "x", "1", "--set", "3"],
                          ["check"], ["from-hourly", "x.epw"],
                          ["from-hourly", "x.epw", "-o", "x.toml", "--station", "0"]):
            with self.subTest(arguments):
                self.assert_refused(arguments, {}, "quorvel.*: .*; see quorvel.* --help")

    def test_missing_library(self):
        process = run("check", "in.climate", files={"in.climate": ""}, environment={"QUORVEL_LIBRARY": "none.so"})
        self.assertEqual(process.returncode, 1)
        self.assertRegex(process.stderr.decode(), r"^quorvel: cannot load none.so.*\n$")


if __name__ == "__main__":
    unittest.main()
