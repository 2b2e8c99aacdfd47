#include "base/contract.h"
#include "for_each.h"
#include "pack/math.h"
#include "psychro/saturation.h"

namespace quorvel {

extern const pack_loops::Functions pack_functions;

namespace {

using pack::Reals;

template <class F>
void for_each_pair(F f, const float* x, const float* y, float* result, std::size_t count) {
    for (std::size_t i = 0; i < count; i += pack::width)
        pack::store(f(pack::load<Reals>(x + i), pack::load<Reals>(y + i)), result + i);
}

#define QUORVEL_UNARY(expression)                                                   \
    [](const float* values, float* result, std::size_t count) {                     \
        for_each<Reals>([](Reals x) { return expression; }, values, result, count); \
    }
#define QUORVEL_BINARY(expression)                                                                \
    [](const float* first, const float* second, float* result, std::size_t count) {               \
        for_each_pair([](Reals x, Reals y) { return expression; }, first, second, result, count); \
    }

QUORVEL_PACK Reals sum(math::SinCosOf<Reals> a) noexcept { return a.sin + a.cos; }

}  // namespace

const pack_loops::Functions pack_functions = {
    .sin = QUORVEL_UNARY(math::sin(x)),
    .cos = QUORVEL_UNARY(math::cos(x)),
    .sincos_sin = QUORVEL_UNARY(math::sincos(x).sin),
    .sincos_cos = QUORVEL_UNARY(math::sincos(x).cos),
    .tan = QUORVEL_UNARY(math::tan(x)),
    .asin = QUORVEL_UNARY(math::asin(x)),
    .acos = QUORVEL_UNARY(math::acos(x)),
    .atan = QUORVEL_UNARY(math::atan(x)),
    .exp = QUORVEL_UNARY(math::exp(x)),
    .exp10 = QUORVEL_UNARY(math::exp10(x)),
    .log = QUORVEL_UNARY(math::log(x)),
    .log10 = QUORVEL_UNARY(math::log10(x)),
    .sqrt = QUORVEL_UNARY(math::sqrt(x)),
    .atan2 = QUORVEL_BINARY(math::atan2(x, y)),
    .pow = QUORVEL_BINARY(math::pow(x, y)),
    .sincos_sum = QUORVEL_UNARY(sum(math::sincos(x))),
    .saturation_pressure = QUORVEL_UNARY(psychro::saturation_pressure(x)),
};

}  // namespace quorvel
