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

void WNDRSM(const Real* shortwave_shading_coefficient, const Real* longwave_shading_coefficient,
            const Real* incidence, const Integer* panes, Real* transmittance, Real* pane_shares,
            Real* absorptance) {
    store_shares(glazing::unit_direct_shares(*shortwave_shading_coefficient,
                                             *longwave_shading_coefficient, *incidence, *panes),
                 transmittance, pane_shares, absorptance);
}

void WNDFSM(const Real* shortwave_shading_coefficient, const Real* longwave_shading_coefficient,
            const Integer* panes, Real* transmittance, Real* pane_shares, Real* absorptance) {
    store_shares(glazing::unit_diffuse_shares(*shortwave_shading_coefficient,
                                              *longwave_shading_coefficient, *panes),
                 transmittance, pane_shares, absorptance);
}

// The angle is read in mode 1 only.
void WNDRS0(const Integer* radiation, const Real* shortwave_shading_coefficient,
            const Real* longwave_shading_coefficient, const Real* incidence, const Integer* panes,
            Real* transmittance, Real* pane_shares, Real* absorptance) {
    const auto unit =
        *radiation == 1
            ? glazing::unit_direct_shares(*shortwave_shading_coefficient,
                                          *longwave_shading_coefficient, *incidence, *panes)
            : glazing::unit_diffuse_shares(*shortwave_shading_coefficient,
                                           *longwave_shading_coefficient, *panes);
    store_shares(unit, transmittance, pane_shares, absorptance);
}
