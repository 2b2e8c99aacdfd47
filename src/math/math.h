// Every transcendental function of the library goes through this header.
//
// The single-precision functions are correctly rounded (nearest, ties to even) for every argument,
// the double-precision ones deviate by less than one unit in the last place; all return the same
// bits whatever compiler, optimisation or instruction set translates them. See docs/math.md.
//
// As many numbers as fill a register: pack/math.h.
#pragma once

#include "math/atan2.h"
#include "math/double_exp_log.h"
#include "math/double_inverse_trig.h"
#include "math/double_trig.h"
#include "math/power.h"
#include "math/scalar_exp_log.h"
#include "math/scalar_inverse_trig.h"
#include "math/scalar_trig.h"
