// The four things that the program does. Faults of the input are host::InputErrors.
#pragma once

#include <optional>
#include <string>
#include <vector>

namespace quorvel::climatefile {

// Station files, and folders of them, into a climate data file.
void pack(const std::string& output, const std::vector<std::string>& inputs);

// What show prints; months and sets from 1, all where none is named.
struct Selection {
    std::optional<int> month, set;
};
std::string show(const std::string& path, int station, const Selection& selection);
std::string show_text(const std::string& path, int station);

// What check prints, and whether no rule is violated.
struct Verdict {
    std::string text;
    bool clean;
};
Verdict check(const std::string& path, std::optional<int> station);

// A year of weather into a station file; an empty name stands for that of the place.
void from_hourly(const std::string& epw, const std::string& output, int station,
                 const std::string& name);

}  // namespace quorvel::climatefile
