#include "calculation/window/heat_balance.h"

#include <algorithm>
#include <cmath>

#include "calculation/heat_radiation.h"
#include "calculation/window/cavity.h"

namespace quorvel::window {
namespace {

constexpr double through_blind = 1000;  // W/m²K, thin as it is
constexpr double settled = 0.001;       // K between two iterations
constexpr int most_iterations = 100;

std::size_t front(std::size_t layer) { return 2 * layer; }
std::size_t back(std::size_t layer) { return 2 * layer + 1; }

Layer opaque(const Faces& emissivity) { return {0, 1 - emissivity[0], 0, 1 - emissivity[1]}; }

// Solves the balance of the first n nodes, whose sums are on the right: by Gauss, without pivots,
// as every node loses at least what the others get.
template <class Matrix, class Vector>
void solve(Matrix& a, Vector& b, std::size_t n) {
    for (std::size_t k = 0; k < n; ++k)
        for (std::size_t i = k + 1; i < n; ++i) {
            const double share = a[i][k] / a[k][k];
            if (share == 0) continue;
            for (std::size_t j = k; j < n; ++j) a[i][j] -= share * a[k][j];
            b[i] -= share * b[k];
        }
    for (std::size_t k = n; k-- > 0;) {
        for (std::size_t j = k + 1; j < n; ++j) b[k] -= a[k][j] * b[j];
        b[k] /= a[k][k];
    }
}

}  // namespace

HeatBalance::HeatBalance(const Unit& unit, const std::optional<Blind>& blind, double tilt,
                         const Surfaces& surfaces)
    : tilt_(tilt), surfaces_(surfaces) {
    place_layers(unit, blind);
    exchange_heat_by_radiation();
}

void HeatBalance::place_layers(const Unit& unit, const std::optional<Blind>& blind) {
    for (const Pane& pane : unit.panes) {
        thermal_[count_] = opaque(pane.emissivity);
        conduction_[count_++] = glass_conductivity / (pane.thickness / 1000);
    }
    for (const Cavity& cavity : unit.cavities) between_.push_back({Gap::closed, cavity});
    if (!blind) return;
    const std::size_t at = blind->place_among(count_);
    std::copy_backward(thermal_.begin() + static_cast<std::ptrdiff_t>(at),
                       thermal_.begin() + count_, thermal_.begin() + count_ + 1);
    std::copy_backward(conduction_.begin() + static_cast<std::ptrdiff_t>(at),
                       conduction_.begin() + count_, conduction_.begin() + count_ + 1);
    thermal_[at] = in_thermal_radiation(*blind);
    conduction_[at] = through_blind;
    ++count_;
    if (blind->place == BlindPlace::between) {  // two cavities of half the width
        Between& halved = between_[blind->cavity];
        halved.cavity.width /= 2;
        between_.insert(between_.begin() + static_cast<std::ptrdiff_t>(blind->cavity), halved);
        return;
    }
    const bool outside = blind->place == BlindPlace::outside;
    const Gap kind = blind->sealed ? Gap::closed
                     : outside     ? Gap::open_to_outdoors
                                   : Gap::open_to_room;
    between_.insert(outside ? between_.begin() : between_.end(), {kind, blind->gap});
}

// What each node receives of one unit that a sender would radiate as a black body.
HeatBalance::PerNode HeatBalance::received(std::size_t sender) const {
    std::array<Source, most_layers> sources{};
    if (sender < outdoors()) {
        const Layer& layer = thermal_[sender / 2];
        if (sender % 2 == 0)
            sources[sender / 2].outwards = layer.front_absorptance();
        else
            sources[sender / 2].inwards = layer.back_absorptance();
    }
    const Fluxes f = fluxes({thermal_.data(), count_}, {sources.data(), count_},
                            sender == outdoors(), sender == room());
    PerNode result{};
    for (std::size_t k = 0; k < count_; ++k) {
        result[front(k)] = thermal_[k].front_absorptance() * f.on_front[k];
        result[back(k)] = thermal_[k].back_absorptance() * f.on_back[k];
    }
    result[outdoors()] = f.to_outdoors;
    result[room()] = f.to_room;
    return result;
}

// What passes a blind one way only in its mean is made the same both ways, so that equal
// temperatures exchange nothing.
void HeatBalance::exchange_heat_by_radiation() {
    Matrix sent{};
    for (std::size_t i = 0; i <= room(); ++i) sent[i] = received(i);
    for (std::size_t i = 0; i <= room(); ++i)
        for (std::size_t j = 0; j <= room(); ++j) exchange_[i][j] = (sent[i][j] + sent[j][i]) / 2;
}

void HeatBalance::add_radiation(Matrix& matrix, const PerNode& temperature) const {
    for (std::size_t i = 0; i <= room(); ++i)
        for (std::size_t j = 0; j < i; ++j) {
            const double a = temperature[i] + host::kelvin, b = temperature[j] + host::kelvin;
            matrix[i][j] += exchange_[i][j] * host::stefan_boltzmann * (a * a + b * b) * (a + b);
            matrix[j][i] = matrix[i][j];
        }
}

// Between every two nodes, W/m²K.
HeatBalance::Matrix HeatBalance::conductances(const PerNode& temperature) const {
    Matrix matrix{};
    const auto join = [&](std::size_t a, std::size_t b, double conductance) {
        matrix[a][b] += conductance;
        matrix[b][a] += conductance;
    };
    join(front(0), outdoors(), surfaces_.outdoors);
    join(back(count_ - 1), room(), surfaces_.indoors);
    for (std::size_t k = 0; k < count_; ++k) join(front(k), back(k), conduction_[k]);
    for (std::size_t k = 0; k + 1 < count_; ++k) {
        const std::size_t outer = back(k), inner = front(k + 1);
        if (between_[k].kind == Gap::closed) {
            join(
                outer, inner,
                gas_conductance(between_[k].cavity, temperature[outer], temperature[inner], tilt_));
            continue;
        }
        const std::size_t air = between_[k].kind == Gap::open_to_room ? room() : outdoors();
        join(outer, air, surfaces_.behind_blind);
        join(inner, air, surfaces_.behind_blind);
    }
    add_radiation(matrix, temperature);
    return matrix;
}

HeatFlow HeatBalance::operator()(double room_air, double outdoor_air,
                                 const PerLayer& absorbed) const {
    PerNode temperature{};
    for (std::size_t i = 0; i < 2 * count_; ++i)
        temperature[i] = outdoor_air + (room_air - outdoor_air) * (static_cast<double>(i) + 0.5) /
                                           static_cast<double>(2 * count_);
    temperature[outdoors()] = outdoor_air;
    temperature[room()] = room_air;

    Matrix joined{};
    double change = settled;
    for (int i = 0; i < most_iterations && change >= settled; ++i) {
        joined = conductances(temperature);
        Matrix balance = joined;
        PerNode next{};
        for (std::size_t k = 0; k < 2 * count_; ++k) {
            double sum = 0;
            for (std::size_t j = 0; j <= room(); ++j) sum += joined[k][j];
            for (std::size_t j = 0; j < 2 * count_; ++j)
                balance[k][j] = (j == k ? sum : 0) - joined[k][j];
            next[k] = absorbed[k / 2] / 2 + joined[k][outdoors()] * outdoor_air +
                      joined[k][room()] * room_air;
        }
        solve(balance, next, 2 * count_);
        change = 0;
        for (std::size_t k = 0; k < 2 * count_; ++k) {
            change = std::max(change, std::fabs(next[k] - temperature[k]));
            temperature[k] = next[k];
        }
    }

    HeatFlow flow;
    for (std::size_t k = 0; k < count_; ++k)
        flow.temperature[k] = (temperature[front(k)] + temperature[back(k)]) / 2;
    for (std::size_t j = 0; j < room(); ++j)
        flow.inwards += joined[room()][j] * (temperature[j] - room_air);
    return flow;
}

}  // namespace quorvel::window
