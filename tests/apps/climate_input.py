"""Input for quorvel climate: a plain station to vary, and climate data files read byte by byte."""

import copy
import struct

import host

MONTHS = ["January", "February", "March", "April", "May", "June", "July", "August", "September", "October", "November",
          "December"]
QUANTITIES = ["F", "Q1", "Q2", "Q3", "Q4", "Q5", "Q6", "Q7"]
SPAN = {"F": (0, 1), "Q1": (0, 1.2), "Q2": (0, 3), "Q3": (-20, 40), "Q4": (-30, 20), "Q5": (-20, 25), "Q6": (-30, 18),
        "Q7": (0, 1)}


def run(*arguments, **settings):
    return host.run("climate", *arguments, **settings)


def assert_refused(case, arguments, files, line, status=2):
    host.assert_refused(case, ["climate", *arguments], files, line, status)


def station(number=1):
    """By set and quantity; every value of all its tables is another one."""
    def values(s, quantity, month):
        low, high = SPAN[quantity]
        shift = (month + 13 * s + 29 * number + 0.37 * QUANTITIES.index(quantity)) / 1000
        rising = [low + (high - low) * ((band + 1) / 10.5 + shift % 0.04) for band in range(10)]
        return rising[:9] + [1.0] if quantity == "F" else rising[::-1]
    return {"name": f"Station {number}", "station": number} | {
        f"set{s}": {"time_A": [14 + (m + s) % 3 / 2 for m in range(12)], "time_B": [4 + (m + number) % 5 for m in range(12)]}
        | {q: {month: values(s, q, m) for m, month in enumerate(MONTHS)} for q in QUANTITIES} for s in (1, 2)}


def changed(keys, value, of=None):
    """The station with one value replaced: changed(["set1", "F", "May", 9], 0.9). None takes a key away."""
    result = copy.deepcopy(of or station())
    place = result
    for key in keys[:-1]:
        place = place[key]
    if value is None:
        del place[keys[-1]]
    else:
        place[keys[-1]] = value
    return result


def text(of):
    """The station file."""
    def section(heading, keys):
        plain = {key: value for key, value in keys.items() if not isinstance(value, dict)}
        return host.table(heading, plain) + "".join(
            section(f"[{heading.strip('[]')}.{key}]".replace("[.", "["), value)
            for key, value in keys.items() if isinstance(value, dict))
    return section("", of)


def packed(*stations):
    files = {f"{i}.toml": text(of) for i, of in enumerate(stations)}
    process = run("pack", "out.climate", *files, files=files)
    assert (process.returncode, process.stdout, process.stderr) == (0, b"", b""), process.stderr.decode()
    assert sorted(process.written) == ["out.climate", "out.climate.toml"]
    return process.written["out.climate"]


def offset(number, row, month, H=0):
    """Of a station's value, in bytes; the row and the month counted from 0."""
    before = int((H - 1) / 18) + H - 16  # truncated towards zero
    return (19 * number + row // 9 + before - 1) * 432 + row % 9 * 48 + 4 * month


def row_of(s, quantity, band=1):
    if quantity.startswith("time"):
        return 82 * (s - 1) + ["time_A", "time_B"].index(quantity)
    return 82 * (s - 1) + 2 + 10 * QUANTITIES.index(quantity) + band - 1


def with_value(data, number, s, quantity, band, month, value):
    data = bytearray(data)
    struct.pack_into("<f", data, offset(number, row_of(s, quantity, band), MONTHS.index(month)), value)
    return bytes(data)


def with_header(data, H):
    """The file with its stations where another H puts them."""
    empty = offset(1, 0, 0, H) - 432
    assert empty >= 0
    return struct.pack("<2i", 0, H) + bytes(424 + empty) + data[offset(1, 0, 0):]
