// Shadows on the plane of the window.
#pragma once

#include <vector>

#include "calculation/window/scene.h"

namespace quorvel::window {

// The beam of sunlight that falls on a rectangle of the plane. The sun stands before the plane.
class Beam {
  public:
    Beam(const Vector& towards_sun, const Rectangle& area);

    // Convex polygons, so far as the faces stand before the plane and within the beam.
    std::vector<Polygon> shadows_of(const std::vector<Face>& faces) const;

  private:
    Polygon shadow_of(const Face& face) const;

    Vector towards_sun_;
    std::vector<Plane> sides_;  // whose normals point into the beam
    double least_area_;         // of a shadow, m²
};

}  // namespace quorvel::window
