#!/usr/bin/env python3
"""The shipped band table is complete and physically consistent, it follows from its script,
and the table compiler keeps every bit and rejects bad tables with one clear line."""

import contextlib
import io
import math
import re
import struct
import sys
import tempfile
import unittest
from pathlib import Path

BANDS_DIR = Path(__file__).parents[1] / "data" / "bands"
SHIPPED = BANDS_DIR / "bands.csv"
sys.dont_write_bytecode = True
sys.path.insert(0, str(BANDS_DIR))
import compile_bands  # noqa: E402
import make_bands  # noqa: E402

MONTHS = compile_bands.MONTHS
TEXT = SHIPPED.read_text(encoding="utf-8")
LINES = [line.split(",") for line in TEXT.splitlines() if line[0] in "12"]
ROWS = {tuple(cells[:3]): [float(cell) for cell in cells[3:]] for cells in LINES}
GAP = ("Q2", MONTHS.index("Jun"))  # set 1, band 7


def band_values(s, quantity, month):
    return [ROWS[s, quantity, str(band)][month] for band in range(1, 11)]


def year_values(s, quantity):
    return [value for month in range(12) for value in band_values(s, quantity, month)]


def bridged(s, quantity, month):
    """The bands of a month, the deliberate gap filled from its neighbours."""
    values = band_values(s, quantity, month)
    if s == "1" and (quantity, month) == GAP:
        values[6] = (values[5] + values[7]) / 2
    return values


def moments(s, quantity, month):
    """Mean and variance of a quantity over the days of a month."""
    f = [0.0] + band_values(s, "F", month)
    shares = [b - a for a, b in zip(f, f[1:])]
    values = bridged(s, quantity, month)
    mean = sum(p * v for p, v in zip(shares, values))
    return mean, sum(p * (v - mean) ** 2 for p, v in zip(shares, values))


def saturation(t):
    """hPa; Buck 1981 and 1996, independent of the formula in make_bands.py."""
    return 6.1121 * math.exp((18.678 - t / 234.5) * t / (257.14 + t))


class ShippedTable(unittest.TestCase):
    def test_hours(self):
        hours = [ROWS[s, f"time {t}", ""] for s in "12" for t in "AB"]
        day, night = [14, 14, 15, 15, 15, 16, 15, 15, 15, 14, 14, 14], [6, 5, 4, 4, 4, 5, 5]
        self.assertEqual(hours, [day, [6, 6, *night, 6, 6, 6], day, [7, 7, *night, 5, 6, 7]])

    def test_both_sets_describe_the_same_days(self):
        rounding = {"Q1": 0.01, "Q2": 0.01, "Q7": 0.5}
        for month in range(12):
            for quantity in compile_bands.BANDED[1:]:
                means = [moments(s, quantity, month)[0] for s in "12"]
                self.assertAlmostEqual(*means, delta=rounding.get(quantity, 0.1), msg=quantity)
            # Sorting by a quantity spreads its class means the most.
            self.assertGreater(moments("1", "Q3", month)[1], moments("2", "Q3", month)[1])
            self.assertGreater(moments("2", "Q1", month)[1], moments("1", "Q1", month)[1])

    def test_moist_air(self):
        for s in "12":
            q3, q4, q5, q6 = (year_values(s, q) for q in ("Q3", "Q4", "Q5", "Q6"))
            for day, dawn, wet_day, wet_dawn in zip(q3, q4, q5, q6):
                vapour_day = saturation(wet_day) - 0.662 * (day - wet_day)
                vapour_dawn = saturation(wet_dawn) - 0.662 * (dawn - wet_dawn)
                self.assertTrue(2 < day - dawn < 14, (day, dawn))
                self.assertTrue(0.35 < vapour_day / saturation(day) < 0.9, (day, wet_day))
                self.assertTrue(0.8 < vapour_dawn / saturation(dawn) < 0.99, (dawn, wet_dawn))
                self.assertTrue(0 < vapour_day - vapour_dawn < 1.2, (day, dawn))

    def test_follows_from_its_script(self):
        self.assertEqual(make_bands.table_text(), TEXT)


def edited(label, month, value, text=TEXT):
    """The shipped table with one value replaced."""
    lines = text.splitlines()
    at = next(i for i, line in enumerate(lines) if line.startswith(",".join(label) + ","))
    cells = lines[at].split(",")
    cells[3 + MONTHS.index(month)] = value
    lines[at] = ",".join(cells)
    return "\n".join(lines) + "\n"


class Compiler(unittest.TestCase):
    def compile(self, table):
        """Exit status, error text and compiled text (None when not written)."""
        with tempfile.TemporaryDirectory() as folder:
            source, target = Path(folder, "own.csv"), Path(folder, "table.inc")
            source.write_bytes(table if isinstance(table, bytes) else table.encode())
            errors = io.StringIO()
            with contextlib.redirect_stderr(errors):
                status = compile_bands.main([str(source), str(target)])
            compiled = target.read_text(encoding="utf-8") if target.exists() else None
            return status, errors.getvalue().replace(str(source), "own.csv"), compiled

    def test_every_value_survives_to_the_bit(self):
        awkward = ["0.1", "16777217", "-1e-45", "3.4028235e38", "0.333333333333", "-0.0", "1e10"]
        table = TEXT
        for month, value in zip(MONTHS, awkward):
            table = edited(("2", "Q8", "10"), month, value, table)
        status, errors, compiled = self.compile(table)
        self.assertEqual((status, errors), (0, ""))
        rows = re.findall(r"^\{(.*)\},  // \d+: (.*)$", compiled, re.MULTILINE)
        expected = [line.split(",") for line in table.splitlines() if line[0] in "12"]
        self.assertEqual(len(rows), 184)
        for (values, comment), cells in zip(rows, expected):
            self.assertTrue(comment.startswith(f"set {cells[0]} {cells[1]}"), comment)
            for literal, cell in zip(values.split(", "), cells[3:], strict=True):
                self.assertRegex(literal, r"^-?\d+(\.\d+f|\.?\d*e[-+]\d+f)$")
                bits = [struct.pack("f", float(text)) for text in (literal[:-1], cell)]
                self.assertEqual(*bits, cell)

    def test_what_spreadsheets_and_real_data_bring(self):
        plain = self.compile(TEXT)[2]
        padded = "\n".join(line + ",,," for line in TEXT.splitlines()) + "\n,,,,\n"
        quoted = re.sub(r"^#(.*)$", r'"#\1"', TEXT, flags=re.MULTILINE)
        windows = b"\xef\xbb\xbf" + TEXT.replace("\n", "\r\n").encode()
        for table in (padded, quoted, windows, b"# 12 \xb0C\n" + TEXT.encode()):
            self.assertEqual(self.compile(table), (0, "", plain))
        for label, month, value in [
            (("1", "F", "9"), "Jan", "1"),  # no day in the last band
            (("1", "F", "1"), "Apr", "0"),  # none in the first
            (("2", "Q1", "10"), "Jul", "0.9"),  # not sorted
        ]:
            self.assertEqual(self.compile(edited(label, month, value))[0], 0, label)

    def test_faults(self):
        number = {label: i for i, label in enumerate(compile_bands.LABELS, TEXT.count("#") + 2)}
        f8, q3 = ("1", "F", "8"), ("2", "Q3", "4")
        row = next(line for line in TEXT.splitlines(True) if line.startswith("2,Q3,4,"))
        at_f8 = f"own.csv:{number[f8]}: set 1 F band 8"
        at_q3 = f"own.csv:{number[q3]}: set 2 Q3 band 4"
        for table, expected in [
            ("", "own.csv: expected the heading set,quantity,band,Jan"),
            (edited(f8, "Mar", "1.2"), at_f8 + ", Mar: 1.2 is outside 0 to 1"),
            (edited(f8, "Mar", "0.5"), at_f8 + ", Mar: 0.5 is below band 7 (0.897)"),
            (edited(("2", "F", "10"), "Dec", "0.999"), "set 2 F band 10, Dec: 0.999, must be 1"),
            (edited(("1", "time A", ""), "Jun", "25"), "set 1 time A, Jun: 25 is outside 0 to 24"),
            (edited(q3, "Jul", "1e39"), at_q3 + ", Jul: '1e39' is not a finite number"),
            (edited(q3, "Jul", ""), at_q3 + ", Jul: '' is not a finite number"),
            (edited(q3, "Jul", "21,5"), at_q3 + ": expected 12 values, found 13"),
            (TEXT.replace(row, ""), "expected the row set 2 Q3 band 4, found set 2 Q3 band 5"),
            (TEXT + row, "own.csv: expected 184 rows, found 185"),
            (TEXT[: TEXT.index(row)], "own.csv: expected 184 rows, found 127"),
        ]:
            status, errors, compiled = self.compile(table)
            with self.subTest(expected=expected):
                self.assertEqual((status, compiled), (2, None))
                self.assertIn(expected, errors)
                self.assertTrue(errors.startswith("own.csv") and errors.count("\n") == 1, errors)



if __name__ == "__main__":
    unittest.main()
