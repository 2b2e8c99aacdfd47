#include "entry/entry.h"
#include "glazing/shading_coefficient.h"
#include "glazing/store_optics.h"

using namespace quorvel;

namespace {

// The panes share the remainder that is neither transmitted nor absorbed, not the absorbed part:
// meant so. The absorptance is recovered from that remainder.
void store_shares(const glazing::Optics& unit, Integer n, Real* t, Real* panes, Real* a) noexcept {
    *t = unit.transmittance;
    glazing::share_among_panes(unit.reflectance, n, panes);
    *a = 1.0f - unit.transmittance - unit.reflectance;
}

}  // namespace

void WNDRSC(const Real* sc, const Real* scl, const Real* theta, Real* t, Real* a, Real* r) {
    store(unit_direct(glazing::shaded_unit(*sc, *scl), *theta), t, a, r);
}

void WNDFSC(const Real* sc, const Real* scl, Real* t, Real* a, Real* r) {
    store(unit_diffuse(glazing::shaded_unit(*sc, *scl)), t, a, r);
}

void WNDRSM(const Real* sc, const Real* scl, const Real* theta, const Integer* n, Real* t,
            Real* panes, Real* a) {
    store_shares(unit_direct(glazing::shaded_unit(*sc, *scl), *theta), *n, t, panes, a);
}

void WNDFSM(const Real* sc, const Real* scl, const Integer* n, Real* t, Real* panes, Real* a) {
    store_shares(unit_diffuse(glazing::shaded_unit(*sc, *scl)), *n, t, panes, a);
}

void WNDRS0(const Integer* mode, const Real* sc, const Real* scl, const Real* theta,
            const Integer* n, Real* t, Real* panes, Real* a) {
    const glazing::ShadedUnit unit = glazing::shaded_unit(*sc, *scl);
    store_shares(*mode == 1 ? unit_direct(unit, *theta) : unit_diffuse(unit), *n, t, panes, a);
}
