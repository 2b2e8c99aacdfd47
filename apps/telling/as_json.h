// Answers as JSON, for other programs; docs/program.md describes its shape.
#pragma once

#include <span>
#include <string>

#include "telling/answer.h"

namespace quorvel::host {

// An object, or of several inputs a list of them. Numbers are rounded to the digits that are told;
// NaN is null.
std::string as_json(const Origin& origin, std::span<const Answered> answers);

}  // namespace quorvel::host
