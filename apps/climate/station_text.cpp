#include "climate/station_text.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "calculation/calendar.h"
#include "climate/rules.h"
#include "reading/input.h"

namespace quorvel::climatefile {
namespace {

using host::InputTable;
using host::month_names;

constexpr const char* set_keys[] = {"set1", "set2"};
constexpr const Quantity* times[] = {&time_a, &time_b};

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
        const auto hours = table.numbers(times[time]->key, month_count, range_of(*times[time]));
        std::ranges::transform(hours, station.rows[time_row(set, time)].begin(),
                               [](double hour) { return static_cast<float>(hour); });
    }
    for (std::size_t q = 0; q < quantities.size(); ++q)
        read_quantity(table.table(quantities[q].key), station, set, q);
}

// A key and its list, each number in the width of the widest of the table.
std::string line(std::string_view key, const std::vector<std::string>& numbers,
                 std::size_t key_width, std::size_t width) {
    std::string text(key);
    text += std::string(key_width - key.size(), ' ') + " = [";
    for (const std::string& number : numbers)
        text += (&number == numbers.data() ? "" : ", ") + std::string(width - number.size(), ' ') +
                number;
    return text + "]";
}

std::size_t widest(const std::vector<std::string>& numbers) {
    std::size_t width = 0;
    for (const std::string& number : numbers) width = std::max(width, number.size());
    return width;
}

std::string quantity_text(const Station& station, std::size_t set, std::size_t q) {
    std::vector<std::vector<std::string>> months(month_count);
    std::size_t width = 0;
    for (std::size_t month = 0; month < month_count; ++month) {
        for (std::size_t band = 0; band < band_count; ++band)
            months[month].push_back(shortest(station.rows[band_row(set, q, band)][month]));
        width = std::max(width, widest(months[month]));
    }
    const Quantity& quantity = quantities[q];
    std::string text = std::string("\n[") + set_keys[set] + '.' + quantity.key + "]  # " +
                       quantity.meaning + "; bands 1 to 10\n";
    for (std::size_t month = 0; month < month_count; ++month)
        text += line(month_names[month], months[month], 9, width) + '\n';
    return text;
}

std::string set_text(const Station& station, std::size_t set) {
    std::string text = std::string("\n[") + set_keys[set] + "]  # January to December\n";
    for (std::size_t time = 0; time < 2; ++time) {
        std::vector<std::string> hours;
        for (const float hour : station.rows[time_row(set, time)]) hours.push_back(shortest(hour));
        text +=
            line(times[time]->key, hours, 6, widest(hours)) + "  # " + times[time]->meaning + '\n';
    }
    for (std::size_t q = 0; q < quantities.size(); ++q) text += quantity_text(station, set, q);
    return text;
}

std::string quoted(const std::string& name) {
    std::string text = "\"";
    for (const char c : name) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

}  // namespace

Station read_station(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    root.expect({"name", "station", "set1", "set2"});
    Station station;
    station.name = root.text("name");
    station.number = root.integer("station", 1, last_station_number);
    for (std::size_t set = 0; set < set_count; ++set)
        read_set(root.table(set_keys[set]), station, set);
    return station;
}

std::string station_text(const Station& station, const std::string& comment) {
    std::string text = comment + "name = " + quoted(station.name) +
                       "\nstation = " + std::to_string(station.number) + '\n';
    for (std::size_t set = 0; set < set_count; ++set) text += set_text(station, set);
    return text;
}

}  // namespace quorvel::climatefile
