// Design days, site constants, equation of time, and the band climate summary.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "quorvel/climate.h"

namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

int day_of_year(int month, int day) {
    constexpr int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return before[month - 1] + day;
}

TEST(DesignDay, LiesAboutTheDayThatItStandsFor) {
    int sums[4] = {};
    for (int month = 1; month <= 12; ++month) {
        // The first day of the month is a set of its own, the second design day is one date.
        const int day = lib::ICLDAY(month), second = lib::ICLDA2(month);
        const int of_month = lib::ICLDAYEX(month, 1), second_of_month = lib::ICLDA2EX(month, 1);
        EXPECT_NEAR(day, day_of_year(month, 22), 1) << month;
        EXPECT_NEAR(of_month, 22, 2) << month;
        EXPECT_EQ(second, day_of_year(month, second_of_month)) << month;
        EXPECT_NEAR(second_of_month, month < 6 ? 28 : month == 6 ? 21 : 4, month < 6 ? 2 : 0);
        sums[0] += day, sums[1] += day * month, sums[2] += of_month, sums[3] += of_month * month;
    }
    // Of the tables as they were given, since within a day or two there is nothing to hold them to.
    constexpr int given[] = {2258, 19036, 260, 1714};
    for (int k = 0; k < 4; ++k) EXPECT_EQ(sums[k], given[k]) << k;
}

TEST(DesignDay, IsTheSameFromEveryRoutineAndZeroForNoMonth) {
    for (const int month : {0, 1, 6, 12, 13}) {
        int day = -1;
        lib::CLDAY(month, day);
        EXPECT_EQ(day, lib::ICLDAY(month));
        EXPECT_EQ(day == 0, month < 1 || month > 12) << month;
        lib::CLDAYEX(month, day, 2);
        EXPECT_EQ(day, lib::ICLDAY(month));
        EXPECT_EQ(lib::ICLDAYEX(month, 0), day);
        EXPECT_EQ(lib::ICLDA2EX(month, 0), lib::ICLDA2(month));
        lib::CLDAYEX(month, day, 1);
        EXPECT_EQ(day, lib::ICLDAYEX(month, 1));
    }
}

struct Site {
    float reflectance = -1.0f, beam = -1.0f, diffuse = -1.0f, alternative = -1.0f;

    Site(int site_class, int month) {
        lib::CLCONS(site_class, month, reflectance, beam, diffuse, alternative);
    }
    bool operator==(const Site&) const = default;
};

TEST(SiteConstants, HaveOneDiffuseFactorAndVaryInTheFirstClassOnly) {
    const Site none(0, 1);
    for (const Site& site : {none, Site(7, 1), Site(1, 0), Site(6, 13)}) EXPECT_EQ(site, none);
    EXPECT_EQ(none.reflectance + none.beam + none.diffuse + none.alternative, 0.0f);
    // Beam and diffuse factors of a year.
    const double sums[6][2] = {{9.87, 12.36}, {6.96, 11.04}, {6, 13.2},
                               {13.2, 10.8},  {12, 12},      {12, 12}};
    for (int site_class = 1; site_class <= 6; ++site_class) {
        bool varies = false;
        double beam = 0.0, diffuse = 0.0;
        for (int month = 1; month <= 12; ++month) {
            const Site site(site_class, month);
            EXPECT_EQ(site.reflectance, site_class == 4 ? 0.5f : 0.2f);
            EXPECT_EQ(site.diffuse == 0.0f, site_class == 4 || site_class == 6);
            EXPECT_NE(site.diffuse == 0.0f, site.alternative == 0.0f) << site_class;
            beam += site.beam, diffuse += site.diffuse + site.alternative;
            varies |= !(site == Site(site_class, 1));
        }
        EXPECT_EQ(varies, site_class == 1) << site_class;
        EXPECT_NEAR(beam, sums[site_class - 1][0], 1e-5) << site_class;
        EXPECT_NEAR(diffuse, sums[site_class - 1][1], 1e-5) << site_class;
    }
    EXPECT_EQ(Site(1, 12).beam, 0.97f);
    EXPECT_EQ(Site(1, 6).diffuse, 0.66f);
}

TEST(SolarTime, FallsWithClockShiftAndWesterlyLongitude) {
    const float sundial = lib::CLTCOR(0.0f, 80, 0.0f, 0.0f);
    EXPECT_NEAR(lib::CLTCOR(1.0f, 80, 0.0f, 0.0f), sundial - 1.0f, 1e-6f);
    EXPECT_NEAR(lib::CLTCOR(0.0f, 80, 0.2618f, 0.0f), sundial - 1.0f, 1e-6f);
    EXPECT_NEAR(lib::CLTCOR(0.0f, 80, 1.0f, 1.2618f), sundial + 1.0f, 1e-6f);
}

struct Band {
    float percentage, q[8], time_a, time_b;

    Band(int band, int month, int set, float given = -7.0f) : percentage(given) {
        lib::CLBAND(band, month, set, percentage, q[0], q[1], q[2], q[3], q[4], q[5], time_a,
                    time_b, q[6], q[7]);
    }
    bool operator==(const Band&) const = default;
};

Band at_percentage(float percentage, int month, int set) { return Band(0, month, set, percentage); }

float cell(int row, int month) {
    std::array<float, 12> values;
    lib::CLBAN3(row, values);
    return values[static_cast<std::size_t>(month - 1)];
}

TEST(BandClimate, IsTheRowsOfTheTable) {
    for (const int set : {1, 2})
        for (int month = 1; month <= 12; ++month)
            for (int band = 1; band <= 10; ++band) {
                const int before = 92 * (set - 1);
                const Band climate(band, month, set);
                EXPECT_EQ(climate.time_a, cell(before + 1, month));
                EXPECT_EQ(climate.time_b, cell(before + 2, month));
                EXPECT_EQ(climate.percentage, 100.0f * cell(before + 2 + band, month));
                for (int q = 1; q <= 8; ++q)
                    EXPECT_EQ(climate.q[q - 1], cell(before + 2 + 10 * q + band, month));
            }
    EXPECT_EQ(Band(3, 1, 1).percentage, 31.0f);
}

TEST(BandClimate, SearchAndRowInterpolationTogetherGiveTheSame) {
    for (const int set : {1, 2}) {
        const int before = 92 * (set - 1);
        std::array<float, 120> frequencies;
        for (int band = 1; band <= 10; ++band)
            lib::CLBAN3(before + 2 + band, &frequencies[std::size_t{12} * (band - 1)]);
        for (int month = 1; month <= 12; ++month)
            for (float percentage = -50.0f; percentage < 130.0f; percentage += 1.7f) {
                int lower, upper;
                float weight, value;
                lib::CLBAN1(percentage / 100.0f, month, frequencies, lower, upper, weight);
                const Band climate = at_percentage(percentage, month, set);
                EXPECT_EQ(climate.percentage, percentage);
                for (int q = 1; q <= 8; ++q) {
                    lib::CLBAN2(before + 2 + 10 * q, lower, upper, month, weight, value);
                    EXPECT_EQ(value, climate.q[q - 1]) << set << month << percentage;
                }
            }
    }
}

TEST(BandSearch, SkipsBandsWithoutDaysAndEndsAtTheTenth) {
    struct {
        float frequency[10], fraction;
        int lower, upper;
        float weight;
    } const cases[] = {
        {{0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f}, 0.1f, 1, 2, 0.0f},
        {{0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f}, 0.2f, 1, 2, 1.0f},
        {{0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f}, 2.0f, 9, 10, 1.0f},
        {{0.25f, 0.25f, 0.25f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f, 1.0f}, 0.125f, 1, 4, -0.5f},
        {{0.25f, 0.25f, 0.25f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f, 1.0f}, 0.375f, 3, 4, 0.5f},
        {{1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f}, 0.5f, 1, 10, -1.0f},
        {{1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f, 1.0f}, 1.0f, 1, 10, nan},
        {{0.1f, 0.2f, 0.3f, 0.4f, 0.5f, 0.6f, 0.7f, 0.8f, 0.9f, 1.0f}, nan, 9, 10, nan},
    };
    for (const auto& c : cases) {
        // Only May is filled in: another month's values give other results.
        std::array<float, 120> table{};
        for (std::size_t band = 0; band < 10; ++band) table[12 * band + 4] = c.frequency[band];
        int lower, upper;
        float weight;
        lib::CLBAN1(c.fraction, 5, table, lower, upper, weight);
        EXPECT_EQ(lower, c.lower) << c.fraction;
        EXPECT_EQ(upper, c.upper) << c.fraction;
        EXPECT_TRUE(std::isnan(c.weight) ? std::isnan(weight)
                                         : std::fabs(weight - c.weight) < 1e-6f);
    }
}

TEST(BandClimate, SelectorsOutsideTheTablePickTheNearest) {
    EXPECT_EQ(Band(-1, 0, 1), Band(1, 1, 3));
    EXPECT_EQ(Band(11, 13, 2), Band(10, 12, 2));
    EXPECT_EQ(cell(0, 7), cell(1, 7));
    EXPECT_EQ(cell(185, 7), cell(184, 7));
    float value;
    lib::CLBAN2(200, 11, 11, 13, 0.5f, value);
    EXPECT_EQ(value, cell(184, 12));
}

}  // namespace
