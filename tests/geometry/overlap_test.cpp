// Overlap of polygons in single precision: GEOVER, and GEHOLE, which is the same.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

#include "clipping/polygon_pairs.h"
#include "quorvel/geometry.h"

namespace {

using namespace quorvel::conformance;
using namespace quorvel::test;

struct Outputs {
    std::array<float, 125> x{}, y{};
    std::array<int, 5> sizes{};
    float area = 0.0f;

    friend bool operator==(const Outputs& a, const Outputs& b) {
        return std::memcmp(&a, &b, sizeof a) == 0;
    }
};

struct Coordinates {
    std::vector<float> x, y;

    explicit Coordinates(const PlanRing& ring) {
        for (const PlanPoint& p : ring) {
            x.push_back(static_cast<float>(p.x));
            y.push_back(static_cast<float>(p.y));
        }
    }
    int size() const { return static_cast<int>(x.size()); }
};

template <class Routine>
Outputs call(const Routine& routine, const Coordinates& polygon_1, const Coordinates& polygon_2) {
    constexpr float band = 77.0f;
    std::array<float, 127> x, y;  // with a band at either end
    x.fill(band), y.fill(band);
    Outputs outputs;
    routine(polygon_1.x.data(), polygon_1.y.data(), polygon_1.size(), polygon_2.x.data(),
            polygon_2.y.data(), polygon_2.size(), x.data() + 1, y.data() + 1, outputs.sizes,
            outputs.area);
    for (const float beside : {x[0], x[126], y[0], y[126]}) EXPECT_EQ(beside, band);
    std::copy_n(x.begin() + 1, 125, outputs.x.begin());
    std::copy_n(y.begin() + 1, 125, outputs.y.begin());
    return outputs;
}

Outputs overlap(const PlanRing& polygon_1, const PlanRing& polygon_2) {
    return call(lib::GEOVER, Coordinates(polygon_1), Coordinates(polygon_2));
}

PlanRing cleaned(const PlanRing& ring) {
    PlanRing clean;
    const auto coordinate = [](double value) { return std::fabs(value) < 0.0001 ? 0.0 : value; };
    for (const PlanPoint& p : ring) clean.push_back({coordinate(p.x), coordinate(p.y)});
    return clean;
}

// From the pieces of HOHOLEDP within the same limits, with polygon 2 as A.
Outputs expected(const PlanRing& polygon_1, const PlanRing& polygon_2) {
    Outputs outputs;
    if (polygon_1.size() + polygon_2.size() > 50) return outputs;
    const Clipped clipped = clip(cleaned(polygon_2), cleaned(polygon_1), {50, 10, 50, 50});
    const auto& pieces = clipped.overlap;
    const bool fits =
        pieces.size() <= 5 && std::all_of(pieces.begin(), pieces.end(),
                                          [](const Piece& p) { return p.vertices.size() <= 24; });
    if (clipped.ierr != 0 || !fits) return outputs;
    for (std::size_t k = 0; k < pieces.size(); ++k) {
        const Coordinates piece(pieces[k].vertices);
        std::copy(piece.x.begin(), piece.x.end(), outputs.x.begin() + 25 * static_cast<int>(k));
        std::copy(piece.y.begin(), piece.y.end(), outputs.y.begin() + 25 * static_cast<int>(k));
        outputs.sizes[k] = piece.size();
        outputs.area += lib::GEAPOL(piece.x.data(), piece.y.data(), piece.size());
    }
    return outputs;
}

// What fits, and what does not by one, which leaves the outputs cleared.
TEST(Overlap, Limits) {
    EXPECT_GT(overlap(regular(24, 1.0), rectangle(-2, -2, 2, 2)).area, 3.0f);
    EXPECT_EQ(overlap(regular(25, 1.0), rectangle(-2, -2, 2, 2)), Outputs{});
    EXPECT_GT(overlap(regular(26, 2.0), regular(24, 1.0)).area, 3.0f);
    EXPECT_EQ(overlap(regular(27, 2.0), regular(24, 1.0)), Outputs{});
    EXPECT_EQ(overlap(regular(27, 2.0), {{0, 0}, {1, 1}}), Outputs{});

    const Outputs five = overlap(comb(5), rectangle(-1, 0.5, 20, 3));
    EXPECT_EQ(five.sizes, (std::array{4, 4, 4, 4, 4}));
    EXPECT_FLOAT_EQ(five.area, 2.5f);
    EXPECT_EQ(overlap(comb(6), rectangle(-1, 0.5, 20, 3)), Outputs{});
    EXPECT_EQ(overlap(rectangle(0, 0, 1, 1), rectangle(3, 0, 4, 1)), Outputs{});
}

// What the first leaves of the second has a list of 50 entries, although nobody sees it.
TEST(Overlap, DifferenceThatDoesNotFit) {
    // One corner of the first reaches through the middle of an edge of the second.
    const auto bitten = [&](int n) {
        return overlap(regular(9, 0.3, 0.72, 0.0), regular(n, 1.0, 0.0, 0.5)).area;
    };
    EXPECT_NEAR(bitten(38), 0.26f, 0.01f);
    EXPECT_EQ(bitten(39), 0.0f);
    EXPECT_NEAR(overlap(regular(20, 0.3), regular(21, 1.0)).area, 0.28f, 0.01f);
    EXPECT_EQ(overlap(regular(20, 0.3), regular(22, 1.0)).area, 0.0f);
}

TEST(Overlap, SmallCoordinatesAreZero) {
    const Outputs outputs = overlap(rectangle(-0.00009, 0.00009, 1, 1), rectangle(-1, -1, 2, 2));
    EXPECT_EQ(outputs.area, 1.0f);
    EXPECT_EQ(overlap(rectangle(0.0001, 0, 1, 1), rectangle(-1, -1, 2, 2)).x[0], 0.0001f);
}

class OverlapPairs : public testing::TestWithParam<PairClass> {};

// GEOVER takes short cuts where only the overlap is wanted; they change nothing.
TEST_P(OverlapPairs, AreThePiecesOfHoholedp) {
    Random random(3);
    for (int i = 0; i < 15000; ++i) {
        const auto [polygon_2, polygon_1] = draw_pair(GetParam(), random);
        const Outputs outputs = overlap(polygon_1, polygon_2);
        ASSERT_EQ(outputs, expected(polygon_1, polygon_2)) << i;
        if (i % 10 != 0) continue;
        ASSERT_EQ(call(lib::GEHOLE, Coordinates(polygon_1), Coordinates(polygon_2)), outputs) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Drawn, OverlapPairs, testing::ValuesIn(pair_classes()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
