// What the climate file routines carry from call to call, and what they share between threads.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <limits>
#include <thread>

#include "climate/library_copy.h"
#include "literal/climate_file.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();
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

// The library and its literal form, driven by the same random calls while their files change.
class RandomWalk {
  public:
    explicit RandomWalk(std::uint64_t seed) : random_(seed) {
        constexpr std::int32_t layouts[] = {1, 5, 19, 0, -3, -40}, lies[] = {least, most, -1};
        for (const std::string& name : names_) {
            image_ = ClimateFileImage(layouts[seed % 6], 6, random_.bits());
            for (int station = 4; station <= 6; ++station) image_.fill(station, random_);
            if (seed % 5 == 4) std::memcpy(&image_.bytes()[4], &lies[seed % 3], 4);
            image_.save(name);
        }
    }

    void step() {
        const std::string& name = any_name();
        const int station = any(1, 6), month = any(1, 12), band = any(0, 10), set = any(1, 2);
        const int unit = any(31, 31), row = any(1, 171), months = random_.below(2) ? 0 : month;
        const float p = percentage();
        switch (random_.below(12)) {
            case 0:
                return change(name);
            case 1:
                return both([&](auto& f, float* v) { f.CLBNF0(name, station, months, v); });
            case 2:
            case 3:
                return both([&](auto& f, float* v) {
                    f.CLBNFI(unit, station, band, month, set, p, v[0], v[1], v[2], v[3], v[4], v[5],
                             v[6], v[7], v[8]);
                });
            case 4:
            case 5:
            case 6:
                return both([&](auto& f, float* v) {
                    int lower, upper;
                    f.CLBNF1(p / 100.0f, month, lower, upper, v[0]);
                    v[1] = static_cast<float>(10 * lower + upper);
                });
            case 7:
            case 8:
                return both([&](auto& f, float* v) { f.CLBNF2(row, band, set, month, p, v[0]); });
            default:
                return both([&](auto& f, float* v) { f.CLBNF3(row, v); });
        }
    }

  private:
    int any(int low, int high) {
        constexpr int wild[] = {least, most, -1, 0};
        return random_.below(20) ? low + random_.below(high - low + 1) : wild[random_.below(4)];
    }
    float percentage() {
        constexpr float inf = std::numeric_limits<float>::infinity();
        constexpr float nan = std::numeric_limits<float>::quiet_NaN();
        constexpr float wild[] = {-1.0f, 101.0f, 1e30f, inf, nan};
        return random_.below(10) ? 100.0f * static_cast<float>(random_.unit())
                                 : wild[random_.below(5)];
    }
    const std::string& any_name() { return names_[static_cast<std::size_t>(random_.below(2))]; }

    void change(const std::string& name) {
        if (random_.below(4) == 0) {
            std::filesystem::remove(name);
            return;
        }
        const auto bytes = image_.bytes();
        for (int i = random_.below(2000); i > 0; --i)
            bytes[8 + random_.bits() % (bytes.size() - 8)] = static_cast<std::byte>(random_.bits());
        image_.save(name);
        if (random_.below(3) == 0)
            std::filesystem::resize_file(name, random_.bits() % bytes.size());
    }

    // Percentages stand where results go, and set selectors where CLBNF0 has them.
    template <class Call>
    void both(Call call) {
        std::array<float, 132> ours;
        for (float& value : ours) value = percentage();
        for (std::size_t i = 9; i < ours.size(); i += 11)
            ours[i] = 0.25f * static_cast<float>(random_.below(13));
        auto literally = ours;
        call(library_, ours.data());
        call(literal_, literally.data());
        for (std::size_t i = 0; i < ours.size(); ++i)
            ASSERT_TRUE(std::bit_cast<int>(ours[i]) == std::bit_cast<int>(literally[i]) ||
                        (std::isnan(ours[i]) && std::isnan(literally[i])))
                << i << ": " << ours[i] << ", literally " << literally[i];
    }

    Random random_;
    TemporaryFolder folder_;
    std::array<std::string, 2> names_{(folder_.path() / "a").string(),
                                      (folder_.path() / "b").string()};
    ClimateFileImage image_{1, 1};
    LibraryCopy library_;
    literal::ClimateFile<literal::StdioFile> literal_;
};

TEST(ClimateFileWalk, AnyCallsOnAnyFilesAreThoseOfASingleBuffer) {
    for (std::uint64_t seed = 0; seed < 30 && !HasFatalFailure(); ++seed) {
        SCOPED_TRACE(seed);
        RandomWalk walk(seed);
        for (int i = 0; i < 400 && !HasFatalFailure(); ++i) walk.step();
    }
}

}  // namespace
