// The climate data file: what its routines return from a sound file.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>

#include "climate/library_copy.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

constexpr float untouched = -77.0f;

std::uint32_t bits(float value) { return std::bit_cast<std::uint32_t>(value); }

struct Climate {
    std::array<float, 7> q;
    float time_a = untouched, time_b = untouched;

    Climate(const LibraryCopy& library, int station, int band, int month, int set,
            float percentage = 50.0f) {
        q.fill(untouched);
        library.CLBNFI(31, station, band, month, set, percentage, q[0], q[1], q[2], q[3], q[4],
                       q[5], q[6], time_a, time_b);
    }
};

// A file of one station, and libraries that read it.
class StationFile : public testing::Test {
  protected:
    void write(std::int32_t H, int station) {
        image = ClimateFileImage(H, station);
        image.fill(station, random);
        image.save(name);
    }
    void open(const LibraryCopy& library, int station) {
        std::array<float, 132> records;
        records.fill(1.0f);
        library.CLBNF0(name, station, 0, records);
    }

    TemporaryFolder folder;
    std::string name = (folder.path() / "stations.climate").string();
    Random random{7};
    ClimateFileImage image{1, 1};
};

TEST_F(StationFile, RowsAndBandsComeBackForEveryHeader) {
    // Negative headers tell truncation from rounding down.
    for (const auto& [H, station] :
         {std::pair{1, 1}, {17, 3}, {18, 1}, {19, 1}, {500, 2}, {0, 1}, {-3, 2}, {-40, 4}}) {
        const LibraryCopy fresh;
        write(H, station);
        constexpr std::uint32_t odd_hours[] = {0x7f800001u, 0xffc12345u, 14, 0x80000000u};
        for (int month = 1; month <= 4; ++month)
            image.set(station, 0, month, std::bit_cast<float>(odd_hours[month - 1]));
        image.save(name);
        open(fresh, station);
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

TEST_F(StationFile, BandsAreHeldAtBothEndsAndSkippedWithoutDays) {
    write(1, 1);
    const LibraryCopy library;
    const std::array<float, 10> rising = {0.1f, 0.2f, 0.3f, 0.4f, 0.5f,
                                          0.6f, 0.7f, 0.8f, 0.9f, 1.0f};
    const std::array<float, 10> steps = {0.25f, 0.25f, 0.25f, 0.5f, 0.5f,
                                         0.5f,  0.5f,  0.75f, 1.0f, 1.0f};
    struct {
        std::array<float, 10> frequencies;
        float percentage;
        int lower, upper;
        float weight;
    } const cases[] = {
        {rising, 10.0f, 1, 1, 0.0f},    {rising, -50.0f, 1, 1, 0.0f},
        {rising, 100.0f, 10, 10, 0.0f}, {rising, 150.0f, 10, 10, 0.0f},
        {rising, 20.0f, 1, 2, 1.0f},    {rising, 95.0f, 9, 10, 0.5f},
        {steps, 25.0f, 1, 1, 0.0f},     {steps, 37.5f, 3, 4, 0.5f},
        {steps, 50.0f, 3, 4, 1.0f},     {steps, 62.5f, 7, 8, 0.5f},
        {steps, 99.0f, 8, 9, 0.96f},
    };
    for (const auto& c : cases) {
        for (int band = 0; band < 10; ++band)
            image.set(1, 2 + band, 3, c.frequencies[static_cast<std::size_t>(band)]);
        image.save(name);
        open(library, 1);
        const Climate found(library, 1, 0, 3, 1, c.percentage);
        const Climate low(library, 1, c.lower, 3, 1), high(library, 1, c.upper, 3, 1);
        for (std::size_t q = 0; q < 7; ++q)
            EXPECT_NEAR(found.q[q], low.q[q] + c.weight * (high.q[q] - low.q[q]), 1e-3f);
        int lower, upper;
        float weight;
        library.CLBNF1(c.percentage / 100.0f, 3, lower, upper, weight);
        EXPECT_EQ(lower, c.lower) << c.percentage;
        EXPECT_EQ(upper, c.upper) << c.percentage;
        EXPECT_NEAR(weight, c.weight, 1e-4f);
    }
}

TEST_F(StationFile, RecordsAreTheClimatesOfTheirMonths) {
    write(1, 1);
    for (int row = 12; row < 32; ++row) image.set(1, row, 1, -0.5f);  // Q1 and Q2
    for (int row = 72; row < 82; ++row) image.set(1, row, 1, -0.5f);  // Q7
    for (int row = 72; row < 82; ++row) image.set(1, row, 2, 1.5f);
    image.save(name);
    const LibraryCopy library;
    constexpr float sets[] = {1.0f,  1.0f, 1.49f, 1.5f, 1.6f,  2.0f,
                              2.49f, 2.5f, 3.0f,  0.0f, -2.0f, NAN};
    std::array<float, 132> records{}, of_may;
    for (std::size_t m = 0; m < 12; ++m)
        records[11 * m + 9] = sets[m], records[11 * m + 10] = static_cast<float>(5 + 8 * m);
    of_may = records;
    library.CLBNF0(name, 1, 0, records);
    for (std::size_t m = 0; m < 12; ++m) {
        const int set = m >= 3 && m <= 6 ? 2 : 1;
        const Climate month(library, 1, 0, static_cast<int>(m) + 1, set, records[11 * m + 10]);
        const auto& q = month.q;
        const float expected[] = {q[3],         q[5], month.time_b, q[2], q[4],
                                  month.time_a, q[0], q[1],         q[6]};
        for (std::size_t k = 0; k < 9; ++k) EXPECT_EQ(records[11 * m + k], expected[k]) << m << k;
    }
    for (const std::size_t zero : {6, 7, 8}) EXPECT_EQ(records[zero], 0.0f);
    EXPECT_EQ(records[11 + 8], 1.0f);
    const auto given = of_may;
    library.CLBNF0(name, 1, 5, of_may);
    for (std::size_t i = 0; i < 132; ++i)
        EXPECT_EQ(bits(of_may[i]), bits(i / 11 == 4 ? records[i] : given[i])) << i;

    EXPECT_EQ(Climate(library, 1, 2, 3, 7).q, Climate(library, 1, 2, 3, 1).q)
        << "no set but 2 is 2";
    float value;
    library.CLBNF2(12, 3, 5, 7, 0.25f, value);
    const float from = image.value(1, 14, 7), to = image.value(1, 16, 7);
    EXPECT_EQ(value, from + (to - from) * 0.25f);
}

}  // namespace
