#include "calculation/window/glazing.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "calculation/angle.h"
#include "calculation/window/cavity.h"
#include "quorvel/glazing.h"

namespace quorvel::window {
namespace {

// What the library's pane temperatures take for granted: plain panes, cavities of this resistance
// to a tenth of it, and no blind.
constexpr double library_cavity = 0.135;  // m²K/W
constexpr double library_inside = 0.12;   // m²K/W

Passage weighted(const Passage& a, double weight_a, const Passage& b, double weight_b) {
    Passage sum{a.transmitted * weight_a + b.transmitted * weight_b, {}};
    for (std::size_t k = 0; k < most_layers; ++k)
        sum.absorbed[k] = a.absorbed[k] * weight_a + b.absorbed[k] * weight_b;
    return sum;
}

template <class Glazing>
Passage share_of_all(const Glazing& glazing, const Irradiance& at) {
    const double total = at.direct + at.sky + at.ground;
    if (!(total > 0)) return {};
    Passage sum =
        weighted(glazing.from_sky(), at.sky / total, glazing.from_ground(), at.ground / total);
    if (at.direct > 0)
        sum = weighted(sum, 1, glazing.direct(at.incidence, at.profile), at.direct / total);
    return sum;
}

// Coated panes may reflect unlike amounts on their two faces; they transmit alike.
struct Polarised {
    Layer parallel, perpendicular;
};
Polarised in_direct_sun(const Pane& pane, double incidence) {
    Polarised result;
    for (const bool back : {false, true}) {
        const auto glass = lib::glass_direct(pane.transmittance, pane.reflectance[back], incidence);
        const auto set = [&](Layer& layer, double t, double a) {
            (back ? layer.back_transmittance : layer.front_transmittance) = t;
            (back ? layer.back_reflectance : layer.front_reflectance) = std::max(1 - t - a, 0.0);
        };
        set(result.parallel, glass.parallel_transmittance, glass.parallel_absorptance);
        set(result.perpendicular, glass.perpendicular_transmittance,
            glass.perpendicular_absorptance);
    }
    return result;
}

Layer in_diffuse_radiation(const Pane& pane) {
    const auto side = [&](double reflectance) {
        const auto [t, a] = lib::glass_diffuse(pane.transmittance, reflectance);
        return std::array<double, 2>{t, std::max(1.0 - t - a, 0.0)};
    };
    const auto front = side(pane.reflectance[0]), back = side(pane.reflectance[1]);
    return {front[0], front[1], back[0], back[1]};
}

// The library counts panes from the room. Of four panes it takes and gives five values.
PerLayer library_temperatures(double room, double outdoor, std::size_t panes,
                              const PerLayer& absorbed) {
    std::array<double, most_panes> s{};
    for (std::size_t k = 0; k < panes; ++k) s[k] = absorbed[panes - 1 - k];
    const auto t = lib::pane_temperatures(room, outdoor, static_cast<int>(panes), s[0], s[1], s[2],
                                          s[3], s[4]);
    const std::array<double, most_panes> from_room{t.pane_temperature_1, t.pane_temperature_2,
                                                   t.pane_temperature_3, t.pane_temperature_4,
                                                   t.pane_temperature_5};
    PerLayer result{};
    for (std::size_t k = 0; k < panes; ++k) result[k] = from_room[panes - 1 - k];
    return result;
}

PerLayer times(const PerLayer& shares, double factor) {
    PerLayer result = shares;
    for (double& value : result) value *= factor;
    return result;
}

}  // namespace

double Passage::absorbed_total() const {
    return std::accumulate(absorbed.begin(), absorbed.end(), 0.0);
}

Panes::Panes(const Unit& unit, const std::optional<Blind>& blind, double tilt)
    : unit_(unit),
      blind_(blind),
      place_(blind ? blind->place_among(unit.panes.size()) : 0),
      tilt_(tilt),
      design_(unit, blind, tilt, design_surfaces),
      rated_(unit, blind, tilt, rating_surfaces),
      method_(is_as_the_library_takes_it() ? Method::pane_temperatures : Method::heat_balance) {
    std::vector<Layer> glass;
    for (const Pane& pane : unit.panes) glass.push_back(in_diffuse_radiation(pane));
    diffuse_ = glass;
    if (!blind) {
        from_sky_ = from_ground_ = through(glass, {});
        return;
    }
    diffuse_.insert(diffuse_.begin() + static_cast<std::ptrdiff_t>(place_),
                    in_scattered_radiation(*blind));
    // A vertical window has the sky in the upper half of its view and the ground in the lower.
    // Tilted upwards, it has by cos(tilt) as much sky in the lower half as in the upper, and
    // downwards so of the ground: as much again for a level one.
    const auto [above, below] = window::in_diffuse_radiation(*blind);
    const Passage upper = through(glass, above), lower = through(glass, below);
    const double cosine = std::cos(host::radians(tilt));
    const auto mean = [](const Passage& a, const Passage& b, double weight) {
        return weighted(a, 1 / (1 + weight), b, weight / (1 + weight));
    };
    from_sky_ = mean(upper, lower, std::max(cosine, 0.0));
    from_ground_ = mean(lower, upper, std::max(-cosine, 0.0));
}

std::optional<std::size_t> Panes::blind() const {
    return blind_ ? std::optional(place_) : std::nullopt;
}

bool Panes::is_as_the_library_takes_it() const {
    constexpr double temperature = 20, difference = 10;
    if (blind_ || unit_.panes.size() == 4) return false;
    const bool plain = std::ranges::all_of(unit_.panes, &Pane::is_plain);
    return plain && std::ranges::all_of(unit_.cavities, [&](const Cavity& cavity) {
               const double conductance =
                   gas_conductance(cavity, temperature - difference / 2,
                                   temperature + difference / 2, tilt_) +
                   radiative_conductance(plain_emissivity, plain_emissivity, temperature);
               return std::fabs(1 / conductance - library_cavity) < 0.1 * library_cavity;
           });
}

// What goes straight through the blind keeps its direction; what the blind scatters is diffuse from
// then on.
Passage Panes::through(std::span<const Layer> glass, const Screen& screen) const {
    std::array<Layer, most_layers> layers{};
    std::ranges::copy(glass, layers.begin());
    std::array<Source, most_layers> scattered{};
    const std::size_t n = glass.size() + (blind_ ? 1 : 0);
    if (blind_) {
        std::copy_backward(layers.begin() + static_cast<std::ptrdiff_t>(place_),
                           layers.begin() + static_cast<std::ptrdiff_t>(n) - 1,
                           layers.begin() + static_cast<std::ptrdiff_t>(n));
        layers[place_] = {screen.straight, 0, screen.straight_back, 0};
    }
    const Fluxes straight = fluxes({layers.data(), n}, {}, 1);
    Passage passage{straight.to_room, {}};
    for (std::size_t k = 0; k < n; ++k)
        passage.absorbed[k] = layers[k].front_absorptance() * straight.on_front[k] +
                              layers[k].back_absorptance() * straight.on_back[k];
    if (!blind_) return passage;

    const double front = straight.on_front[place_], back = straight.on_back[place_];
    const Layer& part = screen.scattered;
    scattered[place_] = {front * part.front_reflectance + back * part.back_transmittance,
                         front * part.front_transmittance + back * part.back_reflectance};
    const Fluxes diffuse = fluxes(diffuse_, {scattered.data(), n}, 0);
    passage.transmitted += diffuse.to_room;
    passage.absorbed[place_] -= scattered[place_].outwards + scattered[place_].inwards;
    for (std::size_t k = 0; k < n; ++k)
        passage.absorbed[k] += diffuse_[k].front_absorptance() * diffuse.on_front[k] +
                               diffuse_[k].back_absorptance() * diffuse.on_back[k];
    passage.absorbed[place_] = std::max(passage.absorbed[place_], 0.0);
    return passage;
}

// Glass keeps the plane of polarisation: either one goes through the panes for itself.
Passage Panes::direct(double incidence, double profile) const {
    std::array<Layer, most_panes> parallel{}, perpendicular{};
    const std::size_t n = unit_.panes.size();
    for (std::size_t k = 0; k < n; ++k) {
        const Polarised layer = in_direct_sun(unit_.panes[k], incidence);
        parallel[k] = layer.parallel;
        perpendicular[k] = layer.perpendicular;
    }
    const Screen screen = blind_ ? in_direct_sun(*blind_, profile) : Screen{};
    return weighted(through({parallel.data(), n}, screen), 0.5,
                    through({perpendicular.data(), n}, screen), 0.5);
}

Passage Panes::all(const Irradiance& irradiance) const { return share_of_all(*this, irradiance); }

PerLayer Panes::temperatures(double room, double outdoor, const PerLayer& absorbed) const {
    return library_temperatures(room, outdoor, unit_.panes.size(), absorbed);
}

Gain Panes::gain(double room, double outdoor, const Irradiance& irradiance) const {
    const double total = irradiance.direct + irradiance.sky + irradiance.ground;
    const Passage passage = all(irradiance);
    const PerLayer absorbed = times(passage.absorbed, total);
    const HeatFlow dark = design_(room, outdoor, {});
    const HeatFlow flow = total > 0 ? design_(room, outdoor, absorbed) : dark;
    Gain gain{total * passage.transmitted, flow.inwards - dark.inwards, dark.inwards,
              flow.temperature};
    if (method_ == Method::pane_temperatures)
        gain.temperature = temperatures(room, outdoor, absorbed);
    return gain;
}

double Panes::rated_gain(const Passage& passage) const {
    constexpr double sun = 500, air = 25;  // W/m², °C on both sides
    return passage.transmitted + rated_(air, air, times(passage.absorbed, sun)).inwards / sun;
}

// The library's table of shares, pane 1 nearest the room, read from the way it splits a remainder.
EquivalentPane::EquivalentPane(const ShadingCoefficients& coefficients)
    : coefficients_(coefficients) {
    const auto& [short_wave, long_wave, panes] = coefficients;
    const std::vector<double> split =
        lib::unit_diffuse_shares(short_wave, long_wave, panes).pane_shares;
    const double sum = std::accumulate(split.begin(), split.end(), 0.0);
    for (std::size_t k = 0; k < layers(); ++k) shares_[k] = split[layers() - 1 - k] / sum;
    const auto diffuse = lib::unit_diffuse(short_wave, long_wave);
    diffuse_ = {diffuse.transmittance, times(shares_, diffuse.absorptance)};
}

Passage EquivalentPane::direct(double incidence, double) const {
    const auto direct =
        lib::unit_direct(coefficients_.short_wave, coefficients_.long_wave, incidence);
    return {direct.transmittance, times(shares_, direct.absorptance)};
}

Passage EquivalentPane::all(const Irradiance& irradiance) const {
    return share_of_all(*this, irradiance);
}

// A long-wave coefficient stands for a third of what is absorbed: the rest goes back outdoors.
double EquivalentPane::rated_gain(const Passage& passage) const {
    return passage.transmitted + passage.absorbed_total() / 3;
}

Gain EquivalentPane::gain(double room, double outdoor, const Irradiance& irradiance) const {
    const double total = irradiance.direct + irradiance.sky + irradiance.ground;
    const Passage passage = all(irradiance);
    const PerLayer dark = library_temperatures(room, outdoor, layers(), {});
    Gain gain{total * passage.transmitted, total * passage.absorbed_total() / 3,
              (dark[layers() - 1] - room) / library_inside,
              library_temperatures(room, outdoor, layers(), times(passage.absorbed, total))};
    return gain;
}

AnyGlazing glazing_of(const Window& window, bool with_blind) {
    if (const auto* unit = std::get_if<Unit>(&window.glazing))
        return Panes(*unit, with_blind ? window.blind : std::nullopt, window.tilt);
    if (const auto* coefficients = std::get_if<ShadingCoefficients>(&window.glazing))
        return EquivalentPane(*coefficients);
    return Opening{};
}

UnitFigures unit_figures(const Window& window) {
    UnitFigures figures;
    if (!window.is_glazed()) return figures;
    if (const auto* coefficients = std::get_if<ShadingCoefficients>(&window.glazing)) {
        const EquivalentPane pane(*coefficients);
        const Passage normal = pane.direct(0, 0);
        figures.transmittance = normal.transmitted;
        figures.g = pane.rated_gain(normal);
        figures.g_diffuse = pane.rated_gain(pane.from_sky());
        return figures;
    }
    const Unit& unit = std::get<Unit>(window.glazing);
    const Panes bare(unit, {}, window.tilt);
    const Passage normal = bare.direct(0, 0);
    figures.u_value = u_value(unit, window.tilt);
    figures.transmittance = normal.transmitted;
    figures.g = bare.rated_gain(normal);
    figures.g_diffuse = bare.rated_gain(bare.from_sky());
    if (!window.blind) return figures;
    const Panes shaded(unit, window.blind, window.tilt);
    figures.g_with_blind = shaded.rated_gain(shaded.direct(0, 0));
    figures.g_diffuse_with_blind =
        (shaded.rated_gain(shaded.from_sky()) + shaded.rated_gain(shaded.from_ground())) / 2;
    return figures;
}

}  // namespace quorvel::window
