// Uncoated panes of the library's glass, index 1.52, by their normal transmittance: at one angle of
// incidence and under isotropic diffuse radiation.
#pragma once

#include "glazing/incidence_bands.h"
#include "glazing/pane.h"

namespace quorvel::glazing {

inline constexpr Real glass_index = 1.52f;

template <class R>
Optics<R> opaque_optics() noexcept {
    return {R(0.0f), R(0.0f), R(1.0f)};
}

// Means over the hemisphere and both polarisations.
template <class R>
struct Diffuse {
    R transmittance, absorptance;
};

// Hemispherical means of a pane whose two polarisations a function gives at each band.
template <class R, class Evaluate>
inline Diffuse<R> integrated(Evaluate evaluate) noexcept {
    std::array<R, incidence_band_count> transmitted, absorbed;
    for (int k = 0; k < incidence_band_count; ++k) {
        const Polarised<Optics<R>> optics = evaluate(k);
        transmitted[k] = optics.perpendicular.transmittance + optics.parallel.transmittance;
        absorbed[k] = optics.perpendicular.absorptance + optics.parallel.absorptance;
    }
    return {hemispherical_mean(transmitted), hemispherical_mean(absorbed)};
}

// Below a normal transmittance of 0.001 it is opaque and reflects everything.
template <class R>
class ClearPane {
  public:
    explicit ClearPane(R Tn) noexcept
        : opaque_(Tn < 0.001f),
          KL_(either(
              rarely(opaque_), [&] { return R(0.0f); },
              [&] { return absorption_product(Tn, R(glass_index)); })) {}

    // At the angle of incidence theta, rad.
    Polarised<Optics<R>> direct(R theta) const noexcept {
        return either(
            rarely(opaque_),
            [&] {
                return Polarised<Optics<R>>{opaque_optics<R>(), opaque_optics<R>()};
            },
            [&] {
                const R refracted = refraction_angle(theta, R(glass_index));
                const Polarised<R> r = surface_reflectance(theta, refracted, R(glass_index));
                const R a = single_pass_absorption(refracted, KL_);
                return Polarised<Optics<R>>{slab_optics(a, r.parallel),
                                            slab_optics(a, r.perpendicular)};
            });
    }

    // At normal incidence, where the polarisations do not differ.
    Optics<R> normal() const noexcept {
        return either(
            rarely(opaque_), [&] { return opaque_optics<R>(); },
            [&] {
                constexpr Real r = squared((1.0f - glass_index) / (1.0f + glass_index));
                return slab_optics(absorption_along(R(1.0f), KL_), R(r));
            });
    }

    Diffuse<R> diffuse() const noexcept {
        return either(
            rarely(opaque_),
            [&] {
                return Diffuse<R>{R(0.0f), R(0.0f)};
            },
            [&] {
                return integrated<R>([&](int k) {
                    const IncidenceBand& band = incidence_bands[k];
                    const R a = absorption_along(R(band.cos_refraction), KL_);
                    return Polarised<Optics<R>>{slab_optics(a, R(band.parallel)),
                                                slab_optics(a, R(band.perpendicular))};
                });
            });
    }

  private:
    MaskOf<R> opaque_;
    R KL_;
};

}  // namespace quorvel::glazing
