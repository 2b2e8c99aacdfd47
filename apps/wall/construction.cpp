#include "wall/construction.h"

#include <algorithm>
#include <cmath>
#include <tuple>

#include "calculation/angle.h"
#include "quorvel/fabric.h"

namespace quorvel::wall {
namespace {

constexpr int outside_surface = 1, inside_surface = 2;
constexpr int daily = 1, between_two_environments = 1;
constexpr double grams_a_day = 86400e3;  // of 1 kg/s

using Column = std::array<float, most_layers>;

// The layers as the library takes them: a thickness below 0 is an air gap, whose resistance then
// stands for its conductivity; one of 0 is a membrane, whose resistivity is a resistance.
struct Layers {
    int count = 0;
    Column thickness{}, conductivity{}, density{}, specific_heat{}, resistivity{};
};

struct Surfaces {
    float inside, outside;  // m²K/W
};

float tilt(HeatFlow flow) {
    return host::radians(flow == HeatFlow::up ? 0 : flow == HeatFlow::horizontal ? 90 : 180);
}

float gap_resistance(const Gap& gap, float tilt) {
    if (gap.resistance) return static_cast<float>(*gap.resistance);
    return lib::TPRCA2(tilt, static_cast<float>(gap.thickness),
                       static_cast<float>(gap.emissivities[0]),
                       static_cast<float>(gap.emissivities[1]));
}

Layers as_arrays(const Job& job) {
    Layers layers;
    for (const Layer& layer : job.layers) {
        const auto i = static_cast<std::size_t>(layers.count++);
        if (const auto* solid = std::get_if<Solid>(&layer.make)) {
            layers.thickness[i] = static_cast<float>(solid->thickness);
            layers.conductivity[i] = static_cast<float>(solid->conductivity);
            layers.density[i] = static_cast<float>(solid->density);
            layers.specific_heat[i] = static_cast<float>(solid->specific_heat);
            layers.resistivity[i] = static_cast<float>(solid->vapour_resistivity);
        } else if (const auto* gap = std::get_if<Gap>(&layer.make)) {
            layers.thickness[i] = -static_cast<float>(gap->thickness);
            layers.conductivity[i] = gap_resistance(*gap, tilt(job.heat_flow));
        } else if (const auto* membrane = std::get_if<Membrane>(&layer.make)) {
            layers.resistivity[i] = static_cast<float>(membrane->vapour_resistance);
        }
    }
    return layers;
}

Surfaces surfaces(const Job& job) {
    const float angle = tilt(job.heat_flow);
    Surfaces surfaces{lib::TPRSUR(inside_surface, angle, job.exposure),
                      lib::TPRSUR(outside_surface, angle, job.exposure)};
    if (job.inside_resistance) surfaces.inside = static_cast<float>(*job.inside_resistance);
    if (job.outside_resistance) surfaces.outside = static_cast<float>(*job.outside_resistance);
    return surfaces;
}

double resistance(const Layers& layers, std::size_t i) {
    const double thickness = layers.thickness[i], conductivity = layers.conductivity[i];
    return thickness > 0 ? thickness / conductivity : thickness < 0 ? conductivity : 0;
}

double vapour_resistance(const Layers& layers, std::size_t first, int count) {
    float total;  // N s/kg
    lib::TPDAMP(&layers.thickness[first], &layers.resistivity[first], count, total);
    return static_cast<double>(total) / 1e9;
}

// Rounding can put a shift of 0 at the other end of the day.
double hours(float shift) { return shift > 23.95f ? 0.0 : static_cast<double>(shift); }

CyclicResponse cyclic_response(const Layers& layers, const Surfaces& surfaces) {
    float y, lead, f, f_lag, s, s_lag, u;
    lib::TPADMT(layers.thickness, layers.conductivity, layers.density, layers.specific_heat,
                surfaces.inside, surfaces.outside, layers.count, daily, between_two_environments, y,
                lead, f, f_lag, s, s_lag, u);
    if (!std::isfinite(f)) return {};
    return {y, hours(lead), f, hours(f_lag), s, hours(s_lag)};
}

// Whether the straight line of vapour pressure through a layer meets saturation within it.
bool condenses_between(const Interface& one, const Interface& other) {
    const auto& [warm, cold] =
        one.temperature > other.temperature ? std::tie(one, other) : std::tie(other, one);
    return lib::ITPCON(static_cast<float>(warm.temperature), static_cast<float>(cold.temperature),
                       static_cast<float>(warm.vapour_pressure),
                       static_cast<float>(cold.vapour_pressure)) == 1;
}

// What flows towards a wet interface and not away from it stays there.
void settle_condensate(Profile& profile, const std::vector<double>& vapour_resistance) {
    const auto flow = [&](std::size_t layer) {  // kg/m²s outwards
        const double difference =
            profile.at[layer].vapour_pressure - profile.at[layer + 1].vapour_pressure;
        return difference / (1e9 * vapour_resistance[layer]);
    };
    for (std::size_t i = 1; i + 1 < profile.at.size(); ++i)
        if (profile.at[i].condenses)
            profile.at[i].condensate = std::max(0.0, grams_a_day * (flow(i - 1) - flow(i)));
}

Profile profile(const Layers& layers, const Surfaces& surfaces, const Climate& climate,
                const std::vector<double>& vapour_resistance) {
    std::array<float, most_layers + 1> t{}, p{}, ps{};
    lib::TPGRAD(layers.thickness, layers.conductivity, layers.resistivity, surfaces.inside,
                surfaces.outside, layers.count, static_cast<float>(climate.inside.temperature),
                static_cast<float>(climate.outside.temperature),
                static_cast<float>(climate.inside.humidity),
                static_cast<float>(climate.outside.humidity), t, p, ps);
    Profile profile{&climate, {}, {}};
    for (std::size_t i = 0; i <= static_cast<std::size_t>(layers.count); ++i)
        profile.at.push_back({t[i], p[i], ps[i], p[i] >= ps[i]});
    for (std::size_t i = 0; i + 1 < profile.at.size(); ++i)
        if (condenses_between(profile.at[i], profile.at[i + 1])) profile.wet_layers.push_back(i);
    settle_condensate(profile, vapour_resistance);
    return profile;
}

double mass(const Job& job) {
    double sum = 0;
    for (const Layer& layer : job.layers)
        if (const auto* solid = std::get_if<Solid>(&layer.make))
            sum += solid->thickness * solid->density;
    return sum;
}

}  // namespace

bool Profile::condenses() const {
    return !wet_layers.empty() || std::ranges::any_of(at, &Interface::condenses);
}

double Profile::condensate() const {
    double sum = 0;
    for (const Interface& interface : at)
        if (!std::isnan(interface.condensate)) sum += interface.condensate;
    return sum;
}

Construction calculate(const Job& job) {
    const Layers layers = as_arrays(job);
    const Surfaces films = surfaces(job);
    Construction result{};
    result.inside_resistance = films.inside;
    result.outside_resistance = films.outside;
    for (std::size_t i = 0; i < job.layers.size(); ++i) {
        result.resistance.push_back(resistance(layers, i));
        result.vapour_resistance.push_back(vapour_resistance(layers, i, 1));
        result.thickness += job.layers[i].thickness();
    }
    result.total_vapour_resistance = vapour_resistance(layers, 0, layers.count);
    result.mass = mass(job);
    float u;
    lib::TPUVAL(layers.thickness, layers.conductivity, films.inside, films.outside, layers.count,
                u);
    result.u_value = u;
    result.cyclic = cyclic_response(layers, films);
    for (const Climate& climate : job.climates)
        result.profiles.push_back(profile(layers, films, climate, result.vapour_resistance));
    return result;
}

const Profile& wettest(const Construction& construction) {
    const auto wetness = [](const Profile& profile) {
        return std::tuple(profile.condensate(), profile.condenses(),
                          -profile.climate->outside.temperature);
    };
    return *std::ranges::max_element(construction.profiles, {}, wetness);
}

}  // namespace quorvel::wall
