#include "reading/wall/climate.h"

#include <algorithm>
#include <cmath>

#include "calculation/calendar.h"
#include "calculation/climate/atmosphere.h"
#include "calculation/wall/climates.h"
#include "reading/climate/data_file.h"
#include "reading/climate/epw.h"
#include "reading/climate/station_file.h"

namespace quorvel::wall {
namespace {

using host::InputTable;

constexpr host::Range temperature{-50, 60, "°C"}, humidity{0, 100, "%"};

struct Outdoors {
    std::vector<Air> air;
    std::string source = {};
    std::vector<climatefile::Replacement> replaced = {};
};

Outdoors of_weather(const std::string& file) {
    climatefile::WeatherYear weather = climatefile::read_epw(file);
    return {outside_air(climatefile::monthly_means(weather)),
            "Monthly means of the weather of " + weather.place, std::move(weather.replaced)};
}

bool is_station_file(const std::string& name) { return name.ends_with(".toml"); }

climatefile::Station read_station(const InputTable& table) {
    const std::string file = table.file("file");
    if (!is_station_file(file))
        return climatefile::DataFile(file).station(
            table.integer("station", 1, climatefile::last_station_number));
    if (table.has("station")) throw table.error("station", "a station file has one station only");
    return climatefile::read_station(file);
}

Outdoors of_station(const InputTable& table) {
    const std::string name = table.file_name("file");
    const int set = table.has("set") ? table.integer("set", 1, 2) : 1;
    const auto station = read_station(table);
    const double height = std::isnan(station.place.height) ? 0 : station.place.height;
    const auto means = climatefile::monthly_means(station, static_cast<std::size_t>(set - 1),
                                                  climatefile::standard_pressure(height));
    for (std::size_t month = 0; month < host::months_of_year; ++month)
        if (!(std::fabs(means.temperature[month]) <= 90) || !(means.vapour_pressure[month] > 0))
            throw table.error("file", name + ": no temperature or humidity in " +
                                          std::string(host::month_names[month]));
    return {outside_air(means), "Monthly means of " + station.place.name + ", of " + name};
}

// Every quantity is a number or a list of twelve; one list is enough to make it twelve cases.
Outdoors of_input(const InputTable& table) {
    bool monthly = false;
    for (const char* key :
         {"inside_temperature", "inside_humidity", "outside_temperature", "outside_humidity"})
        monthly = monthly || (table.has(key) && table.is_list(key));
    const std::size_t cases = monthly ? host::months_of_year : 1;
    const auto t = table.numbers("outside_temperature", cases, temperature);
    const auto rh = table.numbers("outside_humidity", cases, humidity);
    Outdoors outdoors;
    for (std::size_t i = 0; i < cases; ++i) outdoors.air.push_back({t[i], rh[i]});
    return outdoors;
}

Outdoors read_outdoors(const InputTable& table, const std::string& weather) {
    if (!weather.empty()) {
        table.expect({"inside_temperature"},
                     {"inside_humidity", "humidity_class", "outside_temperature",
                      "outside_humidity", "weather", "file", "station", "set"});
        return of_weather(weather);
    }
    if (table.has("weather")) {
        table.expect({"weather", "inside_temperature"}, {"inside_humidity", "humidity_class"});
        return of_weather(table.file("weather"));
    }
    if (table.has("file")) {
        table.expect({"file", "inside_temperature"},
                     {"station", "set", "inside_humidity", "humidity_class"});
        if (!table.has("station") && !is_station_file(table.file_name("file")))
            throw table.error("", "missing station");
        return of_station(table);
    }
    table.expect({"inside_temperature", "outside_temperature", "outside_humidity"},
                 {"inside_humidity", "humidity_class"});
    return of_input(table);
}

Indoors read_indoors(const InputTable& table, std::size_t cases) {
    if (table.has("inside_humidity") == table.has("humidity_class"))
        throw table.error("", "needs either inside_humidity or humidity_class");
    Indoors indoors{table.numbers("inside_temperature", cases, temperature), {}, {}};
    if (table.has("humidity_class"))
        indoors.humidity_class = table.integer("humidity_class", 1, humidity_classes);
    else
        indoors.humidity = table.numbers("inside_humidity", cases, humidity);
    return indoors;
}

}  // namespace

ReadClimate read_climate(const InputTable& table, const std::string& weather) {
    Outdoors outdoors = read_outdoors(table, weather);
    const Indoors indoors = read_indoors(table, outdoors.air.size());
    ReadClimate read{climates(indoors, outdoors.air), std::move(outdoors.source),
                     std::move(outdoors.replaced)};
    read.saturated_inside =
        indoors.humidity_class && std::ranges::any_of(read.climates, [](const Climate& climate) {
            return climate.inside.humidity >= 100;
        });
    return read;
}

}  // namespace quorvel::wall
