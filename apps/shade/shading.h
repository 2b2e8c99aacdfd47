// A window under the sun of a day.
#pragma once

#include <vector>

#include "calculation/none.h"
#include "calculation/sun.h"
#include "shade/scene.h"
#include "shade/shadow.h"

namespace quorvel::shade {

using host::none;

struct Hour {
    double hour;                             // solar time
    double altitude = none, azimuth = none;  // degrees; none while the sun is down
    double incidence = none;                 // degrees; none while the sun is down

    // None while the sun does not stand before the window.
    double vertical = none, horizontal = none;  // profile angles of the sun, degrees
    double sunlit = none;                       // fraction of the window

    double direct_unshaded = 0, direct = 0;  // W/m², mean over the window

    bool has_sun() const { return sunlit >= 0; }
};

struct Day {
    int day_of_year;
    double declination;      // degrees
    double sunrise, sunset;  // h solar time; 25 and 0 without sunrise, 0 and 25 without sunset
    std::vector<Hour> at;
};

class Shading {
  public:
    explicit Shading(const Job& job);  // which must outlive it

    // At equal steps, so many per hour, up to hour 24.
    Day day(int steps_per_hour = 1) const;
    Hour at(double hour) const;

    // The shadows on a part of the window's plane; none where there is no sun to cast them.
    std::vector<Polygon> shadows(double hour, const Rectangle& area) const;

    Rectangle glass() const { return {0, 0, job_.window.width, job_.window.height}; }

  private:
    double sunlit_fraction(const Vector& towards_sun) const;

    const Job& job_;
    int day_of_year_;
    Scene scene_;
};

}  // namespace quorvel::shade
