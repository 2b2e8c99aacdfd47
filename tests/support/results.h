// What a routine writes behind its inputs: auto [t, a, r] = results<3>(lib::WNTAR, a, r).
#pragma once

#include <array>
#include <tuple>

namespace quorvel::test {

inline constexpr float unwritten = -999.0f;  // what a routine leaves alone

template <std::size_t n, class Routine, class... Inputs>
std::array<float, n> results(const Routine& routine, const Inputs&... inputs) {
    std::array<float, n> outputs;
    outputs.fill(unwritten);
    std::apply([&](auto&... output) { routine(inputs..., output...); }, outputs);
    return outputs;
}

}  // namespace quorvel::test
