// Polygons as objects, held to the shoelace formula and to an overlap by another method.
#include "quorvel/polygon.hpp"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "clipping/exact_overlap.h"
#include "clipping/polygon_pairs.h"
#include "quorvel/parallel.hpp"

namespace {

using namespace quorvel::geometry;
namespace test = quorvel::test;

Polygon polygon(const test::PlanRing& ring) {
    Polygon polygon;
    for (const auto& [x, y] : ring) polygon.push_back({x, y});
    return polygon;
}

// In the form of trapezoids above the axis, unlike the library's own.
double shoelace(const Polygon& polygon) {
    double twice = 0.0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const PlanPoint p = polygon[i], q = polygon[(i + 1) % polygon.size()];
        twice += (q.x - p.x) * (q.y + p.y);
    }
    return std::fabs(twice) / 2.0;
}

double shoelace(const std::vector<Polygon>& pieces) {
    double sum = 0.0;
    for (const Polygon& piece : pieces) sum += shoelace(piece);
    return sum;
}

const Polygon square = polygon(test::rectangle(0, 0, 2, 2));

TEST(CppPolygon, AreasOfPiecesAddUp) {
    test::Random random(11);
    int pairs = 0, failed = 0;
    Clipper clipper;
    Clipped clipped;
    for (const test::PairClass& kind : test::pair_classes())
        for (int i = 0; i < 50; ++i, ++pairs) {
            const test::RingPair pair = draw_pair(kind, random);
            const Polygon a = polygon(pair.a), b = polygon(pair.b);
            clipper.clip(a, b, clipped);
            if (clipped.status != 0) {
                ++failed;
                continue;
            }
            const double accuracy = 1e-4 * test::diagonal({pair.a, pair.b}) *
                                    (test::perimeter(pair.a) + test::perimeter(pair.b));
            EXPECT_NEAR(shoelace(clipped.difference) + shoelace(clipped.overlap), shoelace(a), 1e-9)
                << kind.name;
            EXPECT_NEAR(shoelace(clipped.overlap), test::rounded_overlap(pair.a, pair.b), accuracy)
                << kind.name;
            EXPECT_NEAR(overlap_area(a, b), shoelace(clipped.overlap), 1e-12) << kind.name;
            EXPECT_NEAR(area(a), shoelace(a), 1e-9);
        }
    EXPECT_LE(failed, pairs / 100) << "of " << pairs;
}

TEST(CppPolygon, PiecesMayHaveAnyNumberOfVertices) {
    // Neither points nor pieces fit the room that a clipper begins with. No corner is so flat as to
    // touch the other polygon.
    const auto a = test::regular(80, 5.0), b = test::regular(80, 5.0, 0.0, 0.8);
    const Clipped clipped = clip(polygon(a), polygon(b));
    EXPECT_EQ(clipped.difference.size(), 80u);
    ASSERT_EQ(clipped.overlap.size(), 1u);
    EXPECT_EQ(clipped.overlap[0].size(), 160u);
    EXPECT_NEAR(shoelace(clipped.overlap), test::rounded_overlap(a, b), 1e-10);
}

TEST(CppPolygon, AHoleIsCutAround) {
    const Clipped clipped = clip(square, polygon(test::rectangle(0.5, 0.5, 1, 1)));
    EXPECT_EQ(clipped.difference.size(), 2u);
    EXPECT_DOUBLE_EQ(shoelace(clipped.difference), 3.75);
    EXPECT_DOUBLE_EQ(shoelace(clipped.overlap), 0.25);
}

TEST(CppPolygon, SaysWhatIsWrong) {
    const auto fault = [](const Polygon& a, const Polygon& b) {
        try {
            clip(a, b);
        } catch (const ClippingError& error) {
            return std::string(error.what());
        }
        return std::string();
    };
    const Polygon bow_tie{{0, 0}, {1, 2}, {1, 0}, {0, 1}}, line{{0, 0}, {1, 0}, {2, 0}};
    EXPECT_EQ(fault({}, square), "clip: a has fewer than 3 vertices");
    EXPECT_EQ(fault(square, {{0, 0}, {1, 1}}), "clip: b has fewer than 3 vertices");
    EXPECT_EQ(fault(bow_tie, square), "clip: a crosses itself");
    EXPECT_EQ(fault(square, bow_tie), "clip: b crosses itself");
    EXPECT_EQ(fault(line, square), "clip: a has no area");
    const Polygon comb = polygon(test::comb(8)), bar = polygon(test::rectangle(-1, 0.2, 99, 0.4));
    EXPECT_EQ(fault(comb, bar), "clip: an edge of b carries more than 10 crossings");
    EXPECT_EQ(fault(square, line), "");
}

TEST(CppPolygon, ManyPairsOnManyThreads) {
    test::Random random(3);
    std::vector<Polygon> shades;
    for (int i = 0; i < 500; ++i)
        shades.push_back(polygon(draw_pair(test::pair_classes()[0], random).a));
    shades[77].resize(2);

    std::vector<Clipped> clipped(shades.size());
    std::vector<double> areas(shades.size());
    const quorvel::Input<Polygon> all(shades);
    quorvel::parallel(
        shades.size(),
        [&](std::size_t first, std::size_t count) {
            clip(all.part(first, count), square, std::span(clipped).subspan(first, count));
            overlap_areas(square, all.part(first, count), std::span(areas).subspan(first, count));
        },
        3);
    for (std::size_t i = 0; i < shades.size(); ++i) {
        if (i == 77) continue;
        EXPECT_EQ(clipped[i].difference, clip(shades[i], square).difference);
        EXPECT_EQ(areas[i], overlap_area(square, shades[i]));
    }
    EXPECT_EQ(clipped[77].status, 1);
    EXPECT_TRUE(clipped[77].overlap.empty());
    EXPECT_TRUE(std::isnan(areas[77]));
    EXPECT_THROW(clip(shades, square, std::span(clipped).first(3)), std::invalid_argument);
}

}  // namespace
