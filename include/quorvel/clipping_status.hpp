// What the status of HOHOLEDP tells of polygons: see quorvel/polygon.hpp.
// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include <cstdint>

namespace quorvel::geometry {
inline namespace v0 {

/// Why polygons could not be clipped, by the status.
constexpr const char* clipping_fault(std::int32_t status) {
    switch (status) {
        case 0:
            return "no fault";
        case 1:
            return "a has fewer than 3 vertices";
        case 2:
            return "b has fewer than 3 vertices";
        case 3:
            return "a crosses itself";
        case 4:
            return "b crosses itself";
        case 5:
            return "a has no area";
        case 6:
            return "a and b cross more than 1024 times";
        case 7:
        case 10:
        case 11:
            return "the pieces have more vertices than there is room for";
        case 8:
            return "an edge of a carries more than 10 crossings";
        case 9:
            return "an edge of b carries more than 10 crossings";
        case 105:
        case 106:
            return "a or b is narrower than the tolerance, or touches itself";
        case 109:
            return "a or b has coordinates that are not numbers";
        default:
            return "unknown status";
    }
}

/// Whether polygons can be clipped with more room for points and pieces.
constexpr bool is_short_of_room(std::int32_t status) {
    return status == 7 || status == 10 || status == 11;
}

}  // namespace v0
}  // namespace quorvel::geometry
