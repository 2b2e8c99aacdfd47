// Directions by altitude and azimuth, and the axes of a tilted surface.
//
// Angles in radians unless said otherwise; azimuths from north, clockwise seen from above.
#pragma once

#include <bit>

#include "geometry/matrix.h"
#include "geometry/vector.h"

namespace quorvel::geometry {

template <class R>
SpaceVector<R> direction_to(R altitude, R azimuth) noexcept {
    const auto [sin_alt, cos_alt] = math::sincos(altitude);
    const auto [sin_azi, cos_azi] = math::sincos(azimuth);
    return {sin_azi * cos_alt, cos_azi * cos_alt, sin_alt};
}

// Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the way
// back, in degrees. Values from 1000 on are no angles and pass. Deliberate: the remainder has the
// sign of the dividend, so that the result is negative for angles above 630.
template <class R>
R back_azimuth(R angle) noexcept {
    return either(
        rarely(absolute(angle) >= 1000.0f), [&] { return angle; },
        [&] { return modulo(630.0f - angle, R(360.0f)); });
}

// A matrix by its columns: the axes x, y and z of local coordinates.
template <class R>
using Axes = Columns<R, 3>;

template <class R>
constexpr SpaceVector<R> local_to_global(SpaceVector<R> p, const Axes<R>& axes) noexcept {
    return p.x * axes[0] + p.y * axes[1] + p.z * axes[2];
}

template <class R>
constexpr SpaceVector<R> global_to_local(SpaceVector<R> p, const Axes<R>& axes) noexcept {
    return along(axes, p);
}

// Right angles entered as rounded numbers get exact zeros.
template <class R>
constexpr SpaceVector<R> cleaned(SpaceVector<R> axis) noexcept {
    const auto clean = [](R component) {
        return select(absolute(component) < 1.0e-5f, R(0.0f), component);
    };
    return {clean(axis.x), clean(axis.y), clean(axis.z)};
}

template <class R>
struct SurfaceAxes {
    Axes<R> axes, inverse;
};

// Seen from outside, x points to the right, level, and y up the slope; z is the outward normal.
template <class R>
SurfaceAxes<R> surface_axes(R azimuth, R tilt) noexcept {
    const auto [sin_azi, cos_azi] = math::sincos(azimuth);
    const auto [sin_tilt, cos_tilt] = math::sincos(tilt);
    const Axes<R> axes{cleaned<R>({-cos_azi, sin_azi, R(0.0f)}),
                       cleaned<R>({-sin_azi * cos_tilt, -cos_azi * cos_tilt, sin_tilt}),
                       cleaned<R>({sin_azi * sin_tilt, cos_azi * sin_tilt, cos_tilt})};
    return {axes, std::bit_cast<Axes<R>>(inverse(std::bit_cast<SquareMatrix<R, 3>>(axes)))};
}

}  // namespace quorvel::geometry
