// Glazing units and blinds to try calculations on.
#pragma once

#include "calculation/window/glazing.h"
#include "quorvel/library.h"

namespace quorvel::window {

inline const Gas air{"air",
                     {0.02336, 0.02416, 0.02496, 0.02576},
                     {1.326, 1.277, 1.232, 1.189},
                     {1.661e-5, 1.711e-5, 1.761e-5, 1.811e-5},
                     1008};
inline const Gas argon{"argon",
                       {0.01584, 0.01634, 0.01684, 0.01734},
                       {1.829, 1.762, 1.699, 1.640},
                       {2.038e-5, 2.101e-5, 2.164e-5, 2.228e-5},
                       519};

inline Pane clear(double thickness, double transmittance) {
    return {"clear", thickness, transmittance, {0, 0}, {plain_emissivity, plain_emissivity}};
}

// With the coating on its outer face.
inline Pane coated(double transmittance, double outside, double inside, double emissivity) {
    return {"coated", 4, transmittance, {outside, inside}, {emissivity, plain_emissivity}};
}

inline Unit unit(std::vector<Pane> panes, const Gas& gas, double width) {
    const std::size_t cavities = panes.size() - 1;
    return {"", std::move(panes), std::vector<Cavity>(cavities, Cavity{gas, width})};
}

inline Blind roller(BlindPlace place, double transmittance, double reflectance) {
    return {place, 0, Fabric{transmittance, reflectance, 0}, 0.9, {air, 50}, false, 0};
}

inline Blind slatted(BlindPlace place, double angle, double absorptance, double width = 25) {
    return {place, 0, Slats{20, width, angle, absorptance, absorptance}, 0.9, {air, 50}, false, 0};
}

}  // namespace quorvel::window
