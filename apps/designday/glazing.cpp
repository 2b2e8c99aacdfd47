#include "designday/glazing.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include "calculation/angle.h"
#include "designday/blind.h"
#include "quorvel/glazing.h"

namespace quorvel::designday {
namespace {

// The panes and, before or behind them, the blind.
Fate through(std::vector<Layer> layers, const std::optional<Blind>& blind, const Layer& screen) {
    const std::size_t panes = layers.size();
    const bool outside = blind && blind->outside;
    if (blind) layers.insert(outside ? layers.begin() : layers.end(), screen);
    const Passage passage = through(layers);
    Fate fate;
    fate.transmitted = passage.transmitted;
    std::copy_n(passage.absorbed.begin() + outside, panes, fate.absorbed.begin());
    if (blind) fate.absorbed_by_blind = passage.absorbed[outside ? 0 : panes];
    return fate;
}

Fate mean(const Fate& a, const Fate& b, double weight_of_b = 1) {
    const auto mean = [&](double x, double y) { return (x + weight_of_b * y) / (1 + weight_of_b); };
    Fate fate{
        mean(a.transmitted, b.transmitted), {}, mean(a.absorbed_by_blind, b.absorbed_by_blind)};
    std::ranges::transform(a.absorbed, b.absorbed, fate.absorbed.begin(), mean);
    return fate;
}

// Glass keeps the plane of polarisation: either one goes through the panes for itself.
Fate direct_through(const Panes& panes, const std::optional<Blind>& blind, float incidence,
                    float profile) {
    std::vector<Layer> parallel, perpendicular;
    for (const Pane& pane : panes) {
        float tp, ap, rp, ts, as, rs;
        lib::WNDRGL(static_cast<float>(pane.transmittance), static_cast<float>(pane.reflectance),
                    incidence, tp, ap, rp, ts, as, rs);
        parallel.push_back({tp, ap});
        perpendicular.push_back({ts, as});
    }
    const Layer screen = blind ? in_direct_sun(*blind, profile) : Layer{};
    return mean(through(parallel, blind, screen), through(perpendicular, blind, screen));
}

std::vector<Layer> in_diffuse_radiation(const Panes& panes) {
    std::vector<Layer> layers;
    for (const Pane& pane : panes) {
        float t, a;
        lib::WNDFGL(static_cast<float>(pane.transmittance), static_cast<float>(pane.reflectance), t,
                    a);
        layers.push_back({t, a});
    }
    return layers;
}

Fate shared(double transmitted, double absorbed, const PerPane& shares) {
    Fate fate{transmitted, shares, 0};
    for (double& part : fate.absorbed) part *= absorbed;
    return fate;
}

// The library's table of shares, pane 1 nearest the room, read from the way it splits a remainder.
PerPane pane_shares(const ShadingCoefficients& glazing) {
    float transmitted, absorbed;
    std::array<float, most_panes> split{};
    lib::WNDFSM(static_cast<float>(glazing.short_wave), static_cast<float>(glazing.long_wave),
                glazing.panes, transmitted, split, absorbed);
    const auto n = static_cast<std::size_t>(glazing.panes);
    const double sum = std::accumulate(split.begin(), split.end(), 0.0);
    PerPane shares{};
    for (std::size_t k = 0; k < n; ++k) shares[k] = split[n - 1 - k] / sum;
    return shares;
}

}  // namespace

double Fate::absorbed_total() const {
    return std::accumulate(absorbed.begin(), absorbed.end(), 0.0) + absorbed_by_blind;
}

Glazing::Glazing(const Window& window) : window_(&window) {
    if (const auto* panes = std::get_if<Panes>(&window.glazing)) {
        panes_ = static_cast<int>(panes->size());
        diffuse_through(*panes);
        return;
    }
    const auto& glazing = std::get<ShadingCoefficients>(window.glazing);
    panes_ = glazing.panes;
    shares_ = pane_shares(glazing);
    float t, a, r;
    lib::WNDFSC(static_cast<float>(glazing.short_wave), static_cast<float>(glazing.long_wave), t, a,
                r);
    from_sky_ = from_ground_ = shared(t, a, shares_);
}

// A vertical window has the sky in the upper half of its view and the ground in the lower. Tilted
// upwards, it has by cos(tilt) as much sky in the lower half as in the upper, and downwards so of
// the ground: as much again for a level one.
void Glazing::diffuse_through(const Panes& panes) {
    const std::vector<Layer> layers = in_diffuse_radiation(panes);
    if (!window_->blind) {
        from_sky_ = from_ground_ = through(layers, {}, {});
        return;
    }
    const auto [above, below] = in_diffuse_radiation(*window_->blind);
    const Fate upper = through(layers, window_->blind, above);
    const Fate lower = through(layers, window_->blind, below);
    const double cosine = std::cos(static_cast<double>(host::radians(window_->tilt)));
    from_sky_ = mean(upper, lower, std::max(cosine, 0.0));
    from_ground_ = mean(lower, upper, std::max(-cosine, 0.0));
}

Fate Glazing::direct(float incidence, float profile) const {
    if (const auto* panes = std::get_if<Panes>(&window_->glazing))
        return direct_through(*panes, window_->blind, incidence, profile);
    const auto& glazing = std::get<ShadingCoefficients>(window_->glazing);
    float t, a, r;
    lib::WNDRSC(static_cast<float>(glazing.short_wave), static_cast<float>(glazing.long_wave),
                incidence, t, a, r);
    return shared(t, a, shares_);
}

}  // namespace quorvel::designday
