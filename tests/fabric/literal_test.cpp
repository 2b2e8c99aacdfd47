// Layer calculations give the very bits of their literal forms, also where layers are resistances,
// missing, without heat capacity, or beyond anything that is built.
#include "literal/compare.h"
#include "literal/fabric.h"
#include "quorvel/library.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

using Column = std::array<float, 20>;

struct Construction {
    Column thickness, conductivity, density, specific_heat;
    float Rsi, Rso;
    int n;
};

Construction draw(int rarity, Random& random) {
    Construction c;
    c.n = random.below(22) - 1;
    for (std::size_t i = 0; i < 20; ++i) {
        const float thickness = random.real(0.002f, 0.3f);
        const int sort = random.below(6);
        c.thickness[i] = sort == 0 ? -thickness : sort == 1 ? 0.0f : thickness;
        c.conductivity[i] = random.real(0.03f, 2.5f);
        c.density[i] = random.below(10) ? random.real(10.0f, 2500.0f) : 0.0f;
        c.specific_heat[i] = random.real(500.0f, 2500.0f);
        for (Column* column : {&c.thickness, &c.conductivity, &c.density, &c.specific_heat})
            (*column)[i] = unusual((*column)[i], rarity, random);
    }
    c.Rsi = unusual(random.real(0.05f, 0.2f), rarity, random);
    c.Rso = unusual(random.real(0.02f, 0.2f), rarity, random);
    return c;
}

void compare(const Construction& c, int harmonic, int kind) {
    std::array<float, 7> r;
    lib::TPADMT(c.thickness, c.conductivity, c.density, c.specific_heat, c.Rsi, c.Rso, c.n,
                harmonic, kind, r[0], r[1], r[2], r[3], r[4], r[5], r[6]);
    const auto expected =
        literal::TPADMT(c.thickness.data(), c.conductivity.data(), c.density.data(),
                        c.specific_heat.data(), c.Rsi, c.Rso, c.n, harmonic, kind);
    ASSERT_TRUE(same_bits<7>(r, {expected.Y, expected.omega, expected.f, expected.phi, expected.F,
                                 expected.psi, expected.U}))
        << c.n << " layers, harmonic " << harmonic << ", kind " << kind;
    float U;
    lib::TPUVAL(c.thickness, c.conductivity, c.Rsi, c.Rso, c.n, U);
    literal::LayerTables table;
    ASSERT_TRUE(same_bits<1>({U}, {literal::TPUVAL(c.thickness.data(), c.conductivity.data(), c.Rsi,
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
        const float t1 = random.real(-reach, reach), t2 = random.real(-reach, reach);
        const float p1 = random.real(-0.1f * p, p), p2 = random.real(-0.1f * p, p);
        ASSERT_EQ(lib::ITPCON(t1, t2, p1, p2), literal::ITPCON(t1, t2, p1, p2))
            << t1 << ' ' << t2 << ' ' << p1 << ' ' << p2;
        condensing += literal::ITPCON(t1, t2, p1, p2);
    }
    EXPECT_GT(condensing, 5000);
}

}  // namespace
