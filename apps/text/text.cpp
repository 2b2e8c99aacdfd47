#include "text/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace quorvel::host {
namespace {

template <class Number>
std::string shortest_of(Number value) {
    char buffer[40];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

}  // namespace

std::string fixed(double value, int decimals) {
    if (std::isnan(value)) return absent;
    char buffer[400];
    const auto end =
        std::to_chars(buffer, buffer + sizeof buffer, value, std::chars_format::fixed, decimals)
            .ptr;
    std::string text(buffer, end);
    const bool zero = text.find_first_not_of("-0.") == std::string::npos;
    return zero && text[0] == '-' ? text.substr(1) : text;
}

std::string shortest(double value) { return shortest_of(value); }
std::string shortest(float value) { return shortest_of(value); }

std::string clock_time(double hours) {
    const long minutes = ((std::lround(hours * 60.0) % 1440) + 1440) % 1440;
    const auto digit = [](long n) { return static_cast<char>('0' + n); };
    const long hour = minutes / 60, minute = minutes % 60;
    return {digit(hour / 10), digit(hour % 10), ':', digit(minute / 10), digit(minute % 10)};
}

std::size_t character_count(std::string_view text) {
    const auto continues = [](char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; };
    return text.size() - static_cast<std::size_t>(std::ranges::count_if(text, continues));
}

std::string shortened(std::string text, std::size_t most) {
    if (character_count(text) <= most) return text;
    while (character_count(text) >= most) text.pop_back();
    return text + "…";
}

std::string joined(std::span<const std::string_view> names) {
    std::string result;
    for (const std::string_view name : names) {
        if (!result.empty()) result += ", ";
        result += name;
    }
    return result;
}

std::string csv_line(const std::vector<std::string>& fields) {
    std::string line;
    for (const std::string& field : fields) {
        if (&field != fields.data()) line += ',';
        if (field.find_first_of(",\"") == std::string::npos) {
            line += field;
            continue;
        }
        line += '"';
        for (const char c : field) line.append(c == '"' ? 2 : 1, c);
        line += '"';
    }
    return line + '\n';
}

std::string told_path(const std::string& path) { return path == "-" ? "standard input" : path; }

std::string wrapped(std::string_view text, std::size_t width, std::size_t indent) {
    std::string result, line;
    const auto end_line = [&] {
        result.append(line.empty() ? 0 : indent, ' ').append(line) += '\n';
        line.clear();
    };
    for (std::size_t begin = 0, end; begin < text.size(); begin = end + 1) {
        end = std::min(text.find_first_of(" \n", begin), text.size());
        const std::string_view word = text.substr(begin, end - begin);
        const std::size_t length = indent + character_count(line) + 1 + character_count(word);
        if (!line.empty() && length > width) end_line();
        if (!line.empty()) line += ' ';
        line += word;
        if (end < text.size() && text[end] == '\n') end_line();
    }
    if (!line.empty()) end_line();
    return result;
}

}  // namespace quorvel::host
