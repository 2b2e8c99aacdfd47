#include "calculation/wall/profile.h"

#include <algorithm>
#include <cmath>

#include "quorvel/psychro.h"

namespace quorvel::wall {
namespace {

constexpr double thickest_step = 0.25;  // m²K/W, EN ISO 13788
constexpr int most_steps = 50;  // of a layer; thicker ones than any in buildings have coarser steps
constexpr double grams_a_day = 86400e3 / 1e9;  // of 1 Pa through 1 GN s/kg

// The taut string under the saturation pressures: between the ends and the wet places the lower
// convex hull of all places. Vapour flows evenly along its straight pieces, and condenses where it
// is bent.
std::vector<std::size_t> bends(const std::vector<Place>& places, const std::vector<double>& limit,
                               const std::vector<bool>& wet) {
    const auto slope = [&](std::size_t i, std::size_t j) {
        return (limit[j] - limit[i]) / (places[j].vapour_resistance - places[i].vapour_resistance);
    };
    std::vector<std::size_t> string;
    std::size_t held = 1;  // so many stay
    for (std::size_t i = 0; i < places.size(); ++i) {
        while (string.size() > held &&
               slope(string.end()[-2], string.back()) >= slope(string.back(), i))
            string.pop_back();
        string.push_back(i);
        if (wet[i]) held = string.size();
    }
    return string;
}

void set_temperatures(Profile& profile, const Path& path, const Climate& climate) {
    for (const Place& place : path.places) {
        const double t = std::lerp(climate.inside.temperature, climate.outside.temperature,
                                   place.resistance / path.resistance);
        profile.temperature.push_back(t);
        profile.saturation.push_back(lib::saturation_pressure(t));
    }
}

// In g/m² a day, outwards from a place to one further on.
double flow(const Path& path, const Profile& profile, std::size_t from, std::size_t to) {
    return grams_a_day * (profile.pressure[from] - profile.pressure[to]) /
           (path.places[to].vapour_resistance - path.places[from].vapour_resistance);
}

void set_pressures(Profile& profile, const Path& path, const std::vector<std::size_t>& bends) {
    for (std::size_t b = 0; b + 1 < bends.size(); ++b) {
        const Place &one = path.places[bends[b]], &other = path.places[bends[b + 1]];
        for (std::size_t i = bends[b] + 1; i < bends[b + 1]; ++i) {
            const double way = (path.places[i].vapour_resistance - one.vapour_resistance) /
                               (other.vapour_resistance - one.vapour_resistance);
            profile.pressure[i] =
                std::lerp(profile.pressure[bends[b]], profile.pressure[bends[b + 1]], way);
        }
    }
    for (std::size_t b = 1; b + 1 < bends.size(); ++b)
        profile.gain[bends[b]] = flow(path, profile, bends[b - 1], bends[b]) -
                                 flow(path, profile, bends[b], bends[b + 1]);
}

}  // namespace

Path path(const Section& section, const Surfaces& surfaces) {
    Path path{{{0, false, 0, surfaces.inside, 0}},
              surfaces.inside + resistance(section) + surfaces.outside};
    for (std::size_t layer = 0; layer < section.slabs.size(); ++layer) {
        const Slab& slab = section.slabs[layer];
        const Place start = path.places.back();
        const int steps =
            std::clamp(static_cast<int>(std::ceil(slab.resistance / thickest_step)), 1, most_steps);
        for (int step = 1; step <= steps; ++step) {
            const double share = static_cast<double>(step) / steps;
            const bool within = step < steps;
            path.places.push_back({within ? layer : layer + 1, within,
                                   start.position + share * slab.thickness,
                                   start.resistance + share * slab.resistance,
                                   start.vapour_resistance + share * slab.vapour_resistance});
        }
    }
    return path;
}

Profile profile(const Path& path, const Climate& climate, const std::vector<bool>& wet) {
    Profile profile{};
    set_temperatures(profile, path, climate);
    const double inside = climate.inside.vapour_pressure(),
                 outside = climate.outside.vapour_pressure();
    profile.inside_wet = inside > profile.saturation.front();
    profile.pressure = profile.saturation;
    profile.pressure.front() = std::min(inside, profile.saturation.front());
    profile.pressure.back() = std::min(outside, profile.saturation.back());
    settle(profile, path, wet);
    return profile;
}

Profile profile(const Path& path, const Climate& climate) {
    return profile(path, climate, std::vector<bool>(path.places.size()));
}

void settle(Profile& profile, const Path& path, const std::vector<bool>& wet) {
    std::copy(profile.saturation.begin() + 1, profile.saturation.end() - 1,
              profile.pressure.begin() + 1);
    profile.gain.assign(path.places.size(), 0);
    set_pressures(profile, path, bends(path.places, profile.pressure, wet));
}

}  // namespace quorvel::wall
