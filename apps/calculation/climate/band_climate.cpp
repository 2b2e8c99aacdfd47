#include "calculation/climate/band_climate.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>

#include "calculation/climate/solar_clock.h"
#include "calculation/moist_air.h"
#include "calculation/sun.h"
#include "quorvel/climate.h"

namespace quorvel::climatefile {
namespace {

constexpr int clear = 0;

// The day from midnight to midnight of solar time, as near as whole hours allow: where the clock is
// far from the sun, that of one date is not of one day and night.
struct SolarDay {
    int month, day_of_year;
    double begin;  // of its first hour, solar time: about 0 h
    std::array<const Hour*, 24> hours;
};

std::vector<SolarDay> solar_days(const WeatherYear& year) {
    const SolarClock clock(year.longitude, year.zone);
    const int shift = static_cast<int>(std::lround(clock.ahead()));
    const int count = 24 * static_cast<int>(year.days.size());
    const auto hour = [&](int i) {  // before and after the year it is the year again
        const auto at = static_cast<std::size_t>((i + count) % count);
        return &year.days[at / 24].hours[at % 24];
    };
    std::vector<SolarDay> days;
    for (int first = -shift; const WeatherDay& day : year.days) {
        days.push_back({day.month, day.day_of_year, clock.correction(day.day_of_year) - shift, {}});
        for (std::size_t h = 0; h < 24; ++h) days.back().hours[h] = hour(first++);
    }
    return days;
}

using Days = std::vector<const SolarDay*>;

// The hours of the month, counted from 0 in a solar day, whose ends are the times A and B.
struct Times {
    std::size_t a, b;
    double time_a, time_b;  // solar time, h
};

// What is known of a day: the key that ranks it in each set, and Q1 to Q7.
struct BandDay {
    std::array<double, set_count> rank;
    std::array<double, 7> q;
};

lib::DesignIrradiance design_hour(const WeatherYear& year, const SolarDay& day, std::size_t hour) {
    const double middle = std::fmod(day.begin + static_cast<double>(hour) + 24.5, 24.0);
    const host::Sun sun = host::sun_at(year.latitude, day.day_of_year, middle);
    return lib::design_irradiance(sun.altitude, year.height, clear);
}

// No sun, no factor; a glimpse of it makes none of note.
double factor(double measured, double design) {
    return design > 0 ? std::min(measured / design, quantities[1].high) : 0;
}

double wet_bulb(const Hour& hour) {
    const double wet = lib::psychrometer_wet_bulb(hour.dry_bulb, hour.relative_humidity,
                                                  hour.pressure, host::sling);
    return std::min(wet, hour.dry_bulb);
}

BandDay band_day(const WeatherYear& year, const SolarDay& day, const Times& times) {
    lib::DesignIrradiance measured, design;
    double warmth = 0, cover = 0;
    for (std::size_t h = 0; h < 24; ++h) {
        const Hour& hour = *day.hours[h];
        const auto at = design_hour(year, day, h);
        design.direct_normal += at.direct_normal;
        design.diffuse_horizontal += at.diffuse_horizontal;
        measured.direct_normal += hour.direct_normal;
        measured.diffuse_horizontal += hour.diffuse_horizontal;
        warmth += hour.dry_bulb;
        cover += hour.sky_cover / 10;
    }
    const double beam = factor(measured.direct_normal, design.direct_normal);
    const double diffuse = factor(measured.diffuse_horizontal, design.diffuse_horizontal);
    const Hour &a = *day.hours[times.a], &b = *day.hours[times.b];
    return {{warmth, beam},
            {beam, diffuse, a.dry_bulb, b.dry_bulb, wet_bulb(a), wet_bulb(b), 1 - cover / 24}};
}

// Never -0.
double rounded(double value, int decimals) {
    const double unit = std::pow(10.0, decimals);
    return std::round(value * unit) / unit + 0.0;
}

// The ends of the hours of a mean day of the month, solar time.
std::array<double, 24> ends_of_hours(const Days& days) {
    double begin = 0;
    for (const SolarDay* day : days) begin += day->begin;
    begin /= static_cast<double>(days.size());
    std::array<double, 24> ends;
    for (std::size_t h = 0; h < 24; ++h)
        ends[h] = rounded(begin + static_cast<double>(h + 1), times[0].decimals);
    return ends;
}

// The month's temperature at every hour of the day, all its days together.
std::array<double, 24> daily_course(const Days& days) {
    std::array<double, 24> course{};
    for (const SolarDay* day : days)
        for (std::size_t h = 0; h < 24; ++h) course[h] += day->hours[h]->dry_bulb;
    return course;
}

// The two hours of one day between which the air of the mean day warms most. They are some hours
// apart, lest chance makes a step of a course that is all but flat. Nothing where it never warms.
std::optional<Times> warming(const std::array<double, 24>& course,
                             const std::array<double, 24>& ends) {
    constexpr std::size_t shortest = 3;
    std::optional<Times> found;
    double most = 0;
    for (std::size_t a = shortest; a < 24; ++a)
        for (std::size_t b = 0; b + shortest <= a; ++b) {
            const double rise = course[a] - course[b];
            if (!(rise > most && ends[b] >= 0 && ends[a] < 24)) continue;
            most = rise;
            found = {a, b, ends[a], ends[b]};
        }
    return found;
}

Times usual_times(const std::array<double, 24>& ends) { return {14, 4, ends[14], ends[4]}; }

// Ten bands, as nearly equal as whole days allow.
void fill_bands(Station& station, std::size_t set, std::size_t month, std::vector<BandDay> days) {
    std::ranges::stable_sort(days, std::greater(),
                             [set](const BandDay& day) { return day.rank[set]; });
    const auto put = [&](std::size_t q, std::size_t band, double value) {
        station.rows[band_row(set, q, band)][month] =
            static_cast<float>(rounded(value, quantities[q].decimals));
    };
    std::size_t first = 0;
    for (std::size_t band = 0; band < band_count; ++band) {
        const std::size_t end = (2 * (band + 1) * days.size() + band_count) / (2 * band_count);
        const auto count = static_cast<double>(end - first);
        put(0, band, static_cast<double>(end) / static_cast<double>(days.size()));
        for (std::size_t q = 1; q < quantities.size(); ++q) {
            double sum = 0;
            for (std::size_t day = first; day < end; ++day) sum += days[day].q[q - 1];
            put(q, band, sum / count);
        }
        first = end;
    }
}

void fill_month(Station& station, std::size_t month, const WeatherYear& year, const Days& days,
                const Times& times) {
    std::vector<BandDay> banded;
    for (const SolarDay* day : days) banded.push_back(band_day(year, *day, times));
    for (std::size_t set = 0; set < set_count; ++set) {
        station.rows[time_row(set, 0)][month] = static_cast<float>(times.time_a);
        station.rows[time_row(set, 1)][month] = static_cast<float>(times.time_b);
        fill_bands(station, set, month, banded);
    }
}

}  // namespace

BandClimate band_climate(const WeatherYear& year) {
    BandClimate climate;
    const auto days = solar_days(year);
    for (std::size_t month = 0; month < month_count; ++month) {
        Days of_month;
        for (const SolarDay& day : days)
            if (day.month == static_cast<int>(month) + 1) of_month.push_back(&day);
        const auto ends = ends_of_hours(of_month);
        const auto found = warming(daily_course(of_month), ends);
        if (!found) climate.flat_months.push_back(month);
        fill_month(climate.station, month, year, of_month, found.value_or(usual_times(ends)));
    }
    return climate;
}

}  // namespace quorvel::climatefile
