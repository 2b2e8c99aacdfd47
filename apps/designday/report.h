// The design day as text.
#pragma once

#include <string>

#include "designday/design_day.h"

namespace quorvel::designday {

std::string place(const Site& site);                // 51.48° N, 0.29° W, 6 m above sea level
std::string size_and_facing(const Window& window);  // 2.4 m² facing 180° (S), vertical
std::string sun_times(const DesignDay& day);        // sunrise 03:48, sunset 20:12 solar time

std::string report(const Job& job, const DesignDay& day);
std::string csv(const DesignDay& day);

}  // namespace quorvel::designday
