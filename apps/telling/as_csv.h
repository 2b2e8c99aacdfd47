// Answers as one comma-separated table.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "telling/answer.h"

namespace quorvel::host {

// The keys of the tables that there are; the last, "figures", is that of the key figures, of which
// each section makes a line.
std::vector<std::string> table_keys(std::span<const Answered> answers);

// The one that is written unless another is asked for: the main table, else the first.
std::string main_table(std::span<const Answered> answers);

// The tables of a key under each other. Of several inputs each line begins with the input's name,
// and of tables of sections with a key, with that. Columns that only some of them have are empty
// elsewhere.
std::string as_csv(std::span<const Answered> answers, const std::string& key);

}  // namespace quorvel::host
