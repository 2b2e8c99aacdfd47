#include "designday/glazing.h"

#include <cstddef>
#include <numeric>
#include <span>

#include "common/library.h"

namespace quorvel::designday {
namespace {

// One pane for radiation of one kind (a direction and polarisation, or diffuse). Both sides are
// taken to reflect alike; what is not transmitted or absorbed is reflected.
struct Layer {
    double transmittance, absorptance;

    double reflectance() const { return 1.0 - transmittance - absorptance; }
};

// The balance of radiation between parallel panes with all reflections to and fro: seen from the
// outside inwards, every gap passes on the sum of a geometric series.
Fate through(std::span<const Layer> layers) {
    const std::size_t n = layers.size();
    std::array<double, most_panes + 1> behind{};  // reflectance of pane k and all behind it
    const auto passed = [&](std::size_t k) {      // reaching pane k + 1 for 1 that reaches pane k
        const double t = layers[k].transmittance;
        return t > 0 ? t / (1.0 - layers[k].reflectance() * behind[k + 1]) : 0.0;
    };
    for (std::size_t k = n; k-- > 0;)
        behind[k] = layers[k].reflectance() + layers[k].transmittance * behind[k + 1] * passed(k);

    Fate fate;
    double arriving = 1.0;
    for (std::size_t k = 0; k < n; ++k) {
        const double next = arriving * passed(k);
        fate.absorbed[k] = layers[k].absorptance * (arriving + next * behind[k + 1]);
        arriving = next;
    }
    fate.transmitted = arriving;
    return fate;
}

// Glass keeps the plane of polarisation: either one goes through the panes for itself.
Fate direct_through(const Panes& panes, float incidence) {
    std::array<Layer, most_panes> parallel{}, perpendicular{};
    for (std::size_t k = 0; k < panes.size(); ++k) {
        float tp, ap, rp, ts, as, rs;
        lib::WNDRGL(static_cast<float>(panes[k].transmittance),
                    static_cast<float>(panes[k].reflectance), incidence, tp, ap, rp, ts, as, rs);
        parallel[k] = {tp, ap};
        perpendicular[k] = {ts, as};
    }
    Fate fate = through(std::span(parallel).first(panes.size()));
    const Fate other = through(std::span(perpendicular).first(panes.size()));
    fate.transmitted = (fate.transmitted + other.transmitted) / 2;
    for (std::size_t k = 0; k < panes.size(); ++k)
        fate.absorbed[k] = (fate.absorbed[k] + other.absorbed[k]) / 2;
    return fate;
}

Fate diffuse_through(const Panes& panes) {
    std::array<Layer, most_panes> layers{};
    for (std::size_t k = 0; k < panes.size(); ++k) {
        float t, a;
        lib::WNDFGL(static_cast<float>(panes[k].transmittance),
                    static_cast<float>(panes[k].reflectance), t, a);
        layers[k] = {t, a};
    }
    return through(std::span(layers).first(panes.size()));
}

Fate shared(double transmitted, double absorbed, const PerPane& shares) {
    Fate fate{transmitted, shares};
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
    return std::accumulate(absorbed.begin(), absorbed.end(), 0.0);
}

Glazing::Glazing(const std::variant<Panes, ShadingCoefficients>& description)
    : description_(description) {
    if (const auto* panes = std::get_if<Panes>(&description_)) {
        panes_ = static_cast<int>(panes->size());
        diffuse_ = diffuse_through(*panes);
        return;
    }
    const auto& glazing = std::get<ShadingCoefficients>(description_);
    panes_ = glazing.panes;
    shares_ = pane_shares(glazing);
    float t, a, r;
    lib::WNDFSC(static_cast<float>(glazing.short_wave), static_cast<float>(glazing.long_wave), t, a,
                r);
    diffuse_ = shared(t, a, shares_);
}

Fate Glazing::direct(float incidence) const {
    if (const auto* panes = std::get_if<Panes>(&description_))
        return direct_through(*panes, incidence);
    const auto& glazing = std::get<ShadingCoefficients>(description_);
    float t, a, r;
    lib::WNDRSC(static_cast<float>(glazing.short_wave), static_cast<float>(glazing.long_wave),
                incidence, t, a, r);
    return shared(t, a, shares_);
}

}  // namespace quorvel::designday
