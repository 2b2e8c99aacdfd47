// What stands above the pictures of an element.
#pragma once

#include "telling/wall/words.h"

namespace quorvel::wall {

// Name, figures, a line on what is shown, and what becomes of the water; in the panel that is
// begun.
void draw_heading(host::Chart& chart, const Subject& subject, const Question& question,
                  const Assessment& assessment, const std::string& shown);

}  // namespace quorvel::wall
