// An application on an installed tree: something of each part of the C++ interface.
#include <quorvel/quorvel.hpp>

#include <cmath>
#include <vector>

using namespace quorvel;

int main() {
    const float one =
        psychro::vapour_pressure_from_psychrometer(25, 20, 101325, psychrometer::sling);
    std::vector<float> wet_bulbs(1000, 20.0f), pressures(1000);
    parallel(wet_bulbs.size(), [&](std::size_t first, std::size_t count) {
        psychro::vapour_pressure_from_psychrometer(25, Input<float>(wet_bulbs).part(first, count),
                                                   101325, psychrometer::sling,
                                                   std::span(pressures).subspan(first, count));
    });
    // 2339 Pa over water at 20 °C, less 0.000666 p (25 - 20).
    if (std::fabs(one - 2002.0f) > 9.0f) return 1;
    for (const float pressure : pressures)
        if (pressure != one) return 1;

    const geometry::Polygon a{{0, 0}, {0, 2}, {2, 2}, {2, 0}}, b{{1, 1}, {1, 3}, {3, 3}, {3, 1}};
    if (std::fabs(geometry::overlap_area(a, b) - 1.0) > 1e-3) return 2;
    try {
        climate::ClimateFile file("there is none");
        return 3;
    } catch (const std::system_error&) {
    }
}
