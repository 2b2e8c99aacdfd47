// The window and its shadows as a picture.
#pragma once

#include <string>
#include <vector>

#include "shade/shading.h"

namespace quorvel::shade {

// The window with its shadow at each of the hours (a choice of those with sun when there are none),
// below them the sunlit part and the direct sun through the day.
void draw_chart(const Job& job, const Shading& shading, std::vector<double> hours,
                const std::string& path);

}  // namespace quorvel::shade
