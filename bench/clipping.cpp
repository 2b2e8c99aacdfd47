// GEOVER beside other clipping libraries on the same pairs of polygons: ns per pair, pieces and
// area included. The others get their polygons ready made, in the types they work with.
#include <benchmark/benchmark.h>
#include <geos_c.h>

#include <array>
#include <boost/geometry.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>
#include <polyclipping/clipper.hpp>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/geometry.h"

namespace {

using quorvel::conformance::Random;

struct Polygon {
    std::vector<float> x, y;
    int size() const { return static_cast<int>(x.size()); }
};

// Clockwise.
Polygon star(int n, double radius, double inner, double x, double y, double turn) {
    Polygon polygon;
    for (int i = 0; i < n; ++i) {
        const double angle = turn - 2.0 * std::numbers::pi * i / n;
        const double r = i % 2 ? inner * radius : radius;
        polygon.x.push_back(static_cast<float>(x + r * std::cos(angle)));
        polygon.y.push_back(static_cast<float>(y + r * std::sin(angle)));
    }
    return polygon;
}

struct Pair {
    Polygon a, b;
};
using Pairs = std::array<Pair, 256>;

// A window of about 2 m and a shadow on it; slightly different from pair to pair. Stars have every
// other vertex nearer to the centre.
struct Case {
    const char* name;
    int window_sides, sides;
    double radius, distance;  // of the shadow and of its centre
    double inner = 1.0;       // share of the radius
};
constexpr Case cases[] = {
    {"quadrilaterals", 4, 4, 1.4, 1.2},
    {"12-gon_and_quadrilateral", 4, 12, 1.2, 1.2},
    {"12-gons_not_convex", 12, 12, 1.2, 1.5, 0.6},
    {"contained", 4, 4, 0.5, 0.1},
    {"disjoint", 4, 4, 1.0, 4.0},
};

Pairs draw(const Case& c) {
    Random random(1);
    const auto about = [&](double value) { return value * (0.95 + 0.1 * random.unit()); };
    Pairs pairs;
    for (Pair& pair : pairs) {
        const double angle = 2.0 * std::numbers::pi * random.unit();
        const double distance = about(c.distance);
        pair.a = star(c.window_sides, about(1.4), c.inner, 0.0, 0.0, about(0.8));
        pair.b = star(c.sides, about(c.radius), c.inner, distance * std::cos(angle),
                      distance * std::sin(angle), random.unit());
    }
    return pairs;
}

struct Quorvel {
    using Prepared = Polygon;
    static Prepared prepare(const Polygon& polygon) { return polygon; }
    static double overlap(const Prepared& a, const Prepared& b) {
        std::array<float, 125> x, y;
        std::array<int, 5> sizes;
        float area;
        lib::GEOVER(b.x.data(), b.y.data(), b.size(), a.x.data(), a.y.data(), a.size(), x, y, sizes,
                    area);
        benchmark::DoNotOptimize(x);
        benchmark::DoNotOptimize(y);
        return static_cast<double>(area);
    }
};

struct Polyclipping {
    static constexpr double scale = 1e6;
    using Prepared = ClipperLib::Path;
    static Prepared prepare(const Polygon& polygon) {
        Prepared path;
        for (std::size_t i = 0; i < polygon.x.size(); ++i)
            path.emplace_back(std::llround(scale * static_cast<double>(polygon.x[i])),
                              std::llround(scale * static_cast<double>(polygon.y[i])));
        return path;
    }
    static double overlap(const Prepared& a, const Prepared& b) {
        ClipperLib::Clipper clipper;
        clipper.AddPath(a, ClipperLib::ptSubject, true);
        clipper.AddPath(b, ClipperLib::ptClip, true);
        ClipperLib::Paths pieces;
        clipper.Execute(ClipperLib::ctIntersection, pieces);
        double area = 0.0;
        for (const auto& piece : pieces) area += ClipperLib::Area(piece);
        return area / (scale * scale);
    }
};

struct BoostGeometry {
    using Prepared = boost::geometry::model::polygon<boost::geometry::model::d2::point_xy<double>>;
    static Prepared prepare(const Polygon& polygon) {
        Prepared prepared;
        for (std::size_t i = 0; i < polygon.x.size(); ++i)
            prepared.outer().emplace_back(static_cast<double>(polygon.x[i]),
                                          static_cast<double>(polygon.y[i]));
        boost::geometry::correct(prepared);
        return prepared;
    }
    static double overlap(const Prepared& a, const Prepared& b) {
        boost::geometry::model::multi_polygon<Prepared> pieces;
        boost::geometry::intersection(a, b, pieces);
        return boost::geometry::area(pieces);
    }
};

struct Geos {
    using Prepared = GEOSGeometry*;
    static GEOSContextHandle_t context() {
        static const GEOSContextHandle_t handle = GEOS_init_r();
        return handle;
    }
    static Prepared prepare(const Polygon& polygon) {
        const auto n = static_cast<unsigned>(polygon.size());
        GEOSCoordSequence* points = GEOSCoordSeq_create_r(context(), n + 1, 2);
        for (unsigned i = 0; i <= n; ++i)
            GEOSCoordSeq_setXY_r(context(), points, i, static_cast<double>(polygon.x[i % n]),
                                 static_cast<double>(polygon.y[i % n]));
        return GEOSGeom_createPolygon_r(context(), GEOSGeom_createLinearRing_r(context(), points),
                                        nullptr, 0);
    }
    static double overlap(const Prepared& a, const Prepared& b) {
        GEOSGeometry* pieces = GEOSIntersection_r(context(), a, b);
        double area = 0.0;
        GEOSArea_r(context(), pieces, &area);
        GEOSGeom_destroy_r(context(), pieces);
        return area;
    }
};

template <class Library>
void measure(benchmark::State& state, const Case& c) {
    std::vector<std::pair<typename Library::Prepared, typename Library::Prepared>> pairs;
    for (const Pair& pair : draw(c))
        pairs.emplace_back(Library::prepare(pair.a), Library::prepare(pair.b));
    std::size_t i = 0;
    for (auto _ : state) {
        const auto& [a, b] = pairs[i++ % pairs.size()];
        benchmark::DoNotOptimize(Library::overlap(a, b));
    }
    double total = 0.0;
    for (const auto& [a, b] : pairs) total += Library::overlap(a, b);
    state.counters["m2"] = total / static_cast<double>(pairs.size());
}

template <class Library>
void enlist(const char* library) {
    for (const Case& c : cases)
        benchmark::RegisterBenchmark((std::string("Clipping/") + c.name + "/" + library).c_str(),
                                     measure<Library>, c);
}

[[maybe_unused]] const bool enlisted = [] {
    enlist<Quorvel>("GEOVER");
    enlist<Polyclipping>("polyclipping");
    enlist<BoostGeometry>("Boost.Geometry");
    enlist<Geos>("GEOS");
    return true;
}();

}  // namespace
