#include "fabric/condensation.h"

#include <algorithm>

#include "entry/entry.h"
#include "entry/fabric/condensation.h"

using namespace quorvel;

void TPDAMP(const Real* thickness, const Real* vapour_resistivity, const Integer* layers,
            Real* vapour_resistance) {
    if (*layers > fabric::most_layers) return;
    const fabric::Layers construction(*layers, [=](int i) {
        return fabric::Layer{thickness[i], 0.0f, 0.0f, vapour_resistivity[i]};
    });
    *vapour_resistance = fabric::total_vapour_resistance(construction);
}

void TPGRAD(const Real* thickness, const Real* conductivity, const Real* vapour_resistivity,
            const Real* inside_resistance, const Real* outside_resistance, const Integer* layers,
            const Real* inside_temperature, const Real* outside_temperature,
            const Real* inside_humidity, const Real* outside_humidity, Real* interface_temperature,
            Real* interface_vapour_pressure, Real* interface_saturation_pressure) {
    if (*layers < 0 || *layers > fabric::most_layers) return;
    const fabric::Layers construction(*layers, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], 0.0f, vapour_resistivity[i]};
    });
    const auto profile = fabric::condensation_profile(
        construction, {*inside_resistance, *inside_temperature, *inside_humidity},
        {*outside_resistance, *outside_temperature, *outside_humidity});
    const int interfaces = construction.size() + 1;
    std::copy_n(profile.temperature.begin(), interfaces, interface_temperature);
    std::copy_n(profile.vapour_pressure.begin(), interfaces, interface_vapour_pressure);
    std::copy_n(profile.saturation_pressure.begin(), interfaces, interface_saturation_pressure);
}
