// The construction and its cases, worked out with the library.
#pragma once

#include <vector>

#include "telling/text.h"
#include "wall/job.h"

namespace quorvel::wall {

using host::none;

// The answer to a daily swing of temperature; shifts in hours, 0 to 24.
struct CyclicResponse {
    double admittance = none, admittance_lead = none;  // W/m²K
    double decrement_factor = none, decrement_lag = none;
    double surface_factor = none, surface_lag = none;
};

// Between two layers; the first of a profile is the inside surface, the last the outside one.
struct Interface {
    double temperature;      // °C
    double vapour_pressure;  // Pa
    double saturation;       // Pa
    bool condenses;
    double condensate = none;  // g/m² a day; none where dry, and at the surfaces

    double relative_humidity() const { return 100 * vapour_pressure / saturation; }
};

struct Profile {
    const Climate* climate;
    std::vector<Interface> at;
    std::vector<std::size_t> wet_layers;  // indices of layers in which vapour condenses

    bool condenses() const;
    double condensate() const;  // g/m² a day, of all interfaces
};

struct Construction {
    double inside_resistance, outside_resistance;  // m²K/W
    std::vector<double> resistance;                // m²K/W of each layer
    std::vector<double> vapour_resistance;         // GN s/kg of each layer
    double total_vapour_resistance;                // GN s/kg
    double u_value;                                // W/m²K
    CyclicResponse cyclic;
    std::vector<Profile> profiles;  // of the job's climates

    double thickness;  // m
    double mass;       // kg/m²
};

// The result refers to the job's climates.
Construction calculate(const Job& job);

// The profile with the most condensate, or if all are dry the coldest.
const Profile& wettest(const Construction& construction);

}  // namespace quorvel::wall
