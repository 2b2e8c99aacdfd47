"""Station files derived from hourly weather, against the weather itself."""

import functools
import re
import sys
import tomllib
import unittest
from pathlib import Path

import host
from climate_input import MONTHS, QUANTITIES

ROOT = Path(__file__).parents[2]
sys.path.insert(0, str(ROOT / "tools" / "climate"))
from make_weather_year import CLIMATES, weather_year  # noqa: E402

HEADER = 8
DRY_BULB, HUMIDITY, PRESSURE, DIRECT, DIFFUSE, SKY_COVER = 6, 8, 9, 14, 15, 22


def derive(epw, *arguments):
    process = host.run("from-hourly", "year.epw", "-o", "station.toml", *arguments, files={"year.epw": epw})
    assert (process.returncode, process.stdout, process.stderr) == (0, b"", b""), process.stderr.decode()
    assert list(process.written) == ["station.toml"]
    return process.written["station.toml"].decode()


def station(epw):
    return tomllib.loads(derive(epw))


def with_fields(epw, change):
    """The year with every hour's fields changed in place."""
    lines = epw.splitlines()
    for i in range(HEADER, len(lines)):
        fields = lines[i].split(",")
        change(fields)
        lines[i] = ",".join(map(str, fields))
    return "\n".join(lines) + "\n"


@functools.cache
def hours(epw):
    """Every hour as numbers, the field that holds none as nothing."""
    return [[None if field == "synthetic" else float(field) for field in line.split(",")]
            for line in epw.splitlines()[HEADER:]]


def days(epw, month):
    """Of a month, the days as lists of 24 hours."""
    rows = [row for row in hours(epw) if row[1] == month]
    return [rows[i:i + 24] for i in range(0, len(rows), 24)]


def weighted(of, s, quantity, month):
    """Mean of a quantity over the bands, by their share of the days."""
    F = [0, *of[f"set{s}"]["F"][month]]
    return sum((F[band + 1] - F[band]) * of[f"set{s}"][quantity][month][band] for band in range(10))


def mean(values):
    values = list(values)
    return sum(values) / len(values)


class Years(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.epw = {name: weather_year(name) for name in CLIMATES}
        cls.station = {name: station(epw) for name, epw in cls.epw.items()}

    def months(self):
        for name, of in self.station.items():
            for number, month in enumerate(MONTHS, 1):
                with self.subTest(name, month=month):
                    yield of, month, days(self.epw[name], number)

    def test_months_keep_their_means(self):
        for of, month, weather in self.months():
            for s in (1, 2):
                a, b = (of[f"set{s}"][time][MONTHS.index(month)] for time in ("time_A", "time_B"))
                self.assertEqual((a, b), (15, 5))  # as the weather was made
                for quantity, expected in {"Q3": mean(day[a - 1][DRY_BULB] for day in weather),
                                           "Q4": mean(day[b - 1][DRY_BULB] for day in weather)}.items():
                    self.assertAlmostEqual(weighted(of, s, quantity, month), expected, delta=0.01)
                cloud_free = mean(1 - hour[SKY_COVER] / 10 for day in weather for hour in day)
                self.assertAlmostEqual(weighted(of, s, "Q7", month), cloud_free, delta=0.001)
            for quantity in QUANTITIES[1:]:  # both sets have the same days
                self.assertAlmostEqual(weighted(of, 1, quantity, month), weighted(of, 2, quantity, month), delta=0.01)

    def test_warm_days_are_in_the_first_bands_of_set_1(self):
        for of, month, weather in self.months():
            ranked = sorted(weather, key=lambda day: -sum(hour[DRY_BULB] for hour in day))
            ends = [round(F * len(ranked)) for F in [0, *of["set1"]["F"][month]]]
            for band in range(10):
                of_band = ranked[ends[band]:ends[band + 1]]
                self.assertAlmostEqual(of["set1"]["Q3"][month][band], mean(day[14][DRY_BULB] for day in of_band), delta=0.0051)
                self.assertAlmostEqual(of["set1"]["Q7"][month][band],
                                       mean(1 - hour[SKY_COVER] / 10 for day in of_band for hour in day), delta=0.00051)

    def test_sunny_days_are_in_the_first_bands_of_set_2(self):
        for of, month, weather in self.months():
            q1 = of["set2"]["Q1"][month]
            self.assertEqual(q1, sorted(q1, reverse=True))
            beam = sorted((sum(hour[DIRECT] for hour in day) for day in weather), reverse=True)
            top, bottom = round(of["set2"]["F"][month][0] * len(beam)), round((1 - of["set2"]["F"][month][8]) * len(beam))
            self.assertAlmostEqual(q1[9] / q1[0], mean(beam[-bottom:]) / mean(beam[:top]), delta=0.05)

    def test_examples_are_what_the_generator_and_the_program_make(self):
        for number, name in enumerate(CLIMATES, 1):
            process = host.run("from-hourly", f"{name}.epw", "--station", str(number), "-o", "out.toml",
                               files={f"{name}.epw": self.epw[name]})
            example = ROOT / "apps" / "climate" / "examples" / f"synthetic_{name}.toml"
            self.assertEqual(process.written["out.toml"].decode(), example.read_text(encoding="utf-8"))

    def test_packed_stations_are_clean(self):
        files = {f"{name}.toml": derive(epw, "--station", str(number), "--name", name)
                 for number, (name, epw) in enumerate(self.epw.items(), 1)}
        data = host.run("pack", "out.climate", ".", files=files).written["out.climate"]
        self.assertEqual(host.run("check", "out.climate", files={"out.climate": data}).stdout, b"2 stations checked, no rule violated\n")


class Weather(unittest.TestCase):
    """Years made so that the answer is known."""

    @classmethod
    def setUpClass(cls):
        cls.epw = weather_year("maritime")

    def test_air_of_published_wet_bulb(self):
        """20 °C and 50 % at sea level: 13.8 °C by any psychrometric chart; saturated air: its own."""
        for humidity, expected in ((50, 13.8), (100, 20.0), (104, 20.0)):
            def still(fields):
                fields[DRY_BULB], fields[HUMIDITY], fields[PRESSURE] = 20, humidity, 101325
            of = station(with_fields(self.epw, still))
            for quantity in ("Q5", "Q6"):
                self.assertAlmostEqual(of["set1"][quantity]["July"][0], expected, delta=0.06)
                self.assertEqual(len(set(of["set2"][quantity]["July"])), 1)

    def test_clear_skies_have_factors_about_one(self):
        """In both hemispheres and all months, by a clear-sky formula that the library does not use."""
        for latitude in (50, -35):
            CLIMATES["clear"] = CLIMATES["maritime"]._replace(latitude=latitude, cloud=1e-6, cloud_wave=0)
            try:
                of = station(weather_year("clear"))
            finally:
                del CLIMATES["clear"]
            for month in MONTHS:
                self.assertAlmostEqual(weighted(of, 1, "Q1", month), 1, delta=0.3)

    def test_polar_night_has_no_factors(self):
        epw = self.epw.replace(",52,5,1,5\n", ",80,5,1,5\n")
        of = station(epw)
        self.assertEqual((of["set1"]["Q1"]["December"], of["set1"]["Q2"]["December"]), ([0] * 10, [0] * 10))

    def test_leap_day_line_ends_and_hours_without_sky_cover(self):
        lines = self.epw.splitlines()
        leap = HEADER + 24 * 59
        more = [re.sub(r"^2001,2,28,", "2001,2,29,", line) for line in lines[leap - 24:leap]]
        lines[HEADER:HEADER + 23] = [re.sub(r",\d+,(\d+,9999,99999,)", r",99,\1", line) for line in lines[HEADER:HEADER + 23]]
        of = station("\r\n".join(lines[:leap] + more + lines[leap:]) + "\r\n\r\n")
        self.assertAlmostEqual(of["set1"]["F"]["February"][0] * 29, 3, delta=0.01)

    def test_names_become_printable(self):
        epw = self.epw.encode().replace(b"Synthetic maritime", b'M\xfcnchen "\\" a' + b"b" * 60)
        self.assertEqual(tomllib.loads(derive(epw))["name"], ('M?nchen "\\" a' + "b" * 60)[:40])
        self.assertEqual(tomllib.loads(derive(epw, "--name", "Here", "--station", "7"))["name"], "Here")


class BadInput(unittest.TestCase):
    def test_each_fault_gets_one_line_and_leaves_the_output(self):
        lines = weather_year("maritime").splitlines()

        def field(number, column, value):
            fields = lines[number - 1].split(",")
            fields[column] = value
            return lines[:number - 1] + [",".join(fields)] + lines[number:]

        no_sky = [re.sub(r",\d+,(\d+,9999,99999,)", r",99,\1", line) for line in lines]
        cases = [
            ([], r":1: does not begin with LOCATION"),
            (lines[1:], r":1: does not begin with LOCATION"),
            (lines[:5], r":6: ends within the header"),
            (lines[:7] + lines[8:], r":8: DATA PERIODS expected"),
            (field(1, 6, "95"), r":1: latitude: value 95; allowed -90 to 90 degrees north"),
            (field(1, 8, "?"), r":1: time zone: value \?; allowed -12 to 14 h"),
            (field(1, 9, ""), r":1: elevation: value ; allowed -500 to 9000 m"),
            (field(8, 2, "4"), r":8: records per hour: value 4; allowed 1 to 1"),
            (lines[:8], r":9: ends before 1 January, hour 1"),
            (lines[:-1], r":8768: ends before 31 December, hour 24; a whole year is needed"),
            (lines + lines[-1:], r":8769: 31 December, hour 24 must be the last line"),
            (lines[:20] + lines[21:], r":21: 1 January, hour 13 expected"),
            (field(100, DRY_BULB, "99.9"), r":100: dry-bulb temperature: value 99.9, which stands for no value; allowed"),
            (field(100, DRY_BULB, "nan"), r":100: dry-bulb temperature: value nan; allowed -70 to 70 °C"),
            (field(200, HUMIDITY, "999"), r":200: relative humidity: value 999, which"),
            (field(200, PRESSURE, "1013"), r":200: atmospheric pressure: value 1013; allowed 31000 to 120000 Pa"),
            (field(8000, DIRECT, "9999"), r":8000: direct normal irradiation: value 9999, which"),
            (field(8000, DIFFUSE, "-1"), r":8000: diffuse horizontal irradiation: value -1; allowed 0 to 1500"),
            (field(8000, SKY_COVER, "11"), r":8000: total sky cover: value 11; allowed 0 to 10 tenths"),
            (lines[:300] + [lines[300][:60]] + lines[301:], r":301: .*: missing; the line ends after \d+ fields"),
            (no_sky, r": 1 January: total sky cover: missing all day"),
        ]
        for content, message in cases:
            with self.subTest(message):
                files = {"year.epw": "\n".join(content) + "\n" * bool(content), "out.toml": "old"}
                host.assert_refused(self, ["from-hourly", "year.epw", "-o", "out.toml"], files, rf"year\.epw(?:{message})")

    def test_files(self):
        for arguments, line in [(["none.epw", "-o", "a.toml"], "none.epw: cannot be read"),
                                ([".", "-o", "a.toml"], r"\.: cannot be read"),
                                (["year.epw", "-o", "year.epw"], "year.epw: a station file's name must end in .toml")]:
            with self.subTest(line):
                host.assert_refused(self, ["from-hourly", *arguments], {"year.epw": "LOCATION"}, line)


if __name__ == "__main__":
    unittest.main()
