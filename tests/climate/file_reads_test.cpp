// How a climate data file is read: from a disk in memory that counts and can fail.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <set>

#include "climate/climate_file.h"
#include "conformance/climate_file.h"
#include "support/climate_record.h"

using namespace quorvel::climate;
using quorvel::conformance::ClimateFileImage;
using quorvel::conformance::Random;

namespace {

constexpr int least = std::numeric_limits<int>::min();
constexpr int most = std::numeric_limits<int>::max();

// The one disk, with the one file on it.
struct Disk {
    std::span<const std::byte> content;
    std::vector<std::int64_t> reads;  // record numbers
    std::size_t failing = most;       // number of the read that fails, counted from 0
    int open_files = 0;
} disk;

class DiskFile {
  public:
    DiskFile() = default;
    DiskFile(const DiskFile&) = delete;
    ~DiskFile() { disk.open_files -= open_; }
    bool open(const char* name) {
        open_ = std::strcmp(name, "stations") == 0;
        disk.open_files += open_;
        return open_;
    }
    static std::optional<FileName> in_full(const FileName&) { return {}; }
    bool is_open() const { return open_; }
    bool read(std::int64_t number, Record& record) {
        const auto end = static_cast<std::size_t>(number) * sizeof record;
        const bool fails = disk.reads.size() == disk.failing || end > disk.content.size();
        disk.reads.push_back(number);
        std::memset(&record, 0xEE, sizeof record);
        if (fails) return false;
        std::memcpy(&record, &disk.content[end - sizeof record], sizeof record);
        quorvel::test::put_in_order(record);
        return true;
    }

  private:
    bool open_ = false;
};

using Reader = ClimateFileReader<DiskFile>;

// Percentage and set of each month.
struct Request {
    std::array<float, 12> fraction;
    std::array<int, 12> set;
};

Request draw(Random& random, int sets) {
    Request request;
    for (float& fraction : request.fraction) fraction = static_cast<float>(random.unit());
    for (int& set : request.set) set = 1 + random.below(sets);
    return request;
}

// The months' climates as far as they can be read.
std::vector<StationClimate> year(ClimateFileState& state, const Request& request) {
    std::vector<StationClimate> months;
    Reader reader(state);
    if (!reader.open("stations", 1)) return months;
    for (int month = 0; month < 12; ++month) {
        const auto m = static_cast<std::size_t>(month);
        const auto climate =
            reader.station_climate(0, request.fraction[m], month + 1, request.set[m]);
        if (!climate) break;
        months.push_back(*climate);
    }
    return months;
}

bool begins_with(const std::vector<StationClimate>& whole,
                 const std::vector<StationClimate>& part) {
    return part.empty() ||
           std::memcmp(whole.data(), part.data(), part.size() * sizeof whole[0]) == 0;
}

class ClimateFileReads : public testing::Test {
  protected:
    ClimateFileReads() {
        for (const int station : {1, 2}) image.fill(station, random);
        disk = {};
        disk.content = image.bytes();
    }
    std::size_t reads_of(auto call) {
        disk.reads.clear();
        call();
        return disk.reads.size();
    }
    void row(int number) {
        Reader reader(state);
        reader.station_row(number);
    }

    ClimateFileImage image{5, 2};
    Random random{3};
    ClimateFileState state;
};

TEST(ClimateFile, RecordNumbersNeitherOverflowNorRoundDown) {
    EXPECT_EQ(record_number(1, 0, 1), 4);
    EXPECT_EQ(record_number(1, 18, 18), 39);
    EXPECT_EQ(record_number(1, 0, 19), 23);
    EXPECT_EQ(record_number(2, 3, 0), 25);
    EXPECT_EQ(record_number(0, 0, -18), -35);
    EXPECT_EQ(record_number(most, 18, most), 43068977589);
    EXPECT_EQ(record_number(least, 0, least), -43068977623);
}

TEST_F(ClimateFileReads, EachRecordOnceInAYear) {
    for (int i = 0; i < 200; ++i) {
        const int sets = 1 + i % 2;
        ClimateFileState fresh;
        const Request request = draw(random, sets);
        EXPECT_LE(reads_of([&] { EXPECT_EQ(year(fresh, request).size(), 12u); }),
                  1u + (sets == 1 ? 10 : 19));
        EXPECT_EQ(disk.reads.front(), 1);
        EXPECT_EQ(std::set(disk.reads.begin(), disk.reads.end()).size(), disk.reads.size());
        reads_of([&] { year(fresh, request); });
        EXPECT_EQ(std::count(disk.reads.begin(), disk.reads.end(), 1), 0);
    }
}

TEST_F(ClimateFileReads, NoneForARecordThatWasUsedLast) {
    year(state, draw(random, 1));
    EXPECT_EQ(reads_of([&] { row(0); }), 1u);
    EXPECT_EQ(reads_of([&] { row(8), row(1), row(-5); }), 0u);
    EXPECT_EQ(reads_of([&] { row(9), row(8), row(9); }), 3u);
    EXPECT_EQ(reads_of([&] { Reader(state).interpolate_station_rows(9, 17, 1, 0.5f); }), 0u);
    EXPECT_EQ(reads_of([&] { Reader(state).interpolate_station_rows(17, 18, 1, 0.5f); }), 1u);
    EXPECT_EQ(reads_of([&] { row(18), row(26); }), 0u);
    // The year ends in the rows of Q7, and the buffered record counts only until another is read.
    Request request = draw(random, 1);
    request.fraction[11] = 1.0f;
    year(state, request);
    EXPECT_EQ(reads_of([&] { row(81); }), 0u);
    request.set.fill(2);
    reads_of([&] { year(state, request); });
    EXPECT_EQ(std::count(disk.reads.begin(), disk.reads.end(), record_number(1, 9, 5)), 1);
    EXPECT_NE(disk.reads.front(), record_number(1, 9, 5));
}

TEST_F(ClimateFileReads, AFailureAnywhereLeavesWholeMonthsAndASoundState) {
    for (int i = 0; i < 20; ++i) {
        const Request request = draw(random, 2);
        ClimateFileState untroubled;
        disk.failing = most;
        const auto whole = year(untroubled, request);
        ASSERT_EQ(whole.size(), 12u);
        for (disk.failing = 0; disk.failing < 20; ++disk.failing) {
            ClimateFileState fresh;
            std::vector<StationClimate> months;
            if (reads_of([&] { months = year(fresh, request); }) <= disk.failing) break;
            EXPECT_LT(months.size(), 12u);
            EXPECT_TRUE(begins_with(whole, months));
            EXPECT_EQ(disk.open_files, 0);
            // The buffer has what it says, and the frequencies are those of one set or none.
            if (fresh.buffered > 0) {
                const auto begin = static_cast<std::size_t>(fresh.buffered - 1) * sizeof(Record);
                EXPECT_TRUE(std::ranges::equal(std::as_bytes(std::span(fresh.buffer)),
                                               disk.content.subspan(begin, sizeof(Record))));
            }
            const bool loaded = fresh.frequencies[0][0] != 0.0f;
            EXPECT_EQ(fresh.frequencies[9][11] != 0.0f, loaded);
            const std::size_t failed = disk.failing;
            disk.failing = most;
            EXPECT_TRUE(begins_with(year(fresh, request), whole));
            disk.failing = failed;
        }
    }
}

}  // namespace
