#include "reading/window/temperatures.h"

#include <algorithm>
#include <array>
#include <fstream>

#include "calculation/calendar.h"
#include "quorvel/climate.h"
#include "telling/text.h"

namespace quorvel::window {
namespace {

constexpr std::size_t longest_file_name = 400;

// A month's record as the library fills it; what else it fills is not used here.
using Record = std::array<float, 11>;
constexpr std::size_t at_hour_b = 0, hour_b = 2, at_hour_a = 3, hour_a = 5;
constexpr std::size_t set = 9, percentage = 10;  // given

constexpr float unread = -1e30f;  // the library leaves what it cannot read as it was

bool readable(const std::string& file) {
    std::ifstream stream(file, std::ios::binary);
    return stream && stream.peek() != std::ifstream::traits_type::eof();
}

bool is_day(const Record& record) {
    const auto within = [](float low, float value, float high) {
        return low <= value && value <= high;
    };
    return within(0, record[hour_b], 24) && within(0, record[hour_a], 24) &&
           record[hour_a] != record[hour_b] && within(-90, record[at_hour_b], 60) &&
           within(-90, record[at_hour_a], 60);
}

}  // namespace

void read_climate(const host::InputTable& table, const std::string& input, DesignDay& day) {
    table.expect({"file", "station", "percentage"}, {"set"});
    const std::string name = table.text("file", longest_file_name);
    const int station = table.integer("station", 1, 9999);
    const double share = table.number("percentage", {0, 100, "% of days"});
    const int which = table.has("set") ? table.integer("set", 1, 2) : 1;

    const std::string file = host::beside(input, name);
    if (!readable(file)) throw table.error("file", file + " cannot be read");
    std::array<Record, 12> records;
    Record& record = records[static_cast<std::size_t>(day.month - 1)];
    record.fill(unread);
    record[set] = static_cast<float>(which);
    record[percentage] = static_cast<float>(share);
    lib::CLBNF0(file, station, day.month, records.front().data());

    const std::string place = file + ", station " + std::to_string(station);
    if (std::ranges::find(record, unread) != record.end())
        throw table.error("station", file + " has no station " + std::to_string(station));
    const std::string month(host::month_names[static_cast<std::size_t>(day.month - 1)]);
    if (!is_day(record))
        throw table.error(
            "station",
            place + ": no day's temperatures in " + month +
                "; needed are two different hours, 0 to 24 h, and temperatures, -90 to 60 °C");
    const bool turned = record[at_hour_b] > record[at_hour_a];  // the colder hour is called A
    const std::size_t cold = turned ? at_hour_a : at_hour_b, warm = turned ? at_hour_b : at_hour_a;
    day.outdoor_min = record[cold];
    day.outdoor_max = record[warm];
    day.hour_of_min = record[turned ? hour_a : hour_b];
    day.hour_of_max = record[turned ? hour_b : hour_a];
    day.source = name + ", station " + std::to_string(station) + ", at " + host::shortest(share) +
                 " % of set " + std::to_string(which) + (turned ? ", its warmer hour being B" : "");
}

}  // namespace quorvel::window
