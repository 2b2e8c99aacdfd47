// What stands between a window and sun, sky and ground.
#pragma once

#include <vector>

#include "calculation/sun.h"
#include "calculation/window/openness.h"
#include "calculation/window/shadow.h"

namespace quorvel::window {

// How the sun stands to the window; radians.
struct Bearing {
    double incidence, vertical, horizontal;  // the last two are the profile angles
    bool before;                             // more than 0.1° before the plane of the glass
};

class Shading {
  public:
    explicit Shading(const Window& window);

    Bearing bearing(const host::Sun& sun) const;
    const Openness& open() const { return open_; }

    // Of the glass, of a sun before it. Throws std::runtime_error where the shadows cannot be told
    // apart.
    double sunlit_fraction(const host::Sun& sun) const;

    // The shadows on a part of the window's plane; none where there is no sun to cast them.
    std::vector<Polygon> shadows(const host::Sun& sun, const Rectangle& area) const;

    Rectangle glass() const { return {0, 0, width_, height_}; }

  private:
    Scene scene_;
    double orientation_, tilt_;  // radians
    double width_, height_;
    Openness open_;
};

}  // namespace quorvel::window
