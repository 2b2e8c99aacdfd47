#include "designday/design_day.h"

#include <algorithm>
#include <cmath>

#include "calculation/angle.h"
#include "calculation/daily_temperature.h"
#include "quorvel/climate.h"
#include "quorvel/glazing.h"

namespace quorvel::designday {
namespace {

using host::degrees;
using host::radians;

constexpr float quarter_turn = 1.5707964f;
constexpr float solar_constant = 1367;  // W/m²

// A class without a diffuse factor has an alternative one in its place.
SiteConstants site_constants(const Job& job) {
    float reflectance, beam, diffuse, alternative;
    lib::CLCONS(job.site.site_class, job.day.month, reflectance, beam, diffuse, alternative);
    return {reflectance, beam, diffuse != 0 ? diffuse : alternative};
}

// The coldest hour is the full hour next to sunrise; where there is none, half a day from the
// warmest.
host::DailyTemperature outdoor_temperature(const Day& day, double sunrise, double sunset) {
    const bool rises = sunrise < sunset && sunset <= 24;
    const double coldest = rises ? std::round(sunrise) : day.hour_of_max - 12;
    return {day.outdoor_min, day.outdoor_max, day.hour_of_min.value_or(coldest), day.hour_of_max};
}

// The sun and the sky in the library's units, before the factors of the site.
struct Sky : host::Sun {
    float direct_normal, diffuse_horizontal;
};

Sky sky_at(const Job& job, double hour, DesignDay& day) {
    const host::Sun sun = host::sun_at(job.site.latitude, day.day_of_year, hour);
    day.declination = degrees(sun.declination);
    day.sunrise = sun.sunrise;
    day.sunset = sun.sunset;

    Sky sky{sun, 0, 0};
    lib::CLSNNR(sun.altitude, sun.azimuth, static_cast<float>(job.site.height), job.site.sky,
                sky.direct_normal, sky.diffuse_horizontal);
    return sky;
}

SunHour sun_hour(double hour, const Sky& sky, const SiteConstants& site) {
    SunHour sun;
    sun.hour = hour;
    sun.direct_normal = sky.direct_normal * site.beam_factor;
    sun.diffuse_horizontal = sky.diffuse_horizontal * site.diffuse_factor;
    if (sky.is_up()) {
        sun.altitude = degrees(sky.altitude);
        sun.azimuth = degrees(sky.azimuth);
    }
    return sun;
}

// Diffuse irradiance of the sky on the plane by a model other than the design sky's own. A plane
// turned from the sun can get less than nothing by the Perez model.
float sky_diffuse(const Job& job, int day_of_year, const Window& window, const Sky& sky,
                  const SunHour& sun, float incidence) {
    const auto diffuse = static_cast<float>(sun.diffuse_horizontal);
    if (!(diffuse > 0)) return 0;
    const double sine = std::sin(static_cast<double>(sky.altitude));
    const auto beam = static_cast<float>(sun.direct_normal * sine);
    const float tilt = radians(window.tilt);
    if (job.site.sky_model == SkyModel::perez) {
        float on_plane;
        lib::CLPERSKY(sky.altitude, tilt, beam, diffuse, on_plane, incidence,
                      solar_constant * lib::CLETAJ(day_of_year));
        return std::fmax(on_plane, 0.0f);
    }
    const int model = static_cast<int>(job.site.sky_model) - static_cast<int>(SkyModel::muneer);
    return lib::CLDIFSLO(day_of_year, sky.altitude, sky.azimuth, radians(window.orientation), tilt,
                         beam, diffuse, model);
}

// Irradiance on the plane of the window and the angles at which the direct sun meets it.
WindowHour irradiated(const Job& job, const DesignDay& day, const Window& window, const Sky& sky,
                      const SunHour& sun) {
    WindowHour at;
    if (!sky.is_up()) return at;
    const SiteConstants& site = day.constants;
    const float orientation = radians(window.orientation), tilt = radians(window.tilt);
    float direct, diffuse, ground;
    lib::CLSORD(sky.altitude, sky.azimuth, orientation, tilt, sky.direct_normal,
                sky.diffuse_horizontal, static_cast<float>(site.ground_reflectance),
                static_cast<float>(site.beam_factor), static_cast<float>(site.diffuse_factor),
                direct, diffuse, ground);
    at.direct = direct;
    at.diffuse = diffuse;
    at.ground = ground;

    float incidence, profile, azimuth_from_normal;
    lib::CLSNSR(sky.altitude, sky.azimuth, orientation, tilt, incidence, profile,
                azimuth_from_normal);
    at.incidence = degrees(incidence);
    at.profile = degrees(profile);
    if (job.site.sky_model != SkyModel::design)
        at.diffuse = sky_diffuse(job, day.day_of_year, window, sky, sun, incidence);
    return at;
}

// Adds what the glazing does with the radiation; gives what each pane absorbs [W/m²].
PerPane glazed(WindowHour& at, const Glazing& glazing) {
    Fate direct;
    if (at.direct > 0) {
        direct =
            glazing.direct(std::fmin(radians(at.incidence), quarter_turn), radians(at.profile));
        at.direct_transmittance = direct.transmitted;
        at.direct_absorptance = direct.absorbed_total();
    }
    const Fate &sky = glazing.from_sky(), &ground = glazing.from_ground();
    const auto sum = [&](double of_direct, double of_sky, double of_ground) {
        return at.direct * of_direct + at.diffuse * of_sky + at.ground * of_ground;
    };
    at.transmitted = sum(direct.transmitted, sky.transmitted, ground.transmitted);
    at.absorbed = sum(direct.absorbed_total(), sky.absorbed_total(), ground.absorbed_total());
    if (glazing.has_blind())
        at.absorbed_by_blind =
            sum(direct.absorbed_by_blind, sky.absorbed_by_blind, ground.absorbed_by_blind);

    PerPane absorbed{};
    for (std::size_t k = 0; k < absorbed.size(); ++k)
        absorbed[k] = sum(direct.absorbed[k], sky.absorbed[k], ground.absorbed[k]);
    return absorbed;
}

// The library counts panes from the room. Of four panes it takes and gives five values.
PerPane pane_temperatures(double room, double outdoor, int panes, const PerPane& absorbed) {
    std::array<float, most_panes> s{}, t{};
    std::transform(absorbed.rend() - panes, absorbed.rend(), s.begin(),
                   [](double value) { return static_cast<float>(value); });
    lib::WNTEMP(static_cast<float>(room), static_cast<float>(outdoor), panes, s[0], s[1], s[2],
                s[3], s[4], t[0], t[1], t[2], t[3], t[4]);
    return {t[0], t[1], t[2], t[3], t[4]};
}

void add_clock(const Job& job, DesignDay& day) {
    if (!job.site.utc_offset) return;
    // The correction takes longitudes positive west; the zone enters as the clock's own offset.
    day.solar_minus_clock = lib::CLTCOR(static_cast<float>(*job.site.utc_offset), day.day_of_year,
                                        radians(-job.site.longitude), 0.0f);
}

Peak peak_of(std::span<const double> hourly) {
    const auto largest = std::ranges::max_element(hourly);
    if (!(*largest > 0)) return {0, 0};
    return {static_cast<int>(largest - hourly.begin()) + 1, *largest};
}

}  // namespace

DesignDay calculate(const Job& job, int steps_per_hour) {
    DesignDay day{};
    day.day_of_year = lib::ICLDAY(job.day.month);
    day.constants = site_constants(job);
    add_clock(job, day);

    std::vector<Sky> skies;
    for (int step = 1; step <= host::hours_a_day * steps_per_hour; ++step) {
        const double hour = static_cast<double>(step) / steps_per_hour;
        skies.push_back(sky_at(job, hour, day));
        day.sun.push_back(sun_hour(hour, skies.back(), day.constants));
    }
    const auto outdoor = outdoor_temperature(job.day, day.sunrise, day.sunset);
    for (SunHour& sun : day.sun) sun.outdoor = outdoor(sun.hour);

    for (const Window& window : job.windows) {
        const Glazing glazing(window);
        WindowDay result{&window, glazing.panes(), {}};
        for (std::size_t i = 0; i < skies.size(); ++i) {
            WindowHour at = irradiated(job, day, window, skies[i], day.sun[i]);
            const PerPane absorbed = glazed(at, glazing);
            at.temperature =
                pane_temperatures(job.day.room, day.sun[i].outdoor, result.panes, absorbed);
            result.at.push_back(at);
        }
        day.windows.push_back(std::move(result));
    }
    return day;
}

Peak peak_of(const WindowDay& window) {
    std::vector<double> power;
    for (std::size_t i = 0; i < window.at.size(); ++i) power.push_back(window.transmitted_power(i));
    return peak_of(power);
}

Peak peak_of_all(const DesignDay& day) {
    std::vector<double> power(day.sun.size());
    for (const WindowDay& window : day.windows)
        for (std::size_t i = 0; i < power.size(); ++i) power[i] += window.transmitted_power(i);
    return peak_of(power);
}

}  // namespace quorvel::designday
