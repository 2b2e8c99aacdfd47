// An element in section and the profile through it as a picture.
#pragma once

#include "telling/wall/words.h"

namespace quorvel::wall {

// The layers to scale, over them the temperature and, below, the saturation and the vapour
// pressure, as the month begins.
host::Chart section_chart(const Subject& subject, const Question& question,
                          const Assessment& assessment, std::size_t month);

}  // namespace quorvel::wall
