// The layout of a climate data file, for programs that write or check one; to read one, the library
// has routines.
//
// Records of 432 bytes: nine rows of a number for each month, of four bytes, lowest byte first.
// Record 1 is the header, whose second word H places the stations, of 19 records each. Records
// count from 1, as do stations; rows, sets, quantities (F, Q1 to Q7), bands and months count from
// 0.
#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>

namespace quorvel::climate_file_layout {

inline constexpr std::size_t month_count = 12, band_count = 10, set_count = 2, quantity_count = 8;
inline constexpr int rows_per_record = 9, station_records = 19, record_bytes = 432;
inline constexpr int header_offset = 4;           // of H, in bytes
inline constexpr std::size_t station_rows = 171;  // the last seven are not in use

// Rows of a set: the times A and B, then ten of each quantity.
constexpr std::size_t time_row(std::size_t set, std::size_t time) {
    return (2 + quantity_count * band_count) * set + time;
}
constexpr std::size_t band_row(std::size_t set, std::size_t quantity, std::size_t band) {
    return time_row(set, 2) + band_count * quantity + band;
}

// Below 1 where there is no such record. The quotient of H is cut off towards 0.
constexpr std::int64_t first_record(std::int64_t station, std::int64_t H) {
    return station_records * station + (H - 1) / 18 + H - 16;
}

// In bytes from the beginning of the file.
constexpr std::int64_t record_offset(std::int64_t record) { return (record - 1) * record_bytes; }

constexpr std::int64_t value_offset(std::int64_t station, std::int64_t H, std::size_t row,
                                    std::size_t month) {
    return record_offset(first_record(station, H)) +
           static_cast<std::int64_t>(4 * (month_count * row + month));
}

// The bits of a number in the order of the file, from those in the order of memory, and back.
constexpr std::uint32_t file_order(std::uint32_t bits) {
    if constexpr (std::endian::native == std::endian::little) return bits;
    return bits << 24 | (bits & 0xff00) << 8 | (bits >> 8 & 0xff00) | bits >> 24;
}

}  // namespace quorvel::climate_file_layout
