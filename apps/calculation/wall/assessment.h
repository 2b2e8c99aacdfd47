// All that is asked of an element in a climate.
#pragma once

#include <optional>

#include "calculation/wall/periodic.h"
#include "calculation/wall/surface.h"
#include "calculation/wall/transmittance.h"
#include "calculation/wall/year.h"

namespace quorvel::wall {

struct Question {
    Element element;
    std::vector<Climate> climates;  // one, or those of the months from January
    SurfaceDemand demand;
    std::size_t section = 0;  // through which vapour is followed, of sections(element)
};

// It refers to the question.
struct Assessment {
    Surfaces surfaces;
    std::vector<Section> sections;
    std::vector<double> layer_resistances;  // m²K/W
    Transmittance transmittance;
    Periodic periodic;
    SurfaceYear surface;
    Path path;                 // through the section of the question
    std::optional<Year> year;  // of twelve climates
    std::vector<Profile> dry;  // of each climate by itself, nothing wet from before

    double thickness;  // m
    double mass;       // kg/m²
};

Assessment assess(const Question& question);

}  // namespace quorvel::wall
