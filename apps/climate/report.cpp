#include "climate/report.h"

#include "calculation/calendar.h"
#include "climate/rules.h"
#include "telling/table.h"
#include "telling/text.h"

namespace quorvel::climatefile {
namespace {

std::string month_table(const Station& station, std::size_t set, std::size_t month) {
    host::Table table({{"", "band"},
                       {"", "F"},
                       {"Factors", "beam Q1"},
                       {"Factors", "diffuse Q2"},
                       {"Air, °C", "Q3 at A"},
                       {"Air, °C", "Q4 at B"},
                       {"Wet bulb, °C", "Q5 at A"},
                       {"Wet bulb, °C", "Q6 at B"},
                       {"Cloud-free", "Q7"}});
    for (std::size_t band = 0; band < band_count; ++band) {
        std::vector<std::string> cells{std::to_string(band + 1)};
        for (std::size_t q = 0; q < quantities.size(); ++q)
            cells.push_back(
                host::fixed(station.rows[band_row(set, q, band)][month], quantities[q].decimals));
        table.add(cells);
    }
    return table.text();
}

}  // namespace

std::string report(const Station& station, const std::vector<std::size_t>& sets,
                   const std::vector<std::size_t>& months) {
    std::string text = station.name + '\n';
    for (const std::size_t set : sets)
        for (const std::size_t month : months) {
            const auto hour = [&](std::size_t time) {
                return shortest(station.rows[time_row(set, time)][month]) + " h";
            };
            text += "\nSet " + std::to_string(set + 1) + ", " +
                    std::string(host::month_names[month]) + ": time A " + hour(0) + ", time B " +
                    hour(1) + '\n' + month_table(station, set, month);
        }
    return text;
}

}  // namespace quorvel::climatefile
