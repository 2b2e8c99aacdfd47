#include "fabric/admittance.h"

#include "entry/entry.h"
#include "entry/fabric/admittance.h"

using namespace quorvel;

void TPADMT(const Real* thickness, const Real* conductivity, const Real* density,
            const Real* specific_heat, const Real* inside_resistance,
            const Real* outside_resistance, const Integer* layers, const Integer* harmonic,
            const Integer* element_kind, Real* admittance, Real* admittance_lead,
            Real* decrement_factor, Real* decrement_lag, Real* surface_factor,
            Real* surface_factor_lag, Real* u_value) {
    if (*layers > fabric::most_layers) return;
    const fabric::Layers construction(*layers, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], density[i] * specific_heat[i], 0.0f};
    });
    const auto response = fabric::cyclic_response(construction, *inside_resistance,
                                                  *outside_resistance, *harmonic, *element_kind);
    *admittance = response.admittance;
    *admittance_lead = response.admittance_lead;
    *decrement_factor = response.decrement_factor;
    *decrement_lag = response.decrement_lag;
    *surface_factor = response.surface_factor;
    *surface_factor_lag = response.surface_lag;
    *u_value = response.U;
}
