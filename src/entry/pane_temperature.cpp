#include "glazing/pane_temperature.h"

#include "entry/entry.h"
#include "entry/glazing/pane_temperature.h"

using namespace quorvel;

// What is absorbed is read, and a temperature written, for the calculated panes only.
void WNTEMP(const Real* inside_temperature, const Real* outside_temperature, const Integer* panes,
            const Real* absorbed_1, const Real* absorbed_2, const Real* absorbed_3,
            const Real* absorbed_4, const Real* absorbed_5, Real* pane_temperature_1,
            Real* pane_temperature_2, Real* pane_temperature_3, Real* pane_temperature_4,
            Real* pane_temperature_5) {
    const Real* const given[] = {absorbed_1, absorbed_2, absorbed_3, absorbed_4, absorbed_5};
    Real* const returned[] = {pane_temperature_1, pane_temperature_2, pane_temperature_3,
                              pane_temperature_4, pane_temperature_5};
    const int calculated = glazing::calculated_panes(*panes);
    glazing::PaneValues absorbed{};
    for (int j = 0; j < calculated; ++j) absorbed[j] = *given[j];
    const auto temperatures =
        glazing::pane_temperatures(*inside_temperature, *outside_temperature, *panes, absorbed);
    for (int k = 0; k < calculated; ++k) *returned[k] = temperatures[k];
}
