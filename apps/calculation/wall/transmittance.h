// U-value of an element, homogeneous or not, by the limits of its resistance (EN ISO 6946).
#pragma once

#include <vector>

#include "calculation/wall/section.h"

namespace quorvel::wall {

struct Transmittance {
    double upper, lower;                  // limits of the resistance from air to air, m²K/W
    double resistance;                    // their mean, m²K/W
    double error;                         // at most so many % of the resistance
    double air_voids = 0, fasteners = 0;  // corrections of the U-value, W/m²K
    double u_value;                       // W/m²K, corrected

    // The method is not meant for elements whose limits lie further apart.
    bool applies() const { return upper <= 1.5 * lower; }
};

Transmittance transmittance(const Element& element, const std::vector<Section>& sections,
                            const Surfaces& surfaces);

// The mean resistance of each layer, m²K/W: what conducts side by side in it.
std::vector<double> layer_resistances(const Element& element, const std::vector<Section>& sections);

}  // namespace quorvel::wall
