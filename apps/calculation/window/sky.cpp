#include "calculation/window/sky.h"

#include <algorithm>
#include <cmath>

#include "calculation/angle.h"
#include "quorvel/climate.h"

namespace quorvel::window {
namespace {

using host::radians;
using host::right_angle;

constexpr double solar_constant = 1367;  // W/m²
// rad; with a lower sun the design sky leaves out the height of the site.
constexpr double lowest_with_height = 0.0803;

double beam_horizontal(const Sky& sky) { return sky.direct_normal * std::sin(sky.sun.altitude); }

// The three parts of the Perez sky. Each is read off a plane that receives no other, or one known
// already: a level one without the circumsolar part, a vertical one without it, and the plane
// itself.
void add_perez(OnPlane& plane, const Sky& sky, double tilt, double incidence) {
    const double extraterrestrial = solar_constant * lib::eccentricity_factor(sky.day_of_year);
    const auto received = [&](double tilt_of_plane, double incidence_on_plane) {
        return lib::perez_diffuse(sky.sun.altitude, tilt_of_plane, beam_horizontal(sky),
                                  sky.diffuse_horizontal, incidence_on_plane, extraterrestrial);
    };
    const double even = received(0, right_angle);  // the share that is left to the even sky
    const double brightening = received(right_angle, right_angle) - even / 2;
    plane.sky = even * (1 + std::cos(tilt)) / 2;
    plane.horizon = brightening * std::sin(tilt);
    plane.circumsolar = received(tilt, incidence) - received(tilt, right_angle);
}

}  // namespace

SiteConstants site_constants(const Site& site, int month) {
    const auto of_class = lib::site_constants(site.site_class, month);
    const double diffuse = of_class.diffuse_factor,
                 alternative = of_class.alternative_diffuse_factor;
    return {site.ground_reflectance.value_or(of_class.ground_reflectance), of_class.beam_factor,
            diffuse != 0 ? diffuse : alternative};
}

Sky design_sky(const Site& site, const SiteConstants& constants, int day_of_year, double hour) {
    Sky sky{host::sun_at(site.latitude, day_of_year, hour), day_of_year};
    const auto irradiance = lib::design_irradiance(sky.sun.altitude, 0, site.sky);
    const double higher =
        lib::height_factor(site.height, std::max(sky.sun.altitude, lowest_with_height));
    sky.direct_normal = irradiance.direct_normal * higher * constants.beam_factor;
    sky.diffuse_horizontal = irradiance.diffuse_horizontal * higher * constants.diffuse_factor;
    return sky;
}

OnPlane on_plane(const Site& site, double ground_reflectance, const Sky& sky, double orientation,
                 double tilt, double incidence) {
    OnPlane plane;
    if (!sky.sun.is_up()) return plane;
    const auto surface = lib::surface_irradiance(
        sky.sun.altitude, sky.sun.azimuth, radians(orientation), radians(tilt), sky.direct_normal,
        sky.diffuse_horizontal, ground_reflectance, 1, 1);
    plane.direct = std::max(0.0, surface.surface_beam);
    plane.sky = surface.surface_diffuse;
    plane.ground = surface.ground_reflected;
    if (site.sky_model == SkyModel::design || !(sky.diffuse_horizontal > 0)) return plane;
    if (site.sky_model == SkyModel::perez) {
        add_perez(plane, sky, radians(tilt), incidence);
        return plane;
    }
    const int model = static_cast<int>(site.sky_model) - static_cast<int>(SkyModel::muneer);
    plane.sky =
        lib::slope_diffuse(sky.day_of_year, sky.sun.altitude, sky.sun.azimuth, radians(orientation),
                           radians(tilt), beam_horizontal(sky), sky.diffuse_horizontal, model);
    return plane;
}

}  // namespace quorvel::window
