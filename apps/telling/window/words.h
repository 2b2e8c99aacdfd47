// Windows in words, and what the numbers of their answers mean.
#pragma once

#include <string>

#include "calculation/window/hours.h"
#include "telling/answer.h"

namespace quorvel::window {

std::string place(const Site& site);                // 51.48° N, 0.29° W, 6 m above sea level
std::string sky_told(const Site& site);             // clear sky after Perez
std::string size_and_facing(const Window& window);  // 2.4 m² facing 180° (S), vertical
std::string glazing_told(const Window& window);     // double low-e argon
std::string blind_told(const Window& window);       // slatted blind outside; empty without one
// Overhang: 0.4 m deep, 0.2 m above the window
std::vector<std::string> shades_told(const Window& window);
std::string described(const Window& window);                      // all of this, a line each
std::string layer_name(const Window& window, std::size_t layer);  // pane 1, pane 2 (room), blind
std::string method_told(Method method);

// A direction of 360° is told as 0.
double azimuth_told(double degrees);

using host::Quantity;

Quantity watts(std::string key, std::string name, std::string group = "");
Quantity per_area(std::string key, std::string name, std::string group = "");  // W/m²
Quantity energy(std::string key, std::string name);                            // kWh
Quantity celsius(std::string key, std::string name, std::string group = "");
Quantity fraction(std::string key, std::string name);
Quantity percent(std::string key, std::string name, std::string group = "");
Quantity angle(std::string key, std::string name, std::string group = "");
Quantity word(std::string key, std::string name);
Quantity hour_of_day();

// What is left of sky and ground.
void add_openness(const Openness& open, std::vector<host::Figure>& figures);

// What is known of each unit: U-value, solar heat gain, shading coefficients.
std::vector<host::Figure> unit_figures_told(const Window& window);

}  // namespace quorvel::window
