// Irradiance on the plane of a window from sun, sky and ground, before anything stands in the way.
#pragma once

#include "calculation/sun.h"
#include "calculation/window/input.h"

namespace quorvel::window {

struct SiteConstants {
    double ground_reflectance, beam_factor, diffuse_factor;
};

// Of the site class in a month; the site's own ground where it is given.
SiteConstants site_constants(const Site& site, int month);

// The sun and the sky of an hour.
struct Sky {
    host::Sun sun;
    int day_of_year = 0;
    double direct_normal = 0, diffuse_horizontal = 0;  // W/m²
};

// Of a clear or bright design day, with the factors of the site. Below 4.6° the site's height
// counts as at 4.6°: the design sky itself leaves it out there, with a jump that is not the
// weather's.
Sky design_sky(const Site& site, const SiteConstants& constants, int day_of_year, double hour);

// W/m² on a plane.
struct OnPlane {
    double direct = 0;
    double circumsolar = 0, sky = 0, horizon = 0;  // diffuse; the horizon's part may be below 0
    double ground = 0;
};

// By the model of the site's sky: only that of Perez tells the parts of the diffuse radiation
// apart, and in all others the sky is even.
OnPlane on_plane(const Site& site, double ground_reflectance, const Sky& sky, double orientation,
                 double tilt, double incidence);

}  // namespace quorvel::window
