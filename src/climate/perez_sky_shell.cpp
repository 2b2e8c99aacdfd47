#include "climate/perez_sky.h"
#include "entry/entry.h"

using namespace quorvel;

void CLPERSKY(const Real* altitude, const Real* tilt, const Real* beam, const Real* diffuse,
              Real* sky_diffuse, const Real* incidence, const Real* extraterrestrial_normal) {
    *sky_diffuse = climate::perez_diffuse({*altitude, *beam, *diffuse, *extraterrestrial_normal},
                                          *tilt, *incidence);
}
