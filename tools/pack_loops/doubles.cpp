#include "for_each.h"
#include "pack/double_math.h"

namespace quorvel {

extern const pack_loops::DoubleFunction pack_doubles[];

using pack::DoubleReals;

#define QUORVEL_UNARY(name, expression)                                                     \
    {                                                                                       \
        name, [](const double* values, double* result, std::size_t count) {                 \
            for_each<DoubleReals>([](DoubleReals x) { return expression; }, values, result, \
                                  count);                                                   \
        }                                                                                   \
    }
const pack_loops::DoubleFunction pack_doubles[pack_loops::kDoubles] = {
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
