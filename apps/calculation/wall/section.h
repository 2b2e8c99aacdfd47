// Sections of an element: the ways straight through it. One where all layers are homogeneous;
// otherwise one for each combination of parts that heat can meet.
#pragma once

#include <vector>

#include "calculation/wall/element.h"

namespace quorvel::wall {

struct Slab {
    const Part* part;
    double thickness;          // m
    double resistance;         // m²K/W
    double vapour_resistance;  // GN s/kg
};

struct Section {
    double fraction;          // of the area
    std::vector<Slab> slabs;  // one a layer
};

struct Surfaces {
    double inside, outside;  // m²K/W
};

// As given, or after the direction of the heat and the exposure to the wind; in a well-ventilated
// gap both are those of inside surfaces.
Surfaces surface_resistances(const Element& element);

// The largest first, at most most_sections of them; empty where there are more. They refer to the
// element.
std::vector<Section> sections(const Element& element);

double resistance(const Section& section);         // m²K/W, without the surfaces
double vapour_resistance(const Section& section);  // GN s/kg

}  // namespace quorvel::wall
