// Design days, site constants, equation of time, and the band climate summary.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "quorvel/library.h"

namespace {

constexpr float nan = std::numeric_limits<float>::quiet_NaN();

int day_of_year(int month, int day) {
    constexpr int before[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};
    return before[month - 1] + day;
}

TEST(DesignDay, LiesInItsMonth) {
    // The day of the month is a set of its own, the second design day is one date.
    constexpr int of_month[] = {21, 20, 22, 20, 21, 21, 23, 24, 22, 23, 21, 22};
    constexpr int of_year_less_21st[] = {0, 0, 0, 1, 1, 0, 2, 1, 1, 1, 1, 0};
    for (int month = 1; month <= 12; ++month) {
        EXPECT_EQ(lib::ICLDAY(month), day_of_year(month, 21) + of_year_less_21st[month - 1])
            << month;
        EXPECT_EQ(lib::ICLDAYEX(month, 1), of_month[month - 1]) << month;
        EXPECT_EQ(lib::ICLDA2(month), day_of_year(month, lib::ICLDA2EX(month, 1))) << month;
        EXPECT_EQ(lib::ICLDA2EX(month, 1), month == 2   ? 26
                                           : month == 4 ? 28
                                           : month == 6 ? 21
                                           : month < 6  ? 29
                                                        : 4);
    }
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
    for (int site_class = 1; site_class <= 6; ++site_class) {
        bool varies = false;
        for (int month = 1; month <= 12; ++month) {
            const Site site(site_class, month);
            EXPECT_EQ(site.reflectance, site_class == 4 ? 0.5f : 0.2f);
            EXPECT_NE(site.diffuse == 0.0f, site.alternative == 0.0f) << site_class;
            EXPECT_GE(site.beam, 0.5f);
            varies |= !(site == Site(site_class, 1));
        }
        EXPECT_EQ(varies, site_class == 1) << site_class;
    }
    EXPECT_EQ(Site(1, 12).beam, 0.97f);
    EXPECT_EQ(Site(1, 6).diffuse, 0.66f);
    struct {
        float beam, diffuse_of_either_kind;
    } const steady[] = {{0.58f, 0.92f}, {0.5f, 1.1f}, {1.1f, 0.9f}, {1.0f, 1.0f}, {1.0f, 1.0f}};
    for (int site_class = 2; site_class <= 6; ++site_class) {
        const Site site(site_class, 7);
        EXPECT_EQ(site.beam, steady[site_class - 2].beam);
        EXPECT_EQ(site.diffuse + site.alternative, steady[site_class - 2].diffuse_of_either_kind);
    }
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

TEST(BandClimate, InterpolationMeetsTheBandsAndMovesOneWay) {
    // Set 1 goes from warm to cold by Q3, set 2 from high to low by Q1.
    const int sorted_by[] = {2, 0};
    for (const int set : {1, 2})
        for (int month = 1; month <= 12; ++month) {
            for (int band = 1; band <= 10; ++band) {
                const Band exact(band, month, set);
                const Band between = at_percentage(exact.percentage, month, set);
                for (int q = 0; q < 8; ++q)
                    EXPECT_NEAR(between.q[q], exact.q[q], 1e-3f) << set << month << band;
            }
            float last = std::numeric_limits<float>::max();
            for (float percentage = -20.0f; percentage < 120.0f; percentage += 0.37f) {
                const float value = at_percentage(percentage, month, set).q[sorted_by[set - 1]];
                EXPECT_LE(value, last + 1e-5f) << set << month << percentage;
                last = value;
            }
        }
}

TEST(BandClimate, BeyondTheBandsExtrapolatesBackwardsOnly) {
    // Half of band 1's frequency: (0.034 - 0.068) / (0.184 - 0.068) of the step to band 2.
    const Band warm(1, 1, 1), next(2, 1, 1), coldest(10, 1, 1);
    const Band half = at_percentage(3.4f, 1, 1), below = at_percentage(-1e6f, 1, 1),
               above = at_percentage(150.0f, 1, 1);
    for (int q = 0; q < 8; ++q) {
        EXPECT_NEAR(half.q[q], warm.q[q] - 0.29310f * (next.q[q] - warm.q[q]), 1e-4f);
        EXPECT_NEAR(below.q[q], 2.0f * warm.q[q] - next.q[q], 1e-5f);
        EXPECT_NEAR(above.q[q], coldest.q[q], 1e-5f);
    }
    EXPECT_EQ(half.percentage, 3.4f);
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
