#include "shade/shading.h"

#include <algorithm>

#include "calculation/angle.h"
#include "quorvel/climate.h"
#include "shade/sunlit.h"

namespace quorvel::shade {
namespace {

using host::degrees;
using host::radians;

constexpr int clear_sky = 0;

// Cosine of the angle of incidence above which the sun is taken to shine on the window: 89.9°.
// Nearer to its plane, shadows run to infinity and what falls on the glass is next to nothing.
constexpr float grazing = 0.002f;

bool is_before(const Vector& towards_sun) { return towards_sun[2] > grazing; }

}  // namespace

Shading::Shading(const Job& job)
    : job_(job),
      day_of_year_(job.date.month > 0 ? lib::ICLDAY(job.date.month) : job.date.day_of_year),
      scene_(job) {}

Day Shading::day(int steps_per_hour) const {
    const host::Sun noon = host::sun_at(job_.site.latitude, day_of_year_, 12);
    Day day{day_of_year_, degrees(noon.declination), noon.sunrise, noon.sunset, {}};
    for (int step = 1; step <= host::hours_a_day * steps_per_hour; ++step)
        day.at.push_back(at(static_cast<double>(step) / steps_per_hour));
    return day;
}

Hour Shading::at(double time) const {
    const Window& window = job_.window;
    const host::Sun sun = host::sun_at(job_.site.latitude, day_of_year_, time);
    Hour hour{time};
    if (!sun.is_up()) return hour;
    float incidence, vertical, horizontal;
    lib::CLSNSR(sun.altitude, sun.azimuth, radians(window.orientation), radians(window.tilt),
                incidence, vertical, horizontal);
    hour.altitude = degrees(sun.altitude);
    hour.azimuth = degrees(sun.azimuth);
    hour.incidence = degrees(incidence);

    const Vector towards_sun = scene_.towards_sun(sun.altitude, sun.azimuth);
    if (!is_before(towards_sun)) return hour;
    hour.vertical = degrees(vertical);
    hour.horizontal = degrees(horizontal);
    hour.sunlit = sunlit_fraction(towards_sun);

    float normal, diffuse;
    lib::CLSNNR(sun.altitude, sun.azimuth, static_cast<float>(job_.site.height), clear_sky, normal,
                diffuse);
    hour.direct_unshaded = static_cast<double>(normal * towards_sun[2]);
    hour.direct = hour.sunlit * hour.direct_unshaded;
    return hour;
}

std::vector<Polygon> Shading::shadows(double hour, const Rectangle& area) const {
    const host::Sun sun = host::sun_at(job_.site.latitude, day_of_year_, hour);
    const Vector towards_sun = scene_.towards_sun(sun.altitude, sun.azimuth);
    if (!sun.is_up() || !is_before(towards_sun)) return {};
    return Beam(towards_sun, area).shadows_of(scene_.faces());
}

double Shading::sunlit_fraction(const Vector& towards_sun) const {
    const Polygon window = glass().polygon();
    const auto shadows = Beam(towards_sun, glass()).shadows_of(scene_.faces());
    return std::clamp(area(without(shadows, window)) / area(window), 0.0, 1.0);
}

}  // namespace quorvel::shade
