// Every transcendental function of the library goes through this header.
//
// The single-precision functions are correctly rounded (nearest, ties to even) for every argument,
// the double-precision ones deviate by less than one unit in the last place; all return the same
// bits whatever compiler, optimisation or instruction set translates them. See docs/math.md.
#pragma once

#include "frame/math/atan2.h"
#include "frame/math/double_exp_log.h"
#include "frame/math/double_inverse_trig.h"
#include "frame/math/double_trig.h"
#include "frame/math/exponential.h"
#include "frame/math/inverse_trig.h"
#include "frame/math/logarithm.h"
#include "frame/math/power.h"
#include "frame/math/trig.h"
