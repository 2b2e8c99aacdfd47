#include "psychro/moist_air.h"

namespace quorvel::psychro {
namespace {

// Second virial coefficient of water vapour, (D0 - D1 t) / 100: one row below 0 °C, one for each
// 10 K above, the last one from 50 °C.
Real vapour_virial(Real t) noexcept {
    constexpr Real D0[] = {6.318f, 6.318f, 6.076f, 5.634f, 5.262f, 4.862f, 4.462f};
    constexpr Real D1[] = {0.1622f, 0.1105f, 0.0863f, 0.0642f, 0.0518f, 0.0418f, 0.0338f};
    int row = 6;
    if (t < 0.0f) {
        row = 0;
    } else if (t <= 50.0f) {
        row = static_cast<int>(t / 10.0f) + 1;
    }
    return (D0[row] - D1[row] * t) / 100.0f;
}

// The search for a saturation temperature climbs by 10 K; from some 15 700 °C the saturation
// pressure is infinite and the enthalpy no number, so that it finds nothing beyond.
constexpr int most_steps = 4000;

}  // namespace

Real specific_volume(Real t, Real g, Real p) noexcept {
    const Real content = std::min(g, MoistAir(p).saturation_content(t));
    const Real xa = molar_mass_ratio / (molar_mass_ratio + content);
    const Real xv = 1.0f - xa;
    const Real pa = p - content * p / ((molar_mass_ratio + content) * 1.0045f);
    const Real ideal = (t + zero_celsius) * 287.04f / pa;
    const Real hundreds = t / 100.0f;
    const Real B = (((0.0004353f - 2.1418e-6f * t) * t - 0.082785f) * t + 4.542f) / 10000.0f;
    const Real C = (1.45f - 0.0097f * t + 0.32f * (hundreds * hundreds)) / 1000.0f;
    return ideal - xv * xv * vapour_virial(t) - xa * (B * xa + 2.0f * C * xv);
}

Real saturation_temperature_from_enthalpy(Real h, Real p) noexcept {
    if (h < -10.0f) return -13.4f;
    if (h > 460.0f) return 60.0f;
    const MoistAir air(p);
    Real t = -20.0f;
    Real step = 10.0f;
    for (int i = 0; i < most_steps; ++i) {
        if (specific_enthalpy(t, air.saturation_content(t)) > h) {
            t = (t - step) + step / 10.0f;
            step /= 10.0f;
            if (step < 0.005f) return t;
        } else {
            t += step;
        }
    }
    return t;
}

}  // namespace quorvel::psychro
