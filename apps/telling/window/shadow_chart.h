// A window and its shadows as a picture.
#pragma once

#include <vector>

#include "telling/chart.h"
#include "telling/window/told.h"

namespace quorvel::window {

// The window with its shadow at each of the hours (a choice of those with sun when there are none),
// below them the sunlit part and the direct sun through the day.
host::Chart shadow_chart(const DayCase& day, const WindowDay& window,
                         const std::vector<double>& hours);

}  // namespace quorvel::window
