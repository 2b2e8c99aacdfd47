// The glazing of a window and its blind: what becomes of the radiation that falls on them, and of
// the heat.
#pragma once

#include "calculation/none.h"
#include "calculation/window/heat_balance.h"

namespace quorvel::window {

using host::none;

// Fractions of the incident radiation; what is neither transmitted nor absorbed is reflected.
struct Passage {
    double transmitted = 0;
    PerLayer absorbed{};

    double absorbed_total() const;
};

// What comes into the room through a square metre.
struct Gain {
    double transmitted = 0;  // W/m² short-wave radiation
    double inwards = 0;      // W/m² of what panes and blind absorb
    double conduction = 0;   // W/m² without any sun, negative where the room loses
    PerLayer temperature{};  // °C

    double solar() const { return transmitted + inwards; }
    double net() const { return solar() + conduction; }
};

// How the temperatures of the panes are worked out.
enum class Method { pane_temperatures, heat_balance };

// What falls on a square metre, and how the direct part of it meets the plane.
struct Irradiance {
    double direct = 0, sky = 0, ground = 0;  // W/m²
    double incidence = 0, profile = 0;       // radians; the incidence below π/2
};

// A unit of known panes, with or without the blind.
class Panes {
  public:
    Panes(const Unit& unit, const std::optional<Blind>& blind, double tilt);

    std::size_t layers() const { return design_.layers(); }
    std::optional<std::size_t> blind() const;  // its place among the layers
    Method method() const { return method_; }

    Passage direct(double incidence, double profile) const;
    const Passage& from_sky() const { return from_sky_; }
    const Passage& from_ground() const { return from_ground_; }
    // Of everything that falls on it, of 1 where nothing does.
    Passage all(const Irradiance& irradiance) const;

    Gain gain(double room, double outdoor, const Irradiance& irradiance) const;

    // Solar heat gain of 1 W/m² as EN 410 rates it.
    double rated_gain(const Passage& passage) const;

  private:
    Passage through(std::span<const Layer> glass, const Screen& screen) const;
    PerLayer temperatures(double room, double outdoor, const PerLayer& absorbed) const;
    bool is_as_the_library_takes_it() const;

    Unit unit_;
    std::optional<Blind> blind_;
    std::size_t place_ = 0;  // of the blind
    double tilt_;
    HeatBalance design_, rated_;
    Method method_;
    std::vector<Layer> diffuse_;  // all layers, in radiation that has been scattered
    Passage from_sky_, from_ground_;
};

// A unit that is known by its shading coefficients only.
class EquivalentPane {
  public:
    explicit EquivalentPane(const ShadingCoefficients& coefficients);

    std::size_t layers() const { return static_cast<std::size_t>(coefficients_.panes); }
    std::optional<std::size_t> blind() const { return std::nullopt; }
    Method method() const { return Method::pane_temperatures; }

    Passage direct(double incidence, double profile) const;
    const Passage& from_sky() const { return diffuse_; }
    const Passage& from_ground() const { return diffuse_; }
    Passage all(const Irradiance& irradiance) const;

    Gain gain(double room, double outdoor, const Irradiance& irradiance) const;
    double rated_gain(const Passage& passage) const;

  private:
    ShadingCoefficients coefficients_;
    PerLayer shares_{};  // of the absorbed total, by pane
    Passage diffuse_;
};

// Nothing in the opening: all that falls on it comes in.
struct Opening {
    std::size_t layers() const { return 0; }
    std::optional<std::size_t> blind() const { return std::nullopt; }
    Method method() const { return Method::heat_balance; }
    Passage direct(double, double) const { return {1, {}}; }
    Passage all(const Irradiance&) const { return {1, {}}; }
    Gain gain(double, double, const Irradiance& i) const {
        return {i.direct + i.sky + i.ground, 0, 0, {}};
    }
};

using AnyGlazing = std::variant<Opening, Panes, EquivalentPane>;

// Without or with the window's blind.
AnyGlazing glazing_of(const Window& window, bool with_blind);

// Solar heat gain of clear glass 3 mm thick at normal incidence: what a shading coefficient is in
// terms of.
inline constexpr double reference_gain = 0.87;

// What is not known, as without a blind, is none.
struct UnitFigures {
    double u_value = none;              // W/m²K, EN 673
    double transmittance = none;        // of solar radiation at normal incidence
    double g = none, g_diffuse = none;  // solar heat gain at normal incidence, of diffuse radiation
    double g_with_blind = none, g_diffuse_with_blind = none;
};

// Of a window; of an opening without glazing nothing is known.
UnitFigures unit_figures(const Window& window);

}  // namespace quorvel::window
