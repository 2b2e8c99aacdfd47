// An answer as text for reading.
#pragma once

#include <string>

#include "telling/answer.h"

namespace quorvel::host {

// Within 100 columns where the words allow it; with all tables, or without those on request.
std::string as_text(const Answer& answer, bool all_tables = false);

}  // namespace quorvel::host
