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

TEST_F(ClimateFileState, HeaderIsReadOncePerLoad) {
    // Laid out as the first file is, whatever its header says.
    other.image.bytes()[4] = static_cast<std::byte>(20);
    other.image.save(other.name);
    open(library, first.name, 1);
    open(library, other.name, 2);
    EXPECT_EQ(january(library, 12), other.image.value(2, 12, 1));
    const LibraryCopy fresh;
    open(fresh, other.name, 2);
    EXPECT_NE(january(fresh, 12), other.image.value(2, 12, 1));
}

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

TEST_F(ClimateFileState, BufferOutlivesTheFile) {
    open(library, first.name, 1);
    EXPECT_EQ(january(library, 12), first.image.value(1, 12, 1));
    std::filesystem::remove(first.name);
    EXPECT_EQ(january(library, 13), first.image.value(1, 13, 1)) << "of the same record";
    EXPECT_EQ(january(library, 18), untouched);
}

TEST_F(ClimateFileState, RowsOutsideAreTheNearestAndThereIsNothingElsewhere) {
    open(library, first.name, 1);
    EXPECT_EQ(january(library, -7), first.image.value(1, 0, 1));
    EXPECT_EQ(january(library, 500), first.image.value(1, 170, 1));
    EXPECT_EQ(quantity_3(library, 30, 1, 5), untouched) << "a unit without a file";
    // Rows of station 0 would lie in record 0, which is no record, nor one in an empty buffer.
    const LibraryCopy fresh;
    open(fresh, first.name, 0);
    EXPECT_EQ(january(fresh, 135), untouched);
}

TEST_F(ClimateFileState, SixteenThreadsGetWhatOneGets) {
    constexpr int threads = 16, calls = 200;
    const auto records = [&](int thread) {
        auto values = records_at(static_cast<float>(6 * thread));
        for (std::size_t month = thread % 2; month < 12; ++month) values[11 * month + 9] = 2.0f;
        library.CLBNF0(first.name, 1 + thread % 3, 0, values);
        return values;
    };
    const auto climate = [&](int thread) {
        return quantity_3(library, 31, 1 + thread % 3, 1 + thread % 10);
    };
    std::array<std::array<float, 132>, threads> expected_records;
    std::array<float, threads> expected_climate;
    for (int i = 0; i < threads; ++i) {
        expected_records[static_cast<std::size_t>(i)] = records(i);
        expected_climate[static_cast<std::size_t>(i)] = climate(i);
    }
    std::array<int, threads> differing{};
    std::vector<std::thread> pool;
    pool.reserve(threads);
    for (int i = 0; i < threads; ++i)
        pool.emplace_back([&, i] {
            const auto own = static_cast<std::size_t>(i);
            for (int call = 0; call < calls; ++call) {
                differing[own] += records(i) != expected_records[own];
                differing[own] += climate(i) != expected_climate[own];
                january(library, call % 171);
            }
        });
    for (std::thread& thread : pool) thread.join();
    for (const int count : differing) EXPECT_EQ(count, 0);
}

}  // namespace
