#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <vector>

#include "quorvel/library.h"

namespace {

constexpr const float* kUnread = nullptr;

struct Optics {
    float t, a, r;
};

Optics stack(const std::vector<float>& t, const std::vector<float>& r) {
    Optics total;
    lib::WNCOM2(static_cast<std::int32_t>(t.size()), t.data(), kUnread, r.data(), total.t, total.a,
                total.r);
    return total;
}

TEST(Layers, EachReflectionPassesTheLayersAboveTwice) {
    const Optics three = stack({0.5f, 0.6f, 0.7f}, {0.3f, 0.2f, 0.1f});
    EXPECT_FLOAT_EQ(three.t, 0.5f * 0.6f * 0.7f);
    EXPECT_FLOAT_EQ(three.r, 0.1f + 0.2f * 0.49f + 0.3f * 0.49f * 0.36f);
    EXPECT_FLOAT_EQ(three.a, 1.0f - three.t - three.r);

    const Optics one = stack({0.7f}, {0.1f}), mirror = stack({0.7f}, {0.3f}), none = stack({}, {});
    EXPECT_TRUE(one.t == 0.7f && one.r == 0.1f);
    EXPECT_FLOAT_EQ(mirror.r, 0.29f);
    EXPECT_NEAR(mirror.a, 0.01f, 6e-8f);
    EXPECT_TRUE(none.t == 1.0f && none.a == 0.0f && none.r == 0.0f);

    Optics blind;
    lib::WNDRRO(0.2f, 0.5f, kUnread, blind.t, blind.a, blind.r);
    EXPECT_TRUE(blind.t == 0.2f && blind.r == 0.5f && blind.a == 1.0f - 0.2f - 0.5f);
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
