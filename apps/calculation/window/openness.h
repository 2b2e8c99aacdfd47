// The part of sky and ground that is left to a window by what stands before it.
#pragma once

#include "calculation/window/scene.h"

namespace quorvel::window {

// Shares of what the window would receive from each, were it of equal brightness and nothing in the
// way.
struct Openness {
    double sky = 1, horizon = 1, ground = 1;  // the horizon: the lowest 6.5 degrees of the sky
};

// By rays from all over the glass in all directions, a fixed set of them.
Openness openness(const Scene& scene, double width, double height);

}  // namespace quorvel::window
