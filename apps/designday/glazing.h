// The glazing of one window and its blind: what becomes of the radiation that falls on them.
#pragma once

#include <array>

#include "designday/job.h"

namespace quorvel::designday {

using PerPane = std::array<double, most_panes>;  // outermost pane first

// Fractions of the incident radiation; what is neither transmitted nor absorbed is reflected.
struct Fate {
    double transmitted = 0;
    PerPane absorbed{};
    double absorbed_by_blind = 0;

    double absorbed_total() const;
};

class Glazing {
  public:
    explicit Glazing(const Window& window);  // which must outlive it

    int panes() const { return panes_; }
    bool has_blind() const { return window_->blind.has_value(); }
    // Incidence below π/2, profile angle as of a blind; radians.
    Fate direct(float incidence, float profile) const;
    const Fate& from_sky() const { return from_sky_; }
    const Fate& from_ground() const { return from_ground_; }

  private:
    void diffuse_through(const Panes& panes);

    const Window* window_;
    int panes_;
    PerPane
        shares_{};  // of the absorbed total, for a glazing known by its shading coefficients only
    Fate from_sky_, from_ground_;
};

}  // namespace quorvel::designday
