// The elementary functions of math/math.h for packs, with the same results to the last bit.
//
// Being correctly rounded, a single-precision function of packs need not repeat the arithmetic of
// the scalar one: a shorter polynomial in double, without tables, fused where the registers can.
// Where its error leaves the rounding in doubt, for one argument in 2^12 or fewer, and for those
// out of the ordinary the scalar function is called. See docs/math.md.
#pragma once

#include "pack/double_math.h"
#include "pack/exp_log.h"
#include "pack/inverse_trig.h"
#include "pack/power.h"
#include "pack/trig.h"

namespace quorvel::math {

QUORVEL_PACK pack::Reals sqrt(pack::Reals x) noexcept { return square_root(x); }

}  // namespace quorvel::math
