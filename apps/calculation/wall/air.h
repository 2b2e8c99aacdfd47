// The air on the two sides of an element.
#pragma once

namespace quorvel::wall {

struct Air {
    double temperature;  // °C
    double humidity;     // % of saturation

    double vapour_pressure() const;  // Pa
};

// Of one case, or the means of a month.
struct Climate {
    Air inside, outside;
};

// Air of a temperature in °C and a vapour pressure in Pa; of 100 % where it holds more than
// saturation.
Air air_of_pressure(double temperature, double vapour_pressure);

// The temperature in °C, -100 to 100, at which a vapour pressure in Pa saturates.
double saturation_temperature(double vapour_pressure);

inline constexpr int humidity_classes = 5;

// How much the vapour pressure in a building of a humidity class, 1 to 5, exceeds that of the air
// outside, in Pa, at the upper end of the class: constant below 0 °C outside, nothing from 20 °C
// (EN ISO 13788). That of class 5, which has no end, is the 1360 Pa customary for it.
double vapour_excess(int humidity_class, double outside_temperature);

}  // namespace quorvel::wall
