// Cloud cover, in tenths of the sky, worked out from what clouds do where nobody has looked at
// them.
#pragma once

#include "calculation/climate/weather.h"

namespace quorvel::climatefile {

// By the global irradiance, of a clear sky's: F. Kasten and G. Czeplak, Solar and terrestrial
// radiation dependent on the amount and type of cloud, Solar Energy 24 (1980). NaN while the sun is
// below 10°, where too little of it tells of the clouds.
double cover_by_clearness(const Hour& hour, double sine_of_altitude);

// By the sky's infrared radiation, whose emissivity for the dew point is that of G. Clark and
// C. Allen (1978), and for the cover that of G. Walton (1983): 1 + 0.0224 n - 0.0035 n² +
// 0.00028 n³. NaN where one of them is missing.
double cover_by_infrared(const Hour& hour);

}  // namespace quorvel::climatefile
