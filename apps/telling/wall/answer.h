// What is answered of an element.
#pragma once

#include <optional>

#include "telling/wall/words.h"

namespace quorvel::wall {

// With the profile of a month, 0 January; unless asked for, of that which matters.
host::Answer answer(const Subject& subject, const Question& question, const Assessment& assessment,
                    std::optional<std::size_t> month);

// The input as it is and its variants side by side.
host::Answer comparison(const std::vector<Variation>& variations);

}  // namespace quorvel::wall
