#include "fabric/condensation.h"

#include "psychro/saturation.h"

namespace quorvel::fabric {
namespace {

// Draws the vapour pressure from interface `start` as a straight line over the vapour resistance to
// interface `end`, as far as it stays below saturation. Gives the interface at which it exceeds
// that and is held there, or 0 if it reaches the end.
int first_bend(int start, int end, const PerLayer<Real>& resistance,
               CondensationProfile& profile) noexcept {
    InterfaceValues& pressure = profile.vapour_pressure;
    Real total = 0.0f;
    for (int i = start; i < end; ++i) total += resistance[i];
    const Real slope = (pressure[start] - pressure[end]) / total;
    Real passed = 0.0f;
    for (int i = start + 1; i < end; ++i) {
        passed += resistance[i - 1];
        pressure[i] = pressure[start] - slope * passed;
        if (profile.saturation_pressure[i] < pressure[i]) {
            pressure[i] = profile.saturation_pressure[i];
            return i;
        }
    }
    return 0;
}

// The vapour pressure between the two surfaces. On the way outwards the line bends at one interface
// after the other; what lies before the last of them is then drawn anew from the inside surface.
// The end of the line only moves inwards, so this comes to an end for any numbers.
void bend_to_saturation(const LayerResistances& layers, CondensationProfile& profile) noexcept {
    for (int end = layers.size; end > 0;) {
        int start = 0;
        while (const int bend = first_bend(start, end, layers.vapour, profile)) start = bend;
        end = start;
    }
}

}  // namespace

CondensationProfile condensation_profile(const LayerResistances& layers, Real U,
                                         const Environment& inside,
                                         const Environment& outside) noexcept {
    CondensationProfile profile;
    const Real flux = (inside.temperature - outside.temperature) * U;
    const auto set_temperature = [&](int i, Real t) {
        profile.temperature[i] = t;
        profile.saturation_pressure[i] = psychro::saturation_pressure(t);
    };
    const auto set_vapour_pressure = [&](int i, const Environment& air) {
        profile.vapour_pressure[i] =
            lesser(psychro::vapour_pressure(air.temperature, air.relative_humidity),
                   profile.saturation_pressure[i]);
    };

    // Without layers the two surfaces are one, which has the values of the inside.
    set_temperature(layers.size, outside.temperature + outside.surface_resistance * flux);
    set_temperature(0, inside.temperature - inside.surface_resistance * flux);
    Real resistance = inside.surface_resistance;
    for (int i = 1; i < layers.size; ++i) {
        resistance += layers.thermal[i - 1];
        set_temperature(i, inside.temperature - flux * resistance);
    }

    set_vapour_pressure(layers.size, outside);
    set_vapour_pressure(0, inside);
    bend_to_saturation(layers, profile);
    return profile;
}

}  // namespace quorvel::fabric
