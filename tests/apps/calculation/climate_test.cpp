// Days and months of a climate data file's station.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "calculation/climate/atmosphere.h"
#include "calculation/climate/monthly_means.h"
#include "calculation/climate/station_day.h"
#include "quorvel/climate.h"
#include "quorvel/psychro.h"

namespace quorvel::climatefile {
namespace {

constexpr MonthRecord july{15, 5, 30, 18};

MonthRecord with(double MonthRecord::*value, double changed) {
    MonthRecord record = july;
    record.*value = changed;
    return record;
}

TEST(StationDay, RunsBetweenTheTimesOfTheStation) {
    const auto day = station_day(july).value();
    EXPECT_FALSE(day.is_turned || day.is_assumed);
    EXPECT_DOUBLE_EQ(day.air(15), 30);
    EXPECT_DOUBLE_EQ(day.air(5), 18);
}

// Against the library's own day, for any order of the hours.
TEST(StationDay, IsPeriodicWhateverTheOrderOfTheHours) {
    for (const double b : {0.0, 5.0, 14.9, 15.1, 22.5, 24.0}) {
        const auto day = station_day(with(&MonthRecord::hour_b, b)).value();
        EXPECT_FALSE(day.is_assumed) << b;
        for (double hour = 0; hour < 24; hour += 0.25)
            EXPECT_NEAR(day.air(hour), lib::daily_temperature(hour, 30, 18, 15, std::fmod(b, 24)),
                        2e-4)
                << b << ' ' << hour;
    }
}

TEST(StationDay, IsTurnedWhereItIsWarmerAtHourB) {
    const auto day = station_day(with(&MonthRecord::air_a, 10)).value();
    EXPECT_TRUE(day.is_turned);
    EXPECT_DOUBLE_EQ(day.air(15), 10);
    EXPECT_DOUBLE_EQ(day.air(5), 18);
    EXPECT_EQ(day.air.maximum, 18);
}

TEST(StationDay, AssumesAnHourWhereBothAreTheSame) {
    for (const double air_a : {30.0, 10.0}) {
        MonthRecord record = with(&MonthRecord::hour_b, 15);
        record.air_a = air_a;
        const auto day = station_day(record).value();
        EXPECT_TRUE(day.is_assumed);
        EXPECT_DOUBLE_EQ(day.air(15), std::max(air_a, 18.0));
        EXPECT_DOUBLE_EQ(day.air(5), std::min(air_a, 18.0));
    }
}

TEST(StationDay, NeedsTemperaturesAndHours) {
    for (const double value : {host::none, 1e30, -91.0, 61.0})
        EXPECT_FALSE(station_day(with(&MonthRecord::air_a, value))) << value;
    for (const double value : {host::none, -0.1, 24.1})
        EXPECT_FALSE(station_day(with(&MonthRecord::hour_b, value))) << value;
}

// Ten bands of equal frequency, of temperatures that rise by a degree from band to band.
TEST(MonthlyMeans, WeighTheBandsByTheirFrequency) {
    Station station;
    const double pressure = standard_pressure(500);
    double vapour = 0;
    for (std::size_t band = 0; band < band_count; ++band)
        for (std::size_t month = 0; month < month_count; ++month) {
            const auto put = [&](std::size_t q, double value) {
                station.rows[band_row(1, q, band)][month] = static_cast<float>(value);
            };
            const auto warmer = static_cast<double>(band);
            put(0, (warmer + 1) / 10);
            put(3, 20 + warmer);
            put(4, 10 + warmer);
            put(5, lib::psychrometer_wet_bulb(20 + warmer, 50, pressure, 1));
            put(6, lib::psychrometer_wet_bulb(10 + warmer, 80, pressure, 1));
            if (month == 0)
                vapour += (lib::vapour_pressure(20 + warmer, 50) +
                           lib::vapour_pressure(10 + warmer, 80)) /
                          20;
        }
    const MonthlyMeans means = monthly_means(station, 1, pressure);
    for (std::size_t month = 0; month < month_count; ++month) {
        EXPECT_NEAR(means.temperature[month], 19.5, 1e-4);
        EXPECT_NEAR(means.vapour_pressure[month], vapour, 0.005 * vapour);
    }
}

// U.S. Standard Atmosphere, 1976.
TEST(Atmosphere, HasThePressureOfPublishedTables) {
    EXPECT_NEAR(standard_pressure(0), 101325, 1);
    EXPECT_NEAR(standard_pressure(1000), 89876, 15);
    EXPECT_NEAR(standard_pressure(4000), 61660, 30);
}

}  // namespace
}  // namespace quorvel::climatefile
