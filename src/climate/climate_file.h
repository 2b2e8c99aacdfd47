// The climate data file: band climate of many stations, in records of 432 bytes.
//
// Record 1 is the header, whose second word H tells where the stations begin. A station owns 19
// records of nine rows, a value per month in a row. Two sets of rows are in use, 0 to 81 and 82 to
// 163. Rows of a set, counted from 0:
//   0, 1     time A, time B            hour of the day
//   2..11    F, bands 1 to 10          cumulative frequency, a fraction
//   12..81   Q1 to Q7, ten rows each   band quantities
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "climate/band_search.h"
#include "climate/record_file.h"

namespace quorvel::climate {

inline constexpr int records_per_station = 19;
inline constexpr int rows_per_record = std::tuple_size_v<Record>;
inline constexpr int station_rows = records_per_station * rows_per_record;
inline constexpr int station_set_rows = 82;
inline constexpr int station_quantities = 7;

// Of a month's record, as callers hold it, the last two are given.
inline constexpr std::ptrdiff_t reals_per_record = 11;

inline constexpr Integer file_unit = 31;  // the only unit there is

// In place of H. A file with this very H is read all the same, but its header again and again.
inline constexpr Integer header_unread = -1;

// Record of a station, 0 to 18, in the file. Wide: any station and H have a number, below 1 if
// there is no such record.
constexpr std::int64_t record_number(Integer station, int part, Integer H) noexcept {
    const std::int64_t h = H;
    return std::int64_t{records_per_station} * station + part + (h - 1) / 18 + h - 16;
}

// What is carried from call to call. H is read once and the buffered record is never forgotten, so
// that one state serves one file: another one opened later is read with the H of the first.
struct ClimateFileState {
    FileName name;  // of the file on the unit
    Integer unit = 0, station = 0;
    Integer H = header_unread;
    std::int64_t buffered = 0;  // number of the record in the buffer, 0 for none
    Record buffer{};
    std::array<MonthlyRow, band_count> frequencies{};  // of the set last read
};

// In the frequencies last read; a month outside counts as the nearest.
inline BandPosition locate_station_band(const ClimateFileState& state, Real fraction,
                                        Integer month) noexcept {
    const auto column = static_cast<std::size_t>(table_row(month, 12));
    return held_band(fraction, [&](Integer band) {
        return state.frequencies[static_cast<std::size_t>(band - 1)][column];
    });
}

// Set of a record's selector, rounded to the nearest integer with halves away from zero.
constexpr Integer rounded_set(Real selector) noexcept {
    return selector >= 1.5f && selector < 2.5f ? 2 : 1;
}

// Of a set: 2 or, for any other number, 1.
constexpr int first_row(Integer set) noexcept { return set == 2 ? station_set_rows : 0; }

struct StationClimate {
    std::array<Real, station_quantities> quantities;  // Q1 to Q7
    Real time_a, time_b;
};

// One call's work with the file. Whatever cannot be read is absent from the results, and the call
// ends there.
//
// The state remembers one record, but a month's rows lie in ten: within a call every record is
// kept, so that none is read twice however many months need it. Afterwards the state has the record
// that was used last, as if it were the only buffer.
template <class File>
class ClimateFileReader {
  public:
    explicit ClimateFileReader(ClimateFileState& state) noexcept : state_(state) {}
    // On a file that is open already.
    ClimateFileReader(ClimateFileState& state, File file) noexcept : state_(state), file_(file) {}
    ~ClimateFileReader();
    ClimateFileReader(const ClimateFileReader&) = delete;
    ClimateFileReader& operator=(const ClimateFileReader&) = delete;

    // Puts another file on the unit; if there is none of that name, everything stays as it is.
    bool open(const char* name, Integer station) noexcept;
    void select(Integer unit, Integer station) noexcept;

    // As fill_records, from the file of that name.
    void station_records(const char* name, Integer station, Integer month, Real* records) noexcept;

    // Of a band or, for band 0, interpolated at the fraction. Set 2 or, for any other number, set
    // 1; bands and months outside count as the nearest.
    std::optional<StationClimate> station_climate(Integer band, Real fraction, Integer month,
                                                  Integer set) noexcept;
    // Has the frequencies of a set of the station in the state.
    bool load_frequencies(Integer set) noexcept;
    // The record of a month, for month 0 those of all, up to the first that cannot be read. Given
    // in a record: 10 set, 11 percentage. Returned: 1 Q4, 2 Q6, 3 time B, 4 Q3, 5 Q5, 6 time A, 7
    // Q1, 8 Q2, 9 Q7.
    bool fill_records(Integer month, Real* records) noexcept;

    // Rows of the station count from 0; numbers outside pick its first or last one. Wide, for sums
    // of any Integers.
    const MonthlyRow* station_row(std::int64_t number) noexcept;
    std::optional<Real> value(std::int64_t row_number, Integer month) noexcept;
    std::optional<Real> interpolate_station_rows(std::int64_t lower, std::int64_t upper,
                                                 Integer month, Real weight) noexcept;

  private:
    bool fill_record(Integer month, Real* record) noexcept;
    bool read(std::int64_t number, Record& record) noexcept;
    bool read_header() noexcept;
    const Record* find(std::size_t part) noexcept;

    ClimateFileState& state_;
    File file_;  // open from the first read on
    std::uint32_t loaded_ = 0;
    std::size_t last_ = 0;
    std::array<Record, records_per_station> records_;  // those whose bit in loaded_ is set
};

template <class File>
ClimateFileReader<File>::~ClimateFileReader() {
    if (!loaded_) return;
    state_.buffer = records_[last_];
    state_.buffered = record_number(state_.station, static_cast<int>(last_), state_.H);
}

// Remembered is the full name, under which the file is found after a change of folder. It may be
// too long, or lead through folders that must not be searched, where the name given opens the file.
template <class File>
bool ClimateFileReader<File>::open(const char* name, Integer station) noexcept {
    FileName given;
    if (!given.assign(name)) return false;
    const auto full = File::in_full(given);
    const bool by_full = full && file_.open(full->c_str());
    if (!by_full && !file_.open(given.c_str())) return false;
    state_.name = by_full ? *full : given;
    select(file_unit, station);
    return true;
}

template <class File>
void ClimateFileReader<File>::select(Integer unit, Integer station) noexcept {
    state_.unit = unit;
    state_.station = station;
}

template <class File>
bool ClimateFileReader<File>::read(std::int64_t number, Record& record) noexcept {
    const bool connected =
        file_.is_open() || (state_.unit == file_unit && file_.open(state_.name.c_str()));
    return connected && file_.read(number, record);
}

template <class File>
bool ClimateFileReader<File>::read_header() noexcept {
    Record header;
    if (!read(1, header)) return false;
    state_.H = std::bit_cast<Integer>(header[0][1]);
    return true;
}

// The record buffered by an earlier call counts only until this one reads another: coming back to
// it then costs a read, as it would with a single buffer.
template <class File>
const Record* ClimateFileReader<File>::find(std::size_t part) noexcept {
    if (!(loaded_ >> part & 1u)) {
        if (state_.H == header_unread && !read_header()) return nullptr;
        const auto number = record_number(state_.station, static_cast<int>(part), state_.H);
        if (number < 1) return nullptr;
        if (!loaded_ && number == state_.buffered) return &state_.buffer;
        if (!read(number, records_[part])) return nullptr;
        loaded_ |= 1u << part;
    }
    last_ = part;
    return &records_[part];
}

template <class File>
const MonthlyRow* ClimateFileReader<File>::station_row(std::int64_t number) noexcept {
    const auto index =
        static_cast<std::size_t>(std::clamp<std::int64_t>(number, 0, station_rows - 1));
    const Record* const record = find(index / rows_per_record);
    return record ? &(*record)[index % rows_per_record] : nullptr;
}

template <class File>
std::optional<Real> ClimateFileReader<File>::value(std::int64_t row_number,
                                                   Integer month) noexcept {
    const MonthlyRow* const values = station_row(row_number);
    if (!values) return {};
    return (*values)[static_cast<std::size_t>(table_row(month, 12))];
}

template <class File>
std::optional<Real> ClimateFileReader<File>::interpolate_station_rows(std::int64_t lower,
                                                                      std::int64_t upper,
                                                                      Integer month,
                                                                      Real weight) noexcept {
    const auto from = value(lower, month);
    const auto to = from ? value(upper, month) : from;
    if (!to) return {};
    return interpolate(*from, *to, weight);
}

template <class File>
bool ClimateFileReader<File>::load_frequencies(Integer set) noexcept {
    const int first = first_row(set) + 2;
    std::array<const MonthlyRow*, band_count> rows;
    for (std::size_t band = 0; band < rows.size(); ++band)
        if (!(rows[band] = station_row(first + static_cast<int>(band)))) return false;
    for (std::size_t band = 0; band < rows.size(); ++band) state_.frequencies[band] = *rows[band];
    return true;
}

template <class File>
std::optional<StationClimate> ClimateFileReader<File>::station_climate(Integer band, Real fraction,
                                                                       Integer month,
                                                                       Integer set) noexcept {
    const int first = first_row(set);
    const auto time_a = value(first, month);
    const auto time_b = time_a ? value(first + 1, month) : time_a;
    if (!time_b || !load_frequencies(set)) return {};
    StationClimate climate{{}, *time_a, *time_b};
    const auto [lower, upper, weight] = locate_station_band(state_, fraction, month);
    int before = first + 1;  // the row before a quantity's band 1
    for (Real& quantity : climate.quantities) {
        before += band_count;
        const auto found =
            band ? value(before + table_row(band, band_count) + 1, month)
                 : interpolate_station_rows(before + lower, before + upper, month, weight);
        if (!found) return {};
        quantity = *found;
    }
    auto& [q1, q2, q3, q4, q5, q6, q7] = climate.quantities;
    q1 = std::max(q1, 0.0f);
    q2 = std::max(q2, 0.0f);
    q7 = limited(q7, 0.0f, 1.0f);
    return climate;
}

template <class File>
bool ClimateFileReader<File>::fill_record(Integer month, Real* record) noexcept {
    const auto found = station_climate(0, record[10] / 100.0f, month, rounded_set(record[9]));
    if (!found) return false;
    const auto& [q1, q2, q3, q4, q5, q6, q7] = found->quantities;
    const Real filled[] = {q4, q6, found->time_b, q3, q5, found->time_a, q1, q2, q7};
    std::ranges::copy(filled, record);
    return true;
}

template <class File>
void ClimateFileReader<File>::station_records(const char* name, Integer station, Integer month,
                                              Real* records) noexcept {
    if (open(name, station)) fill_records(month, records);
}

template <class File>
bool ClimateFileReader<File>::fill_records(Integer month, Real* records) noexcept {
    const Integer first = table_row(month, 12) + 1;
    const Integer last = month == 0 ? 12 : first;
    for (Integer m = first; m <= last; ++m)
        if (!fill_record(m, records + reals_per_record * (m - 1))) return false;
    return true;
}

}  // namespace quorvel::climate
