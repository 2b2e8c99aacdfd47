#include "reading/climate/station_file.h"

#include <algorithm>
#include <utility>

#include "calculation/calendar.h"
#include "reading/climate/place.h"
#include "reading/climate/rules.h"
#include "reading/input.h"

namespace quorvel::climatefile {
namespace {

using host::InputTable;
using host::month_names;

host::Range range_of(const Quantity& quantity) {
    return {quantity.low, quantity.high, quantity.unit};
}

template <std::size_t... months>
void expect_months(const InputTable& table, std::index_sequence<months...>) {
    table.expect({month_names[months]...});
}

void read_frequency_rules(const InputTable& table, const Station& station, std::size_t set,
                          std::size_t month) {
    for (std::size_t band = 0; band < band_count; ++band)
        if (const auto fault = frequency_fault(station, set, month, band); !fault.empty())
            throw table.error(month_names[month],
                              "band " + std::to_string(band + 1) + ": " + fault);
}

void read_quantity(const InputTable& table, Station& station, std::size_t set, std::size_t q) {
    expect_months(table, std::make_index_sequence<month_count>());
    for (std::size_t month = 0; month < month_count; ++month) {
        const auto values = table.numbers(month_names[month], band_count, range_of(quantities[q]));
        for (std::size_t band = 0; band < band_count; ++band)
            station.rows[band_row(set, q, band)][month] = static_cast<float>(values[band]);
        if (q == 0) read_frequency_rules(table, station, set, month);
    }
}

void read_set(const InputTable& table, Station& station, std::size_t set) {
    table.expect({"time_A", "time_B", "F", "Q1", "Q2", "Q3", "Q4", "Q5", "Q6", "Q7"});
    for (std::size_t time = 0; time < 2; ++time) {
        const auto hours = table.numbers(times[time].key, month_count, range_of(times[time]));
        std::ranges::transform(hours, station.rows[time_row(set, time)].begin(),
                               [](double hour) { return static_cast<float>(hour); });
    }
    for (std::size_t q = 0; q < quantities.size(); ++q)
        read_quantity(table.table(quantities[q].key), station, set, q);
}

}  // namespace

Station read_station(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    Station station;
    station.place = read_place(root, {"name", "station", "set1", "set2"});
    station.number = root.integer("station", 1, last_station_number);
    for (std::size_t set = 0; set < set_count; ++set)
        read_set(root.table(set_keys[set]), station, set);
    return station;
}

}  // namespace quorvel::climatefile
