#include "climate/rules.h"

#include <charconv>
#include <cmath>

#include "calculation/calendar.h"
#include "telling/text.h"

namespace quorvel::climatefile {
namespace {

std::string range_fault(const Quantity& quantity, float value) {
    if (value >= quantity.low && value <= quantity.high) return "";
    return std::string(quantity.key) + " is " +
           (std::isnan(value) ? "not a number" : shortest(value)) + "; allowed " +
           host::shortest(quantity.low) + " to " + host::shortest(quantity.high) + ' ' +
           quantity.unit;
}

}  // namespace

std::string shortest(float value) {
    char buffer[40];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

std::string frequency_fault(const Station& station, std::size_t set, std::size_t month,
                            std::size_t band) {
    const float F = station.rows[band_row(set, 0, band)][month];
    if (band > 0) {
        const float before = station.rows[band_row(set, 0, band - 1)][month];
        if (F < before)
            return "F falls from " + shortest(before) + " to " + shortest(F) +
                   "; it must rise from band to band";
    }
    if (band + 1 == band_count && F != 1.0f)
        return "F is " + shortest(F) + "; allowed 1 in band " + std::to_string(band_count);
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
            report(place, range_fault(time_a, value(time_row(set, 0))));
            report(place, range_fault(time_b, value(time_row(set, 1))));
            for (std::size_t band = 0; band < band_count; ++band) {
                const std::string in_band = place + ", band " + std::to_string(band + 1);
                for (std::size_t q = 0; q < quantities.size(); ++q)
                    report(in_band, range_fault(quantities[q], value(band_row(set, q, band))));
                report(in_band, frequency_fault(station, set, month, band));
            }
        }
    return found;
}

}  // namespace quorvel::climatefile
