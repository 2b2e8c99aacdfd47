// Water that gathers in a section over the months, and dries (EN ISO 13788).
#pragma once

#include <array>
#include <span>
#include <vector>

#include "calculation/calendar.h"
#include "calculation/wall/profile.h"

namespace quorvel::wall {

using host::months_of_year;
using Monthly = std::array<double, months_of_year>;

// Less water than this, in g/m², is none: saturation pressures are known to single precision.
inline constexpr double least_water = 0.05;

// What is wet at some time: an interface, or a layer within. Months as those of Year.
struct Deposit {
    std::size_t index;  // as of a Place
    bool within;
    Monthly gain;     // of the month, g/m²; below 0 where it dries
    Monthly content;  // at its end, g/m²

    double peak() const;
    double left() const { return content.back(); }  // at the end of the year
};

struct MonthOfYear {
    std::size_t month;             // 0 January
    Profile profile;               // as it begins, with what is wet then
    double condensed, evaporated;  // g/m², of all places
    double content;                // g/m² at its end, of all places
};

// The months in a row from that in which water begins to gather, out of a dry element; from January
// where none gathers.
struct Year {
    std::vector<MonthOfYear> months;
    std::vector<Deposit> deposits;  // from the inside outwards; empty where it stays dry
    std::size_t wettest;            // the month with the most water at its end, counted in this row
    std::size_t dry_from;  // that in which the last of it dries; 12 if it does not, 0 if never wet

    double peak() const { return months[wettest].content; }
    // g/m² after the year, which every year adds.
    double left() const { return months.back().content; }
    bool dry() const { return deposits.empty(); }
    bool dries() const { return left() < least_water; }
    const MonthOfYear& of(std::size_t month) const;  // 0 January
};

// In each month the state is steady but for what is wet: as soon as a place has dried, vapour finds
// its new way. That is EN ISO 13788's method with the month parted there. Of several months with
// which the year may begin, that which leaves the least behind.
Year year(const Path& path, std::span<const Climate> months);

}  // namespace quorvel::wall
