#include "reading/climate/epw.h"

#include <charconv>
#include <cmath>
#include <fstream>
#include <optional>
#include <string_view>

#include "calculation/calendar.h"
#include "reading/input.h"
#include "telling/text.h"

namespace quorvel::climatefile {
namespace {

using host::InputError;

constexpr int header_lines = 8;
constexpr int month_days[] = {31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31};

struct Column {
    std::size_t index;  // from 0
    const char* name;
    double low, high, missing;
    const char* unit;
};
constexpr Column month_column{1, "month", 1, 12, 0, ""}, day_column{2, "day", 1, 31, 0, ""},
    hour_column{3, "hour", 1, 24, 0, ""}, dry_bulb{6, "dry-bulb temperature", -70, 70, 99.9, " °C"},
    relative_humidity{8, "relative humidity", 0, 110, 999, " %"},
    pressure{9, "atmospheric pressure", 31000, 120000, 999999, " Pa"},
    direct_normal{14, "direct normal irradiation", 0, 1500, 9999, " Wh/m²"},
    diffuse_horizontal{15, "diffuse horizontal irradiation", 0, 1500, 9999, " Wh/m²"},
    sky_cover{22, "total sky cover", 0, 10, 99, " tenths"};
constexpr Column latitude{6, "latitude", -90, 90, 999, " degrees north"},
    longitude{7, "longitude", -180, 180, 999, " degrees east"},
    zone{8, "time zone", -12, 14, 999, " h"}, height{9, "elevation", -500, 9000, 9999, " m"},
    per_hour{2, "records per hour", 1, 1, 0, ""};

std::optional<double> number(std::string_view field) {
    const auto first = field.find_first_not_of(" +");
    if (first == std::string_view::npos) return std::nullopt;
    field = field.substr(first, field.find_last_not_of(' ') + 1 - first);
    double value;
    const char* const end = field.data() + field.size();
    const auto [rest, fault] = std::from_chars(field.data(), end, value);
    if (fault != std::errc() || rest != end) return std::nullopt;
    return value;
}

// The lines of the file, the one in hand split at its commas.
class Lines {
  public:
    explicit Lines(const std::string& path) : path_(path), stream_(path, std::ios::binary) {
        if (!stream_ || (stream_.peek(), stream_.bad()))
            throw InputError(path_ + ": cannot be read");
    }

    // False at the end of the file, where the line in hand is a blank one.
    bool next() {
        const bool more = static_cast<bool>(std::getline(stream_, line_));
        if (!more) line_.clear();
        ++number_;
        while (!line_.empty() && (line_.back() == '\r' || line_.back() == ' ')) line_.pop_back();
        fields_.clear();
        std::string_view rest = line_;
        for (auto comma = rest.find(','); comma != rest.npos; comma = rest.find(',')) {
            fields_.push_back(rest.substr(0, comma));
            rest.remove_prefix(comma + 1);
        }
        fields_.push_back(rest);
        return more;
    }

    bool blank() const { return line_.empty(); }
    std::string_view field(std::size_t i) const { return i < fields_.size() ? fields_[i] : ""; }

    double value(const Column& column) const {
        if (column.index >= fields_.size())
            throw error(std::string(column.name) + ": missing; the line ends after " +
                        std::to_string(fields_.size()) + " fields");
        const auto value = number(fields_[column.index]);
        if (value && *value >= column.low && *value <= column.high) return *value;
        const std::string note =
            value && *value == column.missing ? ", which stands for no value" : "";
        throw error(std::string(column.name) + ": value " + std::string(fields_[column.index]) +
                    note + "; allowed " + host::shortest(column.low) + " to " +
                    host::shortest(column.high) + column.unit);
    }
    double value_or_nan(const Column& column) const {
        return number(field(column.index)) == column.missing ? std::nan("") : value(column);
    }

    InputError error(const std::string& message) const {
        return InputError(path_ + ':' + std::to_string(number_) + ": " + message);
    }

  private:
    std::string path_, line_;
    std::ifstream stream_;
    std::vector<std::string_view> fields_;
    int number_ = 0;
};

void read_header(Lines& lines, WeatherYear& year) {
    if (!lines.next() || lines.field(0) != "LOCATION")
        throw lines.error("does not begin with LOCATION, as an EPW file does");
    year.place = lines.field(1);
    year.latitude = lines.value(latitude);
    year.longitude = lines.value(longitude);
    year.zone = lines.value(zone);
    year.height = lines.value(height);
    for (int line = 2; line <= header_lines; ++line)
        if (!lines.next()) throw lines.error("ends within the header");
    if (lines.field(0) != "DATA PERIODS")
        throw lines.error("DATA PERIODS expected, the last line of the header");
    lines.value(per_hour);
}

Hour read_hour(const Lines& lines) {
    return {lines.value(dry_bulb),           lines.value(relative_humidity),
            lines.value(pressure),           lines.value(direct_normal),
            lines.value(diffuse_horizontal), lines.value_or_nan(sky_cover)};
}

bool is_hour(const Lines& lines, int month, int day, int hour) {
    return lines.value(month_column) == month && lines.value(day_column) == day &&
           lines.value(hour_column) == hour;
}

std::string told(int month, int day, int hour) {
    return std::to_string(day) + ' ' +
           std::string(host::month_names[static_cast<std::size_t>(month - 1)]) + ", hour " +
           std::to_string(hour);
}

// The line in hand is the day's first hour; afterwards it is the one behind its last.
void read_day(Lines& lines, WeatherYear& year, int month, int day, int day_of_year) {
    WeatherDay weather{month, day_of_year, {}};
    for (int hour = 1; hour <= 24; ++hour) {
        if (lines.blank())
            throw lines.error("ends before " + told(month, day, hour) + "; a whole year is needed");
        if (!is_hour(lines, month, day, hour))
            throw lines.error(told(month, day, hour) + " expected");
        weather.hours[static_cast<std::size_t>(hour - 1)] = read_hour(lines);
        lines.next();
    }
    year.days.push_back(weather);
}

}  // namespace

WeatherYear read_epw(const std::string& path) {
    Lines lines(path);
    WeatherYear year;
    read_header(lines, year);
    lines.next();
    int day_of_year = 0;
    for (int month = 1; month <= 12; ++month) {
        for (int day = 1; day <= month_days[month - 1]; ++day)
            read_day(lines, year, month, day, ++day_of_year);
        if (month == 2 && !lines.blank() && is_hour(lines, 2, 29, 1))
            read_day(lines, year, month, 29, day_of_year);
    }
    if (!lines.blank()) throw lines.error("31 December, hour 24 must be the last line");
    return year;
}

}  // namespace quorvel::climatefile
