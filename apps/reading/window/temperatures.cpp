#include "reading/window/temperatures.h"

#include "calculation/calendar.h"
#include "reading/climate/data_file.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

climatefile::MonthRecord read_month(const host::InputTable& table, int station, int month, int set,
                                    double percentage) {
    try {
        return climatefile::DataFile(table.file("file")).month(station, month, set, percentage);
    } catch (const host::InputError& fault) {
        throw table.error("file", fault.what());
    }
}

}  // namespace

void read_climate(const host::InputTable& table, DesignDay& day, std::vector<std::string>& notes) {
    table.expect({"file", "station", "percentage"}, {"set"});
    const int station = table.integer("station", 1, climatefile::last_station_number);
    const double share = table.number("percentage", {0, 100, "% of days"});
    const int set = table.has("set") ? table.integer("set", 1, 2) : 1;
    const auto found = station_day(read_month(table, station, day.month, set, share));

    const std::string place = table.file_name("file") + ", station " + std::to_string(station);
    const std::string month(host::month_names[static_cast<std::size_t>(day.month - 1)]);
    if (!found)
        throw table.error("station", place + ": no day's temperatures in " + month +
                                         "; needed are hours, 0 to 24 h, and temperatures, -90 to "
                                         "60 °C");
    day.outdoor_min = found->air.minimum;
    day.outdoor_max = found->air.maximum;
    day.hour_of_min = found->air.hour_of_min;
    day.hour_of_max = found->air.hour_of_max;
    day.source = place + ", at " + host::shortest(share) + " % of set " + std::to_string(set) +
                 (found->is_turned ? ", its warmer hour being B" : "");
    if (found->is_assumed)
        notes.push_back(place + ": its hours A and B in " + month +
                        " are the same; the coldest is taken 10 hours ahead of the warmest");
}

}  // namespace quorvel::window
