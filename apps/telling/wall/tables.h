// The tables of an element.
#pragma once

#include "telling/wall/words.h"

namespace quorvel::wall {

host::DataTable layer_table(const Question& question, const Assessment& assessment);

// The profile of a month, or of the only case.
host::DataTable profile_table(const Question& question, const Assessment& assessment,
                              std::size_t month);

// Those of all months, for other programs.
host::DataTable profiles_table(const Question& question, const Assessment& assessment);

host::DataTable month_table(const Question& question, const Assessment& assessment);
host::DataTable water_table(const Question& question, const Assessment& assessment);

}  // namespace quorvel::wall
