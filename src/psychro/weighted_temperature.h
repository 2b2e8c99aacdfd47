// Temperature between two of the air.
#pragma once

namespace quorvel::psychro {

// Both alike give the same.
template <class R>
R weighted_temperature(R t1, R t2) noexcept {
    return (41.94f * t1 - 7.33f * t2) / (34.61f + t1 - t2);
}

}  // namespace quorvel::psychro
