// The construction and its profile as a picture.
#pragma once

#include <string>

#include "wall/construction.h"

namespace quorvel::wall {

// The layers in section and to scale, over them the temperature and, below, the saturation and the
// vapour pressure of the wettest case.
void draw_chart(const Job& job, const Construction& construction, const std::string& path);

}  // namespace quorvel::wall
