#include "climate/band_climate.h"

#include <algorithm>
#include <cmath>
#include <functional>

#include "calculation/angle.h"
#include "calculation/calendar.h"
#include "calculation/sun.h"
#include "quorvel/climate.h"
#include "quorvel/psychro.h"
#include "reading/input.h"

namespace quorvel::climatefile {
namespace {

constexpr int sling = 1;  // the psychrometer in moving air
constexpr int clear = 0;

// What is known of a day: the key that ranks it in each set, and Q1 to Q7.
struct BandDay {
    std::array<double, set_count> rank;
    std::array<double, 7> q;
};

using Days = std::vector<const WeatherDay*>;

struct Irradiation {
    double beam = 0, diffuse = 0;  // Wh/m², direct normal and diffuse horizontal
};

Irradiation design_hour(const WeatherYear& year, int day_of_year, std::size_t hour) {
    const float west = host::radians(-year.longitude), meridian = host::radians(-15 * year.zone);
    const double solar =
        static_cast<double>(hour) + 0.5 + lib::CLTCOR(0.0f, day_of_year, west, meridian);
    const host::Sun sun = host::sun_at(year.latitude, day_of_year, std::fmod(solar + 24, 24.0));
    float direct, diffuse;
    lib::CLSNNR(sun.altitude, sun.azimuth, static_cast<float>(year.height), clear, direct, diffuse);
    return {direct, diffuse};
}

// No sun, no factor; a glimpse of it makes none of note.
double factor(double measured, double design) {
    return design > 0 ? std::min(measured / design, quantities[1].high) : 0;
}

double wet_bulb(const Hour& hour) {
    const auto rh = static_cast<float>(std::min(hour.relative_humidity, 100.0));
    const double wet = lib::PSTWET(static_cast<float>(hour.dry_bulb), rh,
                                   static_cast<float>(hour.pressure), sling);
    return std::min(wet, hour.dry_bulb);
}

// Mean over the hours that tell.
double cloud_free(const WeatherDay& day, const std::string& file) {
    double sum = 0;
    int hours = 0;
    for (const Hour& hour : day.hours) {
        if (std::isnan(hour.sky_cover)) continue;
        sum += 1 - hour.sky_cover / 10;
        ++hours;
    }
    if (hours == 0)
        throw host::InputError(file + ": " + host::date(day.day_of_year) +
                               ": total sky cover: missing all day");
    return sum / hours;
}

BandDay band_day(const WeatherYear& year, const WeatherDay& day, std::size_t a, std::size_t b,
                 const std::string& file) {
    Irradiation measured, design;
    double warmth = 0;
    for (std::size_t hour = 0; hour < 24; ++hour) {
        const Irradiation at = design_hour(year, day.day_of_year, hour);
        design.beam += at.beam;
        design.diffuse += at.diffuse;
        measured.beam += day.hours[hour].direct_normal;
        measured.diffuse += day.hours[hour].diffuse_horizontal;
        warmth += day.hours[hour].dry_bulb;
    }
    const double beam = factor(measured.beam, design.beam);
    return {{warmth, beam},
            {beam, factor(measured.diffuse, design.diffuse), day.hours[a].dry_bulb,
             day.hours[b].dry_bulb, wet_bulb(day.hours[a]), wet_bulb(day.hours[b]),
             cloud_free(day, file)}};
}

// The month's mean temperature at every hour of the day, all days together.
std::array<double, 24> daily_course(const Days& days) {
    std::array<double, 24> course{};
    for (const WeatherDay* day : days)
        for (std::size_t hour = 0; hour < 24; ++hour) course[hour] += day->hours[hour].dry_bulb;
    return course;
}

float rounded(double value, int decimals) {
    const double unit = std::pow(10.0, decimals);
    return static_cast<float>(std::round(value * unit) / unit);
}

void put(Station& station, std::size_t set, std::size_t q, std::size_t band, std::size_t month,
         double value) {
    station.rows[band_row(set, q, band)][month] = rounded(value, quantities[q].decimals);
}

// Ten bands, as nearly equal as whole days allow.
void fill_bands(Station& station, std::size_t set, std::size_t month, std::vector<BandDay> days) {
    std::ranges::stable_sort(days, std::greater(),
                             [set](const BandDay& day) { return day.rank[set]; });
    std::size_t first = 0;
    for (std::size_t band = 0; band < band_count; ++band) {
        const std::size_t end = (2 * (band + 1) * days.size() + band_count) / (2 * band_count);
        const auto count = static_cast<double>(end - first);
        put(station, set, 0, band, month,
            static_cast<double>(end) / static_cast<double>(days.size()));
        for (std::size_t q = 1; q < quantities.size(); ++q) {
            double sum = 0;
            for (std::size_t day = first; day < end; ++day) sum += days[day].q[q - 1];
            put(station, set, q, band, month, sum / count);
        }
        first = end;
    }
}

void fill_month(Station& station, std::size_t month, const WeatherYear& year, const Days& days,
                const std::string& file) {
    const auto course = daily_course(days);
    const auto a = static_cast<std::size_t>(std::ranges::max_element(course) - course.begin());
    const auto b = static_cast<std::size_t>(std::ranges::min_element(course) - course.begin());
    std::vector<BandDay> banded;
    for (const WeatherDay* day : days) banded.push_back(band_day(year, *day, a, b, file));
    for (std::size_t set = 0; set < set_count; ++set) {
        station.rows[time_row(set, 0)][month] = static_cast<float>(a + 1);
        station.rows[time_row(set, 1)][month] = static_cast<float>(b + 1);
        fill_bands(station, set, month, banded);
    }
}

}  // namespace

Station band_climate(const WeatherYear& year, const std::string& file) {
    Station station;
    for (std::size_t month = 0; month < month_count; ++month) {
        Days days;
        for (const WeatherDay& day : year.days)
            if (day.month == static_cast<int>(month) + 1) days.push_back(&day);
        fill_month(station, month, year, days, file);
    }
    return station;
}

}  // namespace quorvel::climatefile
