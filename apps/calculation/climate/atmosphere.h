#pragma once

#include <cmath>

namespace quorvel::climatefile {

// Pa, of the standard atmosphere (ISO 2533) at a height above sea level, m; up to 11 km.
inline double standard_pressure(double height) {
    return 101325 * std::pow(1 - 2.25577e-5 * height, 5.25588);
}

}  // namespace quorvel::climatefile
