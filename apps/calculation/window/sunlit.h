// The part of the window that the sun reaches.
#pragma once

#include <vector>

#include "calculation/window/polygon.h"

namespace quorvel::window {

// What is left of the window when the shadows, which are convex, are taken out of it one after the
// other, so that none counts twice where they overlap. Throws std::runtime_error when a shadow
// cannot be taken out.
std::vector<Polygon> without(const std::vector<Polygon>& shadows, const Polygon& window);

}  // namespace quorvel::window
