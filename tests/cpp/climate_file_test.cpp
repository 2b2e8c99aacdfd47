// Climate data files as objects, held to the routines on a library of their own for each file.
#include "quorvel/climate_file.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <fstream>
#include <optional>

#include "climate/library_copy.h"

namespace {

using namespace quorvel::conformance;
using quorvel::climate::ClimateFile;
using quorvel::test::LibraryCopy;

constexpr int stations = 4;

template <class T>
bool same_bits(const T& a, const T& b) {
    return std::memcmp(&a, &b, sizeof a) == 0;
}

// A file, the object on it, and the routines that opened it.
class Case {
  public:
    Case(const std::filesystem::path& path, std::int32_t H, std::uint64_t seed) : path_(path) {
        ClimateFileImage image(H, stations, seed);
        Random random(seed);
        for (int station = 1; station <= stations; ++station) image.fill(station, random);
        image.save(path);
        file_.emplace(path);
        ClimateFile::Records records{};
        expected_records(1, 0, records);
    }

    void compare(Random& random) {
        const int station = draw(random, 1, stations), month = draw(random, -1, 14),
                  set = draw(random, 0, 3), band = draw(random, -1, 12);
        const float percentage = random.real(-10, 110), weight = random.real(-1, 1);
        compare_climate(station, band, month, set, percentage);
        compare_band(percentage / 100.0f, station, month, set);
        compare_rows(station, draw(random, -5, 180), band, month, weight);
        compare_records(station, draw(random, 0, 12), random);
    }

  private:
    static int draw(Random& random, int low, int high) {
        return low + static_cast<int>(random.below(static_cast<std::uint64_t>(high - low + 1)));
    }

    void expected_records(int station, int month, ClimateFile::Records& records) {
        library_.CLBNF0(path_.string(), station, month, records[0].data());
    }

    void compare_climate(int station, int band, int month, int set, float percentage) {
        quorvel::climate::StationClimate want;
        library_.CLBNFI(31, station, band, month, set, percentage, want.q1, want.q2, want.q3,
                        want.q4, want.q5, want.q6, want.q7, want.time_a, want.time_b);
        EXPECT_TRUE(same_bits(want, file_->station_climate(station, band, month, set, percentage)));
    }

    // In the frequencies that were read last: those of compare_climate.
    void compare_band(float fraction, int station, int month, int set) {
        quorvel::climate::StationBand want;
        library_.CLBNF1(fraction, month, want.lower_band, want.upper_band, want.band_weight);
        EXPECT_TRUE(same_bits(want, file_->locate_station_band(station, set, fraction, month)));
    }

    void compare_rows(int station, int row, int band, int month, float weight) {
        ClimateFile::Row want;
        library_.CLBNF3(row, want);
        EXPECT_TRUE(same_bits(want, file_->station_row(station, row)));
        float value = 0.0f;
        library_.CLBNF2(row, band, band + 1, month, weight, value);
        EXPECT_TRUE(same_bits(
            value, file_->interpolate_station_rows(station, row, band, band + 1, month, weight)));
    }

    void compare_records(int station, int month, Random& random) {
        ClimateFile::Records records{};
        for (auto& record : records) {
            record[9] = random.real(0, 3);
            record[10] = random.real(0, 100);
        }
        const auto got = file_->station_records(station, month, records);
        expected_records(station, month, records);
        EXPECT_TRUE(same_bits(records, got));
    }

    std::filesystem::path path_;
    std::optional<ClimateFile> file_;
    LibraryCopy library_;
};

template <class Error, class Call>
std::string refusal(Call call) {
    try {
        call();
    } catch (const Error& error) {
        return error.what();
    }
    return "nothing thrown";
}

// Their headers differ: a state that they had in common would mix up their stations.
TEST(CppClimateFile, SeveralAtOnceGiveTheBitsOfTheRoutines) {
    const TemporaryFolder folder;
    Case first(folder.path() / u8"Zürich – Böen.dat", 1, 1), other(folder.path() / "other", 55, 2);
    Random random(5);
    for (int i = 0; i < 300; ++i) {
        first.compare(random);
        other.compare(random);
    }
}

TEST(CppClimateFile, SaysWhyItCannotBeOpened) {
    const TemporaryFolder folder;
    const auto missing = folder.path() / "missing";
    try {
        ClimateFile file(missing);
        FAIL();
    } catch (const std::system_error& error) {
        EXPECT_EQ(error.code(), std::errc::no_such_file_or_directory);
        EXPECT_NE(std::string(error.what()).find(missing.string()), std::string::npos);
    }
    EXPECT_EQ(refusal<std::runtime_error>([&] { ClimateFile file(folder.path()); }),
              "climate data file " + folder.path().string() + ": not a regular file");
}

TEST(CppClimateFile, SaysWhatCannotBeRead) {
    const TemporaryFolder folder;
    const auto path = folder.path() / "short";
    ClimateFileImage image(1, 1);
    Random random(1);
    image.fill(1, random);
    image.save(path);
    ClimateFile file(path);
    EXPECT_NO_THROW(file.station_climate(1, 1, 1, 1));
    const std::string why = "climate data file " + path.string() + ": cannot read station 2";
    EXPECT_EQ(refusal<std::runtime_error>([&] { file.station_climate(2, 1, 1, 1); }), why);
    EXPECT_EQ(refusal<std::runtime_error>([&] { file.locate_station_band(2, 1, 0.5f, 1); }), why);
    EXPECT_EQ(refusal<std::runtime_error>([&] { file.station_row(2, 1); }), why);
    EXPECT_EQ(refusal<std::runtime_error>([&] { file.interpolate_station_rows(2, 2, 1, 2, 1, 0); }),
              why);
    EXPECT_EQ(refusal<std::runtime_error>([&] { file.station_records(2, 0, {}); }), why);
    EXPECT_NO_THROW(file.station_row(1, 171));
}

TEST(CppClimateFile, NullPointersAreRefused) {
    float values[12];
    std::int32_t status = QUORVEL_OK;
    EXPECT_EQ(quorvel_climate_file_open(nullptr, &status), nullptr);
    EXPECT_EQ(status, QUORVEL_NO_ARRAY);
    EXPECT_EQ(quorvel_climate_file_open("", nullptr), nullptr);
    EXPECT_EQ(quorvel_climate_file_station_row(nullptr, 1, 1, values), QUORVEL_NO_ARRAY);
    quorvel_climate_file_close(nullptr);
}

}  // namespace
