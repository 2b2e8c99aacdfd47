#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "quorvel/glazing.h"
#include "support/results.h"

namespace {

std::array<float, 3> stack(const std::vector<float>& t, const std::vector<float>& r) {
    return quorvel::test::results<3>(lib::WNCOM2, static_cast<std::int32_t>(t.size()), t.data(),
                                     static_cast<const float*>(nullptr), r.data());
}

TEST(Layers, EachReflectionPassesTheLayersAboveTwice) {
    const auto [t, a, r] = stack({0.5f, 0.6f, 0.7f}, {0.3f, 0.2f, 0.1f});
    EXPECT_FLOAT_EQ(t, 0.5f * 0.6f * 0.7f);
    EXPECT_FLOAT_EQ(r, 0.1f + 0.2f * 0.49f + 0.3f * 0.49f * 0.36f);
    EXPECT_FLOAT_EQ(a, 1.0f - t - r);
    const auto mirror = stack({0.7f}, {0.3f});
    EXPECT_FLOAT_EQ(mirror[2], 0.29f);
    EXPECT_NEAR(mirror[1], 0.01f, 6e-8f);
    EXPECT_EQ(stack({}, {}), (std::array{1.0f, 0.0f, 0.0f}));
}

// Only the values that the pane count is said to use are given an address.
std::vector<float> pane_temperatures(float tr, float to, std::int32_t n, std::array<float, 5> s,
                                     std::size_t used) {
    std::array<float, 5> t{};
    const auto in = [&](std::size_t j) { return j < used ? &s[j] : nullptr; };
    const auto out = [&](std::size_t j) { return j < used ? &t[j] : nullptr; };
    lib::WNTEMP(tr, to, n, in(0), in(1), in(2), in(3), in(4), out(0), out(1), out(2), out(3),
                out(4));
    return {t.begin(), t.begin() + static_cast<std::ptrdiff_t>(used)};
}

TEST(PaneTemperature, BalancesHeat) {
    for (const std::int32_t n : {1, 2, 3, 4, 5}) {
        const std::size_t used = n == 4 ? 5 : static_cast<std::size_t>(n);
        for (const float t : pane_temperatures(21.0f, 21.0f, n, {}, used))
            EXPECT_FLOAT_EQ(t, 21.0f) << n;
        const auto winter = pane_temperatures(20.0f, 0.0f, n, {}, used);
        for (std::size_t k = 1; k < used; ++k)
            EXPECT_LT(winter[k], winter[k - 1]) << n << ": colder outwards";
        for (std::size_t k = 0; k < used; ++k) {
            std::array<float, 5> on_k{};
            on_k[k] = 1.0f;
            const auto warmed = pane_temperatures(0.0f, 0.0f, n, on_k, used);
            // What a pane absorbs leaves through 0.12 m²K/W to the room and 0.06 m²K/W outdoors;
            // the coefficients carry two decimals.
            EXPECT_NEAR(warmed.front() / 0.12f + warmed.back() / 0.06f, 1.0f, 0.125f) << n;
            // Linear conduction is reciprocal: pane j warms from the sun on k as k from that on j.
            for (std::size_t j = 0; j < k; ++j) {
                std::array<float, 5> on_j{};
                on_j[j] = 1.0f;
                EXPECT_EQ(warmed[j], pane_temperatures(0.0f, 0.0f, n, on_j, used)[k]) << n;
            }
        }
    }
    EXPECT_FLOAT_EQ(pane_temperatures(20.0f, 0.0f, 1, {}, 1)[0], 6.6f);
}

}  // namespace
