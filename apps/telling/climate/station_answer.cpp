#include "telling/climate/station_answer.h"

#include "calculation/calendar.h"
#include "text/text.h"

namespace quorvel::climatefile {
namespace {

using host::Answer;
using host::DataTable;
using host::Section;

constexpr std::array<const char*, quantity_count> column_names = {
    "F", "beam Q1", "diffuse Q2", "Q3 at A", "Q4 at B", "Q5 at A", "Q6 at B", "cloud-free Q7"};

host::Quantity column(std::size_t q) {
    const bool wet_bulb = q == 5 || q == 6, air = q == 3 || q == 4;
    return {.key = quantities[q].key,
            .name = column_names[q],
            .unit = air || wet_bulb ? "°C" : "",
            .decimals = quantities[q].decimals,
            .group = air                ? "Air"
                     : wet_bulb         ? "Wet bulb"
                     : q == 1 || q == 2 ? "Factors"
                                        : ""};
}

DataTable bands(const Station& station, std::size_t set, std::size_t month) {
    DataTable table{.key = "bands", .title = "", .columns = {{"band", "band"}}, .rows = {}};
    for (std::size_t q = 0; q < quantities.size(); ++q) table.columns.push_back(column(q));
    for (std::size_t band = 0; band < band_count; ++band) {
        std::vector<host::Value> row{static_cast<double>(band + 1)};
        for (std::size_t q = 0; q < quantities.size(); ++q)
            row.push_back(station.rows[band_row(set, q, band)][month]);
        table.rows.push_back(row);
    }
    return table;
}

host::Figure time(const Station& station, std::size_t set, std::size_t month, std::size_t time) {
    const Quantity& quantity = times[time];
    return {{quantity.key, time == 0 ? "time A" : "time B", "h", quantity.decimals},
            station.rows[time_row(set, time)][month],
            time == 0 ? "solar time, warmest" : "solar time, coldest"};
}

Section section(const Station& station, std::size_t set, std::size_t month) {
    const std::string name(host::month_names[month]), number = std::to_string(set + 1);
    return {.title = "Set " + number + ", " + name,
            .key = "set" + number + "_" + name,
            .figures = {time(station, set, month, 0), time(station, set, month, 1)},
            .tables = {bands(station, set, month)}};
}

const host::Quantity latitude{"latitude", "latitude", "° north", host::as_given},
    longitude{"longitude", "longitude", "° east", host::as_given},
    height{"height", "height", "m", host::as_given}, zone{"zone", "zone", "h", host::as_given};

}  // namespace

Answer told(const Station& station, const std::vector<std::size_t>& sets,
            const std::vector<std::size_t>& months) {
    const Place& place = station.place;
    Answer answer{.title = place.name};
    answer.sections.push_back(
        {.figures = {{latitude, place.latitude},
                     {longitude, place.longitude},
                     {height, place.height},
                     {zone, place.zone, "standard time ahead of universal"}}});
    for (const std::size_t set : sets)
        for (const std::size_t month : months)
            answer.sections.push_back(section(station, set, month));
    return answer;
}

Answer told_stations(const std::string& file, const std::vector<Station>& stations) {
    DataTable table{
        .key = "stations",
        .title = "",
        .columns = {{"station", "station"}, {"name", "name"}, latitude, longitude, height, zone},
        .rows = {}};
    for (const auto& [place, number, rows] : stations)
        table.rows.push_back({static_cast<double>(number), place.name, place.latitude,
                              place.longitude, place.height, place.zone});
    return {.title = file, .sections = {{.tables = {table}}}};
}

Answer told_violations(const std::string& file, std::size_t stations,
                       const std::vector<std::string>& violations) {
    const auto counted = [](std::size_t n, const std::string& what) {
        return std::to_string(n) + ' ' + what + (n == 1 ? "" : "s");
    };
    DataTable table{
        .key = "violations", .title = "", .columns = {{"violation", "violation"}}, .rows = {}};
    for (const std::string& violation : violations) table.rows.push_back({violation});
    Answer answer{.title = file,
                  .subtitle = counted(stations, "station") + " checked, " +
                              (violations.empty() ? "no rule violated"
                                                  : counted(violations.size(), "violation")),
                  .wrong = !violations.empty()};
    if (!violations.empty()) answer.sections.push_back({.tables = {table}});
    return answer;
}

}  // namespace quorvel::climatefile
