#include "telling/value.h"

#include <algorithm>
#include <cmath>
#include <string_view>
#include <utility>

#include "text/text.h"

namespace quorvel::host {

std::string digits(const Quantity& quantity, const Value& value) {
    if (const auto* word = std::get_if<std::string>(&value)) return *word;
    const double number = std::get<double>(value);
    if (std::isnan(number)) return "";
    return quantity.decimals == as_given ? shortest(number) : fixed(number, quantity.decimals);
}

std::string told(const Quantity& quantity, const Value& value) {
    const auto* number = std::get_if<double>(&value);
    if (number && std::isnan(*number)) return absent;
    if (number && *number == 0 && quantity.rare_zero) return nothing;
    return digits(quantity, value);
}

std::string column_name(const Quantity& quantity) {
    static constexpr std::pair<std::string_view, std::string_view> plain[] = {
        {"²", "2"}, {"³", "3"}, {"µ", "u"}, {"μ", "u"}, {"%", "pct"}, {"°C", "C"}, {"°", "deg"},
        {"·", "_"}, {"–", "-"}, {"/", "_"}, {" ", "_"}, {"(", ""},    {")", ""}};
    std::string unit;
    for (std::string_view rest = quantity.unit; !rest.empty();) {
        const auto* const sign = std::ranges::find_if(
            plain, [&](const auto& pair) { return rest.starts_with(pair.first); });
        const bool letter = sign == std::end(plain);
        unit += letter ? rest.substr(0, 1) : sign->second;
        rest.remove_prefix(letter ? 1 : sign->first.size());
    }
    return unit.empty() ? quantity.key : quantity.key + '_' + unit;
}

}  // namespace quorvel::host
