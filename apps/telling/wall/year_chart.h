// The year of an element as a picture.
#pragma once

#include "telling/chart.h"
#include "telling/wall/words.h"

namespace quorvel::wall {

// Water by interface through the months from that in which it begins to gather, if any, and below
// what each month asks of the inside surface.
host::Chart year_chart(const Subject& subject, const Question& question,
                       const Assessment& assessment);

// The water of several variants through the year.
host::Chart comparison_chart(const std::vector<Variation>& variations);

}  // namespace quorvel::wall
