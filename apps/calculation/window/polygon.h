// Flat polygons in the frame of the window: origin at its lower left corner seen from outside, x to
// the right, y up the slope of the glass, z out of it. Metres.
#pragma once

#include <array>
#include <vector>

namespace quorvel::window {

using Vector = std::array<float, 3>;
using Polygon = std::vector<Vector>;

inline constexpr Vector across{1, 0, 0}, up{0, 1, 0}, outwards{0, 0, 1};

Vector vector(double x, double y, double z);
Vector cross(const Vector& a, const Vector& b);

struct Plane {
    Vector point, normal;
};

// Where the line through a point meets a plane.
Vector meeting(const Plane& plane, const Vector& point, const Vector& direction);

// The part on the side of a plane to which its normal points. What falls apart remains joined by
// edges in the plane, which enclose nothing.
Polygon part_before(const Plane& plane, const Polygon& polygon);

// Of a polygon in the plane of the window: positive where its corners run clockwise.
double signed_area(const Polygon& polygon);
double area(const Polygon& polygon);
double area(const std::vector<Polygon>& polygons);

// Upright in the plane of the window.
struct Rectangle {
    double left, bottom, right, top;

    Polygon polygon() const;
    double diagonal() const;
};

Rectangle box_around(const Polygon& polygon);

}  // namespace quorvel::window
