#include "calculation/window/blind.h"

#include <algorithm>
#include <cmath>

#include "calculation/angle.h"
#include "quorvel/glazing.h"

namespace quorvel::window {
namespace {

// What a blind does to radiation that falls on one of its sides.
struct Side {
    double transmittance, reflectance;
};

// Slats with unlike faces absorb, by the library's model, up to many times what arrives.
Side balanced(double transmittance, double absorptance) {
    const double t = std::clamp(transmittance, 0.0, 1.0);
    return {t, 1.0 - t - std::clamp(absorptance, 0.0, 1.0 - t)};
}

Layer layer(const Side& front, const Side& back) {
    return {front.transmittance, front.reflectance, back.transmittance, back.reflectance};
}

// The same slats as someone in the room sees them.
Slats from_inside(const Slats& slats) {
    Slats result = slats;
    result.angle = -slats.angle;
    return result;
}

Side in_direct_sun(const Slats& slats, double profile) {
    const bool from_above = profile + host::radians(slats.angle) > 0;
    const double struck = from_above ? slats.upper_absorptance : slats.lower_absorptance;
    const double opposite = from_above ? slats.lower_absorptance : slats.upper_absorptance;
    const auto through = lib::two_faced_slat_direct(slats.spacing, slats.width, slats.angle,
                                                    profile, struck, opposite);
    return balanced(through.transmittance, through.absorptance);
}

// Between slats, where the beam meets none of them.
double straight(const Slats& slats, double profile) {
    const double turn = profile + host::radians(slats.angle);
    const double covered = slats.width * std::fabs(std::sin(turn));
    return std::max(0.0, 1 - covered / (slats.spacing * std::max(std::cos(profile), 1e-6)));
}

// With one absorptance of the face struck first, one of the other.
struct Halves {
    Side upper, lower;
};
Halves in_diffuse_radiation(const Slats& slats, double struck, double opposite) {
    const auto through =
        lib::two_faced_slat_diffuse(slats.spacing, slats.width, slats.angle, struck, opposite);
    return {balanced(through.sky_transmittance, through.sky_absorptance),
            balanced(through.ground_transmittance, through.ground_absorptance)};
}

Halves in_diffuse_radiation(const Slats& slats) {
    const double above = slats.upper_absorptance, below = slats.lower_absorptance;
    return {in_diffuse_radiation(slats, above, below).upper,
            in_diffuse_radiation(slats, below, above).lower};
}

Side mean(const Halves& halves) {
    return {(halves.upper.transmittance + halves.lower.transmittance) / 2,
            (halves.upper.reflectance + halves.lower.reflectance) / 2};
}

Screen screen(const Slats& slats, double profile) {
    // Met by what the panes reflect, which comes from above as before.
    const Slats behind = from_inside(slats);
    const double through = straight(slats, profile), through_back = straight(behind, profile);
    Side front = in_direct_sun(slats, profile), back = in_direct_sun(behind, profile);
    front.transmittance = std::max(front.transmittance - through, 0.0);
    back.transmittance = std::max(back.transmittance - through_back, 0.0);
    return {through, through_back, layer(front, back)};
}

Layer fabric_layer(const Fabric& fabric, double straight) {
    const Side side{fabric.transmittance - straight, fabric.reflectance};
    return layer(side, side);
}

Screen screen(const Fabric& fabric, float) {
    return {fabric.openness, fabric.openness, fabric_layer(fabric, fabric.openness)};
}

DiffuseScreens screens(const Slats& slats) {
    const Halves front = in_diffuse_radiation(slats),
                 back = in_diffuse_radiation(from_inside(slats));
    return {{0, 0, layer(front.upper, back.upper)}, {0, 0, layer(front.lower, back.lower)}};
}

DiffuseScreens screens(const Fabric& fabric) {
    const Screen screen{0, 0, fabric_layer(fabric, 0)};
    return {screen, screen};
}

Layer scattered(const Slats& slats) {
    return layer(mean(in_diffuse_radiation(slats)), mean(in_diffuse_radiation(from_inside(slats))));
}

Layer scattered(const Fabric& fabric) { return fabric_layer(fabric, 0); }

// Radiation of heat knows no colour: both faces of the slats are alike.
Layer thermal(const Slats& slats, double emissivity) {
    Slats grey = slats;
    grey.upper_absorptance = grey.lower_absorptance = emissivity;
    return scattered(grey);
}

Layer thermal(const Fabric& fabric, double emissivity) {
    const Side side{fabric.openness, (1 - fabric.openness) * (1 - emissivity)};
    return layer(side, side);
}

}  // namespace

Screen in_direct_sun(const Blind& blind, double profile) {
    return std::visit([&](const auto& make) { return screen(make, profile); }, blind.make);
}

DiffuseScreens in_diffuse_radiation(const Blind& blind) {
    return std::visit([](const auto& make) { return screens(make); }, blind.make);
}

Layer in_scattered_radiation(const Blind& blind) {
    return std::visit([](const auto& make) { return scattered(make); }, blind.make);
}

Layer in_thermal_radiation(const Blind& blind) {
    return std::visit([&](const auto& make) { return thermal(make, blind.emissivity); },
                      blind.make);
}

}  // namespace quorvel::window
