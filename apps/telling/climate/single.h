#pragma once

#include <charconv>
#include <string>

namespace quorvel::climatefile {

// A value of a climate data file: as many digits as tell it from its neighbours in single
// precision.
inline std::string shortest(float value) {
    char buffer[40];
    return {buffer, std::to_chars(buffer, buffer + sizeof buffer, value).ptr};
}

}  // namespace quorvel::climatefile
