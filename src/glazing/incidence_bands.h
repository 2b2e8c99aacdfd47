// Quadrature over the hemisphere for isotropic diffuse radiation: 18 bands of 5 degrees.
#pragma once

#include <array>

#include "base/contract.h"

namespace quorvel::glazing {

inline constexpr Real half_band = 0.04363323f;   // rad, 2.5 degrees
inline constexpr Real band_width = 0.08726646f;  // rad, 5 degrees

// What depends on the angle of the band centre only, since all glass has the index 1.52.
struct IncidenceBand {
    Real weight;          // integral of 2 sin cos over the band
    Real cos_refraction;  // inside the glass
    Real parallel;        // reflectance of one face
    Real perpendicular;
};

inline constexpr int incidence_band_count = 18;

// Angle of incidence, rad, at the centre of a band, counted from 0.
constexpr Real incidence_band_centre(int band) noexcept {
    return half_band + static_cast<Real>(band) * band_width;
}

// Constants, so that no call evaluates seven functions for each band. They are the very numbers
// that the functions of pane.h give at the band centres in single precision, which the tests check
// bit for bit; written by generate/incidence_bands.py.
inline constexpr std::array<IncidenceBand, incidence_band_count> incidence_bands{{
    {0.0075961226f, 0.99958813f, 0.04247331f, 0.0426868f},
    {0.022557566f, 0.9963061f, 0.041618668f, 0.043551307f},
    {0.03683359f, 0.98981f, 0.039903678f, 0.045335215f},
    {0.049990468f, 0.9802358f, 0.037319887f, 0.04815414f},
    {0.061628416f, 0.9677883f, 0.033862945f, 0.05219694f},
    {0.07139379f, 0.95274156f, 0.02954563f, 0.057746783f},
    {0.07898995f, 0.9354396f, 0.024420755f, 0.06521324f},
    {0.08418593f, 0.91629636f, 0.018622125f, 0.07518109f},
    {0.08682409f, 0.8957951f, 0.012435741f, 0.088481486f},
    {0.08682403f, 0.87448597f, 0.006425317f, 0.10629573f},
    {0.08418602f, 0.8529804f, 0.0016546749f, 0.13030525f},
    {0.07898998f, 0.83194184f, 8.552464e-5f, 0.1629041f},
    {0.07139379f, 0.81207013f, 0.0052996925f, 0.20749454f},
    {0.06162834f, 0.79407835f, 0.023835443f, 0.26888487f},
    {0.049990475f, 0.7786606f, 0.06772503f, 0.35379866f},
    {0.036833584f, 0.7664533f, 0.15948087f, 0.47148597f},
    {0.022557676f, 0.7579899f, 0.34234986f, 0.6343764f},
    {0.0075960755f, 0.75365645f, 0.70271456f, 0.8586605f},
}};

// Hemispherical mean of a quantity that is given band by band as the sum of both polarisations.
template <class R>
constexpr R hemispherical_mean(const std::array<R, incidence_band_count>& sums) noexcept {
    R total = R(0.0f);
    for (int k = 0; k < incidence_band_count; ++k) total += incidence_bands[k].weight * sums[k];
    return 0.5f * total;
}

}  // namespace quorvel::glazing
