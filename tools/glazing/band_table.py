#!/usr/bin/env python3
"""Print the rows of the band table in src/glazing/incidence_bands.h. Needs Debian's python3-mpmath.

Every operation is rounded to 24 bits, as single precision does it; the functions are evaluated with
80 bits first, so that their one rounding is the correct one. No value of the table comes near the
ends of the exponent range, where 24 bits alone would not be single precision.
"""

from mpmath import mp, mpf, workprec

mp.prec = 24

REFRACTIVE_INDEX = mpf("1.52")
HALF_BAND = mpf("0.04363323")  # 2.5 degrees
BAND = mpf("0.08726646")  # 5 degrees


def rounded(function, x):
    with workprec(80):
        value = function(x)
    return +value


def weight(theta):
    above = rounded(mp.sin, theta + HALF_BAND)
    below = rounded(mp.sin, theta - HALF_BAND)
    return above * above - below * below


def surface_reflectances(theta, refracted):
    sines = rounded(mp.sin, theta - refracted) / rounded(mp.sin, theta + refracted)
    cosines = rounded(mp.cos, theta + refracted) / rounded(mp.cos, theta - refracted)
    perpendicular = sines * sines
    return perpendicular * (cosines * cosines), perpendicular


def literal(x):
    """Shortest of the decimals that read back as the same single-precision number."""
    for digits in range(1, 10):
        text = mp.nstr(x, digits, min_fixed=-4)
        if mpf(text) == x:
            return text + "f"
    raise ArithmeticError(x)


for k in range(18):
    theta = HALF_BAND + mpf(k) * BAND
    refracted = rounded(mp.asin, rounded(mp.sin, theta) / REFRACTIVE_INDEX)
    row = [weight(theta), rounded(mp.cos, refracted), *surface_reflectances(theta, refracted)]
    print(f"    {{{', '.join(literal(value) for value in row)}}},")
