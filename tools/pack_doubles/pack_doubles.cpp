// Compiled once for each level, with another name for the namespace quorvel each time. Nothing
// outside it may be anything but inlined: the linker would keep one level's code for all.
#include "pack_doubles.h"

#include "pack/double_math.h"

namespace quorvel {

extern const pack_doubles::Function pack_double_functions[];

namespace {

using pack::DoubleReals;

template <class F>
void for_each(F f, const double* x, double* result, std::size_t count) {
    for (std::size_t i = 0; i < count; i += pack::width)
        pack::store(f(pack::load<DoubleReals>(x + i)), result + i);
}

}  // namespace

#define QUORVEL_UNARY(name, expression)                                                \
    {                                                                                  \
        name, [](const double* values, double* result, std::size_t count) {            \
            for_each([](DoubleReals x) { return expression; }, values, result, count); \
        }                                                                              \
    }
const pack_doubles::Function pack_double_functions[pack_doubles::kFunctions] = {
    QUORVEL_UNARY("sin", math::sin(x)),
    QUORVEL_UNARY("cos", math::cos(x)),
    QUORVEL_UNARY("sincos.sin", math::sincos(x).sin),
    QUORVEL_UNARY("sincos.cos", math::sincos(x).cos),
    QUORVEL_UNARY("tan", math::tan(x)),
    QUORVEL_UNARY("asin", math::asin(x)),
    QUORVEL_UNARY("acos", math::acos(x)),
    QUORVEL_UNARY("atan", math::atan(x)),
    QUORVEL_UNARY("exp", math::exp(x)),
    QUORVEL_UNARY("log", math::log(x)),
    QUORVEL_UNARY("sqrt", math::sqrt(x)),
};

}  // namespace quorvel
