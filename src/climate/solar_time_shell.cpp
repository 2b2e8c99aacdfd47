#include "climate/solar_time.h"
#include "entry/entry.h"

using namespace quorvel;

Real CLTCOR(const Real* offset, const Integer* day, const Real* longitude,
            const Real* reference_longitude) {
    return climate::solar_time_correction(*offset, *day, *longitude, *reference_longitude);
}
