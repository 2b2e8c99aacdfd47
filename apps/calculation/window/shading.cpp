#include "calculation/window/shading.h"

#include <algorithm>

#include "calculation/angle.h"
#include "calculation/window/sunlit.h"
#include "quorvel/climate.h"

namespace quorvel::window {
namespace {

// Cosine of the angle of incidence above which the sun is taken to shine on the window: 89.9°.
// Nearer to its plane, shadows run to infinity and what falls on the glass is next to nothing.
constexpr float grazing = 0.002f;

bool is_before(const Vector& towards_sun) { return towards_sun[2] > grazing; }

}  // namespace

Shading::Shading(const Window& window)
    : scene_(window),
      orientation_(host::radians(window.orientation)),
      tilt_(host::radians(window.tilt)),
      width_(window.width),
      height_(window.height),
      open_(openness(scene_, width_, height_)) {}

Bearing Shading::bearing(const host::Sun& sun) const {
    const auto angles = lib::surface_angles(sun.altitude, sun.azimuth, orientation_, tilt_);
    return {angles.incidence, angles.vertical_shadow_angle, angles.horizontal_shadow_angle,
            sun.is_up() && is_before(scene_.towards_sun(sun))};
}

double Shading::sunlit_fraction(const host::Sun& sun) const {
    if (scene_.faces().empty()) return 1;
    const Polygon window = glass().polygon();
    const Beam beam(scene_.towards_sun(sun), glass());
    const auto shadows = beam.shadows_of(scene_.faces());
    return std::clamp(area(without(shadows, window)) / area(window), 0.0, 1.0);
}

std::vector<Polygon> Shading::shadows(const host::Sun& sun, const Rectangle& area) const {
    const Vector towards_sun = scene_.towards_sun(sun);
    if (!sun.is_up() || !is_before(towards_sun)) return {};
    return Beam(towards_sun, area).shadows_of(scene_.faces());
}

}  // namespace quorvel::window
