#include "climate/band_search.h"

#include "entry/climate/band_search.h"
#include "entry/entry.h"

using namespace quorvel;

// The table of frequencies is read in place: the search looks at a few of its values.
void CLBAN1(const Real* fraction, const Integer* month, const Real* frequencies,
            Integer* lower_band, Integer* upper_band, Real* band_weight) {
    const auto position = climate::locate_band(*fraction, *month, frequencies);
    *lower_band = position.lower;
    *upper_band = position.upper;
    *band_weight = position.weight;
}
