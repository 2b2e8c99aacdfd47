// The shaded day as text.
#pragma once

#include <string>

#include "shade/shading.h"

namespace quorvel::shade {

std::string title(const Job& job, const Day& day);  // South window, London, 21 June
std::string size_and_facing(const Window& window);  // 1.8 × 1.5 m, facing 180° (S), vertical
std::string totals(const Day& day);                 // of the direct sun of the day ...

std::string report(const Job& job, const Day& day);
std::string csv(const Job& job, const Day& day);

}  // namespace quorvel::shade
