#!/usr/bin/env python3
"""Writes the tables of src/frame/math/power_tables.h to standard output.

Needs Debian's python3-mpmath. Run: tools/math/power_tables.py > src/frame/math/power_tables.h
"""
import struct

from mpmath import floor, log, mp, mpf, power

mp.prec = 200
LOG_STEPS = 64  # per octave
EXP_STEPS = 32
ONE = 0x3FF0000000000000
STEP = 1 << (52 - 6)
# Near 1/sqrt 2, such that the step that holds 1 extends equally far to both sides of it
ORIGIN = ONE - 27 * STEP - 2 * STEP // 3


def from_bits(bits):
    return struct.unpack("<d", struct.pack("<Q", bits))[0]


def nearest(x):
    return float(mpf(x)).hex().replace("0x1.0000000000000p", "0x1p")


def short(x, bits):
    """x > 0 rounded to so many bits"""
    scale = power(2, bits - 1 - floor(log(x, 2)))
    return floor(x * scale + 0.5) / scale


def log_rows():
    for i in range(LOG_STEPS):
        low, high = from_bits(ORIGIN + i * STEP), from_bits(ORIGIN + (i + 1) * STEP)
        holds_one = low < 1 < high
        inverse = mpf(1) if holds_one else short(2 / (mpf(low) + mpf(high)), 28)
        yield f"    {{{nearest(inverse)}, {nearest(-log(inverse, 2))}}},"


def exp_rows():
    values = [nearest(power(2, mpf(i) / EXP_STEPS)) for i in range(EXP_STEPS)]
    for i in range(0, EXP_STEPS, 4):
        yield "    " + ", ".join(values[i:i + 4]) + ","


print(f"""// Tables of single-precision pow, written by tools/math/power_tables.py.
#pragma once

#include <cstdint>

// clang-format off

namespace quorvel::math::detail {{

// The mantissa whose bit pattern starts the first of {LOG_STEPS} steps of an octave
constexpr std::uint64_t kLogOrigin = {ORIGIN:#x};

// For each step 1/c, of 28 bits so that its product with a float is exact, and log2 c
struct LogStep {{
    double inverse, log2;
}};
constexpr LogStep kLogSteps[{LOG_STEPS}] = {{
{chr(10).join(log_rows())}
}};

// 2^(i/{EXP_STEPS})
constexpr double kExpSteps[{EXP_STEPS}] = {{
{chr(10).join(exp_rows())}
}};

// clang-format on

}}  // namespace quorvel::math::detail""")
