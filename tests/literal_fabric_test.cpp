// Layer calculations give the very bits of their literal forms, also where layers are resistances,
// missing, without heat capacity, or beyond anything that is built.
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>

#include "common/library.h"
#include "literal/fabric.h"
#include "support/random_arguments.h"

namespace {

using quorvel::test::Random;

using Column = std::array<float, 20>;

struct Construction {
    Column thickness, conductivity, density, specific_heat;
    float Rsi, Rso;
    int n;
};

float between(float low, float high, Random& random) {
    return low + (high - low) * static_cast<float>(random.unit());
}

// One value in `rarity` is special: an edge, or any bits.
float unusual(float value, int rarity, Random& random) {
    constexpr float edges[] = {0.0f, -0.0f, -1.0f, 1e-30f, 1e20f, -1e20f, INFINITY, NAN};
    const int kind = random.below(2 * rarity);
    if (kind == 0) return edges[random.below(std::size(edges))];
    return kind == 1 ? std::bit_cast<float>(static_cast<std::uint32_t>(random.bits())) : value;
}

Construction draw(int rarity, Random& random) {
    Construction c;
    c.n = random.below(22) - 1;
    for (std::size_t i = 0; i < 20; ++i) {
        const float thickness = between(0.002f, 0.3f, random);
        const int sort = random.below(6);
        c.thickness[i] = sort == 0 ? -thickness : sort == 1 ? 0.0f : thickness;
        c.conductivity[i] = between(0.03f, 2.5f, random);
        c.density[i] = random.below(10) ? between(10.0f, 2500.0f, random) : 0.0f;
        c.specific_heat[i] = between(500.0f, 2500.0f, random);
        for (Column* column : {&c.thickness, &c.conductivity, &c.density, &c.specific_heat})
            (*column)[i] = unusual((*column)[i], rarity, random);
    }
    c.Rsi = unusual(between(0.05f, 0.2f, random), rarity, random);
    c.Rso = unusual(between(0.02f, 0.2f, random), rarity, random);
    return c;
}

template <std::size_t n>
::testing::AssertionResult same(const std::array<float, n>& ours,
                                const std::array<float, n>& literal) {
    for (std::size_t i = 0; i < n; ++i)
        if (std::bit_cast<std::uint32_t>(ours[i]) != std::bit_cast<std::uint32_t>(literal[i]) &&
            !(std::isnan(ours[i]) && std::isnan(literal[i])))
            return ::testing::AssertionFailure()
                   << "result " << i << ": " << ours[i] << " against " << literal[i];
    return ::testing::AssertionSuccess();
}

void compare(const Construction& c, int harmonic, int kind) {
    std::array<float, 7> r;
    lib::TPADMT(c.thickness, c.conductivity, c.density, c.specific_heat, c.Rsi, c.Rso, c.n,
                harmonic, kind, r[0], r[1], r[2], r[3], r[4], r[5], r[6]);
    const auto expected =
        literal::TPADMT(c.thickness.data(), c.conductivity.data(), c.density.data(),
                        c.specific_heat.data(), c.Rsi, c.Rso, c.n, harmonic, kind);
    ASSERT_TRUE(same<7>(r, {expected.Y, expected.omega, expected.f, expected.phi, expected.F,
                            expected.psi, expected.U}))
        << c.n << " layers, harmonic " << harmonic << ", kind " << kind;
    float U;
    lib::TPUVAL(c.thickness, c.conductivity, c.Rsi, c.Rso, c.n, U);
    literal::LayerTables table;
    ASSERT_TRUE(same<1>({U}, {literal::TPUVAL(c.thickness.data(), c.conductivity.data(), c.Rsi,
                                              c.Rso, c.n, table)}));
}

TEST(LiteralForm, ConstructionsAsBuilt) {
    Random random(1);
    for (int i = 0; i < 50000 && !HasFatalFailure(); ++i)
        compare(draw(1000000, random), 1 + random.below(6), 1 + random.below(2));
}

TEST(LiteralForm, ConstructionsOfAnyBits) {
    Random random(2);
    for (int i = 0; i < 50000 && !HasFatalFailure(); ++i)
        compare(draw(1 + random.below(60), random), random.below(9) - 2, random.below(4));
}

TEST(LiteralForm, CondensationWithinALayer) {
    Random random(3);
    int condensing = 0;
    for (int i = 0; i < 50000; ++i) {
        // Some layers reach from a furnace to below absolute zero, a few far beyond any meaning,
        // and some pressures too.
        const float reach = random.below(4) ? 40.0f : random.below(100) ? 1500.0f : 1e5f;
        const float p = random.below(8) ? 3000.0f : 1e13f;
        const float t1 = between(-reach, reach, random), t2 = between(-reach, reach, random);
        const float p1 = between(-0.1f * p, p, random), p2 = between(-0.1f * p, p, random);
        ASSERT_EQ(lib::ITPCON(t1, t2, p1, p2), literal::ITPCON(t1, t2, p1, p2))
            << t1 << ' ' << t2 << ' ' << p1 << ' ' << p2;
        condensing += literal::ITPCON(t1, t2, p1, p2);
    }
    EXPECT_GT(condensing, 5000);
}

}  // namespace
