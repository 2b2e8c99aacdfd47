// What the user asks for: a construction from the inside outwards, and the climate on its two
// sides.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace quorvel::wall {

inline constexpr int most_layers = 20;

enum class HeatFlow { up, horizontal, down };
enum class Drawing { plain, masonry, concrete, insulation, timber, plaster, bitumen };

struct Solid {
    double thickness;           // m
    double conductivity;        // W/mK
    double density;             // kg/m³
    double specific_heat;       // J/kgK
    double vapour_resistivity;  // GN s/(kg m)
    Drawing drawing;
};

struct Gap {
    double thickness;                      // m
    std::optional<double> resistance;      // m²K/W
    std::array<double, 2> emissivities{};  // of its faces, where no resistance is given
};

// A sheet so thin that it holds back vapour only.
struct Membrane {
    double vapour_resistance;  // GN s/kg
};

struct Layer {
    std::string name;
    std::variant<Solid, Gap, Membrane> make;

    double thickness() const;  // m
};

struct Air {
    double temperature;  // °C
    double humidity;     // %
};

struct Climate {
    std::string name;  // of the month; empty when there is one case only
    Air inside, outside;
};

struct Job {
    std::string name;
    HeatFlow heat_flow;
    int exposure;                                                 // 1 sheltered, 2 normal, 3 severe
    std::optional<double> inside_resistance, outside_resistance;  // m²K/W, of the surfaces
    std::vector<Layer> layers;                                    // the first at the room
    std::vector<Climate> climates;                                // one, or twelve
};

// Throws host::InputError at the first fault.
Job read_job(const std::string& path);

}  // namespace quorvel::wall
