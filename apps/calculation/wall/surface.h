// Mould on the inside surface (EN ISO 13788).
#pragma once

#include <span>
#include <vector>

#include "calculation/none.h"
#include "calculation/wall/air.h"
#include "calculation/wall/section.h"

namespace quorvel::wall {

using host::none;

// What the surface is judged by.
struct SurfaceDemand {
    double inside_resistance = 0.25;  // m²K/W, behind furniture and curtains
    double humidity = 80;             // % at the surface, above which mould grows
};

struct SurfaceOfMonth {
    double temperature;        // of the surface, °C
    double humidity;           // at the surface, %; 100 where vapour condenses
    double least_temperature;  // °C, at which the humidity there is that of the demand
    double required = none;    // f_Rsi; none where the air outside is as warm as that, or as inside
};

struct SurfaceYear {
    double factor;                       // f_Rsi of the coldest section
    std::vector<SurfaceOfMonth> months;  // of the climates
    double required = none;              // in the critical month
    std::size_t critical = 0;  // that of the highest demand; without any, the coldest outside

    bool mould() const { return required > factor; }
};

SurfaceYear surface_year(const std::vector<Section>& sections, const Surfaces& surfaces,
                         std::span<const Climate> climates, const SurfaceDemand& demand);

}  // namespace quorvel::wall
