// The design day as a picture.
#pragma once

#include <string>

#include "designday/design_day.h"

namespace quorvel::designday {

// A column for each window (irradiance on its plane and what is transmitted; below, temperatures),
// and at the bottom the gain of all windows together.
void draw_chart(const Job& job, const DesignDay& day, const std::string& path);

}  // namespace quorvel::designday
