#include "climate/climate_file.h"
#include "entry/climate/climate_file.h"
#include "entry/entry.h"

#include <algorithm>
#include <mutex>

#include "base/lock.h"

using namespace quorvel;

namespace {

constinit Lock lock;
[[maybe_unused]] const KeptOverForks<lock> kept_over_forks;
constinit climate::ClimateFileState state;

// Every call works under the lock; a call that finds something unreadable leaves its outputs alone.
struct Call {
    std::lock_guard<Lock> guard{lock};
    climate::ClimateFileReader<climate::RecordFile> file{state};
};

}  // namespace

void CLBNF0(const char* file_name, const Integer* station, const Integer* month,
            Real* station_records) {
    Call().file.station_records(file_name, *station, *month, station_records);
}

void CLBNFI(const Integer* file_unit, const Integer* station, const Integer* band,
            const Integer* month, const Integer* band_set, const Real* percentage, Real* q1,
            Real* q2, Real* q3, Real* q4, Real* q5, Real* q6, Real* q7, Real* time_a,
            Real* time_b) {
    Call call;
    call.file.select(*file_unit, *station);
    const auto climate = call.file.station_climate(*band, *percentage / 100.0f, *month, *band_set);
    if (!climate) return;
    Real* const quantities[climate::station_quantities] = {q1, q2, q3, q4, q5, q6, q7};
    for (std::size_t q = 0; q < climate->quantities.size(); ++q)
        *quantities[q] = climate->quantities[q];
    *time_a = climate->time_a;
    *time_b = climate->time_b;
}

void CLBNF1(const Real* fraction, const Integer* month, Integer* lower_band, Integer* upper_band,
            Real* band_weight) {
    const std::lock_guard guard(lock);
    const auto position = climate::locate_station_band(state, *fraction, *month);
    *lower_band = position.lower;
    *upper_band = position.upper;
    *band_weight = position.weight;
}

void CLBNF2(const Integer* base_row, const Integer* lower_band, const Integer* upper_band,
            const Integer* month, const Real* band_weight, Real* value) {
    Call call;
    const std::int64_t before = std::int64_t{*base_row} - 1;
    if (const auto found = call.file.interpolate_station_rows(
            before + *lower_band, before + *upper_band, *month, *band_weight))
        *value = *found;
}

void CLBNF3(const Integer* row, Real* values) {
    Call call;
    if (const auto* const found = call.file.station_row(std::int64_t{*row} - 1))
        std::ranges::copy(*found, values);
}
