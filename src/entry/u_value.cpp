#include "fabric/u_value.h"

#include "entry/entry.h"
#include "entry/fabric/u_value.h"

using namespace quorvel;

void TPUVAL(const Real* thickness, const Real* conductivity, const Real* surface_resistance_1,
            const Real* surface_resistance_2, const Integer* layers, Real* u_value) {
    if (*layers > fabric::most_layers) return;
    const fabric::Layers construction(*layers, [=](int i) {
        return fabric::Layer{thickness[i], conductivity[i], 0.0f, 0.0f};
    });
    *u_value = fabric::u_value(construction, *surface_resistance_1, *surface_resistance_2);
}
