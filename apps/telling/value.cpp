#include "telling/value.h"

#include <cmath>

#include "telling/text.h"

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

}  // namespace quorvel::host
