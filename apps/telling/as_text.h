// An answer as text for reading.
#pragma once

#include <span>
#include <string>

#include "telling/answer.h"

namespace quorvel::host {

// Within 100 columns where the words allow it; with all tables, or without those on request.
std::string as_text(const Answer& answer, bool all_tables = false);

// One after the other, each of several below the name of its input.
std::string as_text(std::span<const Answered> answers, bool all_tables = false);

}  // namespace quorvel::host
