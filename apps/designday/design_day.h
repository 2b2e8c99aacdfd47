// The design day: sun, irradiance and windows through the hours of solar time.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "calculation/none.h"
#include "calculation/sun.h"
#include "designday/glazing.h"
#include "designday/job.h"

namespace quorvel::designday {

using host::none;

struct SunHour {
    double hour = 0;                         // solar time
    double altitude = none, azimuth = none;  // degrees; none while the sun is down
    double direct_normal = 0;                // W/m² at this site
    double diffuse_horizontal = 0;           // W/m² at this site
    double outdoor = 0;                      // °C
};

struct WindowHour {
    double incidence = none;  // degrees; above 90 the sun is behind the window
    double profile = none;  // degrees off the normal in the plane across slats, positive from above
    double direct = 0, diffuse = 0, ground = 0;  // W/m² on the plane of the window
    double direct_transmittance = none, direct_absorptance = none;  // none without direct sun
    double transmitted = 0, absorbed = 0;  // W/m²; absorbed by the panes and the blind
    double absorbed_by_blind = none;       // W/m²; none without a blind
    PerPane temperature{};                 // °C, pane nearest the room first

    double incident() const { return direct + diffuse + ground; }
    double transmitted_fraction() const { return incident() > 0 ? transmitted / incident() : none; }
    double absorbed_fraction() const { return incident() > 0 ? absorbed / incident() : none; }
};

struct WindowDay {
    const Window* window;
    int panes;
    std::vector<WindowHour> at;  // at the hours of DesignDay::sun

    double transmitted_power(std::size_t i) const { return window->area * at[i].transmitted; }  // W
    std::span<const double> panes_at(std::size_t i) const {  // °C, pane nearest the room first
        return std::span(at[i].temperature).first(static_cast<std::size_t>(panes));
    }
};

struct SiteConstants {
    double ground_reflectance, beam_factor, diffuse_factor;
};

struct DesignDay {
    int day_of_year;
    double declination;      // degrees
    double sunrise, sunset;  // h solar time; 25 and 0 without sunrise, 0 and 25 without sunset
    double solar_minus_clock = none;  // h; none when the input gives no clock
    SiteConstants constants;
    std::vector<SunHour> sun;
    std::vector<WindowDay> windows;
};

// The day at equal steps, so many per hour, up to hour 24. The result refers to the job's windows.
DesignDay calculate(const Job& job, int steps_per_hour = 1);

// The sum of a member of WindowHour over the day [Wh/m²]: the trapezoidal rule, as the day repeats.
template <class Member>
double daily_sum(const WindowDay& window, Member member) {
    double sum = 0;
    for (const WindowHour& at : window.at) sum += std::invoke(member, at);
    return sum * host::hours_a_day / static_cast<double>(window.at.size());
}
inline double transmitted_energy(const WindowDay& window) {  // Wh
    return window.window->area * daily_sum(window, &WindowHour::transmitted);
}

// The largest transmitted power of an hourly day; hour 0 when no sun comes in.
struct Peak {
    int hour;
    double power;  // W
};
Peak peak_of(const WindowDay& window);
Peak peak_of_all(const DesignDay& day);

}  // namespace quorvel::designday
