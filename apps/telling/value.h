// The numbers of an answer as characters: the same digits in text, CSV, JSON and HTML.
#pragma once

#include <string>

#include "telling/answer.h"

namespace quorvel::host {

// For reading: – for NaN, · for a rare zero.
std::string told(const Quantity& quantity, const Value& value);

// For other programs: nothing for NaN.
std::string digits(const Quantity& quantity, const Value& value);

// The name of a column in CSV: the key and the unit in plain letters, u_value_W_m2K.
std::string column_name(const Quantity& quantity);

}  // namespace quorvel::host
