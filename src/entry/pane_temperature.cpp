#include "glazing/pane_temperature.h"

#include "entry/entry.h"
#include "entry/glazing/pane_temperature.h"

using namespace quorvel;

// What is absorbed is read, and a temperature written, for the calculated panes only.
void WNTEMP(const Real* t_room, const Real* t_out, const Integer* n, const Real* s1, const Real* s2,
            const Real* s3, const Real* s4, const Real* s5, Real* t1, Real* t2, Real* t3, Real* t4,
            Real* t5) {
    const Real* const given[] = {s1, s2, s3, s4, s5};
    Real* const returned[] = {t1, t2, t3, t4, t5};
    const int panes = glazing::calculated_panes(*n);
    glazing::PaneValues absorbed{};
    for (int j = 0; j < panes; ++j) absorbed[j] = *given[j];
    const auto temperatures = glazing::pane_temperatures(*t_room, *t_out, *n, absorbed);
    for (int k = 0; k < panes; ++k) *returned[k] = temperatures[k];
}
