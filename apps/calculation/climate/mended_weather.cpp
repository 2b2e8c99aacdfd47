#include "calculation/climate/mended_weather.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "calculation/calendar.h"
#include "calculation/climate/atmosphere.h"
#include "calculation/climate/sky_cover.h"
#include "calculation/climate/solar_clock.h"
#include "calculation/moist_air.h"
#include "calculation/none.h"
#include "calculation/sun.h"

namespace quorvel::climatefile {
namespace {

constexpr std::size_t short_gap = 3, long_gap = 6;  // h

using Field = double Hour::*;

class Mender {
  public:
    explicit Mender(WeatherYear& year) : year_(year) {
        for (WeatherDay& day : year.days)
            for (Hour& hour : day.hours) hours_.push_back(&hour);
    }

    void mend() {
        fill_gaps("dry-bulb temperature", &Hour::dry_bulb, long_gap);
        require("dry-bulb temperature", &Hour::dry_bulb);
        mend_humidity();
        fill_gaps("atmospheric pressure", &Hour::pressure, long_gap);
        replace("atmospheric pressure", &Hour::pressure,
                "missing: that of the standard atmosphere at the height of the place",
                [this](std::size_t) { return standard_pressure(year_.height); });
        mend_irradiance("direct normal irradiation", &Hour::direct_normal);
        mend_irradiance("diffuse horizontal irradiation", &Hour::diffuse_horizontal);
        mend_sky_cover();
    }

  private:
    using Remedy = std::function<double(std::size_t)>;  // NaN where there is none

    static bool is_missing(double value) { return std::isnan(value); }

    // Puts the remedy's values in place of those that are missing, or at fault in another way.
    void replace(const char* quantity, Field field, const char* kind, const Remedy& remedy,
                 const std::function<bool(double)>& is_fault = is_missing) {
        Replacement done{field, quantity, kind, 0, ""};
        for (std::size_t i = 0; i < hours_.size(); ++i) {
            if (!is_fault(hours_[i]->*field)) continue;
            const double value = remedy(i);
            if (std::isnan(value)) continue;
            hours_[i]->*field = value;
            if (done.hours++ == 0) done.first = when(i);
        }
        if (done.hours > 0) year_.replaced.push_back(done);
    }

    // A straight line through gaps of so many hours at most, round the end of the year too.
    void fill_gaps(const char* quantity, Field field, std::size_t longest,
                   const char* kind = "missing: between the hours before and after") {
        const std::size_t count = hours_.size();
        std::vector<double> line(count, host::none);
        const auto value = [&](std::size_t i) { return hours_[i % count]->*field; };
        std::size_t before = 0;
        while (before < count && is_missing(value(before))) ++before;
        if (before == count) return;
        for (std::size_t end = before + count; before < end;) {
            std::size_t after = before + 1;
            while (is_missing(value(after))) ++after;
            const double step =
                (value(after) - value(before)) / static_cast<double>(after - before);
            for (std::size_t i = before + 1; i < after && after - before - 1 <= longest; ++i)
                line[i % count] = value(before) + step * static_cast<double>(i - before);
            before = after;
        }
        replace(quantity, field, kind, [&](std::size_t i) { return line[i]; });
    }

    void require(const char* quantity, Field field) const {
        const auto missing = [field](const Hour* hour) { return is_missing(hour->*field); };
        const auto first = std::ranges::find_if(hours_, missing);
        if (first == hours_.end()) return;
        const auto hours = std::find_if_not(first, hours_.end(), missing) - first;
        throw NotMendable(std::string(quantity) + ": none for " + std::to_string(hours) +
                          " hours from " + when(static_cast<std::size_t>(first - hours_.begin())) +
                          ", too many to go by those before and after");
    }

    void mend_humidity() {
        constexpr const char* quantity = "relative humidity";
        constexpr Field field = &Hour::relative_humidity;
        replace(
            quantity, field, "above 100 %: taken as 100 %", [](std::size_t) { return 100.0; },
            [](double value) { return value > 100; });
        replace(quantity, field, "missing: from the dew point", [this](std::size_t i) {
            const double dew_point = hours_[i]->dew_point;
            if (is_missing(dew_point)) return host::none;
            return host::relative_humidity(hours_[i]->dry_bulb,
                                           lib::saturation_pressure(dew_point));
        });
        fill_gaps(quantity, field, long_gap);
        require(quantity, field);
    }

    void mend_irradiance(const char* quantity, Field field) {
        const auto nothing = [](std::size_t) { return 0.0; };
        replace(quantity, field, "below 0: taken as 0", nothing,
                [](double value) { return value < 0; });
        replace(quantity, field, "missing at night: taken as 0",
                [this](std::size_t i) { return sine_of_altitude(i) <= 0 ? 0 : host::none; });
        fill_gaps(quantity, field, short_gap);
        require(quantity, field);
    }

    void mend_sky_cover() {
        constexpr const char* quantity = "total sky cover";
        constexpr Field field = &Hour::sky_cover;
        fill_gaps(quantity, field, short_gap);
        replace(quantity, field, "missing: the opaque sky cover",
                [this](std::size_t i) { return hours_[i]->opaque_cover; });
        replace(
            quantity, field, "missing: by the clearness of the irradiances",
            [this](std::size_t i) { return cover_by_clearness(*hours_[i], sine_of_altitude(i)); });
        replace(quantity, field, "missing: by the infrared radiation of the sky",
                [this](std::size_t i) { return cover_by_infrared(*hours_[i]); });
        fill_gaps(quantity, field, hours_.size(),
                  "missing: between what is known before and after");
        require(quantity, field);
    }

    // At the middle of the hour, 0 while the sun is down.
    double sine_of_altitude(std::size_t i) const {
        const int day = year_.days[i / 24].day_of_year;
        const double solar = static_cast<double>(i % 24) + 0.5 + clock_.correction(day);
        return std::sin(host::sun_at(year_.latitude, day, std::fmod(solar + 24, 24.0)).altitude);
    }

    std::string when(std::size_t i) const {
        return host::date(year_.days[i / 24].day_of_year) + ", hour " + std::to_string(i % 24 + 1);
    }

    WeatherYear& year_;
    SolarClock clock_{year_.longitude, year_.zone};
    std::vector<Hour*> hours_;
};

}  // namespace

WeatherYear mended(WeatherYear year) {
    Mender(year).mend();
    return year;
}

std::vector<std::string> told(const std::vector<Replacement>& replaced) {
    std::vector<std::string> lines;
    for (const auto& [of, quantity, remedy, hours, first] : replaced)
        lines.push_back(quantity + ": " + std::to_string(hours) +
                        (hours == 1 ? " hour " : " hours ") + remedy +
                        (hours == 1 ? " (" : " (first ") + first + ')');
    return lines;
}

}  // namespace quorvel::climatefile
