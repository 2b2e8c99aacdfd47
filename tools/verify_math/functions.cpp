#include "functions.h"

#include <math.h>

#include "frame/math.h"

namespace verify {

namespace {

namespace own = quorvel::math;

#define PLATFORM(f) [](double x) { return ::f(x); }
#define MPFR(f) \
    [](mpfr_ptr result, mpfr_srcptr x, mpfr_rnd_t mode) { return mpfr_##f(result, x, mode); }
#define PLATFORM2(f) [](double x, double y) { return ::f(x, y); }
#define MPFR2(f)                                                         \
    [](mpfr_ptr result, mpfr_srcptr x, mpfr_srcptr y, mpfr_rnd_t mode) { \
        return mpfr_##f(result, x, y, mode);                             \
    }

#define LOOP(expression)                                                       \
    [](const float* __restrict in, float* __restrict out, std::size_t count) { \
        for (std::size_t i = 0; i < count; ++i) out[i] = expression(in[i]);    \
    }
#define FLOAT(f, form) \
    FloatFunction { {#form, PLATFORM(f), MPFR(f)}, LOOP(own::form) }
#define DOUBLE(f, low, high, near_one)                                                      \
    DoubleFunction {                                                                        \
        {#f, PLATFORM(f), MPFR(f)}, [](double x) { return own::f(x); }, low, high, near_one \
    }

#define SINCOS(f, form)                                                                    \
    FloatFunction {                                                                        \
        {#form "." #f, PLATFORM(f), MPFR(f)}, LOOP([](float x) { return own::form(x).f; }) \
    }

#define PAIRS(f)                                                        \
    [](const float* x, const float* y, float* out, std::size_t count) { \
        for (std::size_t i = 0; i < count; ++i) out[i] = f(x[i], y[i]); \
    }
#define FLOAT2(f, form, evaluate) \
    FloatPairFunction { {#form, nullptr, nullptr, PLATFORM2(f), MPFR2(f)}, evaluate }

constexpr FloatFunction kFloat[] = {
    FLOAT(sin, sin),     FLOAT(sin, loop::sin),     FLOAT(cos, cos),     FLOAT(cos, loop::cos),
    SINCOS(sin, sincos), SINCOS(sin, loop::sincos), SINCOS(cos, sincos), SINCOS(cos, loop::sincos),
    FLOAT(tan, tan),     FLOAT(tan, loop::tan),     FLOAT(asin, asin),   FLOAT(asin, loop::asin),
    FLOAT(acos, acos),   FLOAT(acos, loop::acos),   FLOAT(atan, atan),   FLOAT(atan, loop::atan),
    FLOAT(exp, exp),     FLOAT(exp, loop::exp),     FLOAT(exp10, exp10), FLOAT(exp10, loop::exp10),
    FLOAT(log, log),     FLOAT(log, loop::log),     FLOAT(log10, log10), FLOAT(log10, loop::log10),
    FLOAT(sqrt, sqrt),
};

constexpr FloatPairFunction kFloatPair[] = {
    FLOAT2(atan2, atan2, PAIRS(own::atan2)),
    FLOAT2(atan2, loop::atan2, own::loop::atan2),
    FLOAT2(pow, pow, PAIRS(own::pow)),
    FLOAT2(pow, loop::pow, own::loop::pow),
};

constexpr DoubleFunction kDouble[] = {
    DOUBLE(sin, -30, 40, false), DOUBLE(cos, -30, 40, false),    DOUBLE(tan, -30, 40, false),
    DOUBLE(asin, -30, 0, false), DOUBLE(acos, -30, 0, false),    DOUBLE(atan, -30, 60, false),
    DOUBLE(exp, -40, 10, false), DOUBLE(log, -1074, 1024, true), DOUBLE(sqrt, -1074, 1024, false),
};

constexpr DoublePairFunction kDoublePair[] = {
    {{"atan2", nullptr, nullptr, PLATFORM2(atan2), MPFR2(atan2)},
     [](double y, double x) { return own::atan2(y, x); }},
    {{"pow", nullptr, nullptr, PLATFORM2(pow), MPFR2(pow)},
     [](double x, double y) { return own::pow(x, y); }},
};

}  // namespace

std::span<const FloatFunction> float_functions() { return kFloat; }
std::span<const FloatPairFunction> float_pair_functions() { return kFloatPair; }
std::span<const DoubleFunction> double_functions() { return kDouble; }
std::span<const DoublePairFunction> double_pair_functions() { return kDoublePair; }

}  // namespace verify
