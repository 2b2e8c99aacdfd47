// The construction and its profiles as text.
#pragma once

#include <string>

#include "wall/construction.h"

namespace quorvel::wall {

std::string interface_name(std::size_t i, std::size_t layers);  // inside, 1|2, 2|3, outside
std::string both_climates(const Climate& climate);  // inside 20 °C 50 %, outside 4 °C 86 %
std::string verdict(const Profile& profile);        // vapour condenses at 2|3 and within layer 2

std::string report(const Job& job, const Construction& construction);
std::string csv(const Job& job, const Construction& construction);

}  // namespace quorvel::wall
