#include "climate/design_sky.h"
#include "entry/entry.h"

using namespace quorvel;

Real CLHIGH(const Real* height, const Real* altitude) {
    return climate::height_factor(*height, *altitude);
}

void CLSNNR(const Real* altitude, const Real*, const Real* height, const Integer* sky_kind,
            Real* direct_normal, Real* diffuse_horizontal) {
    const auto sky = climate::design_irradiance(*altitude, *height, *sky_kind);
    *direct_normal = sky.direct_normal;
    *diffuse_horizontal = sky.diffuse_horizontal;
}

Real CLETAJ(const Integer* day) { return climate::eccentricity_factor(*day); }

Real CLMODUL(const Integer* day, const Real* altitude, const Real* global_horizontal) {
    return climate::clearness_index(*day, *altitude, *global_horizontal);
}
