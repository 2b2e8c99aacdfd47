#include "functions.h"

#include <math.h>

#include "math/math.h"

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

#define LOOP(expression)                                                    \
    [](const float* in, float* out, std::size_t count) {                    \
        for (std::size_t i = 0; i < count; ++i) out[i] = expression(in[i]); \
    }
#define PAIRS(f)                                                        \
    [](const float* x, const float* y, float* out, std::size_t count) { \
        for (std::size_t i = 0; i < count; ++i) out[i] = f(x[i], y[i]); \
    }
#define FLOAT(f) \
    FloatFunction { {#f, PLATFORM(f), MPFR(f)}, LOOP(own::f), &pack_loops::Functions::f }
#define SINCOS(f)                                                                             \
    FloatFunction {                                                                           \
        {"sincos." #f, PLATFORM(f), MPFR(f)}, LOOP([](float x) { return own::sincos(x).f; }), \
            &pack_loops::Functions::sincos_##f                                                \
    }
#define FLOAT2(f)                                                                                \
    FloatPairFunction {                                                                          \
        {#f, nullptr, nullptr, PLATFORM2(f), MPFR2(f)}, PAIRS(own::f), &pack_loops::Functions::f \
    }
#define DOUBLE(f, low, high, near_one)                                                      \
    DoubleFunction {                                                                        \
        {#f, PLATFORM(f), MPFR(f)}, [](double x) { return own::f(x); }, low, high, near_one \
    }

constexpr FloatFunction kFloat[] = {
    FLOAT(sin),  FLOAT(cos), SINCOS(sin),  SINCOS(cos), FLOAT(tan),   FLOAT(asin), FLOAT(acos),
    FLOAT(atan), FLOAT(exp), FLOAT(exp10), FLOAT(log),  FLOAT(log10), FLOAT(sqrt),
};

constexpr FloatPairFunction kFloatPair[] = {FLOAT2(atan2), FLOAT2(pow)};

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
