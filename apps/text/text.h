// Numbers and lines as text, byte for byte the same on every platform (which printf is not).
#pragma once

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace quorvel::host {

// Stands for a quantity that does not exist.
inline constexpr const char* absent = "–";

// Stands for a plain zero where many of them would hide what matters.
inline constexpr const char* nothing = "·";

// With so many decimals, never "-0"; NaN is shown as absent.
std::string fixed(double value, int decimals);

// As many digits as the value needs: 51.5, 0.01, nan.
std::string shortest(double value);
std::string shortest(float value);  // tells it from its neighbours in single precision

// Hours since midnight as hh:mm, wrapped into the day.
std::string clock_time(double hours);

// Characters of a UTF-8 text.
std::size_t character_count(std::string_view text);

// The beginning of a text of more than so many characters, with "…" for the rest.
std::string shortened(std::string text, std::size_t most);

// Names in a row: "one, two, three".
std::string joined(std::span<const std::string_view> names);

// One line of a comma-separated file; a field is quoted where it must be.
std::string csv_line(const std::vector<std::string>& fields);

// The name by which messages and reports call an input file: that of "-" is standard input.
std::string told_path(const std::string& path);

// Lines broken between words where they have more than so many characters, each with an indent.
std::string wrapped(std::string_view text, std::size_t width, std::size_t indent = 0);

}  // namespace quorvel::host
