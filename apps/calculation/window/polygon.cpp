#include "calculation/window/polygon.h"

#include <algorithm>
#include <cmath>

#include "quorvel/geometry.h"

namespace quorvel::window {
namespace {

// What rounding makes of a right angle: a line that leaves a plane by less runs in it.
constexpr float noise = 1e-6f;

Vector difference(const Vector& a, const Vector& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}

std::vector<float> coordinates(const Polygon& polygon, std::size_t axis) {
    std::vector<float> result;
    for (const Vector& corner : polygon) result.push_back(corner[axis]);
    return result;
}

}  // namespace

Vector vector(double x, double y, double z) {
    return {static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
}

Vector cross(const Vector& a, const Vector& b) {
    Vector product;
    lib::GEXPRO(a, b, product);
    return product;
}

Vector meeting(const Plane& plane, const Vector& point, const Vector& direction) {
    Vector result;
    lib::GEPROJ(plane.point, plane.normal, point, direction, result);
    return result;
}

Polygon part_before(const Plane& plane, const Polygon& polygon) {
    const float unit = lib::GEVMOD(plane.normal);
    const auto height = [&](const Vector& point) {
        const Vector away = difference(point, plane.point);
        const float product = lib::GEDOTP(plane.normal, away);
        return std::fabs(product) > noise * unit * lib::GEVMOD(away) ? product : 0.0f;
    };
    Polygon result;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Vector &here = polygon[i], &next = polygon[(i + 1) % polygon.size()];
        const float a = height(here), b = height(next);
        if (a >= 0) result.push_back(here);
        if ((a > 0 && b < 0) || (a < 0 && b > 0))
            result.push_back(meeting(plane, here, difference(next, here)));
    }
    return result;
}

double signed_area(const Polygon& polygon) {
    const auto x = coordinates(polygon, 0), y = coordinates(polygon, 1);
    return lib::GEAPO2(x.data(), y.data(), static_cast<int>(polygon.size()));
}

double area(const Polygon& polygon) { return std::fabs(signed_area(polygon)); }

double area(const std::vector<Polygon>& polygons) {
    double sum = 0;
    for (const Polygon& polygon : polygons) sum += area(polygon);
    return sum;
}

Polygon Rectangle::polygon() const {
    return {vector(left, bottom, 0), vector(left, top, 0), vector(right, top, 0),
            vector(right, bottom, 0)};
}

double Rectangle::diagonal() const { return std::hypot(right - left, top - bottom); }

Rectangle box_around(const Polygon& polygon) {
    const auto x = coordinates(polygon, 0), y = coordinates(polygon, 1);
    const auto [left, right] = std::ranges::minmax(x);
    const auto [bottom, top] = std::ranges::minmax(y);
    return {left, bottom, right, top};
}

}  // namespace quorvel::window
