#include "reading/climate/rules.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "calculation/calendar.h"
#include "text/text.h"

namespace quorvel::climatefile {
namespace {

std::string range_fault(const Quantity& quantity, float value) {
    if (value >= quantity.low && value <= quantity.high) return "";
    return std::string(quantity.key) + " is " +
           (std::isnan(value) ? "not a number" : host::shortest(value)) + "; allowed " +
           host::shortest(quantity.low) + " to " + host::shortest(quantity.high) + ' ' +
           quantity.unit;
}

// The rules that concern the file as a whole.
std::vector<std::string> file_violations(const DataFile& file) {
    std::vector<std::string> found;
    const std::int64_t first = first_record(1, file.H()), last = file.last_station();
    const std::string begins = "header: H = " + std::to_string(file.H()) +
                               " lets station 1 begin at record " + std::to_string(first);
    if (file.bytes() % record_bytes != 0)
        found.push_back("file length: " + std::to_string(file.bytes()) +
                        " bytes are no whole number of records of " + std::to_string(record_bytes));
    if (file.records() == 0)
        found.push_back("file length: no room for the header");
    else if (first < 2)
        found.push_back(begins + ", ahead of record 2");
    else if (last < 1)
        found.push_back(begins + ", behind the " + std::to_string(file.records()) +
                        " records of the file");
    else if (!file.holds(last))
        found.push_back("file length: station " + std::to_string(last) + " has only " +
                        std::to_string(file.records() + 1 - first_record(last, file.H())) +
                        " of its " + std::to_string(station_records) + " records");
    return found;
}

}  // namespace

std::string frequency_fault(const Station& station, std::size_t set, std::size_t month,
                            std::size_t band) {
    const float F = station.rows[band_row(set, 0, band)][month];
    if (band > 0) {
        const float before = station.rows[band_row(set, 0, band - 1)][month];
        if (F < before)
            return "F falls from " + host::shortest(before) + " to " + host::shortest(F) +
                   "; it must rise from band to band";
    }
    if (band + 1 == band_count && F != 1.0f)
        return "F is " + host::shortest(F) + "; allowed 1 in band " + std::to_string(band_count);
    return "";
}

std::vector<std::string> violations(const Station& station) {
    std::vector<std::string> found;
    const auto report = [&](const std::string& place, const std::string& fault) {
        if (!fault.empty()) found.push_back(place + ": " + fault);
    };
    for (std::size_t set = 0; set < set_count; ++set)
        for (std::size_t month = 0; month < month_count; ++month) {
            const auto value = [&](std::size_t row) { return station.rows[row][month]; };
            const std::string place =
                "set " + std::to_string(set + 1) + ", " + std::string(host::month_names[month]);
            for (std::size_t time = 0; time < times.size(); ++time)
                report(place, range_fault(times[time], value(time_row(set, time))));
            for (std::size_t band = 0; band < band_count; ++band) {
                const std::string in_band = place + ", band " + std::to_string(band + 1);
                for (std::size_t q = 0; q < quantities.size(); ++q)
                    report(in_band, range_fault(quantities[q], value(band_row(set, q, band))));
                report(in_band, frequency_fault(station, set, month, band));
            }
        }
    return found;
}

// With an H far below 0 the first of them is one of millions.
std::vector<int> whole_stations(const DataFile& file) {
    std::vector<int> numbers;
    const std::int64_t first = (1 - first_record(0, file.H())) / station_records + 1;
    const auto last = std::min<std::int64_t>(file.last_station(), std::numeric_limits<int>::max());
    for (std::int64_t number = std::max<std::int64_t>(first, 1); number <= last; ++number)
        if (file.holds(number)) numbers.push_back(static_cast<int>(number));
    return numbers;
}

Findings check(const DataFile& file, std::optional<int> station) {
    Findings findings{0, file_violations(file)};
    auto& found = findings.violations;
    auto numbers = whole_stations(file);
    if (station) numbers = {*station};
    if (station && !file.holds(*station) && !found.empty()) numbers.clear();
    for (const int number : numbers) {
        const Station values = station ? file.station(number) : file.any_station(number);
        if (values.empty()) continue;
        ++findings.stations;
        for (const std::string& violation : violations(values))
            found.push_back("station " + std::to_string(number) + ", " + violation);
    }
    if (found.empty() && findings.stations == 0) found.push_back("no station has any values");
    return findings;
}

}  // namespace quorvel::climatefile
