"""Station files derived from hourly weather, against the weather itself."""

import functools
import re
import sys
import tomllib
import unittest
from math import cos, log, pi, sin
from pathlib import Path

from climate_input import MONTHS, QUANTITIES, assert_refused, run

ROOT = Path(__file__).parents[2]
sys.path.insert(0, str(ROOT / "tools" / "climate"))
from make_weather_year import CLIMATES, weather_year  # noqa: E402

HEADER = 8
DRY_BULB, HUMIDITY, PRESSURE, DIRECT, DIFFUSE, SKY_COVER = 6, 8, 9, 14, 15, 22


def derive(epw, *arguments, notes=()):
    """The station file; the notes are what standard error must tell, in this order."""
    process = run("from-hourly", "year.epw", "-o", "station.toml", *arguments, files={"year.epw": epw})
    assert (process.returncode, process.stdout) == (0, b""), process.stderr.decode()
    assert process.stderr.decode().splitlines() == [f"year.epw: {note}" for note in notes], process.stderr.decode()
    assert list(process.written) == ["station.toml"]
    return process.written["station.toml"].decode()


def station(epw, notes=()):
    return tomllib.loads(derive(epw, notes=notes))


def equation_of_time(month):
    """Its mean in hours, by J. W. Spencer's series in its usual form of 1971."""
    def minutes(day):
        g = 2 * pi * day / 365
        return 229.18 * (0.000075 + 0.001868 * cos(g) - 0.032077 * sin(g) - 0.014615 * cos(2 * g) - 0.040849 * sin(2 * g))
    begin = [0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365]
    return mean(minutes(day) for day in range(begin[month], begin[month + 1])) / 60


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
    """Of a month, the days of solar time as lists of 24 hours; the first hour of the clock's in the generator's maritime
    climate is the last of the day before."""
    rows = hours(epw)
    first = 1 if "maritime" in epw[:40] else 0
    rows = rows[first:] + rows[:first]
    whole = [rows[i:i + 24] for i in range(0, len(rows), 24)]
    return [day for day in whole if day[0][1] == month]


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
            at_clock = {hour: mean(row[DRY_BULB] for day in weather for row in day if row[3] == hour) for hour in (5, 15)}
            for s in (1, 2):
                for quantity, expected in {"Q3": at_clock[15], "Q4": at_clock[5]}.items():
                    self.assertAlmostEqual(weighted(of, s, quantity, month), expected, delta=0.01)
                cloud_free = mean(1 - hour[SKY_COVER] / 10 for day in weather for hour in day)
                self.assertAlmostEqual(weighted(of, s, "Q7", month), cloud_free, delta=0.001)
            for quantity in QUANTITIES[1:]:  # both sets have the same days
                self.assertAlmostEqual(weighted(of, 1, quantity, month), weighted(of, 2, quantity, month), delta=0.01)

    def test_times_are_solar(self):
        """The weather is made with its extremes at 5:00 and 15:00 of standard time."""
        for name, of in self.station.items():
            climate = CLIMATES[name]
            for month in range(12):
                ahead = climate.longitude / 15 - climate.zone + equation_of_time(month)
                for time, clock in ("time_A", 15), ("time_B", 5):
                    for s in ("set1", "set2"):
                        self.assertAlmostEqual(of[s][time][month], clock + ahead, delta=0.02)

    def test_place_goes_along(self):
        for name, of in self.station.items():
            climate = CLIMATES[name]
            self.assertEqual([of[key] for key in ("name", "latitude", "longitude", "height", "zone")],
                             [climate.place, climate.latitude, climate.longitude, climate.height, climate.zone])

    def test_warm_days_are_in_the_first_bands_of_set_1(self):
        for of, month, weather in self.months():
            ranked = sorted(weather, key=lambda day: -sum(hour[DRY_BULB] for hour in day))
            ends = [round(F * len(ranked)) for F in [0, *of["set1"]["F"][month]]]
            for band in range(10):
                of_band = ranked[ends[band]:ends[band + 1]]
                self.assertAlmostEqual(of["set1"]["Q3"][month][band], mean(row[DRY_BULB] for day in of_band for row in day if row[3] == 15), delta=0.0051)
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
            process = run("from-hourly", f"{name}.epw", "--station", str(number), "-o", "out.toml",
                               files={f"{name}.epw": self.epw[name]})
            example = ROOT / "apps" / "examples" / "climate" / f"synthetic_{name}.toml"
            self.assertEqual(process.written["out.toml"].decode(), example.read_text(encoding="utf-8"))

    def test_packed_stations_are_clean(self):
        files = {f"{name}.toml": derive(epw, "--station", str(number), "--name", name)
                 for number, (name, epw) in enumerate(self.epw.items(), 1)}
        data = run("pack", "out.climate", ".", files=files).written["out.climate"]
        self.assertIn(b"2 stations checked, no rule violated\n", run("check", "out.climate", files={"out.climate": data}).stdout)


class Clocks(unittest.TestCase):
    """The weather of a place is the same whatever its clock shows."""

    def test_zones_do_not_matter(self):
        CLIMATES["far"] = CLIMATES["highland"]._replace(longitude=151, zone=10, latitude=-34)
        try:
            epw = weather_year("far")
        finally:
            del CLIMATES["far"]
        of = station(epw)
        lines = epw.splitlines()
        for zone in (0, -11, 14):
            at = [line.split(",") for line in lines[HEADER:]]
            later = (10 - zone + 12) % 24 - 12  # on the same side of the date line as the sun
            hours_later = [at[(i + later) % len(at)] for i in range(len(at))]
            moved = [",".join(when[:5] + weather[5:]) for when, weather in zip(at, hours_later, strict=True)]
            header = [lines[0].replace(",151,10,", f",151,{zone},"), *lines[1:HEADER]]
            self.assertEqual({key: value for key, value in station("\n".join(header + moved) + "\n").items() if key != "zone"},
                             {key: value for key, value in of.items() if key != "zone"}, zone)

    def test_every_month_has_its_coldest_hour_before_its_warmest(self):
        """Where the air is coldest at whatever hour of the clock, and where hardly anything but chance moves it."""
        for name, hour, change in [("evening", 22, {}), ("noon", 12, {}), ("night", 0, {"latitude": 78, "swing": 0.3, "spread": 8})]:
            CLIMATES[name] = CLIMATES["maritime"]._replace(**change)
            try:
                lines = weather_year(name).splitlines()
            finally:
                del CLIMATES[name]
            at = [line.split(",") for line in lines[HEADER:]]
            for i, fields in enumerate(at):
                fields[DRY_BULB:DRY_BULB + 2] = lines[HEADER + (i + 5 - hour) % len(at)].split(",")[DRY_BULB:DRY_BULB + 2]
            of = station("\n".join([*lines[:HEADER], *map(",".join, at)]) + "\n")
            for number, month in enumerate(MONTHS):
                with self.subTest(name, month=month):
                    a, b = (of["set1"][time][number] for time in ("time_A", "time_B"))
                    self.assertTrue(0 <= b < a < 24, (b, a))
                    self.assertGreaterEqual(weighted(of, 1, "Q3", month), weighted(of, 1, "Q4", month))

    def test_air_that_never_warms_is_told(self):
        def still(fields):
            fields[DRY_BULB] = 4
        of = station(with_fields(weather_year("maritime"), still),
                     [", ".join(MONTHS) + ": the mean day never warms, times A and B taken at about 15 and 5 h"])
        self.assertAlmostEqual(of["set1"]["time_A"][5] - 15, 0, delta=0.51)


class Replaced(unittest.TestCase):
    """Values that are missing or impossible: what takes their place, and how many are told."""

    @classmethod
    def setUpClass(cls):
        cls.epw = weather_year("maritime")
        cls.whole = station(cls.epw)

    def with_values(self, column, values, epw=None):
        """A value for some hours, counted from 0 in the year."""
        lines = (epw or self.epw).splitlines()
        for hour, value in values.items():
            fields = lines[HEADER + hour].split(",")
            fields[column] = str(value)
            lines[HEADER + hour] = ",".join(fields)
        return "\n".join(lines) + "\n"

    def check(self, column, values, note, **compared):
        """The note, and that the July of some quantities is as without replacement within a tolerance."""
        epw = self.with_values(column, values)
        of = station(epw, [note])
        self.assertIn(f"# {note}\n", derive(epw, notes=[note]))
        for quantity, delta in compared.items():
            self.assertAlmostEqual(weighted(of, 1, quantity, "July"), weighted(self.whole, 1, quantity, "July"), delta=delta)
        assert_refused(self, ["from-hourly", "year.epw", "-o", "out.toml", "--strict"], {"year.epw": epw},
                       rf"year\.epw: {re.escape(note)}; refused by --strict")

    def test_gaps(self):
        july = 24 * 181
        for column, value, note, compared in [
                (DRY_BULB, 99.9, "dry-bulb temperature: 12 hours missing: between the hours before and after", {"Q3": 0.05}),
                (HUMIDITY, "", "relative humidity: 12 hours missing: from the dew point", {"Q5": 0.05}),
                (PRESSURE, 999999, "atmospheric pressure: 12 hours missing: between the hours before and after", {"Q5": 0.01}),
                (DIRECT, 9999, "direct normal irradiation: 12 hours missing: between the hours before and after", {"Q1": 0.01}),
                (DIFFUSE, 9999, "diffuse horizontal irradiation: 12 hours missing: between the hours before and after", {"Q2": 0.02}),
                (SKY_COVER, 99, "total sky cover: 12 hours missing: between the hours before and after", {"Q7": 0.002}),
                (DRY_BULB, -273, "dry-bulb temperature: 12 hours missing: between the hours before and after", {"Q3": 0.05})]:
            with self.subTest(note, value=value):
                self.check(column, {july + 24 * (i // 3) + 10 + i % 3: value for i in range(12)},
                           f"{note} (first 1 July, hour 11)", **compared)

    def test_values_of_instruments(self):
        night = [i for i in range(8760) if not 3 < i % 24 < 21]
        self.check(DIRECT, {i: -2 for i in night}, f"direct normal irradiation: {len(night)} hours below 0: taken as 0 (first 1 January, hour 1)", Q1=0)
        self.check(DIFFUSE, {i: 9999 for i in night}, f"diffuse horizontal irradiation: {len(night)} hours missing at night: taken as 0 (first 1 January, hour 1)", Q2=0)
        saturated = self.with_values(HUMIDITY, {4502: 100})
        self.assertEqual(tables := station(saturated), station(self.with_values(HUMIDITY, {4502: 113}),
                         ["relative humidity: 1 hour above 100 %: taken as 100 % (7 July, hour 15)"]))
        self.assertNotEqual(tables, self.whole)

    def test_pressure_that_nobody_measured(self):
        """That of the standard atmosphere, by which the weather was made."""
        of = station(self.with_values(PRESSURE, dict.fromkeys(range(8760), 0)),
                     ["atmospheric pressure: 8760 hours missing: that of the standard atmosphere at the height of the place (first 1 January, hour 1)"])
        self.assertEqual(of, self.whole)

    def test_sky_that_nobody_looked_at(self):
        """The year is one in whose clouds irradiances, opaque cover and infrared radiation agree."""
        unseen = self.with_values(SKY_COVER, dict.fromkeys(range(8760), 99))
        opaque = station(unseen, ["total sky cover: 8760 hours missing: the opaque sky cover (first 1 January, hour 1)"])
        self.assertEqual(opaque, self.whole)
        unseen = self.with_values(SKY_COVER + 1, dict.fromkeys(range(8760), 99), unseen)

        def infrared(hour):
            """Of a sky of this cover, by the formulas of Clark and Allen, and of Walton, as engineering references print them."""
            n, kelvin = hour[SKY_COVER], hour[DRY_BULB] + 273.15
            emissivity = (0.787 + 0.764 * log((hour[7] + 273.15) / 273.15)) * (1 + 0.0224 * n - 0.0035 * n**2 + 0.00028 * n**3)
            return emissivity * 5.6697e-8 * kelvin**4
        given = hours(self.epw)
        unseen = self.with_values(12, {i: f"{infrared(hour):.1f}" for i, hour in enumerate(given)}, unseen)
        dark = self.with_values(SKY_COVER, {i: hour[SKY_COVER] for i, hour in enumerate(given) if hour[DIFFUSE] > 0}, unseen)
        for epw, delta, kinds in [(dark, 0.003, ["infrared radiation of the sky"]),
                                  (unseen, 0.09, ["clearness of the irradiances", "infrared radiation of the sky"])]:
            process = run("from-hourly", "year.epw", "-o", "a.toml", files={"year.epw": epw})
            told = re.findall(r"^year.epw: total sky cover: (\d+) hours missing: by the (.*) \(", process.stderr.decode(), re.M)
            self.assertEqual([kind for _, kind in told], kinds)
            self.assertEqual(sum(int(count) for count, _ in told), sum(len(kinds) > 1 or hour[DIFFUSE] == 0 for hour in given))
            of = tomllib.loads(process.written["a.toml"].decode())
            for month in MONTHS:
                self.assertAlmostEqual(weighted(of, 1, "Q7", month), weighted(self.whole, 1, "Q7", month), delta=delta)


class Weather(unittest.TestCase):
    """Years made so that the answer is known."""

    @classmethod
    def setUpClass(cls):
        cls.epw = weather_year("maritime")

    def test_air_of_published_wet_bulb(self):
        """20 °C and 50 % at sea level: 13.8 °C by any psychrometric chart; saturated air: its own."""
        for humidity, expected in ((50, 13.8), (100, 20.0)):
            def still(fields):
                fields[HUMIDITY], fields[PRESSURE] = humidity, 101325
                fields[DRY_BULB] = 20 + (fields[3] == "15") / 10  # so that the day has its hours
            of = station(with_fields(self.epw, still))
            for quantity in ("Q5", "Q6"):
                self.assertAlmostEqual(of["set1"][quantity]["July"][0], expected, delta=0.16)
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

    def test_leap_day_line_ends_and_longer_headers(self):
        lines = self.epw.splitlines()
        leap = HEADER + 24 * 59
        more = [re.sub(r"^2001,2,28,", "2001,2,29,", line) for line in lines[leap - 24:leap]]
        header = ["\ufeff" + lines[0], *lines[1:5], "COMMENTS 1,1,1,1", *lines[5:HEADER]]
        of = station("\r\n".join(header + lines[HEADER:leap] + more + lines[leap:]) + "\r\n\r\n\x1a")
        self.assertAlmostEqual(of["set1"]["F"]["February"][0] * 29, 3, delta=0.01)

    def test_names(self):
        for name, expected in [(b"M\xfcnchen", "München"), ("Zürich – Nord".encode(), "Zürich – Nord"), (b'\x01 "\\" a', '? "\\" a'),
                               (b"\xc5" * 60, "Å" * 40), (b"", "Station")]:
            self.assertEqual(tomllib.loads(derive(self.epw.encode().replace(b"Synthetic maritime", name)))["name"], expected)
        self.assertEqual(tomllib.loads(derive(self.epw, "--name", "Here", "--station", "7"))["name"], "Here")

    def test_many_years_into_a_folder(self):
        """Numbered as they are given; one at fault does not hold up the others."""
        files = {"a/b.epw": self.epw, "a/c.epw": self.epw[:5000], "a/d.EPW": self.epw}
        process = run("from-hourly", *files, "-o", "stations", "--station", "5", files=files)
        self.assertEqual((process.returncode, sorted(process.written)), (2, ["stations/b.toml", "stations/d.toml"]))
        self.assertRegex(process.stderr.decode(), r"^a/c\.epw:\d+: [^\n]*\n1 of 3 years refused[^\n]*\n$")
        self.assertEqual([tomllib.loads(content.decode())["station"] for _, content in sorted(process.written.items())], [5, 7])


class BadInput(unittest.TestCase):
    def test_each_fault_gets_one_line_and_leaves_the_output(self):
        lines = weather_year("maritime").splitlines()

        def field(number, column, value):
            fields = lines[number - 1].split(",")
            fields[column] = value
            return lines[:number - 1] + [",".join(fields)] + lines[number:]

        def day(column, value):
            changed = [line.split(",") for line in lines]
            for fields in changed[HEADER + 24 * 40:HEADER + 24 * 41]:
                fields[column] = value
            return [",".join(fields) for fields in changed]

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
            (field(100, DRY_BULB, "warm"), r":100: dry-bulb temperature: value warm; allowed -90 to 60 °C"),
            (field(200, HUMIDITY, "9 9"), r":200: relative humidity: value 9 9; allowed 0 to 115 %"),
            (day(DRY_BULB, "99.9"), r": dry-bulb temperature: none for 24 hours from 10 February, hour 1, too many to go by"),
            (day(DIRECT, "9999"), r": direct normal irradiation: none for \d+ hours from 10 February, hour [89], too many"),
            (lines[:300] + [lines[300][:60]] + lines[301:], r":301: .*: missing; the line ends after \d+ fields"),
        ]
        for content, message in cases:
            with self.subTest(message):
                files = {"year.epw": "\n".join(content) + "\n" * bool(content), "out.toml": "old"}
                assert_refused(self, ["from-hourly", "year.epw", "-o", "out.toml"], files, rf"year\.epw(?:{message})")

    def test_files(self):
        for arguments, line in [(["none.epw", "-o", "a.toml"], "none.epw: cannot be read"),
                                ([".", "-o", "a.toml"], r"\.: cannot be read"),
                                (["year.epw", "-o", "year.epw"], "year.epw: a station file's name must end in .toml"),
                                (["year.epw", "none.epw", "-o", "a.toml"], "a.toml: one station file for several years"),
                                (["year.epw", "b/year.epw", "-o", "b"], "b/year.epw: another year is named year too"),
                                (["year.epw", "b.epw", "-o", "b", "--station", "9999"], "--station: 2 stations from 9999 on")]:
            with self.subTest(line):
                assert_refused(self, ["from-hourly", *arguments], {"year.epw": "LOCATION"}, line)


if __name__ == "__main__":
    unittest.main()
