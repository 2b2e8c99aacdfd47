#include "climate/site.h"
#include "entry/entry.h"

using namespace quorvel;

void CLCONS(const Integer* site_class, const Integer* month, Real* ground_reflectance,
            Real* beam_factor, Real* diffuse_factor, Real* alternative_diffuse_factor) {
    const auto site = climate::site_constants(*site_class, *month);
    *ground_reflectance = site.ground_reflectance;
    *beam_factor = site.beam_factor;
    *diffuse_factor = site.diffuse_factor;
    *alternative_diffuse_factor = site.alternative_diffuse_factor;
}
