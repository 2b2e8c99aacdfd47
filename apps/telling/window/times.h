// Which times of a day in short steps are drawn.
#pragma once

#include <cmath>
#include <vector>

#include "calculation/angle.h"
#include "calculation/window/hours.h"

namespace quorvel::window {

// All of them while the sun is higher than so many degrees. Below, the models of the sky have steps
// that are not the weather's: the design sky at 5°, that of Perez from one class of clearness to
// the next. There the curves go straight from hour to hour, and from the horizon.
inline std::vector<std::size_t> drawn_of(const Day& day, double altitude) {
    std::vector<std::size_t> times;
    const auto is_up = [&](std::size_t i) { return day.exposure[i].sky.sun.is_up(); };
    for (std::size_t i = 0; i < day.exposure.size(); ++i) {
        const Exposure& at = day.exposure[i];
        const bool full_hour = std::fabs(at.hour - std::round(at.hour)) < 1e-6;
        const bool high = host::degrees(at.sky.sun.altitude) >= altitude;
        const bool at_horizon = (i > 0 && is_up(i - 1) != is_up(i)) ||
                                (i + 1 < day.exposure.size() && is_up(i + 1) != is_up(i));
        if (full_hour || high || at_horizon || !is_up(i)) times.push_back(i);
    }
    return times;
}

}  // namespace quorvel::window
