#include "calculation/window/shadow.h"

namespace quorvel::window {
namespace {

// Of the area that is looked at: what is smaller is a face seen edge on.
constexpr double edge_on = 1e-6;

}  // namespace

Beam::Beam(const Vector& towards_sun, const Rectangle& area)
    : towards_sun_(towards_sun), least_area_(edge_on * window::area(area.polygon())) {
    const Vector low = vector(area.left, area.bottom, 0), high = vector(area.right, area.top, 0);
    sides_ = {{low, outwards},
              {low, cross(up, towards_sun)},
              {low, cross(towards_sun, across)},
              {high, cross(towards_sun, up)},
              {high, cross(across, towards_sun)}};
}

Polygon Beam::shadow_of(const Face& face) const {
    Polygon polygon = face.corners;
    for (const Plane& side : sides_) polygon = part_before(side, polygon);
    for (Vector& corner : polygon) corner = meeting(sides_.front(), corner, towards_sun_);
    return polygon;
}

// A face that is turned away from the sun has its shadow, which runs clockwise, within those of the
// other faces of its box.
std::vector<Polygon> Beam::shadows_of(const std::vector<Face>& faces) const {
    std::vector<Polygon> shadows;
    for (const Face& face : faces) {
        Polygon shadow = shadow_of(face);
        const double clockwise = signed_area(shadow);
        if (-clockwise > least_area_ || (face.two_sided && clockwise > least_area_))
            shadows.push_back(std::move(shadow));
    }
    return shadows;
}

}  // namespace quorvel::window
