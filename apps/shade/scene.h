// The window and what may shade it, in the frame of the window.
#pragma once

#include <array>
#include <vector>

#include "shade/job.h"
#include "shade/polygon.h"

namespace quorvel::shade {

// A flat face whose corners run anticlockwise where it is seen from. A plate is seen from both
// sides, a face of a box from outside.
struct Face {
    Polygon corners;
    bool two_sided;
};

class Scene {
  public:
    explicit Scene(const Job& job);

    const std::vector<Face>& faces() const { return faces_; }

    // The unit vector towards a sun at this altitude and azimuth in radians.
    Vector towards_sun(float altitude, float azimuth) const;

  private:
    using Matrix = std::array<float, 9>;

    Vector from_upright(const Vector& point) const;
    void add_plate(Polygon corners) { faces_.push_back({std::move(corners), true}); }
    void add_fin(const Fin& fin, const Window& window, double x);
    void add_overhang(const Overhang& overhang, const Window& window);
    void add_box(const Obstruction& box, const Window& window);

    Matrix rotation_{}, upright_{};  // of the window, and of a vertical one that faces the same way
    std::vector<Face> faces_;
};

}  // namespace quorvel::shade
