// The climate data file: what its routines return from a sound file.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>

#include "support/library_copy.h"

using namespace quorvel::test;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();
constexpr float inf = std::numeric_limits<float>::infinity();
constexpr float nan = std::numeric_limits<float>::quiet_NaN();
constexpr float untouched = -77.0f;

std::uint32_t bits(float value) { return std::bit_cast<std::uint32_t>(value); }

using Records = std::array<float, 132>;

Records records_at(float selector, float percentage) {
    Records records;
    records.fill(untouched);
    for (std::size_t month = 0; month < 12; ++month) {
        records[11 * month + 9] = selector;
        records[11 * month + 10] = percentage;
    }
    return records;
}

struct Climate {
    std::array<float, 7> q;
    float time_a = untouched, time_b = untouched;

    Climate(const LibraryCopy& library, int station, int band, int month, int set,
            float percentage = 50.0f) {
        q.fill(untouched);
        library.CLBNFI(31, station, band, month, set, percentage, q[0], q[1], q[2], q[3], q[4],
                       q[5], q[6], time_a, time_b);
    }
    // As CLBNF0 orders it.
    std::array<float, 9> record() const {
        return {q[3], q[5], time_b, q[2], q[4], time_a, q[0], q[1], q[6]};
    }
    bool operator==(const Climate&) const = default;
};

std::array<float, 9> filled(const Records& records, int month) {
    std::array<float, 9> values;
    std::copy_n(&records[std::size_t{11} * (month - 1)], 9, values.begin());
    return values;
}

// A file of stations 1 to 3, or of some station alone, and a library that has not read any yet.
class StationFile : public testing::Test {
  protected:
    void write(std::int32_t H, int first_station, int last_station) {
        image = ClimateFileImage(H, last_station);
        for (int station = first_station; station <= last_station; ++station)
            image.fill(station, random);
        image.save(name);
    }
    void open(int station) {
        Records records = records_at(1.0f, 50.0f);
        library.CLBNF0(name, station, 0, records);
    }
    // The frequencies of station 1 in March, set 1.
    void set_frequencies(const std::array<float, 10>& frequencies) {
        for (int band = 0; band < 10; ++band)
            image.set(1, 2 + band, 3, frequencies[static_cast<std::size_t>(band)]);
        image.save(name);
    }

    TemporaryFolder folder;
    std::string name = (folder.path() / "stations.climate").string();
    Random random{7};
    ClimateFileImage image{1, 1};
    LibraryCopy library;
};

TEST_F(StationFile, RowsAndBandsComeBackForEveryHeader) {
    // Negative headers tell truncation from rounding down.
    for (const auto& [H, station] :
         {std::pair{1, 1}, {17, 3}, {18, 1}, {19, 1}, {500, 2}, {0, 1}, {-3, 2}, {-40, 4}}) {
        const LibraryCopy fresh;
        write(H, station, station);
        constexpr std::uint32_t odd_hours[] = {0x7f800001u, 0xffc12345u, 14, 0x80000000u};
        for (int month = 1; month <= 4; ++month)
            image.set(station, 0, month, std::bit_cast<float>(odd_hours[month - 1]));
        image.save(name);
        Records records = records_at(1.0f, 50.0f);
        fresh.CLBNF0(name, station, 0, records);
        for (int row = 0; row < 171; ++row) {
            std::array<float, 12> values;
            fresh.CLBNF3(row + 1, values);
            for (int month = 1; month <= 12; ++month)
                ASSERT_EQ(bits(values[static_cast<std::size_t>(month - 1)]),
                          bits(image.value(station, row, month)))
                    << H << ", " << row;
        }
        for (int band = 1; band <= 10; ++band)
            for (const int set : {1, 2}) {
                const int month = band, first = 82 * (set - 1);
                const Climate climate(fresh, station, band, month, set);
                for (int q = 0; q < 7; ++q)
                    EXPECT_EQ(climate.q[static_cast<std::size_t>(q)],
                              image.value(station, first + 11 + 10 * q + band, month));
                EXPECT_EQ(bits(climate.time_a), bits(image.value(station, first, month)));
                EXPECT_EQ(bits(climate.time_b), bits(image.value(station, first + 1, month)));
            }
    }
}

TEST_F(StationFile, EveryWayToAMonthGivesTheSame) {
    write(21, 1, 3);
    for (const int set : {1, 2})
        for (float percentage = -10.0f; percentage < 112.0f; percentage += 3.7f) {
            Records records = records_at(static_cast<float>(set), percentage);
            library.CLBNF0(name, 2, 0, records);
            for (int month = 1; month <= 12; ++month) {
                int lower, upper;
                float weight;
                library.CLBNF1(percentage / 100.0f, month, lower, upper, weight);
                Climate searched(library, 2, 1, month, set);
                for (int q = 0; q < 7; ++q)
                    library.CLBNF2(12 + 10 * q + 82 * (set - 1), lower, upper, month, weight,
                                   searched.q[static_cast<std::size_t>(q)]);
                EXPECT_EQ(filled(records, month), searched.record()) << set << percentage;
                EXPECT_EQ(Climate(library, 2, 0, month, set, percentage), searched);
            }
        }
}

TEST_F(StationFile, MonthOneIsWrittenOrAll) {
    write(1, 1, 3);
    Records all = records_at(2.0f, 30.0f);
    library.CLBNF0(name, 3, 0, all);
    for (const auto& [month, counts_as] :
         {std::pair{5, 5}, {1, 1}, {12, 12}, {13, 12}, {most, 12}, {-1, 1}, {least, 1}}) {
        Records one = records_at(2.0f, 30.0f);
        library.CLBNF0(name, 3, month, one);
        for (int m = 1; m <= 12; ++m) {
            EXPECT_EQ(filled(one, m), filled(m == counts_as ? all : records_at(2.0f, 30.0f), m));
            EXPECT_EQ(one[11 * static_cast<std::size_t>(m) - 2], 2.0f);
            EXPECT_EQ(one[11 * static_cast<std::size_t>(m) - 1], 30.0f);
        }
    }
}

TEST_F(StationFile, SelectorIsRoundedHalfAwayFromZero) {
    write(1, 1, 1);
    open(1);
    struct {
        float selector;
        int set;
    } const cases[] = {{1.0f, 1},       {1.4999999f, 1}, {1.5f, 2}, {1.6f, 2},
                       {2.4999998f, 2}, {2.5f, 1},       {3.0f, 1}, {-2.0f, 1},
                       {0.0f, 1},       {nan, 1},        {inf, 1},  {4e9f, 1}};
    for (const auto& c : cases) {
        Records records = records_at(c.selector, 40.0f);
        library.CLBNF0(name, 1, 8, records);
        EXPECT_EQ(filled(records, 8), Climate(library, 1, 0, 8, c.set, 40.0f).record())
            << c.selector;
    }
    for (const int set : {0, 1, 3, least, most})
        EXPECT_EQ(Climate(library, 1, 0, 8, set), Climate(library, 1, 0, 8, 1));
}

TEST_F(StationFile, BandsAreHeldAtBothEndsAndSkippedWithoutDays) {
    write(1, 1, 1);
    const std::array<float, 10> rising = {0.1f, 0.2f, 0.3f, 0.4f, 0.5f,
                                          0.6f, 0.7f, 0.8f, 0.9f, 1.0f};
    const std::array<float, 10> steps = {0.25f, 0.25f, 0.25f, 0.5f, 0.5f,
                                         0.5f,  0.5f,  0.75f, 1.0f, 1.0f};
    const std::array<float, 10> falling = {0.5f,  0.25f, 0.25f, 0.25f, 0.25f,
                                           0.25f, 0.25f, 0.25f, 0.25f, 1.0f};
    const std::array<float, 10> hole = {0.1f, nan, nan, nan, nan, nan, nan, nan, nan, nan};
    struct {
        std::array<float, 10> frequencies;
        float percentage;
        int lower, upper;
        float weight;
    } const cases[] = {
        {rising, 10.0f, 1, 1, 0.0f},      {rising, -50.0f, 1, 1, 0.0f},
        {rising, -inf, 1, 1, 0.0f},       {rising, 100.0f, 10, 10, 0.0f},
        {rising, 150.0f, 10, 10, 0.0f},   {rising, inf, 10, 10, 0.0f},
        {rising, 20.0f, 1, 2, 1.0f},      {rising, 95.0f, 9, 10, 0.5f},
        {rising, nan, 9, 10, nan},        {steps, 25.0f, 1, 1, 0.0f},
        {steps, 37.5f, 3, 4, 0.5f},       {steps, 50.0f, 3, 4, 1.0f},
        {steps, 62.5f, 7, 8, 0.5f},       {steps, 99.0f, 8, 9, 0.96f},
        {falling, 75.0f, 9, 10, 0.6667f}, {hole, 20.0f, 9, 10, nan},
    };
    for (const auto& c : cases) {
        set_frequencies(c.frequencies);
        open(1);
        const Climate found(library, 1, 0, 3, 1, c.percentage);
        const Climate low(library, 1, c.lower, 3, 1), high(library, 1, c.upper, 3, 1);
        for (std::size_t q = 0; q < 7; ++q) {
            if (std::isnan(c.weight)) {
                EXPECT_TRUE(std::isnan(found.q[q])) << c.percentage;
            } else if (c.lower == c.upper) {
                EXPECT_EQ(found.q[q], low.q[q]) << c.percentage;
            } else {
                EXPECT_NEAR(found.q[q], low.q[q] + c.weight * (high.q[q] - low.q[q]), 1e-3f);
            }
        }
        int lower, upper;
        float weight;
        library.CLBNF1(c.percentage / 100.0f, 3, lower, upper, weight);
        EXPECT_EQ(lower, c.lower) << c.percentage;
        EXPECT_EQ(upper, c.upper) << c.percentage;
        EXPECT_TRUE(std::isnan(c.weight) ? std::isnan(weight)
                                         : std::fabs(weight - c.weight) < 1e-4f);
    }
}

TEST_F(StationFile, QuantitiesAreLimitedOnlyWhereTheyMustBe) {
    write(1, 1, 1);
    struct {
        float value, q1_and_q2, others, q7;
    } const cases[] = {{-3.0f, 0.0f, -3.0f, 0.0f}, {0.5f, 0.5f, 0.5f, 0.5f},
                       {4.0f, 4.0f, 4.0f, 1.0f},   {inf, inf, inf, 1.0f},
                       {-inf, 0.0f, -inf, 0.0f},   {nan, nan, nan, nan}};
    for (const auto& c : cases) {
        for (int row = 12; row < 82; ++row) image.set(1, row, 3, c.value);
        image.save(name);
        open(1);
        const Climate band(library, 1, 4, 3, 1), between(library, 1, 0, 3, 1);
        for (std::size_t q = 0; q < 7; ++q) {
            const float expected = q < 2 ? c.q1_and_q2 : q < 6 ? c.others : c.q7;
            const auto is = [](float x, float y) { return std::isnan(y) ? std::isnan(x) : x == y; };
            EXPECT_TRUE(is(band.q[q], expected)) << q << ", " << c.value;
            // Between two infinities of one sign nothing is known.
            EXPECT_TRUE(is(between.q[q], std::isinf(c.value) ? nan : expected)) << q;
        }
    }
}

TEST_F(StationFile, SelectorsOutsideCountAsTheNearest) {
    write(1, 1, 1);
    open(1);
    EXPECT_EQ(Climate(library, 1, -1, 0, 1), Climate(library, 1, 1, 1, 1));
    EXPECT_EQ(Climate(library, 1, least, least, 2), Climate(library, 1, 1, 1, 2));
    EXPECT_EQ(Climate(library, 1, most, most, 2), Climate(library, 1, 10, 12, 2));
    std::array<float, 12> values;
    for (const int row : {least, -8, 0, 1, 171, 172, 180, most}) {
        const int nearest = std::clamp(row, 1, 171) - 1;
        library.CLBNF3(row, values);
        for (int month = 1; month <= 12; ++month)
            EXPECT_EQ(bits(values[static_cast<std::size_t>(month - 1)]),
                      bits(image.value(1, nearest, month)));
    }
    image.set(1, 0, 1, 3.0f);
    image.set(1, 170, 12, 4.0f);
    image.save(name);
    open(1);
    float value;
    library.CLBNF2(least, least, least, least, 0.5f, value);
    EXPECT_EQ(value, 3.0f);
    library.CLBNF2(most, most, most, most, 0.5f, value);
    EXPECT_EQ(value, 4.0f);
    int lower, upper;
    float weight;
    for (const auto& [month, nearest] : {std::pair{least, 1}, {0, 1}, {13, 12}, {most, 12}}) {
        library.CLBNF1(0.5f, month, lower, upper, weight);
        const auto outside = std::tuple(lower, upper, weight);
        library.CLBNF1(0.5f, nearest, lower, upper, weight);
        EXPECT_EQ(outside, std::tuple(lower, upper, weight));
    }
}

}  // namespace
