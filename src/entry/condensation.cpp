#include "fabric/condensation.h"

#include <algorithm>

#include "entry/entry.h"
#include "entry/fabric/condensation.h"

using namespace quorvel;

void TPDAMP(const Real* thickness, const Real* resistivity, const Integer* n, Real* total) {
    if (*n > fabric::most_layers) return;
    const fabric::Layers layers(*n, [=](int i) {
        return fabric::Layer{thickness[i], 0.0f, 0.0f, resistivity[i]};
    });
    *total = fabric::total_vapour_resistance(layers);
}

void TPGRAD(const Real* thickness, const Real* conductivity, const Real* resistivity,
            const Real* R_inside, const Real* R_outside, const Integer* n, const Real* t_inside,
            const Real* t_outside, const Real* rh_inside, const Real* rh_outside, Real* temperature,
            Real* vapour_pressure, Real* saturation_pressure) {
    if (*n < 0 || *n > fabric::most_layers) return;
    const fabric::Layers layers(*n, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], 0.0f, resistivity[i]};
    });
    const auto profile = fabric::condensation_profile(layers, {*R_inside, *t_inside, *rh_inside},
                                                      {*R_outside, *t_outside, *rh_outside});
    const int interfaces = layers.size() + 1;
    std::copy_n(profile.temperature.begin(), interfaces, temperature);
    std::copy_n(profile.vapour_pressure.begin(), interfaces, vapour_pressure);
    std::copy_n(profile.saturation_pressure.begin(), interfaces, saturation_pressure);
}
