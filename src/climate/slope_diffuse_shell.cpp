#include "climate/slope_diffuse.h"
#include "entry/entry.h"

using namespace quorvel;

Real CLDIFRAD(const Integer* day, const Real* altitude, const Real* beam, const Real*,
              const Real* tilt, const Integer* model) {
    return climate::diffuse_tilt_factor(*day, *altitude, *beam, *tilt, *model);
}

Real CLDIFSLO(const Integer* day, const Real* altitude, const Real* azimuth,
              const Real* surface_azimuth, const Real* tilt, const Real* beam, const Real* diffuse,
              const Integer* model) {
    return climate::slope_diffuse(*day, {*altitude, *azimuth}, {*surface_azimuth, *tilt},
                                  {*beam, *diffuse}, *model);
}
