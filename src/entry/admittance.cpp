#include "fabric/admittance.h"

#include "entry/entry.h"
#include "entry/fabric/admittance.h"

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
    const auto response = fabric::cyclic_response(layers, *Rsi, *Rso, *harmonic, *kind);
    *admittance = response.admittance;
    *admittance_lead = response.admittance_lead;
    *decrement_factor = response.decrement_factor;
    *decrement_lag = response.decrement_lag;
    *surface_factor = response.surface_factor;
    *surface_lag = response.surface_lag;
    *U = response.U;
}
