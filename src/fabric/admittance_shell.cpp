#include "entry/entry.h"
#include "fabric/admittance.h"

#include "fabric/u_value.h"

using namespace quorvel;

void TPADMT(const Real* thickness, const Real* conductivity, const Real* density,
            const Real* specific_heat, const Real* Rsi, const Real* Rso, const Integer* n,
            const Integer* harmonic, const Integer* kind, Real* admittance, Real* admittance_lead,
            Real* decrement_factor, Real* decrement_lag, Real* surface_factor, Real* surface_lag,
            Real* U) {
    if (*n > fabric::most_layers) return;
    const fabric::Layers layers(*n, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], density[i] * specific_heat[i], 0.0f};
    });
    const auto matrix = fabric::construction_matrix(layers, *Rsi, *Rso, *harmonic);
    const Real u_value = fabric::u_value(layers, *Rsi, *Rso);
    const auto response = fabric::cyclic_response(matrix, *Rsi, u_value, *harmonic, *kind == 2);
    *admittance = response.admittance;
    *admittance_lead = response.admittance_lead;
    *decrement_factor = response.decrement_factor;
    *decrement_lag = response.decrement_lag;
    *surface_factor = response.surface_factor;
    *surface_lag = response.surface_lag;
    *U = u_value;
}
