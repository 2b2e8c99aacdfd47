#include "fabric/u_value.h"

#include "entry/entry.h"
#include "entry/fabric/u_value.h"

using namespace quorvel;

void TPUVAL(const Real* thickness, const Real* conductivity, const Real* R1, const Real* R2,
            const Integer* n, Real* U) {
    if (*n > fabric::most_layers) return;
    const fabric::Layers layers(*n, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], 0.0f, 0.0f};
    });
    *U = fabric::u_value(layers, *R1, *R2);
}
