// The key figures of an element.
#pragma once

#include "telling/wall/words.h"

namespace quorvel::wall {

std::vector<host::Figure> key_figures(const Question& question, const Assessment& assessment);

// Hours by which the answers to the daily swing are shifted, with more digits than beside the
// figures.
host::DataTable shift_table(const Periodic& periodic);

}  // namespace quorvel::wall
