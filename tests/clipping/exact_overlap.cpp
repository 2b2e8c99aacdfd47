#include "clipping/exact_overlap.h"

#include <boost/geometry/algorithms/area.hpp>
#include <boost/geometry/algorithms/correct.hpp>
#include <boost/geometry/algorithms/intersection.hpp>
#include <boost/geometry/geometries/multi_polygon.hpp>
#include <boost/geometry/geometries/point_xy.hpp>
#include <boost/geometry/geometries/polygon.hpp>

namespace quorvel::test {
namespace {

using Point = boost::geometry::model::d2::point_xy<double>;
using Polygon = boost::geometry::model::polygon<Point>;

Polygon polygon_of(const GridPolygon& vertices) {
    Polygon polygon;
    for (const GridPoint& p : vertices)
        polygon.outer().emplace_back(static_cast<double>(p.x), static_cast<double>(p.y));
    boost::geometry::correct(polygon);
    return polygon;
}

}  // namespace

double exact_overlap(const GridPolygon& a, const GridPolygon& b) {
    boost::geometry::model::multi_polygon<Polygon> pieces;
    boost::geometry::intersection(polygon_of(a), polygon_of(b), pieces);
    return boost::geometry::area(pieces) * grid * grid;
}

}  // namespace quorvel::test
