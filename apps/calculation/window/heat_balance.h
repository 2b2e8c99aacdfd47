// Where the heat goes that panes and blind absorb: the steady balance of their faces between
// outdoors and room, by radiation among all of them, convection, and conduction through the glass.
#pragma once

#include <array>
#include <vector>

#include "calculation/window/blind.h"

namespace quorvel::window {

// Convection at the surfaces, W/m²K; radiation comes on top.
struct Surfaces {
    double outdoors, indoors;
    double behind_blind;  // in the gap of a blind that the outdoor or room air passes freely
};

// Of a summer's day with a light wind: with the radiation of a plain pane the resistances of 0.06
// and 0.12 m²K/W that the library's pane temperatures have.
inline constexpr Surfaces design_surfaces{12, 3.6, 4.5};

// Of EN 410, which rates glazing: 23 and 8 W/m²K with the radiation of a plain pane at 25 °C.
inline constexpr Surfaces rating_surfaces{18, 3.0, 4.5};

using PerLayer = std::array<double, most_layers>;  // outermost first, the blind at its place

struct HeatFlow {
    PerLayer temperature{};  // °C, of the middle of each layer
    double inwards = 0;      // W/m² to the room by radiation and convection
};

// The layers of a window.
class HeatBalance {
  public:
    HeatBalance(const Unit& unit, const std::optional<Blind>& blind, double tilt,
                const Surfaces& surfaces);

    std::size_t layers() const { return count_; }

    // Of air and all that radiates at the temperatures of the room and outdoors [°C], with what
    // each layer absorbs of the sun [W/m²].
    HeatFlow operator()(double room, double outdoor, const PerLayer& absorbed) const;

  private:
    enum class Gap { closed, open_to_outdoors, open_to_room };
    struct Between {  // of a layer and the next
        Gap kind;
        Cavity cavity;
    };
    static constexpr std::size_t most_nodes = 2 * most_layers + 2;  // faces, outdoors, room
    using PerNode = std::array<double, most_nodes>;
    using Matrix = std::array<PerNode, most_nodes>;

    std::size_t outdoors() const { return 2 * count_; }
    std::size_t room() const { return 2 * count_ + 1; }
    void place_layers(const Unit& unit, const std::optional<Blind>& blind);
    void exchange_heat_by_radiation();
    PerNode received(std::size_t sender) const;
    Matrix conductances(const PerNode& temperature) const;
    void add_radiation(Matrix& matrix, const PerNode& temperature) const;

    std::size_t count_ = 0;
    std::array<Layer, most_layers> thermal_{};  // what each does to radiated heat
    PerLayer conduction_{};                     // W/m²K from face to face
    std::vector<Between> between_;
    Matrix exchange_{};  // shares of what a black body would send
    double tilt_;
    Surfaces surfaces_;
};

}  // namespace quorvel::window
