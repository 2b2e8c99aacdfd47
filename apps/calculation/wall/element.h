// A wall, roof or floor as it is built: layers from the inside outwards.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quorvel::wall {

inline constexpr std::size_t most_layers = 20;
inline constexpr std::size_t most_sections = 64;

// Of still air, in GN s/(kg m): the reciprocal of its vapour permeability, 2e-10 kg/(m s Pa) (EN
// ISO 13788). A material of diffusion resistance factor µ has µ times this, a sheet of equivalent
// air thickness s_d in m has s_d times this in GN s/kg.
inline constexpr double resistivity_of_air = 5;

enum class HeatFlow { up, horizontal, down };

struct Solid {
    double conductivity;        // W/mK
    double density;             // kg/m³
    double specific_heat;       // J/kgK
    double vapour_resistivity;  // GN s/(kg m)
};

struct Gap {
    std::optional<double> resistance;      // m²K/W
    std::array<double, 2> emissivities{};  // of its faces, where no resistance is given
};

// A sheet so thin that it holds back vapour only.
struct Membrane {
    double vapour_resistance;  // GN s/kg
};

using Make = std::variant<Solid, Gap, Membrane>;

// How it is hatched in a drawing; nothing is worked out from it.
enum class Hatching { plain, masonry, concrete, insulation, timber, plaster, bitumen };

// What a share of a layer's area is made of, such as the studs in an insulated frame.
struct Part {
    std::string name;
    double fraction;  // of the area, above 0; those of a layer make 1
    Make make;
    Hatching hatching = Hatching::plain;
};

// Metal that pierces an insulating layer as a whole (EN ISO 6946, mechanical fasteners).
struct Fasteners {
    double conductivity;  // W/mK
    double area;          // m², of the section of one
    double number;        // per m²
};

struct Layer {
    std::string name;
    double thickness;         // m; 0 of a membrane
    std::vector<Part> parts;  // one, the layer's own, where it is homogeneous

    // The parts stand in line, in the same order, with those of the next inhomogeneous layer
    // towards the inside; otherwise they cross them.
    bool in_line = false;

    std::optional<Fasteners> fasteners = {};
    int air_voids = 0;  // EN ISO 6946, level 0 none, 1 bridging, 2 with air moving behind as well

    bool homogeneous() const { return parts.size() == 1; }
};

struct Element {
    HeatFlow heat_flow = HeatFlow::horizontal;
    int exposure = 2;  // to the wind: 1 sheltered, 2 normal, 3 severe
    std::optional<double> inside_resistance, outside_resistance;  // m²K/W of the surfaces
    bool in_ventilated_gap = false;  // outside, what lies beyond being left out (EN ISO 6946)
    std::vector<Layer> layers;       // 1 to 20, the first at the room
};

}  // namespace quorvel::wall
