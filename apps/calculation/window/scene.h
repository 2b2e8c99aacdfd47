// The window and what may shade it, in the frame of the window.
#pragma once

#include <array>
#include <vector>

#include "calculation/sun.h"
#include "calculation/window/input.h"
#include "calculation/window/polygon.h"

namespace quorvel::window {

// A flat face whose corners run anticlockwise where it is seen from. A plate is seen from both
// sides, a face of a box from outside.
struct Face {
    Polygon corners;
    bool two_sided;
};

class Scene {
  public:
    explicit Scene(const Window& window);

    const std::vector<Face>& faces() const { return faces_; }

    // The sine of the altitude of a direction in the frame of the window.
    float rise(const Vector& direction) const;

    // The unit vector towards the sun.
    Vector towards_sun(const host::Sun& sun) const;

  private:
    using Matrix = std::array<float, 9>;

    Vector from_upright(const Vector& point) const;
    void add_plate(Polygon corners) { faces_.push_back({std::move(corners), true}); }
    void add_reveal(const Window& window);
    void add_fin(const Fin& fin, const Window& window, double x);
    void add_overhang(const Overhang& overhang, const Window& window);
    void add_box(const Obstruction& box, const Window& window);

    Matrix rotation_{}, upright_{};  // of the window, and of a vertical one that faces the same way
    std::vector<Face> faces_;
};

}  // namespace quorvel::window
