// Sun positions, sunrise and sunset, against one another and against an independent algorithm.
#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "quorvel/climate.h"

namespace {

constexpr double pi = std::numbers::pi;
constexpr float half_pi = 1.5707964f;

double radians(double degrees) { return degrees * pi / 180.0; }
double degrees(double radians) { return radians * 180.0 / pi; }

struct Vector {
    double east, north, up;
};

Vector direction(double altitude, double azimuth) {
    return {std::cos(altitude) * std::sin(azimuth), std::cos(altitude) * std::cos(azimuth),
            std::sin(altitude)};
}

// Towards the sun of a declination and hour angle.
Vector horizontal(double declination, double H, double latitude) {
    const double across = std::cos(declination) * std::cos(H), along = std::sin(declination);
    return {-std::cos(declination) * std::sin(H),
            along * std::cos(latitude) - across * std::sin(latitude),
            along * std::sin(latitude) + across * std::cos(latitude)};
}

double separation(const Vector& a, const Vector& b) {
    return degrees(2.0 *
                   std::asin(0.5 * std::hypot(a.east - b.east, a.north - b.north, a.up - b.up)));
}

struct Date {
    int year, month, day;
};

Date date_of(int year, int day_of_year) {
    constexpr int lengths[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};
    int month = 1;
    for (; day_of_year > lengths[month - 1]; ++month) day_of_year -= lengths[month - 1];
    return {year, month, day_of_year};
}

struct Geometry {
    float declination = -9.0f, altitude = -9.0f, azimuth = -9.0f, sunrise = -9.0f, sunset = -9.0f;

    Geometry(float latitude, int day, float hour) {
        lib::CLSNGE(latitude, day, hour, declination, altitude, azimuth, sunrise, sunset);
    }
};

struct Almanac {
    float longitude, zone, altitude, azimuth, declination;

    Almanac(int mode, const Date& date, double hour, double latitude, double west = 0.0,
            double zone_west = 0.0)
        : longitude(static_cast<float>(west)), zone(static_cast<float>(zone_west)) {
        lib::CLYALLOP(mode, date.year, date.month, date.day, static_cast<float>(hour),
                      static_cast<float>(latitude), longitude, zone, altitude, azimuth,
                      declination);
    }
};

// The sun after J. Meeus, Astronomical Algorithms, 1998: apparent place by the lower-accuracy
// method of chapter 25 (0.01 degrees), Julian day of chapter 7, sidereal time of chapter 12.
struct Ephemeris {
    double declination, greenwich_hour_angle;

    Ephemeris(const Date& date, double hour_ut) {
        const double jd = julian_day(date) + hour_ut / 24.0;
        const double T = (jd - 2451545.0) / 36525.0;
        const double M = radians(357.52911 + T * (35999.05029 - 0.0001537 * T));
        const double C = (1.914602 - T * (0.004817 + 0.000014 * T)) * std::sin(M) +
                         (0.019993 - 0.000101 * T) * std::sin(2.0 * M) +
                         0.000289 * std::sin(3.0 * M);
        const double node = radians(125.04 - 1934.136 * T);
        const double longitude = radians(280.46646 + T * (36000.76983 + 0.0003032 * T) + C -
                                         0.00569 - 0.00478 * std::sin(node));
        const double obliquity = radians(23.439291 - 0.0130042 * T + 0.00256 * std::cos(node));
        declination = std::asin(std::sin(obliquity) * std::sin(longitude));
        const double ascension =
            std::atan2(std::cos(obliquity) * std::sin(longitude), std::cos(longitude));
        greenwich_hour_angle =
            radians(280.46061837 + 360.98564736629 * (jd - 2451545.0) + 0.000387933 * T * T) -
            ascension;
    }

    static double julian_day(Date date) {
        if (date.month <= 2) date = {date.year - 1, date.month + 12, date.day};
        const int century = date.year / 100;
        const int leap_days = date.day + 2 - century + century / 4;
        return std::floor(365.25 * (date.year + 4716)) + std::floor(30.6001 * (date.month + 1)) +
               leap_days - 1524.5;
    }

    Vector seen_from(double latitude, double west) const {
        return horizontal(declination, greenwich_hour_angle - west, latitude);
    }
};

TEST(SolarGeometry, MarksPolarDayAndNight) {
    const Geometry summer(1.5f, 172, 0.0f), winter(1.5f, 355, 12.0f), south(-1.5f, 172, 12.0f);
    EXPECT_GT(summer.altitude, 0.3f);
    EXPECT_EQ(summer.sunrise, 0.0f);
    EXPECT_EQ(summer.sunset, 25.0f);
    for (const Geometry& dark : {winter, south}) {
        EXPECT_EQ(dark.altitude, 0.0f);
        EXPECT_EQ(dark.sunrise, 25.0f);
        EXPECT_EQ(dark.sunset, 0.0f);
    }
}

TEST(SolarGeometry, ReachesTheZenithDueEastAndWest) {
    // At the latitude of the declination the sun meets the east-west line in the zenith, at noon;
    // by rounding the sine of the altitude exceeds 1 now and then.
    for (int day = 1; day <= 365; ++day) {
        const float latitude = Geometry(0.0f, day, 12.0f).declination;
        for (const float near : {latitude, std::nextafter(latitude, 2.0f)})
            EXPECT_GT(Geometry(near, day, 12.0f).altitude, 1.57f) << day;
        if (day != 17 && day != 200) continue;
        EXPECT_EQ(Geometry(latitude, day, 12.0f).azimuth, 0.5f * 3.141593f);
        EXPECT_EQ(Geometry(latitude, day, 12.000001f).azimuth, 1.5f * 3.141593f);
    }
}

TEST(SolarGeometry, OutsideItsRangesGivesZerosAndNoSunriseOrSunset) {
    for (const Geometry& sun : {Geometry(1.5707966f, 100, 9.0f), Geometry(0.9f, 0, 9.0f),
                                Geometry(0.9f, 366, 9.0f), Geometry(0.9f, 100, 24.5f)}) {
        for (const float zero : {sun.declination, sun.altitude, sun.azimuth}) EXPECT_EQ(zero, 0.0f);
        for (const float untouched : {sun.sunrise, sun.sunset}) EXPECT_EQ(untouched, -9.0f);
    }
    EXPECT_GT(Geometry(half_pi, 172, 9.0f).altitude, 0.4f);
}

// The declination is that of its series, and the rest spherical astronomy, as far as the azimuth is
// resolved from its sine; with the true pi, from which the library's own is 3e-7 away.
TEST(SolarGeometry, FollowsFromItsDeclination) {
    for (int day = 1; day <= 365; ++day)
        for (float latitude = -1.5f; latitude <= 1.5f; latitude += 0.3f) {
            const double d = 0.01721 * day;
            const double delta = std::asin(0.398 * std::sin(d - 1.4096 + 0.03347 * std::sin(d)));
            const auto hour = static_cast<float>((day * 0.37) - std::floor(day * 0.37)) * 24.0f;
            const double H = radians(15.0 * (static_cast<double>(hour) - 12.0)), phi = latitude;
            const Vector sun = horizontal(delta, H, phi);
            const Geometry found(latitude, day, hour);
            EXPECT_NEAR(found.declination, delta, 4e-6) << day;
            if (sun.up > 1e-6) {
                EXPECT_NEAR(std::sin(found.altitude), sun.up, 2e-6);
                EXPECT_LT(separation(direction(found.altitude, found.azimuth), sun), 0.05) << day;
            } else {
                EXPECT_LT(found.altitude, 1e-6f);
            }
            const double p = std::tan(phi) * std::tan(delta);
            if (std::fabs(p) > 0.999) continue;
            EXPECT_NEAR(found.sunrise, degrees(std::acos(p)) / 15.0, 3e-4) << day;
            EXPECT_NEAR(found.sunset, 24.0 - degrees(std::acos(p)) / 15.0, 3e-4);
        }
}

void expect_ephemeris(const Date& date, double hour, double latitude, double west, int zone_west) {
    const Almanac sun(2, date, hour, latitude, west, radians(15.0 * zone_west));
    const Ephemeris expected(date, hour + zone_west);
    const Vector v = expected.seen_from(latitude, west);
    SCOPED_TRACE(testing::Message() << date.year << "-" << date.month << "-" << date.day << " "
                                    << hour << " h, latitude " << latitude);
    EXPECT_NEAR(degrees(sun.declination), degrees(expected.declination), 0.012);
    EXPECT_NEAR(degrees(sun.altitude), degrees(std::asin(v.up)), 0.028);
    EXPECT_LT(separation(direction(sun.altitude, sun.azimuth), v), 0.1);
}

TEST(AlmanacPosition, AgreesWithAnIndependentEphemeris) {
    struct {
        double latitude, east;
        int zone_west;
    } const places[] = {
        {69.65, 18.96, -1},     // Tromsø
        {51.51, -0.13, 0},      // London
        {39.74, -104.99, 7},    // Denver
        {-0.18, -78.47, 5},     // Quito
        {-33.87, 151.21, -10},  // Sydney
    };
    for (const auto& [latitude, east, zone_west] : places)
        for (int year = 1977; year < 2100; year += 7)
            for (int month = 1; month <= 12; ++month)
                for (const int day : {1, 11, 28})
                    for (double hour = 1.25; hour < 23.0; hour += 3.5)
                        expect_ephemeris({year, month, day}, hour, radians(latitude),
                                         radians(-east), zone_west);
    for (const Date& date :
         {Date{1976, 3, 1}, {2000, 2, 29}, {2000, 12, 31}, {2024, 2, 29}, {2024, 3, 1}})
        expect_ephemeris(date, 9.0, 0.9, 0.0, 0);
}

TEST(AlmanacPosition, WritesLongitudeAndZoneInModeOneOnly) {
    for (const int mode : {0, 1, 2}) {
        const Almanac sun(mode, {2020, 5, 5}, 9.0, 0.9, 0.25, 0.5);
        EXPECT_EQ(sun.longitude, mode == 1 ? 0.0f : 0.25f);
        EXPECT_EQ(sun.zone, mode == 1 ? 0.0f : 0.5f);
    }
}

TEST(AlmanacSunHours, BringTheSunToTheHorizon) {
    for (int day = 1; day <= 365; day += 7)
        for (const float latitude : {-0.9f, -0.4f, 0.0f, 0.4f, 0.9f}) {
            const Date date = date_of(2010, day);
            float rise, set;
            lib::CLRISESET(date.year, date.month, date.day, latitude, rise, set);
            EXPECT_NEAR(rise + set, 24.0, 2e-6);
            // The declination moves by up to 0.1 degrees between noon and the horizon.
            for (const float hour : {rise, set})
                EXPECT_NEAR(degrees(Almanac(1, date, hour, latitude).altitude), 0.0, 0.11);
        }
}

}  // namespace
