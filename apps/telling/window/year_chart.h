// A year of windows as a picture.
#pragma once

#include "telling/chart.h"
#include "telling/window/told.h"

namespace quorvel::window {

// For each window the solar heat gain of every month, with and without the blind, and what
// conduction adds.
host::Chart year_chart(const YearCase& year);

}  // namespace quorvel::window
