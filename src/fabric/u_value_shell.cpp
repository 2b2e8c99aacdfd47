#include "entry/entry.h"
#include "fabric/u_value.h"

using namespace quorvel;

void TPUVAL(const Real* thickness, const Real* conductivity, const Real* R1, const Real* R2,
            const Integer* n, Real* U) {
    if (*n > fabric::most_layers) return;
    const fabric::Layers layers(*n, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], 0.0f, 0.0f};
    });
    *U = fabric::u_value(layers, *R1, *R2);
}

Real TPUMOD(const Real* U, const Real* tilt, const Integer* exposure) {
    return fabric::u_value_at_tilt_and_exposure(*U, *tilt, *exposure);
}
