// Windows through the hours of a design day, of twelve of them, or of a year of weather.
#pragma once

#include <functional>
#include <span>
#include <vector>

#include "calculation/window/glazing.h"
#include "calculation/window/shading.h"
#include "calculation/window/sky.h"

namespace quorvel::window {

// What a window is exposed to.
struct Exposure {
    Sky sky;
    double hour = 0;  // of the table: solar time of a design day, the hour's end in weather
    double room = none, outdoor = none;  // °C
};

struct WindowHour {
    double incidence = none;  // degrees, above 90 of a sun behind the window; none while it is down
    // None unless the sun is before the window:
    double vertical = none, horizontal = none;   // profile angles, degrees
    double sunlit = none;                        // fraction of the glass
    double direct_unshaded = 0;                  // W/m² on the plane
    double direct = 0, diffuse = 0, ground = 0;  // W/m² on the glass, in the mean
    bool blind_down = false;
    double direct_transmittance = none, direct_absorptance = none;  // none without direct sun
    double absorbed = 0;                                            // W/m² by panes and blind
    double absorbed_by_blind = none;                                // W/m²; none without a blind
    Gain gain;                                                      // per m²
    Gain bare;                                                      // the same without the blind

    double incident() const { return direct + diffuse + ground; }
    double transmitted() const { return gain.transmitted; }
    double solar_gain() const { return gain.solar(); }
    double conduction() const { return gain.conduction; }
    double net() const { return gain.net(); }
    double solar_gain_without_blind() const { return bare.solar(); }
};

// One window, ready for any sun.
class Model {
  public:
    Model(const Window& window, const Site& site);  // which must outlive it

    WindowHour at(const Exposure& exposure, double ground_reflectance) const;
    const Shading& shading() const { return shading_; }
    const AnyGlazing& bare() const { return bare_; }
    const AnyGlazing& shaded() const { return shaded_; }  // with the blind, if there is one

  private:
    void irradiate(WindowHour& at, Irradiance& on_glass, const Exposure& exposure,
                   double ground_reflectance) const;
    void let_in(WindowHour& at, const Irradiance& on_glass, const Exposure& exposure) const;

    const Window& window_;
    const Site& site_;
    Shading shading_;
    AnyGlazing bare_, shaded_;
};

struct WindowDay {
    const Window* window;
    std::size_t layers;                // panes and blind
    std::optional<std::size_t> blind;  // its place among them
    Method method;
    Openness open;
    std::vector<WindowHour> at;

    // Of the whole glass, W.
    template <class Member>
    double power(std::size_t i, Member member) const {
        return window->area * std::invoke(member, at[i]);
    }
};

struct Day {
    int day_of_year;
    double declination;      // degrees
    double sunrise, sunset;  // h solar time; 25 and 0 without sunrise, 0 and 25 without sunset
    double solar_minus_clock = none;  // h; none when the input gives no clock
    SiteConstants constants;
    std::vector<Exposure> exposure;
    std::vector<WindowDay> windows;
};

// A design day at equal steps, so many per hour, up to hour 24. The result refers to the windows.
Day calculate(const Site& site, const DesignDay& day, std::span<const Window> windows,
              int steps_per_hour = 1);

// The sum of a member of WindowHour over a day [Wh/m²]: the trapezoidal rule, as the day repeats.
template <class Member>
double daily_sum(const WindowDay& window, Member member) {
    double sum = 0;
    for (const WindowHour& at : window.at) sum += std::invoke(member, at);
    return sum * host::hours_a_day / static_cast<double>(window.at.size());
}

// The same of the whole glass [kWh].
template <class Member>
double daily_energy(const WindowDay& window, Member member) {
    return window.window->area * daily_sum(window, member) / 1000;
}

// The largest power of an hourly day; hour 0 when nothing ever comes in.
struct Peak {
    int hour;
    double power;  // W
};

template <class Member>
Peak peak_of(std::span<const WindowDay> windows, Member member) {
    Peak peak{0, 0};
    for (std::size_t i = 0; !windows.empty() && i < windows[0].at.size(); ++i) {
        double sum = 0;
        for (const WindowDay& window : windows) sum += window.power(i, member);
        if (sum > peak.power) peak = {static_cast<int>(i) + 1, sum};
    }
    return peak;
}

template <class Member>
Peak peak_of(const WindowDay& window, Member member) {
    return peak_of(std::span(&window, 1), member);
}

// Sums over a month or a year, per window [kWh] but for the irradiation.
struct Sums {
    double incident = 0;  // kWh/m² on the glass, shaded as it is
    double transmitted = 0, solar_gain = 0, solar_gain_without_blind = 0;
    double conduction_in = 0, conduction_out = 0;
    double hours_blind_down = 0;

    void add(const WindowHour& at, double area, double hours);
    double net() const { return solar_gain + conduction_in - conduction_out; }
};

struct PeakOfYear {
    double power = 0;  // W of solar heat gain
    int month = 0, day_of_year = 0, hour = 0;
};

struct WindowYear {
    const Window* window;
    std::array<Sums, 12> months;
    Sums year;
    PeakOfYear peak;
    double warmest = none, coldest = none;  // °C of the pane nearest the room
    Method method;
    Openness open;
};

struct Year {
    std::vector<WindowYear> windows;
};

// Of weather: the sun stands as in the middle of the sunlit part of each hour.
Year calculate(const Site& site, const Weather& weather, std::span<const Window> windows);

// Of the twelve design days, each as often as its month has days.
Year calculate(const Site& site, std::span<const DesignDay> days, std::span<const Window> windows);

}  // namespace quorvel::window
