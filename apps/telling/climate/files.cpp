#include "telling/climate/files.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "calculation/calendar.h"
#include "text/text.h"

namespace quorvel::climatefile {
namespace {

using host::month_names;

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
            months[month].push_back(host::shortest(station.rows[band_row(set, q, band)][month]));
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
        for (const float hour : station.rows[time_row(set, time)])
            hours.push_back(host::shortest(hour));
        text +=
            line(times[time].key, hours, 6, widest(hours)) + "  # " + times[time].meaning + '\n';
    }
    for (std::size_t q = 0; q < quantities.size(); ++q) text += quantity_text(station, set, q);
    return text;
}

// As TOML writes it.
std::string quoted(const std::string& name) {
    std::string text = "\"";
    for (const char c : name) {
        if (c == '"' || c == '\\') text += '\\';
        text += c;
    }
    return text + '"';
}

std::string place_text(const Place& place) {
    std::string text = "name = " + quoted(place.name) + '\n';
    const auto add = [&](const char* key, double value) {
        if (!std::isnan(value)) text += std::string(key) + " = " + host::shortest(value) + '\n';
    };
    add("latitude", place.latitude);
    add("longitude", place.longitude);
    add("height", place.height);
    add("zone", place.zone);
    return text;
}

// Puts station 1 at record 3, as near to the header as can be: record 2 would need H = -1, which
// the library takes for a header not yet read.
constexpr std::int32_t written_H = 0;
static_assert(first_record(1, written_H) == 3);
static_assert(sizeof(Station::rows) == station_records * record_bytes);

std::size_t begin_of(int station) {
    return static_cast<std::size_t>(value_offset(station, written_H, 0, 0));
}

using Number = std::array<char, 4>;

Number bytes_of(float value) {
    return std::bit_cast<Number>(file_order(std::bit_cast<std::uint32_t>(value)));
}

}  // namespace

std::string station_file(const Station& station, const std::string& comment) {
    std::string text =
        comment + place_text(station.place) + "station = " + std::to_string(station.number) + '\n';
    for (std::size_t set = 0; set < set_count; ++set) text += set_text(station, set);
    return text;
}

std::string data_file(const std::vector<Station>& stations) {
    int last = 0;
    for (const Station& station : stations) last = std::max(last, station.number);
    std::string bytes(begin_of(last + 1), '\0');
    for (const Station& station : stations) {
        auto to = bytes.begin() + static_cast<std::ptrdiff_t>(begin_of(station.number));
        for (const MonthlyRow& row : station.rows)
            for (const float value : row) to = std::ranges::copy(bytes_of(value), to).out;
    }
    return bytes;
}

std::string places_file(std::vector<Station> stations) {
    std::ranges::sort(stations, {}, &Station::number);
    std::string text = "# Where the stations are of the climate data file beside this one.\n";
    for (const Station& station : stations)
        text += "\n[[station]]\nnumber = " + std::to_string(station.number) + '\n' +
                place_text(station.place);
    return text;
}

}  // namespace quorvel::climatefile
