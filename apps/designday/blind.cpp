#include "designday/blind.h"

#include <algorithm>

#include "calculation/angle.h"
#include "quorvel/glazing.h"

namespace quorvel::designday {
namespace {

// Slats with unlike faces absorb, by the library's model, up to many times what arrives.
Layer balanced(double transmittance, double absorptance) {
    const double t = std::clamp(transmittance, 0.0, 1.0);
    return {t, std::clamp(absorptance, 0.0, 1.0 - t)};
}

Layer in_direct_sun(const Slats& slats, float profile) {
    const bool from_above = profile + host::radians(slats.angle) > 0;
    const double struck = from_above ? slats.upper_absorptance : slats.lower_absorptance;
    const double opposite = from_above ? slats.lower_absorptance : slats.upper_absorptance;
    float t, a, r;
    lib::WNDRS2(static_cast<float>(slats.spacing), static_cast<float>(slats.width),
                static_cast<float>(slats.angle), profile, static_cast<float>(struck),
                static_cast<float>(opposite), t, a, r);
    return balanced(t, a);
}

Layer in_direct_sun(const Fabric& fabric, float profile) {
    float t, a, r;
    lib::WNDRRO(static_cast<float>(fabric.transmittance), static_cast<float>(fabric.reflectance),
                profile, t, a, r);
    return balanced(t, a);
}

// Of slats with one absorptance of the face struck first, one of the other.
DiffuseLayers in_diffuse_radiation(const Slats& slats, double struck, double opposite) {
    float t_sky, t_ground, a_sky, a_ground;
    lib::WNDFS2(static_cast<float>(slats.spacing), static_cast<float>(slats.width),
                static_cast<float>(slats.angle), static_cast<float>(struck),
                static_cast<float>(opposite), t_sky, t_ground, a_sky, a_ground);
    return {balanced(t_sky, a_sky), balanced(t_ground, a_ground)};
}

DiffuseLayers in_diffuse_radiation(const Slats& slats) {
    const double above = slats.upper_absorptance, below = slats.lower_absorptance;
    return {in_diffuse_radiation(slats, above, below).upper,
            in_diffuse_radiation(slats, below, above).lower};
}

DiffuseLayers in_diffuse_radiation(const Fabric& fabric) {
    float t, a, r;
    lib::WNDFRO(static_cast<float>(fabric.transmittance), static_cast<float>(fabric.reflectance), t,
                a, r);
    return {balanced(t, a), balanced(t, a)};
}

}  // namespace

Layer in_direct_sun(const Blind& blind, float profile) {
    return std::visit([&](const auto& make) { return in_direct_sun(make, profile); }, blind.make);
}

DiffuseLayers in_diffuse_radiation(const Blind& blind) {
    return std::visit([](const auto& make) { return in_diffuse_radiation(make); }, blind.make);
}

}  // namespace quorvel::designday
