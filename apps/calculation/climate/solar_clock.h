// Solar time at a place whose clock keeps the standard time of a zone.
#pragma once

namespace quorvel::climatefile {

class SolarClock {
  public:
    // Longitude in degrees, positive east; the zone's standard time ahead of universal time, h.
    SolarClock(double longitude, double zone);

    // What the longitude alone adds to standard time, -12 to 12 h: the place has its noon so much
    // ahead of the zone's meridian. Zones on either side of the date line come to the same.
    double ahead() const { return ahead_; }

    // What is added to standard time on a day of the year, 1 to 366: with the equation of time.
    double correction(int day_of_year) const;

  private:
    double ahead_;
};

}  // namespace quorvel::climatefile
