// What the user asks of windows, from an input file.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "calculation/window/input.h"
#include "reading/library.h"

namespace quorvel::window {

enum class Span { day, months, year };

// What the command line asks for beside the input file.
struct Request {
    Span span = Span::day;
    std::string weather;                 // EPW file of the year
    std::vector<std::string> libraries;  // the user's own tables of glass, gases and units
};

struct Job {
    std::string variant;  // its name; empty: the input as it is
    Site site;
    std::vector<DesignDay> days;     // one, or twelve for the months, none for a year of weather
    std::optional<Weather> weather;  // of the year
    std::vector<Window> windows;
    std::vector<std::string> notes;  // what was taken for granted
};

// The input as it is, then its variants. Throws host::InputError at the first fault.
std::vector<Job> read_jobs(const std::string& path, const Request& request);

}  // namespace quorvel::window
