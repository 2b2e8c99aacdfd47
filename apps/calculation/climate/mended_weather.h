// A year of weather made complete: what is missing or impossible in it replaced, and counted.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// What cannot be mended; says what, and where in the year.
class NotMendable : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

// The year without NaN, but for dew points, infrared radiation and opaque cover, and with a count
// of what was replaced. Throws NotMendable. What is done to each quantity:
//   temperature       gaps of up to 6 hours: a straight line between the hours on either side
//   humidity          above 100 %: 100 %; missing: from the dew point, else as the temperature
//   pressure          as the temperature; longer gaps: that of the standard atmosphere
//   irradiances       below 0: 0; missing while the sun is down: 0; gaps of up to 3 hours by day
//                     as the temperature
//   sky cover         gaps of up to 3 hours as the temperature; longer ones, each hour: the opaque
//                     cover, the clearness of the irradiances, the infrared radiation of the sky,
//                     what there is first; the rest a straight line between what there is then
// A gap at an end of the year goes on at the other end.
WeatherYear mended(WeatherYear year);

// What was replaced, a line for each kind.
std::vector<std::string> told(const std::vector<Replacement>& replaced);

}  // namespace quorvel::climatefile
