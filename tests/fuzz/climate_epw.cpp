// Hourly weather, as quorvel climate takes it. A year is too long for a seed, so that one is made
// of the header and a few hours, which follow one another round and round: the columns from the
// dry-bulb temperature on, a line each.
#include <vector>

#include "calculation/calendar.h"
#include "calculation/climate/band_climate.h"
#include "fuzz/input_file.h"
#include "reading/climate/epw.h"
#include "reading/climate/station_file.h"
#include "telling/climate/files.h"

namespace {

using namespace quorvel;
using namespace quorvel::climatefile;

constexpr int header_lines = 8;

std::string year_of(fuzz::Bytes bytes) {
    std::string year;
    for (int i = 0; i < header_lines; ++i) year.append(bytes.line()) += '\n';
    std::vector<std::string_view> hours;
    while (!bytes.empty()) hours.push_back(bytes.line());
    if (hours.empty()) return year;
    std::size_t next = 0;
    for (std::size_t month = 0; month < host::months_of_year; ++month)
        for (int day = 1; day <= host::days_of_month[month]; ++day)
            for (int hour = 1; hour <= 24; ++hour) {
                for (const auto number : {static_cast<int>(month) + 1, day, hour})
                    year.append(",").append(std::to_string(number));
                year.append(",60,?,").append(hours[next++ % hours.size()]) += '\n';
            }
    return year;
}

void from_hourly(const std::string& file) {
    Station station = band_climate(read_epw(file)).station;
    station.place.name = "Somewhere";
    station.number = 1;
    fuzz::write_file("station.toml", station_file(station, ""));
    try {
        read_station("station.toml");
    } catch (const host::InputError&) {
        fuzz::require(false, "the station of any year is one that can be packed");
    }
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const fuzz::Bytes bytes(data, size);
    fuzz::try_file(bytes.rest(), from_hourly);
    if (bytes.rest().starts_with("LOCATION")) fuzz::try_file(year_of(bytes), from_hourly);
    return 0;
}
