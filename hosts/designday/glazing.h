// The glazing of one window: what becomes of the radiation that falls on it.
#pragma once

#include <array>
#include <variant>

#include "designday/job.h"

namespace quorvel::designday {

using PerPane = std::array<double, most_panes>;  // outermost pane first

// Fractions of the incident radiation; what is neither transmitted nor absorbed is reflected.
struct Fate {
    double transmitted = 0;
    PerPane absorbed{};

    double absorbed_total() const;
};

class Glazing {
  public:
    explicit Glazing(const std::variant<Panes, ShadingCoefficients>& description);

    int panes() const { return panes_; }
    Fate direct(float incidence) const;  // radians, below π/2
    const Fate& diffuse() const { return diffuse_; }

  private:
    std::variant<Panes, ShadingCoefficients> description_;
    int panes_;
    PerPane
        shares_{};  // of the absorbed total, for a glazing known by its shading coefficients only
    Fate diffuse_;
};

}  // namespace quorvel::designday
