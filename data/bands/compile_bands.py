#!/usr/bin/env python3
"""Turns a band table (bands.csv or a file of your own) into a C++ table.

    compile_bands.py INPUT OUTPUT

OUTPUT holds 184 brace-enclosed rows of 12 float literals, to be included inside the initializer of
a float[184][12]. A fault in INPUT gives one line on standard error, exit status 2 and no output.
"""

import csv
import math
import os
import struct
import sys

MONTHS = ["Jan", "Feb", "Mar", "Apr", "May", "Jun", "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"]
BANDS = range(1, 11)
BANDED = ["F", "Q1", "Q2", "Q3", "Q4", "Q5", "Q6", "Q7", "Q8"]
# Labels (set, quantity, band) of the 184 rows in the order in which the library addresses them.
LABELS = [
    label
    for s in ("1", "2")
    for label in [(s, "time A", ""), (s, "time B", "")]
    + [(s, quantity, str(band)) for quantity in BANDED for band in BANDS]
]
HEADER = ["set", "quantity", "band"] + MONTHS
ALLOWED = {"time A": (0.0, 24.0), "time B": (0.0, 24.0), "F": (0.0, 1.0)}


class BadTable(Exception):
    """A fault in the input, told in one line."""


def name(label):
    s, quantity, band = label
    return f"set {s} {quantity}" + (f" band {band}" if band else "")


def to_float32(value):
    """The nearest single-precision number; infinite when out of its range."""
    try:
        return struct.unpack("<f", struct.pack("<f", value))[0]
    except OverflowError:
        return math.copysign(math.inf, value)


def literal(value):
    """The shortest C++ float literal that reads back as the same single-precision number."""
    digits = next(d for d in range(1, 10) if to_float32(float(f"{value:.{d}g}")) == value)
    text = f"{value:.{digits}g}"
    return text + ("f" if "." in text or "e" in text else ".0f")


def records(path):
    """Yields (line number, cells) of the lines that are neither blank nor comments."""
    try:
        # Only comments can hold characters beyond ASCII, so that their encoding does not matter.
        with open(path, encoding="utf-8-sig", errors="replace", newline="") as stream:
            reader = csv.reader(stream)
            for cells in reader:
                cells = [cell.strip() for cell in cells]
                # Spreadsheets pad every line to the width of the widest.
                while len(cells) > len(HEADER) and not cells[-1]:
                    cells.pop()
                if any(cells) and not cells[0].startswith("#"):
                    yield reader.line_num, cells
    except OSError as error:
        raise BadTable(f"{path}: {error.strerror}") from None
    except csv.Error as error:
        raise BadTable(f"{path}: not a file of comma-separated values ({error})") from None


def parse_row(where, label, cells):
    """The 12 values of one row, checked one by one."""
    if tuple(cells[:3]) != label:
        found = name((cells + ["", ""])[:3])
        raise BadTable(f"{where}: expected the row {name(label)}, found {found}")
    if len(cells) != len(HEADER):
        raise BadTable(f"{where}: {name(label)}: expected 12 values, found {len(cells) - 3}")
    low, high = ALLOWED.get(label[1], (-math.inf, math.inf))
    values = []
    for month, cell in zip(MONTHS, cells[3:]):
        try:
            value = to_float32(float(cell))
        except ValueError:
            value = math.nan
        if not math.isfinite(value):
            raise BadTable(
                f"{where}: {name(label)}, {month}: '{cell}' is not a finite number (decimal point)"
            )
        if not low <= value <= high:
            raise BadTable(
                f"{where}: {name(label)}, {month}: {cell} is outside {low:g} to {high:g}"
            )
        values.append(value)
    return values


def check_frequency(where, label, values, previous):
    """F accumulates over the bands: it never falls, and band 10 closes it at 1."""
    band = int(label[2])
    for month, value, before in zip(MONTHS, values, previous):
        if band > 1 and value < before:
            raise BadTable(
                f"{where}: {name(label)}, {month}: {value:.6g} is below band {band - 1}"
                f" ({before:.6g}), allowed {before:.6g} to 1"
            )
        if band == 10 and value != 1.0:
            raise BadTable(f"{where}: {name(label)}, {month}: {value:.6g}, must be 1")


def read_table(path):
    """The 184 rows of 12 single-precision values; raises BadTable at the first fault."""
    lines = list(records(path))
    if not lines or [cell.lower() for cell in lines[0][1]] != [cell.lower() for cell in HEADER]:
        where = f"{path}:{lines[0][0]}" if lines else path
        raise BadTable(f"{where}: expected the heading {','.join(HEADER)}")
    rows = []
    for label, (number, cells) in zip(LABELS, lines[1:]):
        where = f"{path}:{number}"
        values = parse_row(where, label, cells)
        if label[1] == "F":
            check_frequency(where, label, values, rows[-1])
        rows.append(values)
    if len(lines) - 1 != len(LABELS):
        raise BadTable(f"{path}: expected {len(LABELS)} rows, found {len(lines) - 1}")
    return rows


def as_cpp(rows, source):
    lines = [f"// Made from {os.path.basename(source)} by compile_bands.py; edit that file."]
    for number, (label, values) in enumerate(zip(LABELS, rows), 1):
        lines.append(f"{{{', '.join(map(literal, values))}}},  // {number}: {name(label)}")
    return "\n".join(lines) + "\n"


def main(arguments):
    if len(arguments) != 2:
        print("usage: compile_bands.py INPUT OUTPUT", file=sys.stderr)
        return 2
    source, target = arguments
    try:
        text = as_cpp(read_table(source), source)
        with open(target, "w", encoding="utf-8", newline="\n") as stream:
            stream.write(text)
    except (BadTable, OSError) as fault:
        print(fault, file=sys.stderr)
        return 2
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
