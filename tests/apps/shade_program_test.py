"""The program around the numbers: faults of the input, the text, the chart."""

import re
import unittest
import xml.etree.ElementTree as ElementTree

import host
from shade_input import DAY, SCREEN, SITE, WINDOW, hours, job, read

EXAMPLES = host.examples("shade")
FIN = {"depth": 0.5}

BAD = [
    (job(site={"latitude": 91}), "site.latitude: value 91; allowed -90 to 90 degrees north"),
    (job(site={"height": float("nan")}), "site.height: value nan; allowed -430 to 4000 m"),
    (job(day={"month": "Juni"}), 'day.month: value "Juni"; allowed January'),
    (job(day={"day_of_year": 366}), "day.day_of_year: value 366; allowed whole numbers 1 to 365"),
    (job(day={"day_of_year": 1, "month": 1}), "day: needs either month or day_of_year"),
    (job().replace('month = "June"', ""), "day: needs either month or day_of_year"),
    (job(window={"width": 0}), "window.width: value 0; allowed 0.05 to 50 m"),
    (job(window={"orientation": -1}), "window.orientation: value -1; allowed 0 to 360 degrees clockwise"),
    (job(window={"tilt": 181}), "window.tilt: value 181; allowed 0 to 180"),
    (job(window={"sill": -1}), "window.sill: value -1; allowed 0 to 1000 m above the ground"),
    (job(window={"area": 3}), "window.area: unknown key; known are name, width"),
    (job(left_fin={"depth": 0}), "left_fin.depth: value 0; allowed 0.01 to 20 m"),
    (job(right_fin=FIN | {"offset": -0.1}), "right_fin.offset: value -0.1; allowed 0 to 50 m"),
    (job(right_fin={"offset": 1}), "right_fin: missing depth"),
    (job(overhang=FIN | {"slope": 90}), "overhang.slope: value 90; allowed -80 to 80 degrees, falling outwards"),
    (job(overhang=FIN).replace("[overhang]", "[[overhang]]"), "overhang: value list of 1; allowed a table"),
    (job({"distance": 1001}), "obstruction[1].distance: value 1001; allowed -1000 to 1000 m"),
    (job({}, {"width": 0}), "obstruction[2].width: value 0; allowed 0.01 to 1000 m"),
    (job({"depth": 0}), "obstruction[1].depth: value 0; allowed 0.01 to"),
    (job({"base": 6}), "obstruction[1].top: must be above the base"),
    (job({"rotation": 361}), "obstruction[1].rotation: value 361; allowed -360 to 360 degrees"),
    (job(*[{}] * 21), "obstruction: value list of 21; allowed 1 to 20 tables"),
    (job() + "[shutter]\n", "shutter: unknown key; known are site, day, window, left_fin"),
    (host.table("[site]", SITE) + host.table("[day]", DAY), "missing window"),
]


class BadInput(host.InputCase, unittest.TestCase):
    good, bad = job(), BAD
    at_line = "# a comment first\n\n" + job({}, {"top": -1}), "top = -1", "obstruction[2].top: value -1"

    def test_hours(self):
        for hours_given in ("25", "-1", "noon", "9,nan", ""):
            with self.subTest(hours_given):
                self.expect_refusal(["--svg", "day.svg", "--hours", hours_given, "job.toml"],
                                    "shade: --hours: value .*; allowed 0 to 24 h")
        self.expect_refusal(["--hours", "9", "job.toml"], "shade: --hours requires --svg")


class Output(host.ReportCase, unittest.TestCase):
    examples = EXAMPLES
    keys = [*SITE, *DAY, *WINDOW, *SCREEN, "height", "day_of_year", "tilt", "sill", "[left_fin]", "[right_fin]",
            "[overhang]", "[[obstruction]]", "depth", "offset", "above", "below", "left", "right", "slope", "base",
            "rotation", "--svg", "--csv", "--hours"]

    def test_report_says_what_the_values_say(self):
        keys = {"overhang": FIN | {"left": 0.5}, "left_fin": FIN, "window": {"orientation": 210, "sill": 2}}
        rows, text = hours({"base": 1}, **keys), self.report(job({"base": 1}, **keys))
        up = [row for row in rows if row["sun_altitude_deg"] is not None]
        lines = [line.split() for line in text.splitlines() if re.match(r" +\d+  ", line)]
        self.assertEqual([int(line[0]) for line in lines], [row["hour"] for row in up])
        for line, row in zip(lines, up):
            self.assertEqual(line[1:3], [f"{row['sun_altitude_deg']:.1f}", f"{row['sun_azimuth_deg']:.1f}"])
            if row["sunlit_pct"] is None:
                self.assertEqual(line[3:], list("–––····"))
                continue
            for field, value, half in [(line[3], row["incidence_deg"], 0.05), (line[6], row["sunlit_pct"], 0.5),
                                       (line[7], row["shaded_m2"], 0.005), (line[9].replace("·", "0"), row["direct_W_m2"], 0.5)]:
                self.assertAlmostEqual(float(field), value, delta=half + 0.006)
            self.assertAlmostEqual(row["sunlit_m2"] + row["shaded_m2"], 3, delta=2e-4)
            self.assertAlmostEqual(row["direct_W_m2"], row["direct_unshaded_W_m2"] * row["sunlit_pct"] / 100, delta=0.1)
        for part in ("South, Somewhere, 21 June", "2 × 1.5 m, facing 210° (SSW), vertical, 2 m above the ground",
                     "Left fin: 0.5 m deep", "Overhang: 0.5 m deep, 0.5 m beyond it on the left",
                     "Screen: 4 m wide, from 1 m up to 6 m above the ground, 5 m away"):
            self.assertIn(part, text)

    def test_total_of_the_day_is_that_of_the_hours(self):
        rows, text = hours(overhang=FIN), self.report(job(overhang=FIN))
        sunny = [row for row in rows if row["sunlit_pct"] is not None]
        direct, unshaded = (sum(row[key] for row in sunny) / 1000 for key in ("direct_W_m2", "direct_unshaded_W_m2"))
        mean = sum(row["sunlit_pct"] for row in sunny) / len(sunny)
        self.assertIn(f"sun at {len(sunny)} full hours, {mean:.0f} % of the window sunlit on average; {direct:.2f} of "
                      f"{unshaded:.2f} kWh/m² direct sun reach it, {100 * direct / unshaded:.0f} %", text)
        night = self.report(job(site={"latitude": 80}, day={"month": 1}))
        self.assertIn("the sun does not rise", night)
        self.assertIn("Day: no sun on the window\n", night)

    def test_month_is_its_design_day(self):
        self.assertEqual(hours(day={"month": "June"}), hours(day={"day_of_year": 172}))
        self.assertEqual(hours(day={"month": 2}), hours(day={"day_of_year": 52}))


def polygons(svg, colour):
    """Of the polygons filled with a colour, the corners in pixels, down from the top."""
    shapes = [shape for shape in ElementTree.fromstring(svg).iter("{http://www.w3.org/2000/svg}polygon")
              if tuple(map(int, re.findall(r"\d+", shape.get("fill")))) == colour]
    return [[tuple(map(float, point.split(","))) for point in shape.get("points").split()] for shape in shapes]


def holds(corners, x, y):
    """Whether the edges to the right of a point are odd in number."""
    edges = zip(corners, corners[1:] + corners[:1])
    return sum((a[1] > y) != (b[1] > y) and x < a[0] + (y - a[1]) / (b[1] - a[1]) * (b[0] - a[0]) for a, b in edges) % 2 == 1


class Chart(host.ChartCase, unittest.TestCase):
    def test_picture_names_everything(self):
        text = job({}, site={"name": "St. John's"}, window={"name": "A_1 & <'B'>"}, overhang=FIN)
        _, words = self.draw(text, "--hours", "9,12.5,23")
        for part in ("A_1 & <'B'>, St. John's, 21 June", "09:00", "12:30", "% sunlit", "23:00", "no sun", "W/m²"):
            self.assertIn(part, words)

    def test_shadow_drawn_is_the_one_reported(self):
        """Of a grid of points on each window drawn, those outside all shadows are the sunlit part."""
        keys = {"window": {"orientation": 200, "sill": 1}, "overhang": FIN, "right_fin": FIN | {"offset": 0.3}}
        box = {"offset": 2, "depth": 2, "rotation": 20}
        svg, _ = self.draw(job(box, **keys), "--hours", "11,13,15,17")
        windows = [corners for corners in polygons(svg, (251, 210, 106)) if len(corners) <= 5]
        self.assertEqual(len(windows), 4)
        for corners, hour in zip(windows, (11, 13, 15, 17)):
            (left, right), (top, bottom) = ((min(values), max(values)) for values in zip(*corners))
            self.assertAlmostEqual((right - left) / (bottom - top), 2 / 1.5, delta=0.01)
            shadows = [shadow for shadow in polygons(svg, (130, 150, 179)) if
                       all(left - 1 < x < right + 1 and top - 1 < y < bottom + 1 for x, y in shadow)]
            points = [(left + (i + 0.5) * (right - left) / 80, top + (j + 0.5) * (bottom - top) / 80)
                      for i in range(80) for j in range(80)]
            sunlit = sum(not any(holds(shadow, *point) for shadow in shadows) for point in points) / len(points)
            self.assertTrue(any(holds(shadow, (left + right) / 2, top + 2) for shadow in shadows))  # below the overhang
            reported = hours(box, **keys)[hour - 1]["sunlit_pct"]
            self.assertTrue(0 < reported < 100)
            self.assertAlmostEqual(100 * sunlit, reported, delta=1.5)


if __name__ == "__main__":
    unittest.main()
