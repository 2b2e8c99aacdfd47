// What is told of windows.
#pragma once

#include <span>
#include <string>
#include <vector>

#include "calculation/calendar.h"
#include "calculation/window/hours.h"
#include "telling/answer.h"

namespace quorvel::window {

// What has been asked and worked out of one input, or of one variant of it.
struct Case {
    std::string variant;  // empty: the input as it is
    const Site& site;
    std::span<const Window> windows;
    std::vector<std::string> notes;  // what was taken for granted
};

struct DayCase : Case {
    const DesignDay& design;
    Day day;

    std::string title() const { return site.name + ", " + host::date(day.day_of_year); }
};

struct YearCase : Case {
    bool of_weather;  // else of the twelve design days
    Year year;

    std::string title() const {
        return site.name + (of_weather ? ", a year of weather" : ", design days of the year");
    }
};

// The day by the hour, with the shadows at these hours of it (a choice of those with sun when there
// are none).
host::Answer told(const DayCase& day, const std::vector<double>& shadow_hours);

// The year by the month.
host::Answer told(const YearCase& year);

// Variants beside each other, the first of which is the input as it is.
host::Answer compared(std::span<const DayCase> days);
host::Answer compared(std::span<const YearCase> years);

// How it is worked out, a paragraph each.
std::vector<std::string> method();

}  // namespace quorvel::window
