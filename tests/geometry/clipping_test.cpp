// Difference and overlap of polygons: HOHOLEDP.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "clipping/buildings.h"
#include "clipping/exact_overlap.h"

namespace {

using namespace quorvel::conformance;
using namespace quorvel::test;

PlanRing reversed(PlanRing ring) {
    std::reverse(ring.begin(), ring.end());
    return ring;
}

std::vector<int> head(const std::vector<int>& list, std::size_t count) {
    return {list.begin(), list.begin() + static_cast<std::ptrdiff_t>(count)};
}

TEST(Clipping, SquaresThatOverlap) {
    const Clipped clipped = clip(rectangle(0, 0, 2, 2), rectangle(1, 1, 3, 3));
    EXPECT_EQ(clipped.ierr, 0);
    EXPECT_EQ(clipped.fault, "");
    EXPECT_EQ(head(clipped.dif, 8), (std::vector{6, 10, 4, 1, 2, 9, 5, 0}));
    EXPECT_EQ(head(clipped.ovl, 6), (std::vector{4, 9, 3, 10, 5, 0}));
    EXPECT_EQ(clipped.pool[8], (PlanPoint{1.0, 2.0}));
    EXPECT_EQ(clipped.pool[9], (PlanPoint{2.0, 1.0}));
}

TEST(Clipping, HoleIsCutAlongLevelBridges) {
    const PlanRing outer = rectangle(0, 0, 4, 4), inner{{2, 1}, {1, 2}, {2, 3}, {3, 2}};
    const Clipped clipped = clip(outer, inner);
    EXPECT_EQ(clipped.ierr, 0);
    EXPECT_EQ(clipped.fault, "");
    EXPECT_EQ(clipped.pool[8], (PlanPoint{0.0, 2.0}));
    EXPECT_EQ(clipped.pool[9], (PlanPoint{4.0, 2.0}));
    EXPECT_EQ(head(clipped.dif, 17),
              (std::vector{7, -6, 9, 2, 3, -10, 8, 7, 7, -8, 10, 4, 1, -9, 6, 5, 0}));
    EXPECT_EQ(head(clipped.ovl, 6), (std::vector{4, 5, 6, 7, 8, 0}));
    EXPECT_EQ(head(clip(outer, reversed(inner)).ovl, 6), (std::vector{4, 8, 7, 6, 5, 0}));
}

// A bridge may lead to a vertex, where it lands on one edge and not on both or neither.
TEST(Clipping, BridgesOnTheLevelOfVertices) {
    const PlanRing outer{{2, -2}, {-2, 2}, {2, 6}, {6, 2}}, inner{{2, 1}, {1, 2}, {2, 3}, {3, 2}};
    EXPECT_EQ(head(clip(outer, inner).dif, 17),
              (std::vector{6, -6, 9, 3, -10, 8, 7, 8, -8, 10, 4, 1, 2, -9, 6, 5, 0}));
}

// Past the edge where a bridge lands, the ray meets other parts of the ring.
TEST(Clipping, BridgesLandOnTheNearestEdge) {
    PlanRing u{{3, 1}, {3, 4}, {6, 4}, {6, 0}, {0, 0}, {0, 4}, {1, 4}, {1, 1}};
    const PlanRing hole{{5, 2}, {4, 2.5}, {5, 3}};
    for (std::size_t start = 0; start < u.size(); ++start) {
        const Clipped clipped = clip(u, hole);
        EXPECT_EQ(clipped.ierr, 0);
        EXPECT_EQ(clipped.pool[11], (PlanPoint{3.0, 2.5})) << start;
        std::ranges::rotate(u, u.begin() + 1);
    }
}

TEST(Clipping, RingsThatDoNotCross) {
    const PlanRing square = rectangle(0, 0, 2, 2), triangle{{2, 1}, {4, 2}, {4, 0}};
    for (const PlanRing& apart :
         {rectangle(5, 0, 6, 1), triangle, reversed(triangle), rectangle(2, 0, 3, 2)}) {
        const Clipped clipped = clip(square, apart);
        EXPECT_EQ(head(clipped.dif, 6), (std::vector{4, 1, 2, 3, 4, 0}));
        EXPECT_EQ(clipped.ovl[0], 0);
    }
    // Round 64 corners at most, one look tells.
    for (const PlanRing& around : {rectangle(-1, -1, 3, 3), square, reversed(square),
                                   regular(63, 5), regular(64, 5), regular(65, 5)}) {
        const Clipped clipped = clip(square, around);
        EXPECT_EQ(clipped.dif[0], 0);
        EXPECT_EQ(head(clipped.ovl, 6), (std::vector{4, 1, 2, 3, 4, 0}));
    }
}

// A triangle that fills a notch touches the other ring at all its vertices, and lies outside.
TEST(Clipping, NotchFilledFromOutside) {
    const PlanRing notched{{0, 0}, {0, 2}, {2, 1}, {4, 2}, {4, 0}}, filling{{0, 2}, {4, 2}, {2, 1}};
    EXPECT_EQ(clip(filling, notched).ovl[0], 0);
    EXPECT_EQ(clip(notched, filling).ovl[0], 0);
}

// Without area there is nothing to subtract. A first vertex that is repeated at the end is let be.
TEST(Clipping, DegenerateRings) {
    const PlanRing square = rectangle(0, 0, 2, 2);
    EXPECT_EQ(head(clip(square, {{1, 1}, {3, 3}, {1, 1}}).dif, 6), (std::vector{4, 1, 2, 3, 4, 0}));
    for (const bool backwards : {false, true}) {
        PlanRing closed = backwards ? reversed(square) : square;
        closed.push_back(closed[0]);
        const Clipped clipped = clip(closed, rectangle(1, 1, 3, 3));
        EXPECT_EQ(clipped.ierr, 0);
        EXPECT_NEAR(std::fabs(total_area(clipped.overlap)), 1.0, 1e-12);
        EXPECT_NEAR(std::fabs(total_area(clipped.difference)), 3.0, 1e-12);
    }
}

PlanRing small(PlanRing ring) {
    for (PlanPoint& p : ring) p = {p.x / 100.0, p.y / 100.0};
    return ring;
}

struct StatusCase {
    const char* name;
    PlanRing a, b;
    Capacities capacities;
    int ierr;
};

const PlanRing unit = rectangle(0, 0, 1, 1), shifted = rectangle(0.5, 0.5, 1.5, 1.5);
const PlanRing bow_tie{{0, 0}, {1, 1}, {1, 0}, {0, 1}};
const PlanRing wide = rectangle(-1, -1, 2, 2);
// Five corners that all turn the same way, twice round.
const PlanRing pentagram{{-3, -2}, {1, 3}, {1, -3}, {-3, 2}, {3, 0}};
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

// Codes 107, 108 and 111 cannot occur: a crossing is never missing from a chain, and parallel edges
// are not asked for a crossing point. With finite coordinates there is always a bridge.
const StatusCase status_cases[] = {
    {"two vertices of A", {{0, 0}, {1, 1}}, unit, {}, 1},
    {"two vertices of B", unit, {{0, 0}, {1, 1}}, {}, 2},
    {"no vertices at all", {}, {}, {}, 1},
    {"A crosses itself", bow_tie, unit, {}, 3},
    {"B crosses itself", unit, bow_tie, {}, 4},
    {"A goes twice round", pentagram, unit, {}, 3},
    {"B goes twice round", unit, small(pentagram), {}, 4},
    {"A without area", {{0, 0}, {1, 1}, {2, 2}}, unit, {}, 5},
    {"as many crossings as allowed", unit, shifted, {.kmax = 2}, 0},
    {"more crossings than allowed", unit, shifted, {.kmax = 1}, 6},
    {"less than no crossings allowed", unit, shifted, {.kmax = -5}, 6},
    {"room in the pool", unit, shifted, {.nmax = 10}, 0},
    {"no room for a crossing", unit, shifted, {.nmax = 9}, 7},
    {"no room for a bridge", wide, unit, {.nmax = 9}, 7},
    {"ten crossings on an edge of A", rectangle(-1, 0.5, 20, 3), comb(5), {}, 0},
    {"twelve crossings on an edge of A", rectangle(-1, 0.5, 20, 3), comb(6), {}, 8},
    {"twelve crossings on an edge of B", comb(6), rectangle(-1, 0.5, 20, 3), {}, 9},
    {"room for the difference", unit, shifted, {.ldif = 8}, 0},
    {"no room for its last 0", unit, shifted, {.ldif = 7}, 10},
    {"no room for a whole ring", unit, rectangle(3, 0, 4, 1), {.ldif = 5}, 10},
    {"no room for a hole", wide, unit, {.ldif = 16}, 10},
    {"no room for an empty difference", unit, wide, {.ldif = 0}, 10},
    {"no difference list", unit, shifted, {.ldif = -7}, 10},
    {"room for the overlap", unit, shifted, {.lovl = 6}, 0},
    {"no room for the overlap", unit, shifted, {.lovl = 5}, 11},
    {"no room for A in B", unit, wide, {.lovl = 5}, 11},
    {"no room for B in A", wide, unit, {.lovl = 5}, 11},
    {"no overlap list", unit, shifted, {.lovl = -1}, 11},
    {"no room at all", unit, shifted, {.ldif = 3, .lovl = 3}, 10},
    {"no number to bridge from", rectangle(0, 0, 4, 4), {{1, 1}, {0.9, nan}, {1.1, 0.9}}, {}, 109},
};

TEST(Clipping, StatusCodes) {
    for (const auto& [name, a, b, capacities, ierr] : status_cases) {
        const Clipped clipped = clip(a, b, capacities);
        EXPECT_EQ(clipped.ierr, ierr) << name;
        EXPECT_EQ(clipped.fault, "") << name;
    }
}

TEST(Clipping, ManyVertices) {
    const Capacities ample{2000, 1024, 2000, 2000};
    const auto gear_of = [](int n) {
        PlanRing ring = regular(n, 1.0);
        for (std::size_t i = 0; i < ring.size(); i += 2)
            ring[i] = {0.9 * ring[i].x, 0.9 * ring[i].y};
        return ring;
    };
    const PlanRing gear = gear_of(256);
    const Clipped clipped = clip(gear, regular(128, 0.95), ample);
    EXPECT_EQ(clipped.ierr, 0);
    EXPECT_EQ(clipped.fault, "");
    EXPECT_EQ(clipped.difference.size(), 128u);
    EXPECT_NEAR(total_area(clipped.overlap) + total_area(clipped.difference), signed_area(gear),
                1e-12);
    EXPECT_EQ(clip(gear, regular(128, 0.95), {2000, 255, 2000, 2000}).ierr, 6);
    // Whatever is allowed, there is room for 1024 crossings.
    EXPECT_EQ(clip(gear_of(1024), regular(512, 0.95), {3000, 1 << 20, 3000, 3000}).ierr, 0);
    EXPECT_EQ(clip(gear_of(1026), regular(513, 0.95), {3000, 1 << 20, 3000, 3000}).ierr, 6);
}

// On a closed ring, entries into another one and exits take turns. New points are crossings, or the
// ends of two bridges.
bool even_crossings(const Clipped& clipped, std::size_t vertices) {
    return (clipped.pool.size() - vertices) % 2 == 0;
}

class ClippingPairs : public testing::TestWithParam<PairClass> {};

// The vertices of B that touch A are moved: by less than one tolerance onto a vertex of A, and then
// by at most one and a half of it off either edge there; so by at most four in all. The overlap can
// be off by the strips which the edges of B sweep. Where no vertex of B touches A it is exact.
//
// Where polygons are narrower than the tolerance, what is moved may cross itself: then, rarely, the
// operation fails.
TEST_P(ClippingPairs, AgreeWithIndependentFormula) {
    Random random(2);
    int failed = 0;
    for (int i = 0; i < 15000; ++i) {
        const auto [a, b] = draw_pair(GetParam(), random);
        const Clipped clipped = clip(a, b);
        ASSERT_EQ(clipped.fault, "") << i;
        EXPECT_TRUE(even_crossings(clipped, a.size() + b.size())) << i;
        if (clipped.ierr == 105 && ++failed < 5) continue;
        ASSERT_EQ(clipped.ierr, 0) << i;
        EXPECT_TRUE(clipped.whole) << i;
        const double area = signed_area(a), tolerance = 1e-4 * diagonal({a, b});
        const double overlap = total_area(clipped.overlap);
        EXPECT_NEAR(total_area(clipped.difference) + overlap, area, 1e-10) << i;
        const bool touching = distance(b, a) < 1.5 * tolerance;
        const double bound = (touching ? 4.0 * tolerance : 1e-10) * perimeter(b);
        EXPECT_NEAR(area > 0.0 ? overlap : -overlap, rounded_overlap(a, b), bound) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(Drawn, ClippingPairs, testing::ValuesIn(pair_classes()),
                         [](const auto& info) { return info.param.name; });

class ClippingBuildings : public testing::TestWithParam<PairClass> {};

// On site coordinates every wall that runs along another one is in line with it only to rounding.
// Bound as above, with the perimeters of both, for want of knowledge which one is moved.
TEST_P(ClippingBuildings, HaveTheExactAreas) {
    Random random(6);
    for (const double offset : {0.0, 100.0, 1.0e3, 1.0e5})
        for (int i = 0; i < 400; ++i) {
            const auto [a, b] = draw_on_site(GetParam(), offset, random);
            const Clipped clipped = clip(a, b);
            ASSERT_EQ(clipped.ierr, 0) << offset << " m, " << i;
            EXPECT_TRUE(even_crossings(clipped, a.size() + b.size())) << offset << " m, " << i;
            const double area = signed_area(a), overlap = total_area(clipped.overlap);
            EXPECT_NEAR(total_area(clipped.difference) + overlap, area, 1e-13 * (1e3 + 50 * offset))
                << offset << " m, " << i;
            const double bound = 1e-4 * diagonal({a, b}) * (perimeter(a) + perimeter(b));
            EXPECT_NEAR(std::fabs(overlap), exact_overlap(a, b), bound) << offset << " m, " << i;
        }
}

INSTANTIATE_TEST_SUITE_P(Drawn, ClippingBuildings, testing::ValuesIn(building_classes()),
                         [](const auto& info) { return info.param.name; });

}  // namespace
