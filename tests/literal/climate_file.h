// Literal form of the climate data file: one record buffer, and the rows read one after another as
// a month needs them. File opens a name, tells whether it did, and reads the record of a number.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <optional>
#include <string>
#include <tuple>

#include "support/climate_record.h"

namespace literal {

using ClimateRow = std::array<float, 12>;
using ClimateRecord = std::array<ClimateRow, 9>;

class StdioFile {
  public:
    StdioFile() = default;
    StdioFile(const StdioFile&) = delete;
    ~StdioFile() {
        if (file_) std::fclose(file_);
    }
    bool open(const char* name) {
        file_ = std::fopen(name, "rb");
        if (file_) std::setvbuf(file_, nullptr, _IONBF, 0);
        return file_;
    }
    bool is_open() const { return file_; }
    bool read(std::int64_t number, ClimateRecord& record) {
        const bool whole =
            seek((number - 1) * 432) && std::fread(record.data(), 432, 1, file_) == 1;
        if (whole) quorvel::test::put_in_order(record);
        return whole;
    }

  private:
#ifdef _WIN32
    bool seek(std::int64_t offset) { return _fseeki64(file_, offset, SEEK_SET) == 0; }
#else
    bool seek(std::int64_t offset) { return std::fseek(file_, offset, SEEK_SET) == 0; }
#endif
    std::FILE* file_ = nullptr;
};

template <class File>
class ClimateFile {
  public:
    void CLBNF0(const std::string& name, int station, int month, float* records) {
        file_.emplace();
        if (file_->open(name.c_str())) {
            name_ = name;
            unit_ = 31;
            station_ = station;
            const int first = month == 0 ? 1 : std::clamp(month, 1, 12);
            const int last = month == 0 ? 12 : first;
            for (int m = first; m <= last; ++m)
                if (!fill(&records[std::size_t{11} * (m - 1)], m)) break;
        }
        file_.reset();
    }

    void CLBNFI(int unit, int station, int band, int month, int set, float percentage, float& q1,
                float& q2, float& q3, float& q4, float& q5, float& q6, float& q7, float& time_a,
                float& time_b) {
        unit_ = unit;
        station_ = station;
        Month c;
        if (read_month(band, percentage / 100.0f, std::clamp(month, 1, 12), set, c))
            std::tie(q1, q2, q3, q4, q5, q6, q7, time_a, time_b) = std::tie(
                c.q[0], c.q[1], c.q[2], c.q[3], c.q[4], c.q[5], c.q[6], c.time_a, c.time_b);
        file_.reset();
    }

    void CLBNF1(float p, int month, int& lower, int& upper, float& weight) const {
        const auto F = [&](int band) { return frequency_[band - 1][std::clamp(month, 1, 12) - 1]; };
        lower = upper = p <= F(1) ? 1 : 10;
        weight = 0.0f;
        if (p <= F(1) || p >= F(10)) return;
        for (lower = 1; lower < 9; ++lower)
            if (F(lower + 1) >= p) break;
        upper = lower + 1;
        while (upper < 10 && F(upper) - F(lower) == 0.0f) ++upper;
        weight = std::fabs((p - F(lower)) / (F(upper) - F(lower)));
        if (weight > 1.0f) weight = 1.0f;
    }

    void CLBNF2(int base, int lower, int upper, int month, float weight, float& value) {
        ClimateRow from, to;
        const int m = std::clamp(month, 1, 12) - 1;
        if (read_row(nearest(std::int64_t{base} + lower - 1), from) &&
            read_row(nearest(std::int64_t{base} + upper - 1), to))
            value = from[m] + (to[m] - from[m]) * weight;
        file_.reset();
    }

    void CLBNF3(int row, float* values) {
        ClimateRow read;
        if (read_row(nearest(std::int64_t{row} - 1), read))
            std::copy(read.begin(), read.end(), values);
        file_.reset();
    }

  private:
    struct Month {
        float q[7], time_a, time_b;
    };

    static int nearest(std::int64_t row) {
        return static_cast<int>(std::clamp<std::int64_t>(row, 0, 170));
    }

    bool fill(float* record, int month) {
        const int set = std::round(record[9]) == 2.0f ? 2 : 1;
        Month c;
        if (!read_month(0, record[10] / 100.0f, month, set, c)) return false;
        const float filled[] = {c.q[3],   c.q[5], c.time_b, c.q[2], c.q[4],
                                c.time_a, c.q[0], c.q[1],   c.q[6]};
        std::copy(filled, filled + 9, record);
        return true;
    }

    bool read_month(int band, float p, int month, int set, Month& climate) {
        const int first = set == 2 ? 82 : 0;
        ClimateRow a, b, low, high;
        if (!read_row(first, a) || !read_row(first + 1, b)) return false;
        std::array<ClimateRow, 10> frequency;
        for (int k = 0; k < 10; ++k)
            if (!read_row(first + 2 + k, frequency[k])) return false;
        frequency_ = frequency;
        int j, k;
        float t;
        CLBNF1(p, month, j, k, t);
        if (band != 0) j = k = std::clamp(band, 1, 10);
        for (int q = 0; q < 7; ++q) {
            if (!read_row(first + 12 + 10 * q + j - 1, low)) return false;
            if (!read_row(first + 12 + 10 * q + k - 1, high)) return false;
            const float from = low[month - 1], to = high[month - 1];
            climate.q[q] = band != 0 ? from : from + t * (to - from);
        }
        for (const int q : {0, 1, 6})
            if (climate.q[q] < 0.0f) climate.q[q] = 0.0f;
        if (climate.q[6] > 1.0f) climate.q[6] = 1.0f;
        climate.time_a = a[month - 1];
        climate.time_b = b[month - 1];
        return true;
    }

    bool read_row(int r, ClimateRow& row) {
        ClimateRecord record;
        if (H_ == -1) {
            if (!read(1, record)) return false;
            std::memcpy(&H_, &record[0][1], 4);
        }
        const std::int64_t H = H_,
                           number = std::int64_t{19} * station_ + r / 9 + (H - 1) / 18 + H - 16;
        if (number != buffered_) {
            if (!read(number, record)) return false;
            buffer_ = record;
            buffered_ = number;
        }
        row = buffer_[r % 9];
        return true;
    }

    bool read(std::int64_t number, ClimateRecord& record) {
        if (!file_) file_.emplace();
        if (!file_->is_open() && (unit_ != 31 || !file_->open(name_.c_str()))) return false;
        return number >= 1 && file_->read(number, record);
    }

    std::optional<File> file_;
    std::string name_;
    int unit_ = 0, station_ = 0, H_ = -1;
    std::int64_t buffered_ = std::numeric_limits<std::int64_t>::min();
    ClimateRecord buffer_;
    std::array<ClimateRow, 10> frequency_{};
};

}  // namespace literal
