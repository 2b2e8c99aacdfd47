#include "glazing/shading_coefficient.h"

#include <algorithm>

#include "entry/entry.h"
#include "entry/glazing/shading_coefficient.h"

using namespace quorvel;

namespace {

void store_shares(const glazing::UnitShares& unit, Real* t, Real* panes, Real* a) noexcept {
    *t = unit.transmittance;
    std::copy_n(unit.panes.begin(), unit.n, panes);
    *a = unit.absorptance;
}

}  // namespace

void WNDRSM(const Real* sc, const Real* scl, const Real* theta, const Integer* n, Real* t,
            Real* panes, Real* a) {
    store_shares(glazing::unit_direct_shares(*sc, *scl, *theta, *n), t, panes, a);
}

void WNDFSM(const Real* sc, const Real* scl, const Integer* n, Real* t, Real* panes, Real* a) {
    store_shares(glazing::unit_diffuse_shares(*sc, *scl, *n), t, panes, a);
}

// The angle is read in mode 1 only.
void WNDRS0(const Integer* mode, const Real* sc, const Real* scl, const Real* theta,
            const Integer* n, Real* t, Real* panes, Real* a) {
    const auto unit = *mode == 1 ? glazing::unit_direct_shares(*sc, *scl, *theta, *n)
                                 : glazing::unit_diffuse_shares(*sc, *scl, *n);
    store_shares(unit, t, panes, a);
}
