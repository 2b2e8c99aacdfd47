#include "calculation/window/hours.h"

#include <algorithm>
#include <cmath>

#include "calculation/angle.h"
#include "calculation/calendar.h"
#include "calculation/climate/solar_clock.h"
#include "calculation/daily_temperature.h"
#include "quorvel/climate.h"

namespace quorvel::window {
namespace {

using host::degrees;
using host::right_angle;

constexpr double hours_a_day = host::hours_a_day;

// The coldest hour is the full hour next to sunrise; where there is none, half a day from the
// warmest.
host::DailyTemperature outdoor_temperature(const DesignDay& day, double sunrise, double sunset) {
    const bool rises = sunrise < sunset && sunset <= 24;
    const double coldest = rises ? std::round(sunrise) : day.hour_of_max - 12;
    return {day.outdoor_min, day.outdoor_max, day.hour_of_min.value_or(coldest), day.hour_of_max};
}

template <class Work>
auto visit(const AnyGlazing& glazing, Work work) {
    return std::visit(work, glazing);
}

}  // namespace

Model::Model(const Window& window, const Site& site)
    : window_(window),
      site_(site),
      shading_(window),
      bare_(glazing_of(window, false)),
      shaded_(window.blind ? glazing_of(window, true) : bare_) {}

// The circumsolar part comes with the sun and is shaded with it.
void Model::irradiate(WindowHour& at, Irradiance& on_glass, const Exposure& exposure,
                      double ground_reflectance) const {
    const host::Sun& sun = exposure.sky.sun;
    if (!sun.is_up()) return;
    const Bearing bearing = shading_.bearing(sun);
    const OnPlane plane = on_plane(site_, ground_reflectance, exposure.sky, window_.orientation,
                                   window_.tilt, bearing.incidence);
    const Openness& open = shading_.open();
    at.incidence = degrees(bearing.incidence);
    double circumsolar = plane.circumsolar;
    if (bearing.before) {
        at.vertical = degrees(bearing.vertical);
        at.horizontal = degrees(bearing.horizontal);
        at.sunlit = plane.direct + plane.circumsolar > 0 ? shading_.sunlit_fraction(sun) : 1;
        at.direct_unshaded = plane.direct;
        at.direct = plane.direct * at.sunlit;
        circumsolar *= at.sunlit;
    }
    const double from_sky = std::max(0.0, plane.sky * open.sky + plane.horizon * open.horizon);
    at.diffuse = from_sky + circumsolar;
    at.ground = plane.ground * open.ground;
    const double from_sun = bearing.before ? circumsolar : 0;
    on_glass = {at.direct + from_sun, from_sky + circumsolar - from_sun, at.ground,
                std::fmin(bearing.incidence, right_angle), bearing.vertical};
}

void Model::let_in(WindowHour& at, const Irradiance& on_glass, const Exposure& exposure) const {
    at.bare = visit(bare_, [&](const auto& glazing) {
        return glazing.gain(exposure.room, exposure.outdoor, on_glass);
    });
    at.blind_down = window_.blind && at.incident() >= window_.blind->lowered_above;
    const AnyGlazing& now = at.blind_down ? shaded_ : bare_;
    const double incident = at.incident();
    visit(now, [&](const auto& glazing) {
        at.gain = at.blind_down ? glazing.gain(exposure.room, exposure.outdoor, on_glass) : at.bare;
        const Passage all = glazing.all(on_glass);
        at.absorbed = incident * all.absorbed_total();
        if (const auto blind = glazing.blind())
            at.absorbed_by_blind = incident * all.absorbed[*blind];
        if (!(at.direct > 0)) return;
        const Passage direct = glazing.direct(on_glass.incidence, on_glass.profile);
        at.direct_transmittance = direct.transmitted;
        at.direct_absorptance = direct.absorbed_total();
    });
    if (at.blind_down || !window_.blind) return;
    // A raised blind keeps its place in the tables.
    at.absorbed_by_blind = 0;
    const std::size_t place = *visit(shaded_, [](const auto& glazing) { return glazing.blind(); });
    auto& temperatures = at.gain.temperature;
    std::copy_backward(temperatures.begin() + static_cast<std::ptrdiff_t>(place),
                       temperatures.end() - 1, temperatures.end());
    temperatures[place] = none;
}

WindowHour Model::at(const Exposure& exposure, double ground_reflectance) const {
    WindowHour at;
    Irradiance on_glass;
    irradiate(at, on_glass, exposure, ground_reflectance);
    let_in(at, on_glass, exposure);
    return at;
}

Day calculate(const Site& site, const DesignDay& design, std::span<const Window> windows,
              int steps_per_hour) {
    Day day{};
    day.day_of_year = design.day_of_year > 0 ? design.day_of_year : lib::design_day(design.month);
    day.constants = site_constants(site, design.month);
    if (site.utc_offset && !std::isnan(site.longitude))
        day.solar_minus_clock =
            climatefile::SolarClock(site.longitude, *site.utc_offset).correction(day.day_of_year);
    for (int step = 1; step <= host::hours_a_day * steps_per_hour; ++step) {
        const double hour = static_cast<double>(step) / steps_per_hour;
        day.exposure.push_back(
            {design_sky(site, day.constants, day.day_of_year, hour), hour, design.room});
    }
    const host::Sun& sun = day.exposure.front().sky.sun;
    day.declination = degrees(sun.declination);
    day.sunrise = sun.sunrise;
    day.sunset = sun.sunset;
    const auto outdoor = outdoor_temperature(design, day.sunrise, day.sunset);
    for (Exposure& exposure : day.exposure) exposure.outdoor = outdoor(exposure.hour);

    for (const Window& window : windows) {
        const Model model(window, site);
        WindowDay result{&window, {}, {}, {}, model.shading().open(), {}};
        visit(model.shaded(), [&](const auto& glazing) {
            result.layers = glazing.layers();
            result.blind = glazing.blind();
            result.method = glazing.method();
        });
        for (const Exposure& exposure : day.exposure)
            result.at.push_back(model.at(exposure, day.constants.ground_reflectance));
        day.windows.push_back(std::move(result));
    }
    return day;
}

void Sums::add(const WindowHour& at, double area, double hours) {
    const double kilo = hours / 1000;
    incident += at.incident() * kilo;
    transmitted += area * at.transmitted() * kilo;
    solar_gain += area * at.solar_gain() * kilo;
    solar_gain_without_blind += area * at.solar_gain_without_blind() * kilo;
    (at.conduction() > 0 ? conduction_in : conduction_out) +=
        area * std::fabs(at.conduction()) * kilo;
    hours_blind_down += at.blind_down ? hours : 0;
}

namespace {

// The sun in the middle of the part of an hour in which it is up; hours of solar time. A day that
// begins before midnight by the sun is the same day to it.
host::Sun sun_within(double latitude, int day_of_year, double begin, double end) {
    const auto of_day = [](double hour) {
        return hour - hours_a_day * std::floor(hour / hours_a_day);
    };
    const double middle = of_day((begin + end) / 2);
    host::Sun sun = host::sun_at(latitude, day_of_year, middle);
    const bool rises = sun.sunrise < sun.sunset && sun.sunset <= hours_a_day;
    if (!rises) return sun;
    const double from = std::max(middle - 0.5, sun.sunrise),
                 to = std::min(middle + 0.5, sun.sunset);
    return from < to ? host::sun_at(latitude, day_of_year, (from + to) / 2) : sun;
}

Exposure exposure_of(const Weather& weather, const WeatherHour& hour) {
    const climatefile::SolarClock clock(weather.longitude, weather.zone);
    const double end = hour.hour + clock.correction(hour.day_of_year);
    Exposure exposure;
    exposure.sky = {sun_within(weather.latitude, hour.day_of_year, end - 1, end), hour.day_of_year,
                    hour.direct_normal, hour.diffuse_horizontal};
    exposure.hour = hour.hour;
    exposure.room = weather.room;
    exposure.outdoor = hour.outdoor;
    return exposure;
}

// A window's year, filled hour by hour.
class Account {
  public:
    Account(const Window& window, const Site& site)
        : model_(window, site), window_(window), year_{} {
        year_.window = &window;
        year_.open = model_.shading().open();
        visit(model_.shaded(), [&](const auto& glazing) {
            year_.method = glazing.method();
            room_side_ = glazing.layers();
            if (glazing.blind() && *glazing.blind() + 1 == room_side_) --room_side_;
        });
    }

    // So many hours like this one.
    void add(const Exposure& exposure, double ground_reflectance, int month, double hours) {
        const WindowHour at = model_.at(exposure, ground_reflectance);
        year_.months[static_cast<std::size_t>(month - 1)].add(at, window_.area, hours);
        year_.year.add(at, window_.area, hours);
        const double gain = window_.area * at.solar_gain();
        if (gain > year_.peak.power)
            year_.peak = {gain, month, exposure.sky.day_of_year, static_cast<int>(exposure.hour)};
        if (room_side_ > 0) {
            const double pane = at.gain.temperature[room_side_ - 1];
            year_.warmest = std::fmax(year_.warmest, pane);
            year_.coldest = std::fmin(year_.coldest, pane);
        }
    }

    WindowYear& year() { return year_; }

  private:
    Model model_;
    const Window& window_;
    WindowYear year_;
    std::size_t room_side_ = 0;
};

}  // namespace

Year calculate(const Site& site, const Weather& weather, std::span<const Window> windows) {
    Year year;
    std::array<double, 12> ground{};
    for (int month = 1; month <= 12; ++month)
        ground[static_cast<std::size_t>(month - 1)] =
            site_constants(site, month).ground_reflectance;
    std::vector<Exposure> exposures;
    for (const WeatherHour& hour : weather.hours) exposures.push_back(exposure_of(weather, hour));
    for (const Window& window : windows) {
        Account account(window, site);
        for (std::size_t i = 0; i < exposures.size(); ++i) {
            const int month = weather.hours[i].month;
            account.add(exposures[i], ground[static_cast<std::size_t>(month - 1)], month, 1);
        }
        year.windows.push_back(std::move(account.year()));
    }
    return year;
}

Year calculate(const Site& site, std::span<const DesignDay> days, std::span<const Window> windows) {
    Year year;
    for (const Window& window : windows) {
        Account account(window, site);
        for (const DesignDay& design : days) {
            const Day day = calculate(site, design, {});
            for (const Exposure& exposure : day.exposure)
                account.add(exposure, day.constants.ground_reflectance, design.month,
                            host::days_of_month[static_cast<std::size_t>(design.month - 1)]);
        }
        year.windows.push_back(std::move(account.year()));
    }
    return year;
}

}  // namespace quorvel::window
