// The hours of the sun as they are told and drawn.
#pragma once

#include <string>

#include "calculation/none.h"
#include "calculation/sun.h"
#include "telling/chart.h"
#include "text/text.h"

namespace quorvel::host {

// "sunrise 03:48, sunset 20:12 solar time", by the clock too where that is known.
std::string sun_times(double sunrise, double sunset, double solar_minus_clock = none);

// The hours of daylight and one more on either side.
Scale hours_shown(double sunrise, double sunset, double step);

}  // namespace quorvel::host
