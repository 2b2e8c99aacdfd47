"""The rows of the table in src/glazing/incidence_bands.h.

Every operation is rounded to 24 bits, as single precision does it; the functions are evaluated with
80 bits first, so that their one rounding is the correct one. No value of the table comes near the
ends of the exponent range, where 24 bits alone would not be single precision.
"""

import re

from mpmath import mp, mpf, workprec

REFRACTIVE_INDEX, HALF_BAND, BAND = "1.52", "0.04363323", "0.08726646"  # the bands in rad, 2.5 and 5 degrees


def rounded(function, x):
    with workprec(80):
        value = function(x)
    return +value


def weight(theta, half_band):
    above = rounded(mp.sin, theta + half_band)
    below = rounded(mp.sin, theta - half_band)
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


def rows():
    half_band, band = mpf(HALF_BAND), mpf(BAND)
    for k in range(18):
        theta = half_band + mpf(k) * band
        refracted = rounded(mp.asin, rounded(mp.sin, theta) / mpf(REFRACTIVE_INDEX))
        row = [weight(theta, half_band), rounded(mp.cos, refracted), *surface_reflectances(theta, refracted)]
        yield f"    {{{', '.join(literal(value) for value in row)}}},\n"


def render(header):
    """The header with its rows made anew."""
    with workprec(24):
        table = "".join(rows())
    return re.sub(r"(?<=> incidence_bands\{\{\n).*?(?=\}\};)", lambda _: table, header, flags=re.DOTALL)
