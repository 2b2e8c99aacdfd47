// What the climate file routines carry from call to call, and what they share between threads.
#include <gtest/gtest.h>

#include <thread>

#include "climate/library_copy.h"
#include "conformance/climate_file.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

constexpr float untouched = -77.0f;

struct StationFile {
    StationFile(const TemporaryFolder& folder, const char* file, std::int32_t H, int stations,
                std::uint64_t seed)
        : name((folder.path() / file).string()), image(H, stations, seed) {
        Random random(seed);
        for (int station = 1; station <= stations; ++station) image.fill(station, random);
        image.save(name);
    }
    std::string name;
    ClimateFileImage image;
};

std::array<float, 132> records_at(float percentage) {
    std::array<float, 132> records;
    records.fill(percentage);
    return records;
}

// January of a row of the station in use; untouched when it cannot be read.
float january(const LibraryCopy& library, int row) {
    std::array<float, 12> values;
    values.fill(untouched);
    library.CLBNF3(row + 1, values);
    return values[0];
}

float quantity_3(const LibraryCopy& library, int unit, int station, int band) {
    float q[7], a, b;
    q[2] = untouched;
    library.CLBNFI(unit, station, band, 1, 1, 0.0f, q[0], q[1], q[2], q[3], q[4], q[5], q[6], a, b);
    return q[2];
}

void open(const LibraryCopy& library, const std::string& name, int station) {
    auto records = records_at(50.0f);
    library.CLBNF0(name, station, 0, records);
}

class ClimateFileState : public testing::Test {
  protected:
    TemporaryFolder folder;
    StationFile first{folder, "first", 1, 3, 1}, other{folder, "other", 1, 3, 2};
    LibraryCopy library;
};

TEST_F(ClimateFileState, ARelativeNameIsFoundFromOtherFolders) {
    const auto before = std::filesystem::current_path();
    std::filesystem::current_path(folder.path());
    open(library, "first", 1);
    std::filesystem::current_path(before);
    EXPECT_EQ(january(library, 12), first.image.value(1, 12, 1));
#ifndef _WIN32
    // Where the full name would be too long the file opens all the same.
    std::filesystem::current_path(folder.path());
    for (int depth = 0; depth < 20; ++depth) {
        std::filesystem::create_directory(std::string(250, 'd'));
        std::filesystem::current_path(std::string(250, 'd'));
    }
    other.image.save("deep");
    open(library, "deep", 1);
    EXPECT_EQ(january(library, 12), other.image.value(1, 12, 1));
    std::filesystem::current_path(before);
#endif
}

// Rows of station 0 would lie in record 0, which is no record, nor one in an empty buffer.
TEST_F(ClimateFileState, NothingIsInRecordZero) {
    open(library, first.name, 0);
    EXPECT_EQ(january(library, 135), untouched);
}

TEST_F(ClimateFileState, SixteenThreadsGetWhatOneGets) {
    const auto climates = [&](int thread) {
        auto values = records_at(static_cast<float>(6 * thread));
        for (std::size_t month = thread % 2; month < 12; ++month) values[11 * month + 9] = 2.0f;
        library.CLBNF0(first.name, 1 + thread % 3, 0, values);
        values[9] = quantity_3(library, 31, 1 + thread % 3, 1 + thread % 10);
        return values;
    };
    std::vector<std::array<float, 132>> expected;
    for (int i = 0; i < 16; ++i) expected.push_back(climates(i));
    std::atomic<int> differing = 0;
    {
        std::vector<std::jthread> pool;
        for (int i = 0; i < 16; ++i)
            pool.emplace_back([&, i] {
                for (int call = 0; call < 200; ++call) {
                    differing += climates(i) != expected[static_cast<std::size_t>(i)];
                    january(library, call % 171);
                }
            });
    }
    EXPECT_EQ(differing, 0);
}

}  // namespace
