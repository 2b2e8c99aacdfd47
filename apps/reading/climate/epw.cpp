#include "reading/climate/epw.h"

#include <charconv>
#include <fstream>
#include <optional>
#include <string_view>

#include "calculation/calendar.h"
#include "calculation/climate/mended_weather.h"
#include "calculation/none.h"
#include "reading/input.h"
#include "text/text.h"

namespace quorvel::climatefile {
namespace {

using host::InputError;

constexpr int longest_header = 100;  // lines; eight are usual
constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";

constexpr const char* blanks = " \r\x1A";  // the last one: an end mark of old files

// A value outside is impossible, or one of those that stand for a missing one: 99.9, 999, 9999.
struct Column {
    std::size_t index;  // from 0
    const char* name;
    double low, high;
    const char* unit = "";
};
constexpr std::size_t month_column = 1, day_column = 2, hour_column = 3;
constexpr Column dry_bulb{6, "dry-bulb temperature", -90, 60, " °C"},
    dew_point{7, "dew-point temperature", -90, 60, " °C"},
    relative_humidity{8, "relative humidity", 0, 115, " %"},
    pressure{9, "atmospheric pressure", 31000, 120000, " Pa"},
    horizontal_infrared{12, "horizontal infrared radiation", 50, 700, " Wh/m²"},
    direct_normal{14, "direct normal irradiation", -20, 1500, " Wh/m²"},
    diffuse_horizontal{15, "diffuse horizontal irradiation", -20, 1500, " Wh/m²"},
    sky_cover{22, "total sky cover", 0, 10, " tenths"},
    opaque_cover{23, "opaque sky cover", 0, 10, " tenths"};
constexpr Column latitude{6, "latitude", -90, 90, " degrees north"},
    longitude{7, "longitude", -180, 180, " degrees east"}, zone{8, "time zone", -12, 14, " h"},
    height{9, "elevation", -500, 9000, " m"}, per_hour{2, "records per hour", 1, 1};
constexpr std::size_t required_columns = 16;  // of an hour, from the left

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
        line_.erase(line_.find_last_not_of(blanks) + 1);
        fields_.clear();
        std::string_view rest = line_;
        if (number_ == 1 && rest.starts_with(byte_order_mark))
            rest.remove_prefix(byte_order_mark.size());
        for (auto comma = rest.find(','); comma != rest.npos; comma = rest.find(',')) {
            fields_.push_back(rest.substr(0, comma));
            rest.remove_prefix(comma + 1);
        }
        fields_.push_back(rest);
        return more;
    }

    bool blank() const { return line_.empty(); }
    std::string_view field(std::size_t i) const { return i < fields_.size() ? fields_[i] : ""; }

    // Throws unless there is a value that is possible.
    double value(const Column& column) const {
        const auto value = number(required(column));
        if (value && is_possible(*value, column)) return *value;
        throw not_allowed(column);
    }

    // NaN where there is no value, or one that is impossible. Throws where there is something else.
    double value_if_any(const Column& column) const {
        const std::string_view field =
            column.index < required_columns ? required(column) : this->field(column.index);
        if (field.find_first_not_of(' ') == field.npos) return host::none;
        const auto value = number(field);
        if (!value) throw not_allowed(column);
        return is_possible(*value, column) ? *value : host::none;
    }

    bool is(std::size_t column, int value) const { return number(field(column)) == value; }

    InputError error(const std::string& message) const {
        return InputError(path_ + ':' + std::to_string(number_) + ": " + message);
    }

  private:
    static bool is_possible(double value, const Column& column) {
        return value >= column.low && value <= column.high;
    }

    std::string_view required(const Column& column) const {
        if (column.index < fields_.size()) return fields_[column.index];
        throw error(std::string(column.name) + ": missing; the line ends after " +
                    std::to_string(fields_.size()) + " fields");
    }

    InputError not_allowed(const Column& column) const {
        return error(std::string(column.name) + ": value " + std::string(field(column.index)) +
                     "; allowed " + host::shortest(column.low) + " to " +
                     host::shortest(column.high) + column.unit);
    }

    std::string path_, line_;
    std::ifstream stream_;
    std::vector<std::string_view> fields_;
    int number_ = 0;
};

// Latin-1, which many of these files are in, as UTF-8; what is UTF-8 stays.
std::string as_utf8(std::string_view name) {
    std::string converted;
    for (std::size_t i = 0; i < name.size(); ++i) {
        const auto c = static_cast<unsigned char>(name[i]);
        const std::size_t more = c >= 0xF0 ? 3 : c >= 0xE0 ? 2 : c >= 0xC2 ? 1 : 0;
        std::size_t length = 1;
        while (length <= more && i + length < name.size() && (name[i + length] & 0xC0) == 0x80)
            ++length;
        if (c < 0x20 || c == 0x7F) {
            converted += '?';
        } else if (c < 0x80 || (more > 0 && length == more + 1)) {
            converted += name.substr(i, length);
            i += length - 1;
        } else {
            converted += static_cast<char>(0xC0 | c >> 6);
            converted += static_cast<char>(0x80 | (c & 0x3F));
        }
    }
    return converted;
}

void read_header(Lines& lines, WeatherYear& year) {
    if (!lines.next() || lines.field(0) != "LOCATION")
        throw lines.error("does not begin with LOCATION, as an EPW file does");
    year.place = as_utf8(lines.field(1));
    year.latitude = lines.value(latitude);
    year.longitude = lines.value(longitude);
    year.zone = lines.value(zone);
    year.height = lines.value(height);
    for (int line = 2; lines.field(0) != "DATA PERIODS"; ++line) {
        if (!lines.next()) throw lines.error("ends within the header");
        if (line > longest_header || number(lines.field(0)))  // the year of the first hour
            throw lines.error("DATA PERIODS expected, the last line of the header");
    }
    lines.value(per_hour);
}

Hour read_hour(const Lines& lines) {
    return {lines.value_if_any(dry_bulb),
            lines.value_if_any(dew_point),
            lines.value_if_any(relative_humidity),
            lines.value_if_any(pressure),
            lines.value_if_any(horizontal_infrared),
            lines.value_if_any(direct_normal),
            lines.value_if_any(diffuse_horizontal),
            lines.value_if_any(sky_cover),
            lines.value_if_any(opaque_cover)};
}

bool is_hour(const Lines& lines, int month, int day, int hour) {
    return lines.is(month_column, month) && lines.is(day_column, day) &&
           lines.is(hour_column, hour);
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

// With NaN for values that are missing or impossible.
WeatherYear read_as_given(const std::string& path) {
    Lines lines(path);
    WeatherYear year{};
    read_header(lines, year);
    lines.next();
    int day_of_year = 0;
    for (int month = 1; const int days : host::days_of_month) {
        for (int day = 1; day <= days; ++day) read_day(lines, year, month, day, ++day_of_year);
        if (month == 2 && !lines.blank() && is_hour(lines, 2, 29, 1))
            read_day(lines, year, month, 29, day_of_year);
        ++month;
    }
    if (!lines.blank()) throw lines.error("31 December, hour 24 must be the last line");
    return year;
}

}  // namespace

WeatherYear read_epw(const std::string& path) {
    try {
        return mended(read_as_given(path));
    } catch (const NotMendable& fault) {
        throw InputError(path + ": " + fault.what());
    }
}

}  // namespace quorvel::climatefile
