"""src/math/tables.h: the tables of the elementary functions."""
import struct

from mpmath import asin, atan, cos, floor, log, mp, mpf, pi, power, sin, sqrt

mp.prec = 200
SINE_STEPS = 512  # per turn
LOG_STEPS = 128  # per octave
EXP_STEPS = 64  # per octave
# the leading coefficient of exp2_cubic in tools/math/coefficients.sollya
EXP_SCALE = mpf(float.fromhex("0x1.c6b0610e87d54p-5"))
ARC_SINE_STEPS = 64  # per unit


def bits_of(x):
    return struct.unpack("<Q", struct.pack("<d", float(x)))[0]


def nearest(x):
    return float(mpf(x)).hex().replace("0x1.0000000000000p", "0x1p").replace("0x0.0p+0", "0")


def low_part(x):
    return nearest(mpf(x) - mpf(float(mpf(x))))


def in_rows(texts, per_row):
    rows = [texts[i:i + per_row] for i in range(0, len(texts), per_row)]
    return "\n".join("    " + ", ".join(row) + "," for row in rows)


def sines():
    return [mpf(0) if 2 * k % SINE_STEPS == 0 else sin(2 * pi * k / SINE_STEPS) for k in range(SINE_STEPS * 5 // 4)]


def log_step(i):
    """1/c and log2 c - 127 of step i.

    1/c has 28 bits, such that its product with a float is exact. Of those about the middle of the
    step, the one whose logarithm is nearest to a double is taken, so that the sum of it and the
    exponent is as good as exact.
    """
    if i == 0:
        return mpf(1), mpf(-127)
    if i == LOG_STEPS - 1:
        return mpf(1) / 2, mpf(-126)
    unit = power(2, -28)
    middle = floor(1 / (1 + (mpf(i) + 0.5) / LOG_STEPS) / unit)
    candidates = [(middle + k) * unit for k in range(-512, 513)]

    def rounding_error(inverse):
        value = -log(inverse, 2) - 127
        return abs(value - mpf(float(value)))

    inverse = min(candidates, key=rounding_error)
    return inverse, -log(inverse, 2) - 127


def exp_steps():
    values = [bits_of(EXP_SCALE * power(2, mpf(i) / EXP_STEPS)) - (i << 52) // EXP_STEPS for i in range(EXP_STEPS)]
    return [f"{value:#x}" for value in values]


def arc_sines():
    rows = []
    for k in range(-ARC_SINE_STEPS, ARC_SINE_STEPS + 1):
        s = mpf(k) / ARC_SINE_STEPS
        rows.append(f"{{{nearest(sqrt(1 - s * s))}, {nearest(asin(s))}}}")
    return rows


def arc_tangents():
    """Two steps an octave from 1/8 to 8"""
    rows = ["{1, 0, 0}"]
    for k in range(12):
        low = (1 + mpf(k % 2) / 2) * power(2, k // 2 - 3)
        high = (1 + mpf((k + 1) % 2) / 2) * power(2, (k + 1) // 2 - 3)
        angle = (atan(low) + atan(high)) / 2
        rows.append(f"{{{nearest(cos(angle))}, {nearest(sin(angle))}, {nearest(angle)}}}")
    rows.append(f"{{0, 1, {nearest(pi / 2)}}}")
    return rows


def double_arc_tangents():
    """Tangents, and their angles in 106 bits: 0, four steps an octave from 1/8 to 8, and beyond"""
    tangents = [mpf(0)]
    for k in range(24):
        tangents.append((1 + (mpf(k % 4) + 0.5) / 4) * power(2, k // 4 - 3))
    tangents.append(mpf(16))
    columns = [[nearest(t) for t in tangents], [nearest(atan(t)) for t in tangents], [low_part(atan(t)) for t in tangents]]
    return "\n}, {\n".join(in_rows(column, 4) for column in columns)


def render():
    log_steps = [log_step(i) for i in range(LOG_STEPS)]
    return f"""// Tables of the elementary functions, written by generate/elementary_tables.py.
#pragma once

#include <cstdint>

// clang-format off

namespace quorvel::math::detail {{

// sin(2 pi k / {SINE_STEPS}) over five quarters of a turn: the cosine of a step lies a quarter further on. That of
// 0 is -0, so that its sum with -0 is.
inline constexpr double kSines[{SINE_STEPS * 5 // 4}] = {{
{in_rows(["-0.0" if x == 0 else nearest(x) for x in sines()], 4)}
}};

// What the sines exceed these doubles by
inline constexpr double kSinesLow[{SINE_STEPS * 5 // 4}] = {{
{in_rows([low_part(x) for x in sines()], 4)}
}};

// For each of {LOG_STEPS} steps of an octave 1/c, of 28 bits so that its product with a float is exact, and
// log2 c less the bias of a float's exponent
struct LogSteps {{
    double inverse[{LOG_STEPS}], log2[{LOG_STEPS}];
}};
inline constexpr LogSteps kLogSteps = {{{{
{in_rows([nearest(inverse) for inverse, _ in log_steps], 4)}
}}, {{
{in_rows([nearest(value) for _, value in log_steps], 4)}
}}}};

// Bit patterns of 2^(i/{EXP_STEPS}) times the cubic's leading coefficient, less i/{EXP_STEPS} in the exponent
inline constexpr std::uint64_t kExpSteps[{EXP_STEPS}] = {{
{in_rows(exp_steps(), 4)}
}};

// sqrt(1 - s^2) and asin s for s = -1, ... 1 in steps of 1/{ARC_SINE_STEPS}
struct ArcSineStep {{
    double cosine, angle;
}};
inline constexpr ArcSineStep kArcSineSteps[{2 * ARC_SINE_STEPS + 1}] = {{
{in_rows(arc_sines(), 2)}
}};

// Cosine and sine of angles, and the angles: 0, one for each half octave of tangents from 1/8 to 8, and pi/2
struct ArcTangentStep {{
    double cosine, sine, angle;
}};
inline constexpr ArcTangentStep kArcTangentSteps[14] = {{
{in_rows(arc_tangents(), 1)}
}};

// Tangents with few bits, and their angles in two parts: 0, one for each of four steps an octave from 1/8 to 8, and one
// for all beyond
struct TangentSteps {{
    double tangent[26], angle[26], angle_low[26];
}};
inline constexpr TangentSteps kTangentSteps = {{{{
{double_arc_tangents()}
}}}};

// clang-format on

}}  // namespace quorvel::math::detail
"""
