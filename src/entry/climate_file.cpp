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

void CLBNF0(const char* file, const Integer* station, const Integer* month, Real* records) {
    Call call;
    if (!call.file.open(file, *station)) return;
    call.file.fill_records(*month, records);
}

void CLBNFI(const Integer* unit, const Integer* station, const Integer* band, const Integer* month,
            const Integer* set, const Real* percentage, Real* q1, Real* q2, Real* q3, Real* q4,
            Real* q5, Real* q6, Real* q7, Real* time_a, Real* time_b) {
    Call call;
    call.file.select(*unit, *station);
    const auto climate = call.file.climate(*band, *percentage / 100.0f, *month, *set);
    if (!climate) return;
    Real* const quantities[climate::station_quantities] = {q1, q2, q3, q4, q5, q6, q7};
    for (std::size_t q = 0; q < climate->quantities.size(); ++q)
        *quantities[q] = climate->quantities[q];
    *time_a = climate->time_a;
    *time_b = climate->time_b;
}

void CLBNF1(const Real* fraction, const Integer* month, Integer* lower, Integer* upper,
            Real* weight) {
    const std::lock_guard guard(lock);
    const auto position = climate::locate_station_band(state, *fraction, *month);
    *lower = position.lower;
    *upper = position.upper;
    *weight = position.weight;
}

void CLBNF2(const Integer* base, const Integer* lower, const Integer* upper, const Integer* month,
            const Real* weight, Real* value) {
    Call call;
    const std::int64_t before = std::int64_t{*base} - 1;
    if (const auto found = call.file.between(before + *lower, before + *upper, *month, *weight))
        *value = *found;
}

void CLBNF3(const Integer* row, Real* values) {
    Call call;
    if (const auto* const found = call.file.row(std::int64_t{*row} - 1))
        std::ranges::copy(*found, values);
}
