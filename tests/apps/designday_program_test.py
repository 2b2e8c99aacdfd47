"""The program around the numbers: faults of the input, the text, the chart."""

import re
import unittest

import host
from designday_input import SITE, WINDOW, hours, job, window

EXAMPLES = host.examples("designday")
GOOD = job()


def without(text, key):
    return re.sub(rf"^{key} = .*\n", "", text, flags=re.M)


def changed(key, value):
    return re.sub(rf"^{key} = .*$", lambda _: f"{key} = {value}", GOOD, count=1, flags=re.M)


def panes(text):
    return changed("panes", text)


def blind(**keys):
    slats = {"kind": "slatted", "side": "inside", "spacing": 20, "width": 25, "angle": 0, "absorptance": 0.5}
    return GOOD + f"blind = {host.toml({key: value for key, value in (slats | keys).items() if value is not None})}\n"


def roller(transmittance, reflectance):
    return blind(kind="roller", spacing=None, width=None, angle=None, absorptance=None,
                 transmittance=transmittance, reflectance=reflectance)


def climate(keys):
    return without(without(changed("room", f"20\nclimate = {keys}"), "outdoor_min"), "outdoor_max")


BAD = [
    (changed("latitude", "95"), "site.latitude: value 95; allowed -90 to 90 degrees north"),
    (changed("longitude", "nan"), "site.longitude: value nan; allowed -180 to 180"),
    (changed("height", "inf"), "site.height: value inf; allowed -430 to 4000 m"),
    (changed("class", "7"), "site.class: value 7; allowed whole numbers 1 to 6"),
    (changed("class", "99999999999"), "site.class: value 99999999999; allowed"),
    (changed("class", '5\nsky = "grey"'), 'site.sky: value "grey"; allowed clear, bright'),
    (changed("class", "5\nutc_offset = 25"), "site.utc_offset: value 25; allowed -12 to 14 h"),
    (changed("name", '"two\\nlines"'), "site.name: value"),
    (changed("name", f'"{"x" * 41}"'), "site.name: value"),
    (changed("month", "13"), "day.month: value 13; allowed January"),
    (changed("outdoor_min", "25"), "day.outdoor_max: value 20; allowed 25 to 60 °C"),
    (changed("room", "true"), "day.room: value true; allowed -30 to 60 °C"),
    (changed("room", "20\nhour_of_max = 6"), "day.hour_of_max: value 6; allowed 13 to 18 h"),
    (changed("area", "0"), "window[1].area: value 0; allowed 0.01 to 1000 m²"),
    (changed("area", "1\ntilt = 181"), "window[1].tilt: value 181; allowed 0 to 180 degrees"),
    (changed("orientation", "1979-05-27"), "window[1].orientation: value date or time; allowed 0 to 360"),
    (panes("[]"), "window[1].panes: value list of 0; allowed 1 to 5 tables"),
    (panes("[" + "{transmittance = 0.8}," * 6 + "]"), "window[1].panes: value list of 6; allowed 1 to 5"),
    (panes("[{transmittance = 0.8}, {transmittance = 0.95}]"),
     "window[1].panes[2].transmittance: value 0.95; allowed 0.05 to 0.91"),
    (panes("[{transmittance = 0.8, reflectance = 0.3}]"), "window[1].panes[1].reflectance: value 0.3; allowed 0.01 to 0.2 beside"),
    (GOOD + "shading = { short_wave = 0.5, long_wave = 0, panes = 1 }\n", "window[1]: needs either panes or shading"),
    (without(GOOD, "panes"), "window[1]: needs either panes or shading"),
    (without(GOOD, "panes") + "shading = { short_wave = 0.5, long_wave = 0.1, panes = 6 }\n",
     "window[1].shading.panes: value 6; allowed whole numbers 1 to 5"),
    (without(GOOD, "panes") + 'shading = { short_wave = 0.5, long_wave = 0, panes = 1 }\nblind = {}\n',
     "window[1].blind: needs panes; shading"),
    (GOOD + "blind = {}\n", "window[1].blind: needs kind (slatted, roller) and side (inside, outside)"),
    (blind(kind="curtain"), 'window[1].blind.kind: value "curtain"; allowed slatted, roller'),
    (blind(side="between"), 'window[1].blind.side: value "between"; allowed inside, outside'),
    (blind(width=None), "window[1].blind: missing width"),
    (blind(reflectance=0.5), "window[1].blind.reflectance: unknown key; known are kind, side, spacing"),
    (blind(spacing=0), "window[1].blind.spacing: value 0; allowed 5 to 500 mm"),
    (blind(width=0.025), "window[1].blind.width: value 0.025; allowed 10 to 500 mm"),
    (blind(angle=91), "window[1].blind.angle: value 91; allowed -90 to 90 degrees off the normal"),
    (blind(absorptance=1.1), "window[1].blind.absorptance: value 1.1; allowed 0 to 1"),
    (blind(absorptance=[0.5]), "window[1].blind.absorptance: value list of 1; allowed 2 numbers"),
    (roller(0.4, 0.7), "window[1].blind.reflectance: value 0.7; allowed 0 to 0.6 beside"),
    (changed("class", '5\nsky_model = "isotropic"'), 'site.sky_model: value "isotropic"; allowed design, perez, muneer'),
    (changed("room", "20\nclimate = {}"), "day.climate: stands in place of outdoor_min, outdoor_max"),
    (climate("{}"), "day.climate: missing file, station, percentage"),
    (climate('{ file = "", station = 1, percentage = 5 }'), 'day.climate.file: value ""; allowed text of 1 to 400'),
    (climate('{ file = "a", station = 0, percentage = 5 }'), "day.climate.station: value 0; allowed whole numbers 1 to 9999"),
    (climate('{ file = "a", station = 1, percentage = 101 }'), "day.climate.percentage: value 101; allowed 0 to 100 %"),
    (climate('{ file = "a", station = 1, percentage = 5, set = 3 }'), "day.climate.set: value 3; allowed whole numbers 1 to 2"),
    (climate('{ file = "a", station = 1, percentage = 5 }'), "day.climate.file: a cannot be read"),
    (changed("latitude", "50\nlattitude = 50"), "site.lattitude: unknown key; known are name, latitude"),
    (changed("latitude", '50\n"odd\\nkey" = 1'), "site.odd key: unknown key"),
    (without(without(GOOD, "latitude"), "height"), "site: missing latitude, height"),
    (GOOD.replace("[[window]]", "[window]"), "window: value table; allowed 1 to 6 tables"),
    (GOOD + (host.table("[[window]]", WINDOW) * 6), "window: value list of 7; allowed 1 to 6"),
    (b"\xff\xfe\x00", "not valid TOML"),
]


class BadInput(host.InputCase, unittest.TestCase):
    good, bad = GOOD, BAD
    at_line = "# a comment first\n\n" + changed("area", "1e9"), "area = 1e9", "window[1].area: value"


class Output(host.ReportCase, unittest.TestCase):
    examples = EXAMPLES
    keys = ["latitude", "class", "utc_offset", "hour_of_max", "transmittance", "short_wave", "sky_model", "climate",
            "blind", "absorptance", "--svg"]

    def test_totals_and_peak_are_those_of_the_hours(self):
        windows = [window("South", 180), window("West", 270, area=3.5)]
        days, text = hours(*windows), self.report(job(*windows))
        power = {name: [row["transmitted_W"] for row in rows] for name, rows in days.items()}
        totals = re.findall(r"([\d.]+) kWh transmitted; peak (\d+) W at hour (\d+)", text)
        power["all"] = [sum(pair) for pair in zip(power["South"], power["West"])]
        self.assertEqual(len(totals), 3)
        for (energy, peak, hour), name in zip(totals, power):
            self.assertAlmostEqual(float(energy), sum(power[name]) / 1000, delta=0.006, msg=name)
            self.assertAlmostEqual(float(peak), max(power[name]), delta=0.51, msg=name)
            self.assertEqual(int(hour), power[name].index(max(power[name])) + 1, name)

    def test_tables_are_aligned(self):
        lines = self.report(job(window("Süd-Glas", 180, panes=[{"transmittance": 0.8}] * 5))).splitlines()
        for start in (i for i, line in enumerate(lines) if line.startswith("  hour")):
            block = lines[start:start + 25]
            self.assertEqual(len({len(line) for line in block}), 1)
            self.assertEqual([line.split()[0] for line in block[1:]], [str(hour) for hour in range(1, 25)])


class Chart(host.ChartCase, unittest.TestCase):
    def test_picture_shows_names_and_numbers(self):
        _, words = self.draw(job(window("A_1 & <'B'>", 180), window("Rückseite {^}", 0), site={"name": "St. John's"}))
        for part in ("St. John's, 21 June", "A_1 & <'B'>", "Rückseite {^}", "W/m²", "at hour 12", "outdoor air"):
            self.assertIn(part, words)


class ChartWithoutGnuplot(unittest.TestCase):
    def test_one_line_tells(self):
        process = host.run("--svg", "day.svg", "job.toml", files={"job.toml": GOOD},
                                    environment={"PATH": "/nowhere"})
        self.assertEqual(process.returncode, 1)
        self.assertRegex(process.stderr.decode(), r"^designday: a chart needs gnuplot.*\n$")
        self.assertEqual(process.written, {})


if __name__ == "__main__":
    unittest.main()
