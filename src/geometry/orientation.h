// Directions by altitude and azimuth, and the frame of a tilted surface.
//
// Angles are in radians unless said otherwise; azimuths from north, clockwise seen from above.
#pragma once

#include <cmath>

#include "geometry/matrix.h"
#include "geometry/points.h"

namespace quorvel::geometry {

inline SpacePoint direction_to(Real altitude, Real azimuth) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(altitude);
    const auto [sin_azi, cos_azi] = math::sincos(azimuth);
    return {sin_azi * cos_alt, cos_azi * cos_alt, sin_alt};
}

// Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the way
// back [degrees]. Values from 1000 on are no angles and pass. The remainder has the sign of the
// dividend, so that the result is negative for angles above 630: meant so.
inline Real back_azimuth(Real angle) noexcept {
    if (std::fabs(angle) >= 1000.0f) return angle;
    return std::fmod(630.0f - angle, 360.0f);
}

using RotationMatrix = SquareMatrix<Real, 3>;

// The axes of a surface as columns. Seen from outside, x points to the right.
inline RotationMatrix surface_axes(Real azimuth, Real tilt) noexcept {
    const auto [sin_azi, cos_azi] = math::sincos(azimuth);
    const auto [sin_tilt, cos_tilt] = math::sincos(tilt);
    RotationMatrix axes{{-cos_azi, sin_azi, 0.0f,                             // x, level
                         -sin_azi * cos_tilt, -cos_azi * cos_tilt, sin_tilt,  // y, up the slope
                         sin_azi * sin_tilt, cos_azi * sin_tilt, cos_tilt}};  // z, outward normal
    // Right angles entered as rounded numbers get exact zeros.
    for (Real& component : axes.elements)
        if (std::fabs(component) < 1.0e-5f) component = 0.0f;
    return axes;
}

constexpr SpacePoint local_to_global(const RotationMatrix& axes, SpacePoint p) noexcept {
    const auto component = [&](int i) {
        return dot(SpacePoint{axes(i, 0), axes(i, 1), axes(i, 2)}, p);
    };
    return {component(0), component(1), component(2)};
}

constexpr SpacePoint global_to_local(const RotationMatrix& axes, SpacePoint p) noexcept {
    const auto component = [&](int j) {
        return dot(SpacePoint{axes(0, j), axes(1, j), axes(2, j)}, p);
    };
    return {component(0), component(1), component(2)};
}

}  // namespace quorvel::geometry
