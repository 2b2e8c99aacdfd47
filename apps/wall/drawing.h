// Layers in section, hatched as on engineers' drawings.
#pragma once

#include <string>
#include <vector>

#include "telling/chart.h"
#include "wall/job.h"

namespace quorvel::wall {

// A layer on the canvas: from left to right, in pixels.
struct Band {
    const Layer* layer;
    double left, right;
};

// What to plot on the chart's canvas of that height.
std::vector<std::string> draw_section(host::Chart& chart, const std::vector<Band>& bands,
                                      double height);

}  // namespace quorvel::wall
