// Layers in section, hatched as on engineers' drawings.
#pragma once

#include <string>
#include <vector>

#include "calculation/wall/element.h"
#include "telling/chart.h"

namespace quorvel::wall {

// A part of a layer on the canvas: from left to right, in pixels.
struct Band {
    const Part* part;
    double left, right;
};

// What to plot on the chart's canvas of that height.
std::vector<std::string> draw_section(host::Chart& chart, const std::vector<Band>& bands,
                                      double height);

}  // namespace quorvel::wall
