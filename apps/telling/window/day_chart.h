// A design day as a picture.
#pragma once

#include "telling/chart.h"
#include "telling/window/told.h"

namespace quorvel::window {

// A column for each window (irradiance on the glass, heat into the room with and without the blind,
// temperatures), and at the bottom the gain of all windows together.
host::Chart day_chart(const DayCase& day);

}  // namespace quorvel::window
