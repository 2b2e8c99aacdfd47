// How places, climates and findings of an element are called.
#pragma once

#include <string>
#include <vector>

#include "calculation/wall/assessment.h"
#include "telling/answer.h"

namespace quorvel::wall {

// What is told of an input besides its results.
struct Subject {
    std::string name;
    std::string climate = {};  // where that outside comes from
    std::size_t left_out = 0;  // layers in and beyond a well-ventilated gap
    std::vector<std::string> warnings = {};
    std::string variant = {};  // empty for the input as it is

    std::string variant_name() const { return variant.empty() ? "as it is" : variant; }
};

struct Variation {
    Subject subject;
    Question question;
    Assessment assessment = {};
};

// What is told has the same digits in tables and pictures.
inline const host::Quantity u_value{"u_value", "U-value", "W/m²K", 3};
inline const host::Quantity resistance_to_heat{"resistance", "R", "m²K/W", 3};
inline const host::Quantity resistance_to_vapour{"vapour_resistance", "Z", "GN s/kg", 2};
inline const host::Quantity layer_thickness{"thickness", "d", "mm", 1};
inline const host::Quantity layer_conductivity{"conductivity", "λ", "W/mK", host::as_given};
inline const host::Quantity water_gain{"gain", "gains", "g/m² a day", 2, "", true};
inline const host::Quantity water{"content", "water", "g/m²", 1, "", true};
inline const host::Quantity temperature_factor{"f_rsi", "Temperature factor f_Rsi", "", 3};

std::string told_with_unit(const host::Quantity& quantity, double value);  // 0.467 W/m²K

std::string interface_name(std::size_t i, std::size_t layers);         // inside, 1|2, 2|3, outside
std::string place_name(const Place& place, std::size_t layers);        // 2|3, or in 2 at 83 mm
std::string deposit_name(const Deposit& deposit, std::size_t layers);  // 2|3, or in 2
// batten + stud; empty where all layers are homogeneous
std::string section_name(const Element& element, const Section& section);

std::string told(const Climate& climate);  // inside 20 °C 50 %, outside 4.4 °C 86 %

// Of twelve, from January: "November to March, June"; in all, "every month".
std::string months_told(const std::vector<bool>& months);
std::string month_name(std::size_t month);

// One sentence each.
std::string condensation_told(const Question& question, const Assessment& assessment);
std::string mould_told(const Question& question, const Assessment& assessment);

// The month whose profile is worth showing: that in which most vapour condenses, or else that which
// puts the surface to its hardest test.
std::size_t month_that_matters(const Question& question, const Assessment& assessment);

// As a month begins, with what is wet then; of a single case in its climate.
const Profile& profile_of(const Assessment& assessment, std::size_t month);

}  // namespace quorvel::wall
