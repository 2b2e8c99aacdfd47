#include "telling/window/told.h"

namespace quorvel::window {

std::vector<std::string> method() {
    return {
        "Sun: position and clear-sky irradiance of the design day from the Quorvel library, or "
        "the irradiances of the weather file. The diffuse sky on the plane of the window is that "
        "of Perez (1990) unless another is asked for; the ground reflects evenly.",
        "Shading: every face of what stands before the window is projected on it along the rays "
        "of the sun, and the shadows are taken out of the window one after the other. Of sky, "
        "horizon and ground that is left which a fixed set of 8192 rays from all over the glass "
        "reaches. The brightness around the sun is shaded with the sun.",
        "Optics: panes by Fresnel and Bouguer in both polarisations, coated ones by angular "
        "factors, with all reflections to and fro. What a blind lets straight through keeps its "
        "direction, the rest of the light is diffuse from then on.",
        "Heat: a steady balance of both faces of every pane and of the blind between room and "
        "outdoor air: radiation among all layers by their emissivities, convection in closed gaps "
        "by EN 673, 12 W/m²K outdoors, 3.6 in the room and 4.5 behind a blind that air passes "
        "freely. Plain panes with narrow air gaps have the library's pane temperatures. The solar "
        "heat gain is what is transmitted and what the sun adds to the heat that flows inwards; "
        "conduction is that flow without the sun.",
        "Unit: U-value by EN 673. g at normal incidence under the surface coefficients of EN 410, "
        "at 25 °C and 500 W/m².",
    };
}

}  // namespace quorvel::window
