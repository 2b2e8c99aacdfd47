// Convection in the gas between two panes, by EN 673.
#pragma once

#include "calculation/window/input.h"

namespace quorvel::window {

struct GasState {
    double conductivity, density, viscosity, specific_heat;
};

// At a temperature in °C; straight lines between the four given ones and beyond the last.
GasState at(const Gas& gas, double temperature);

// W/m²K by convection and conduction in a cavity with a tilt [degrees from the horizontal, 90
// vertical], whose outer and inner face have these temperatures in °C.
double gas_conductance(const Cavity& cavity, double outer, double inner, double tilt);

// W/m²K by radiation between two faces at a mean temperature in °C.
double radiative_conductance(double emissivity_a, double emissivity_b, double temperature);

// The thermal transmittance of a unit in W/m²K under the conditions of EN 673: surfaces with 25
// and 7.7 W/m²K (the latter less before a coating), 10 °C in the mean, 15 K between the outer and
// the inner pane.
double u_value(const Unit& unit, double tilt);

}  // namespace quorvel::window
