#include "climate/daily_wave.h"
#include "entry/entry.h"

using namespace quorvel;

Real CLTAO(const Real* hour, const Real* highest, const Real* lowest, const Real* hour_of_highest,
           const Real* hour_of_lowest) {
    return climate::daily_temperature(*hour, *highest, *lowest, *hour_of_highest, *hour_of_lowest);
}

Real CLTAOX(const Real* hour, const Real* mean, const Real* amplitude, const Real* first,
            const Real* second, const Real* factor) {
    return climate::daily_value(*hour, *mean, *amplitude, *first, *second, *factor);
}
