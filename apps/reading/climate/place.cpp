#include "reading/climate/place.h"

#include <fstream>

namespace quorvel::climatefile {
namespace {

constexpr std::size_t most_stations = last_station_number;

}  // namespace

std::string file_of_places(const std::string& data_file) { return data_file + ".toml"; }

Place read_place(const host::InputTable& table, std::initializer_list<std::string_view> required) {
    table.expect(required, {"latitude", "longitude", "height", "zone"});
    Place place;
    place.name = table.text("name");
    const auto number = [&](const char* key, const host::Range& range) {
        return table.has(key) ? table.number(key, range) : host::none;
    };
    place.latitude = number("latitude", {-90, 90, "degrees north"});
    place.longitude = number("longitude", {-180, 180, "degrees east"});
    place.height = number("height", {-500, 9000, "m"});
    place.zone = number("zone", {-12, 14, "h"});
    return place;
}

std::map<int, Place> read_places(const std::string& data_file) {
    std::map<int, Place> places;
    const std::string path = file_of_places(data_file);
    if (!std::ifstream(path)) return places;
    const host::InputFile file(path);
    const host::InputTable root = file.root();
    root.expect({"station"});
    for (const host::InputTable& table : root.tables("station", 1, most_stations)) {
        Place place = read_place(table, {"number", "name"});
        const int number = table.integer("number", 1, last_station_number);
        if (!places.try_emplace(number, std::move(place)).second)
            throw table.error("number", "station " + std::to_string(number) + " is there twice");
    }
    return places;
}

Place place_of(const std::map<int, Place>& places, int number) {
    const auto found = places.find(number);
    if (found != places.end()) return found->second;
    Place place;
    place.name = "Station " + std::to_string(number);
    return place;
}

}  // namespace quorvel::climatefile
