// The climate on the two sides of an element, month by month.
#pragma once

#include <optional>
#include <vector>

#include "calculation/climate/monthly_means.h"
#include "calculation/wall/air.h"

namespace quorvel::wall {

// The rooms behind an element: a number for each case or month.
struct Indoors {
    std::vector<double> temperature;    // °C
    std::vector<double> humidity;       // %; empty where a humidity class tells it
    std::optional<int> humidity_class;  // 1 to 5
};

// Of the twelve months, the humidity by the mean vapour pressure.
std::vector<Air> outside_air(const climatefile::MonthlyMeans& means);

std::vector<Climate> climates(const Indoors& inside, const std::vector<Air>& outside);

}  // namespace quorvel::wall
