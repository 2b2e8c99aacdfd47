#!/usr/bin/env python3
"""Makes bands.csv, the band table shipped with the library: representative data, not measured.

    make_bands.py OUTPUT

README.md beside this file tells the method. In short: each month is a small population of days, ten
classes of temperature times ten of sunshine. Set 1 averages it by temperature class, set 2 by
sunshine class, so that the two sets describe the same days.
"""

import math
import sys
from statistics import NormalDist
from typing import NamedTuple

from compile_bands import BANDED, HEADER, LABELS, MONTHS

NORMAL = NormalDist()
CLASSES = range(10)
SUN = [(9 - j) / 9 for j in CLASSES]  # relative sunshine of a class, 1 = clearest, 0 = sunless
SUN_WIDTH = [0.5] + [1.0] * 8 + [0.5]  # the end classes reach to one side only


def year(january, april, july, october, skew=0.0):
    """Twelve months through four: mean, annual wave and half-year wave.

    skew is the sine part of the half-year wave, which vanishes in the four months.
    """
    mean = (january + april + july + october) / 4
    cos1, sin1 = (january - july) / 2, (april - october) / 2
    cos2 = (january - april + july - october) / 4
    angles = [math.pi / 6 * month for month in range(12)]
    return [
        mean
        + cos1 * math.cos(a)
        + sin1 * math.sin(a)
        + cos2 * math.cos(2 * a)
        + skew * math.sin(2 * a)
        for a in angles
    ]


# --- Given values -------------------------------------------------------------------------------
# Prescribed figures of the table, met exactly. The skews are chosen.
TIME_A = {s: [14, 14, 15, 15, 15, 16, 15, 15, 15, 14, 14, 14] for s in "12"}
TIME_B = {"1": [6, 6, 6, 5, 4, 4, 4, 5, 5, 6, 6, 6], "2": [7, 7, 6, 5, 4, 4, 4, 5, 5, 5, 6, 7]}
F_GIVEN = {  # cumulative frequency of bands 1, 5 and 9: January, April, July, October
    1: (0.068, 0.003, 0.016, 0.016),
    5: (0.613, 0.535, 0.3, 0.525),
    9: (0.987, 0.98, 0.99, 0.974),
}
F_JANUARY = {2: 0.184, 3: 0.31}
WARMEST = year(11, 21, 29, 22.5, skew=-0.3)  # Q3 of band 1, °C
COLDEST = year(-2.7, 3.8, 15.1, 10.1, skew=1.0)  # Q3 of band 10, °C
CLEAR_WARMEST = year(0.21, 0.63, 0.77, 0.74, skew=-0.02)  # Q7 of band 1, share of the sky
WIND_WARMEST = year(5.2, 2.5, 2.7, 3.1, skew=-0.4)  # Q8 of band 1, m/s
MISSING = ("1", "Q2", "7", "Jun")  # deliberately 0: a gap kept as it stands

# --- Chosen values ------------------------------------------------------------------------------
# Their last digits are set so that the extremes meet the prescribed ranges. Set 1: Q1 0.07 to 0.88,
# Q2 up to 1.18, Q3 -2.7 to 29, Q4 -6.6 to 17.2, Q5 -3.5 to 19.8, Q6 -6.9 to 15.5; set 2: Q1 0 to
# 1.24; both: Q7 14 to 86, Q8 1.3 to 6.9.
CLEAR_COLDEST = year(0.54, 0.33, 0.243, 0.27)  # share of the sky free of cloud
WIND_COLDEST = year(3.9, 4.2, 4.1, 5.3, skew=-0.4)  # m/s
CLEAR_SUNNIEST = year(0.86, 0.85, 0.85, 0.86)  # cloud-free share over 24 hours, clearest class
CLEAR_SUNLESS = year(0.17, 0.15, 0.14, 0.16)  # the same of the sunless class
BEAM = year(1.797, 1.54, 1.35, 1.42)  # beam factor per cloud-free share above the sunless class
DIFFUSE = year(1.25, 1.07, 0.9, 1.06)  # diffuse factor under broken cloud
SWING_OVERCAST = year(2.05, 3.8, 4.3, 3.25, skew=-0.2)  # Q3 - Q4 under a full cloud cover, K
SWING_CLEAR = year(3.4, 8.5, 9.74, 7.5)  # its increase to a cloudless sky, K
HUMIDITY_DAWN = 0.90  # relative humidity at time B on the average day
HUMIDITY_FALL = year(0.004, 0.006, 0.008, 0.006)  # its fall per K above the average day
MOISTURE_GAIN = year(0.7, 0.5, 0.5, 0.5)  # rise of vapour pressure from time B to time A, hPa


def saturation(t):
    """Saturation vapour pressure over water in hPa at t in °C (Sonntag 1990, Magnus form)."""
    return 6.112 * math.exp(17.62 * t / (243.12 + t))


def solve(function, low, high):
    """Zero of a rising function by bisection."""
    for _ in range(60):
        middle = (low + high) / 2
        low, high = (middle, high) if function(middle) < 0 else (low, middle)
    return (low + high) / 2


def wet_bulb(t, vapour):
    """Wet-bulb temperature in °C of air at t in °C; psychrometer constant at sea level."""
    return solve(lambda w: saturation(w) - 0.662 * (t - w) - vapour, t - 40, t)


def spread(mean):
    """Shares of the sunshine classes with the given mean: the exponential distribution.

    After Bendt, Collares-Pereira and Rabl (Solar Energy 27, 1981) for daily clearness.
    """

    def shares(steepness):
        weights = [width * math.exp(steepness * sun) for width, sun in zip(SUN_WIDTH, SUN)]
        return [weight / sum(weights) for weight in weights]

    def excess(steepness):
        return sum(share * sun for share, sun in zip(shares(steepness), SUN)) - mean

    return shares(solve(excess, -200, 200))


def through(given, k):
    """Parabola through values at bands 1, 5 and 9, at band k."""
    slope, later = (given[5] - given[1]) / 4, (given[9] - given[5]) / 4
    return given[1] + slope * (k - 1) + (later - slope) / 8 * (k - 1) * (k - 5)


def temperature_frequencies():
    """F of set 1, [month][band]: smooth in month and band on the normal scale.

    January's bands 2 and 3 lie above the curve; the excess fades towards band 5 and towards July.
    """
    waves = {k: year(*map(NORMAL.inv_cdf, f)) for k, f in F_GIVEN.items()}
    curves = [{k: waves[k][month] for k in waves} for month in range(12)]
    excess = {k: NORMAL.inv_cdf(f) - through(curves[0], k) for k, f in F_JANUARY.items()}
    excess[4] = excess[3] / 2
    season = year(1, 0.5, 0, 0.5)
    return [
        [
            round(NORMAL.cdf(through(curves[m], k) + season[m] * excess.get(k, 0)), 3)
            for k in range(1, 10)
        ]
        + [1.0]
        for m in range(12)
    ]


class TemperatureClass(NamedTuple):
    temperature: float  # at time A, °C
    anomaly: float  # above the month's mean, K
    sun: float  # mean relative sunshine
    wind: float  # mean wind speed, m/s


def temperature_classes(month, share):
    """The ten classes of a month, evenly spaced from the warmest to the coldest."""

    def line(warmest, coldest):
        first, last = warmest[month], coldest[month]
        return [first + (last - first) * k / 9 for k in CLASSES]

    temperature = line(WARMEST, COLDEST)
    mean = sum(s * t for s, t in zip(share, temperature))
    low, high = CLEAR_SUNLESS[month], CLEAR_SUNNIEST[month]
    sun = [(clear - low) / (high - low) for clear in line(CLEAR_WARMEST, CLEAR_COLDEST)]
    wind = line(WIND_WARMEST, WIND_COLDEST)
    return [TemperatureClass(t, t - mean, s, w) for t, s, w in zip(temperature, sun, wind)]


def day(month, kind, sun):
    """The quantities Q1 to Q8 of the days of one temperature class and one sunshine class."""
    above = (CLEAR_SUNNIEST[month] - CLEAR_SUNLESS[month]) * sun
    clear = CLEAR_SUNLESS[month] + above
    diffuse = DIFFUSE[month] * (0.8 - 0.2 * sun + 1.4 * sun * (1 - sun))
    dawn = kind.temperature - SWING_OVERCAST[month] - SWING_CLEAR[month] * clear
    humidity = HUMIDITY_DAWN - HUMIDITY_FALL[month] * kind.anomaly
    vapour = humidity * saturation(dawn)
    wet_day = wet_bulb(kind.temperature, vapour + MOISTURE_GAIN[month])
    wet_dawn = wet_bulb(dawn, vapour)
    wind = kind.wind * (1 + kind.sun - sun)  # dull days are windy, clear ones calm
    beam = BEAM[month] * above
    return [beam, diffuse, kind.temperature, dawn, wet_day, wet_dawn, 100 * clear, wind]


def average(days, shares):
    """Share-weighted mean of each quantity over a list of days."""
    return [sum(s * q for s, q in zip(shares, column)) / sum(shares) for column in zip(*days)]


def summaries(month, frequency):
    """One month: (F, Q1 to Q8) of each band, of set 1 and of set 2."""
    share = [upper - lower for lower, upper in zip([0.0] + frequency, frequency)]
    classes = temperature_classes(month, share)
    days = [[day(month, kind, sun) for sun in SUN] for kind in classes]
    joint = [[s * part for part in spread(kind.sun)] for s, kind in zip(share, classes)]
    set1 = [[f] + average(*row) for f, *row in zip(frequency, days, joint)]
    sunniest, set2 = 0.0, []
    for column, shares in zip(zip(*days), zip(*joint)):
        sunniest += sum(shares)
        set2.append([sunniest] + average(column, shares))
    return {"1": set1, "2": set2}


COMMENT = """\
# Monthly band climate summary; representative of a mid-latitude maritime climate and not measured.
# Made by make_bands.py; README.md tells the method and how to put data of your own in its place.
# Set 1: days from warmest to coldest. Set 2: days from sunniest to dullest. Ten bands each.
# time A and time B: hour of the day of the warmest and of the coldest air.
# F: share of the days that belong to this band or one before it.
# Q1: beam factor. Q2: diffuse factor (both multiply the clear-sky irradiance).
# Q3 and Q4: air temperature at time A and at time B in degrees C.
# Q5 and Q6: wet-bulb temperature at time A and at time B in degrees C.
# Q7: cloud-free share of the sky in percent (24-hour mean). Q8: wind speed in m/s.
# Set 1 Q2 band 7 June is deliberately 0: a gap in the data kept as it stands.
"""
DIGITS = {"F": 3, "Q1": 2, "Q2": 2, "Q7": 0}  # decimals; one for the others


def row(summary, label):
    """The twelve values of a row as text; summary holds the months' summaries."""
    s, quantity, band = label
    if not band:
        return map(str, (TIME_A if quantity == "time A" else TIME_B)[s])
    digits = DIGITS.get(quantity, 1)
    values = [month[s][int(band) - 1][BANDED.index(quantity)] for month in summary]
    cells = [f"{round(value, digits) + 0.0:.{digits}f}" for value in values]  # never "-0.0"
    if label == MISSING[:3]:
        cells[MONTHS.index(MISSING[3])] = "0"
    return cells


def table_text():
    """The whole of bands.csv."""
    summary = [summaries(month, f) for month, f in enumerate(temperature_frequencies())]
    lines = [",".join([*label, *row(summary, label)]) for label in LABELS]
    return COMMENT + "\n".join([",".join(HEADER), *lines]) + "\n"


def main(arguments):
    if len(arguments) != 1:
        print("usage: make_bands.py OUTPUT", file=sys.stderr)
        return 2
    with open(arguments[0], "w", encoding="utf-8", newline="\n") as stream:
        stream.write(table_text())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
