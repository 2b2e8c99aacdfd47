// Whether the double-precision functions of packs give the bits of those of single numbers, at each
// level that the machine can run: over ordinary arguments, any bit patterns, neighbours of
// multiples of the step of sines, and limits, mixed within the packs.
//
//     verify_pack_doubles [COUNT]     of arguments for each function; two million without it
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <random>
#include <vector>

#include "math/math.h"
#include "pack_loops.h"

namespace {

namespace own = quorvel::math;

using Scalar = double (*)(double);
constexpr Scalar kScalar[pack_loops::kDoubles] = {
    own::sin,  own::cos,  own::sin, own::cos, own::tan,  own::asin,
    own::acos, own::atan, own::exp, own::log, own::sqrt,
};

double argument(std::mt19937_64& random) {
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double limits[] = {0.0,       -0.0, 1.0,    -1.0,    0.5,       -0.5,     infinity,
                                 -infinity, NAN,  0x1p12, -0x1p12, 0x1p-1074, 0x1p-1022};
    const std::uint64_t any = random();
    const double signed_unit = static_cast<double>(static_cast<std::int64_t>(any)) * 0x1p-63;
    switch (random() % 8) {
        case 0:
            return std::bit_cast<double>(any);
        case 1:
            return limits[any % std::size(limits)];
        case 2: {
            const double steps = static_cast<double>(any % 4001) - 2000.0;
            return std::nextafter(steps * 0x1.921fb54442d18p-8, signed_unit);
        }
        case 3:
            return signed_unit;
        case 4:
            return std::ldexp(signed_unit, static_cast<int>(random() % 80) - 60);
        default:
            return 30.0 * signed_unit;
    }
}

bool same(double a, double b) {
    return std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b) || (a != a && b != b);
}

std::uint64_t differences(const pack_loops::Level& level, std::size_t function,
                          const std::vector<double>& x) {
    const auto& [name, evaluate] = level.doubles[function];
    std::vector<double> results(x.size());
    evaluate(x.data(), results.data(), x.size());
    std::uint64_t count = 0;
    for (std::size_t i = 0; i < x.size(); ++i) {
        const double expected = kScalar[function](x[i]);
        if (same(results[i], expected)) continue;
        if (count++ == 0)
            std::printf("%s of %a at %s: %a, not %a\n", name, x[i], level.name, results[i],
                        expected);
    }
    return count;
}

}  // namespace

int main(int argc, char** argv) {
    std::size_t count = argc > 1 ? std::strtoull(argv[1], nullptr, 10) : 2'000'000;
    count -= count % pack_loops::kCountUnit;
    std::mt19937_64 random(1);
    std::vector<double> x(count);
    for (double& value : x) value = argument(random);
    std::uint64_t total = 0;
    for (const pack_loops::Level& level : pack_loops::levels())
        for (std::size_t f = 0; f < pack_loops::kDoubles; ++f) total += differences(level, f, x);
    std::printf("%zu levels, %zu functions, %zu arguments: %llu differences\n",
                pack_loops::levels().size(), pack_loops::kDoubles, count,
                static_cast<unsigned long long>(total));
    return total == 0 ? 0 : 1;
}
