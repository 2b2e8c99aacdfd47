#include "calculation/window/cavity.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "calculation/angle.h"
#include "calculation/heat_radiation.h"

namespace quorvel::window {
namespace {

using host::kelvin;
using host::stefan_boltzmann;

constexpr double gravity = 9.81;  // m/s²

double between(const std::array<double, 4>& values, double temperature) {
    const double place = (temperature + 10) / 10;
    const auto i = static_cast<std::size_t>(std::clamp(std::floor(place), 0.0, 2.0));
    const double value = values[i] + (place - static_cast<double>(i)) * (values[i + 1] - values[i]);
    return std::max(value, 0.2 * values[0]);  // far beyond the table
}

// Heat that rises, by tilt: the standard has 0, 45 and 90 degrees, and straight lines between them.
struct Law {
    double factor, exponent;
};
Law law(double tilt) {
    constexpr Law laws[] = {{0.16, 0.28}, {0.10, 0.31}, {0.035, 0.38}};
    const std::size_t i = tilt < 45 ? 0 : 1;
    const double share = tilt / 45 - static_cast<double>(i);
    return {std::lerp(laws[i].factor, laws[i + 1].factor, share),
            std::lerp(laws[i].exponent, laws[i + 1].exponent, share)};
}

// Heat that flows down, or up in a cavity that leans outwards over the room, stays where it is; in
// a vertical one it rises either way.
double nusselt(double grashof_prandtl, double tilt, bool outwards) {
    const bool leans_over = tilt > 90;
    const double slope = leans_over ? 180 - tilt : tilt;
    const bool rises = outwards != leans_over;
    const Law by_tilt = law(slope), vertical = law(90);
    const auto number = [&](const Law& l) {
        return std::max(1.0, l.factor * std::pow(grashof_prandtl, l.exponent));
    };
    if (rises) return number(by_tilt);
    return 1 + (number(vertical) - 1) * std::sin(host::radians(slope));
}

}  // namespace

GasState at(const Gas& gas, double temperature) {
    return {between(gas.conductivity, temperature), between(gas.density, temperature),
            between(gas.viscosity, temperature), gas.specific_heat};
}

double gas_conductance(const Cavity& cavity, double outer, double inner, double tilt) {
    const double mean = (outer + inner) / 2, width = cavity.width / 1000;
    const GasState gas = at(cavity.gas, mean);
    const double grashof = gravity * std::pow(width, 3) * std::fabs(inner - outer) * gas.density *
                           gas.density / ((mean + kelvin) * gas.viscosity * gas.viscosity);
    const double prandtl = gas.viscosity * gas.specific_heat / gas.conductivity;
    return nusselt(grashof * prandtl, tilt, inner > outer) * gas.conductivity / width;
}

double radiative_conductance(double emissivity_a, double emissivity_b, double temperature) {
    return 4 * stefan_boltzmann * std::pow(temperature + kelvin, 3) /
           (1 / emissivity_a + 1 / emissivity_b - 1);
}

double u_value(const Unit& unit, double tilt) {
    constexpr double mean = 10, difference = 15, outdoors = 25, convection_indoors = 3.6,
                     radiation_indoors = 4.1;
    const std::size_t n = unit.cavities.size();
    std::vector<double> resistance(n, 1);
    for (int iteration = 0; iteration < 20; ++iteration) {
        const double sum = std::accumulate(resistance.begin(), resistance.end(), 0.0);
        for (std::size_t k = 0; k < n; ++k) {
            const double half = difference * resistance[k] / sum / 2;
            resistance[k] = 1 / (gas_conductance(unit.cavities[k], mean - half, mean + half, tilt) +
                                 radiative_conductance(unit.panes[k].emissivity[1],
                                                       unit.panes[k + 1].emissivity[0], mean));
        }
    }
    double total = std::accumulate(resistance.begin(), resistance.end(), 1 / outdoors);
    for (const Pane& pane : unit.panes) total += pane.thickness / 1000 / glass_conductivity;
    const double emissivity = unit.panes.back().emissivity[1];
    total += 1 / (convection_indoors + radiation_indoors * emissivity / plain_emissivity);
    return 1 / total;
}

}  // namespace quorvel::window
