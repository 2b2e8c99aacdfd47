#include "glazing/layers.h"

#include "entry/entry.h"
#include "entry/glazing/layers.h"

using namespace quorvel;

namespace {

void store_optics(const glazing::Optics<Real>& optics, Real* t, Real* a, Real* r) noexcept {
    *t = optics.transmittance;
    *a = optics.absorptance;
    *r = optics.reflectance;
}

}  // namespace

void WNCOM2(const Integer* layers, const Real* layer_transmittances, const Real*,
            const Real* layer_reflectances, Real* transmittance, Real* absorptance,
            Real* reflectance) {
    store_optics(glazing::stacked_layers(*layers, layer_transmittances, layer_reflectances),
                 transmittance, absorptance, reflectance);
}

void WNCOMP(const Integer* layers, const Real* layer_transmittances, const Real* layer_absorptances,
            const Real* layer_reflectances, Real* transmittance, Real* absorptance,
            Real* reflectance) {
    if (*layers > glazing::most_traced_layers) return;
    store_optics(glazing::traced_layers(*layers, layer_transmittances, layer_absorptances,
                                        layer_reflectances),
                 transmittance, absorptance, reflectance);
}
