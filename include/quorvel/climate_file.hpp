// Climate data files: band climate of many stations, monthly.
#pragma once

#include <quorvel_arrays.h>

#include <array>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <system_error>

namespace quorvel::climate {
inline namespace v0 {

/// Climate of a month: the quantities of the file, in its units (Q1 and Q2 not below 0, Q7 from 0
/// to 1), and hours of the day.
struct StationClimate {
    float q1, q2, q3, q4, q5, q6, q7;
    float time_a, time_b;
};

/// Between which bands a cumulative fraction of days lies, 1 to 10, and how far from the lower one.
struct StationBand {
    std::int32_t lower_band, upper_band;
    float band_weight;
};

/// An open file. One thread at a time may use an object; objects have nothing in common, those of
/// one file either. What lies outside the ranges counts as the nearest; a band set other than 2 is
/// 1. What cannot be read throws std::runtime_error with the name of the file.
class ClimateFile {
  public:
    using Row = std::array<float, 12>;
    using Records = std::array<std::array<float, 11>, 12>;

    /// Throws std::system_error where there is no such file, and std::runtime_error where it is no
    /// regular one or cannot be opened.
    explicit ClimateFile(const std::filesystem::path& path) : path_(path) {
        std::int32_t status = QUORVEL_OK;
        file_.reset(quorvel_climate_file_open(utf8(path_).c_str(), &status));
        if (status == QUORVEL_NO_MEMORY) throw std::bad_alloc();
        if (!file_) refuse();
    }

    const std::filesystem::path& path() const { return path_; }

    /// Climate of a band from 1 to 10 or, for band 0, at a cumulative percentage of days.
    /// (CLBNFI of quorvel.h)
    StationClimate station_climate(std::int32_t station, std::int32_t band, std::int32_t month,
                                   std::int32_t band_set, float percentage = 0.0f) {
        std::array<float, 7> q;
        std::array<float, 2> times;
        check(station,
              quorvel_climate_file_station_climate(file_.get(), station, band, month, band_set,
                                                   percentage, q.data(), times.data()));
        return {q[0], q[1], q[2], q[3], q[4], q[5], q[6], times[0], times[1]};
    }

    /// Where a cumulative fraction of days lies among the bands of a month. (CLBNF1)
    StationBand locate_station_band(std::int32_t station, std::int32_t band_set, float fraction,
                                    std::int32_t month) {
        StationBand found;
        check(station, quorvel_climate_file_locate_station_band(
                           file_.get(), station, band_set, fraction, month, &found.lower_band,
                           &found.upper_band, &found.band_weight));
        return found;
    }

    /// Value between the rows base_row + lower_band and base_row + upper_band. (CLBNF2)
    float interpolate_station_rows(std::int32_t station, std::int32_t base_row,
                                   std::int32_t lower_band, std::int32_t upper_band,
                                   std::int32_t month, float band_weight) {
        float value;
        check(station, quorvel_climate_file_interpolate_station_rows(file_.get(), station, base_row,
                                                                     lower_band, upper_band, month,
                                                                     band_weight, &value));
        return value;
    }

    /// A row from 1 to 171, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the
    /// bands, 13 to 82 Q1 to Q7, ten each; 82 more in set 2. (CLBNF3)
    Row station_row(std::int32_t station, std::int32_t row) {
        Row values;
        check(station, quorvel_climate_file_station_row(file_.get(), station, row, values.data()));
        return values;
    }

    /// The record of a month, or all for month 0. Given in a record: [9] band set, [10] percentage
    /// of days. Returned: Q4, Q6, time B, Q3, Q5, time A, Q1, Q2, Q7. (CLBNF0)
    Records station_records(std::int32_t station, std::int32_t month, Records records) {
        check(station,
              quorvel_climate_file_station_records(file_.get(), station, month, records[0].data()));
        return records;
    }

  private:
    struct Close {
        void operator()(quorvel_climate_file* file) const { quorvel_climate_file_close(file); }
    };

    // Not as Windows has it in the code page of the process, where most names have no form.
    static std::string utf8(const std::filesystem::path& path) {
        const std::u8string text = path.u8string();
        return {text.begin(), text.end()};
    }

    std::string name() const { return "climate data file " + utf8(path_); }

    [[noreturn]] void refuse() const {
        std::error_code error;
        const auto status = std::filesystem::status(path_, error);
        if (!error && !std::filesystem::exists(status))
            error = std::make_error_code(std::errc::no_such_file_or_directory);
        if (error) throw std::system_error(error, name());
        if (!std::filesystem::is_regular_file(status))
            throw std::runtime_error(name() + ": not a regular file");
        throw std::runtime_error(name() + ": cannot be opened");
    }

    void check(std::int32_t station, std::int32_t status) const {
        if (status != QUORVEL_OK)
            throw std::runtime_error(name() + ": cannot read station " + std::to_string(station));
    }

    std::filesystem::path path_;
    std::unique_ptr<quorvel_climate_file, Close> file_;
};

}  // namespace v0
}  // namespace quorvel::climate
