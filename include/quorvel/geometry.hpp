// Geometry: see quorvel/quorvel.hpp.
// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include <quorvel.h>
#include <quorvel_arrays.h>

#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "quorvel/call.hpp"
#include "quorvel/input.hpp"
#include "quorvel/selectors.hpp"

// The inner names keep what an application compiles apart from the library's own functions.
namespace quorvel::geometry {
inline namespace v0 {

/// What overlap returns.
struct Overlap {
    /// m: x of the vertices of the pieces, a column each; 0 beyond them [25, 5]
    std::array<std::array<float, 25>, 5> piece_x =
        detail::none<std::array<std::array<float, 25>, 5>>;
    /// m: y of the vertices of the pieces [25, 5]
    std::array<std::array<float, 25>, 5> piece_y =
        detail::none<std::array<std::array<float, 25>, 5>>;
    /// number of vertices of each piece, 0 beyond the last [5]
    std::array<std::int32_t, 5> piece_vertices = detail::none<std::array<std::int32_t, 5>>;
    /// m²: area of the overlap
    float area = detail::none<float>;
};

/// Arrays for what overlap returns.
struct OverlapArrays {
    std::span<std::array<std::array<float, 25>, 5>> piece_x;
    std::span<std::array<std::array<float, 25>, 5>> piece_y;
    std::span<std::array<std::int32_t, 5>> piece_vertices;
    std::span<float> area;
};

/// Pieces and area of the overlap of two simple polygons in plan.
///
/// @note The overlap of HOHOLEDP with polygon 2 as A and polygon 1 as B, and with its accuracy. The
/// pieces run in the sense of polygon 2.
///
/// @note A coordinate nearer to 0 than 1e-4 is taken as 0.
///
/// @note The outputs are all 0 where the polygons do not overlap, and where HOHOLEDP fails: a
/// polygon that crosses itself, more than 10 crossings, more than 50 vertices and crossings in all.
/// Likewise for more than 5 pieces, or more than 24 vertices in one. Of pairs of real polygons 0.75
/// % exceed one of these capacities.
///
/// @note The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or
/// more together: what is left of polygon 2 around it does not fit. Where polygon 2 lies in polygon
/// 1 they may have 50, as anywhere else.
///
/// @param x_1  m: x of polygon 1 [vertices_1]
/// @param y_1  m: y of polygon 1 [vertices_1]
/// @param x_2  m: x of polygon 2 [vertices_2]
/// @param y_2  m: y of polygon 2 [vertices_2]
/// @throws std::out_of_range unless x_1 and y_1 have from 3 (vertices_1: number of vertices of
///     polygon 1, from 3)
/// @throws std::out_of_range unless x_2 and y_2 have from 3 (vertices_2: number of vertices of
///     polygon 2, from 3)
/// Source: As HOHOLEDP.
/// (GEOVER of quorvel.h)
inline Overlap overlap(std::span<const float> x_1, std::span<const float> y_1,
        std::span<const float> x_2, std::span<const float> y_2) {
    const std::int32_t vertices_1 = detail::counted("overlap", "vertices_1", {3, 2147483647},
        {{"x_1", x_1.size()}, {"y_1", y_1.size()}});
    const std::int32_t vertices_2 = detail::counted("overlap", "vertices_2", {3, 2147483647},
        {{"x_2", x_2.size()}, {"y_2", y_2.size()}});
    Overlap out;
    GEOVER(detail::numbers(x_1), detail::numbers(y_1), &vertices_1, detail::numbers(x_2),
        detail::numbers(y_2), &vertices_2, detail::numbers(out.piece_x),
        detail::numbers(out.piece_y), detail::numbers(out.piece_vertices), &out.area);
    return out;
}

/// overlap for whole arrays.
/// Of a row of x_1 and y_1, vertices_1 tells how many count.
/// Of a row of x_2 and y_2, vertices_2 tells how many count.
inline void overlap(Table<const float> x_1, Table<const float> y_1,
        const Input<std::int32_t>& vertices_1, Table<const float> x_2, Table<const float> y_2,
        const Input<std::int32_t>& vertices_2, const OverlapArrays& out) {
    detail::call_arrays("overlap", quorvel_overlap,
        detail::given("x_1", x_1, vertices_1),
        detail::given("y_1", y_1, vertices_1),
        detail::given("vertices_1", vertices_1),
        detail::given("x_2", x_2, vertices_2),
        detail::given("y_2", y_2, vertices_2),
        detail::given("vertices_2", vertices_2),
        detail::returned("piece_x", out.piece_x),
        detail::returned("piece_y", out.piece_y),
        detail::returned("piece_vertices", out.piece_vertices),
        detail::returned("area", out.area));
}

/// What overlap_alias returns.
struct OverlapAlias {
    /// m: x of the vertices of the pieces, a column each; 0 beyond them [25, 5]
    std::array<std::array<float, 25>, 5> piece_x =
        detail::none<std::array<std::array<float, 25>, 5>>;
    /// m: y of the vertices of the pieces [25, 5]
    std::array<std::array<float, 25>, 5> piece_y =
        detail::none<std::array<std::array<float, 25>, 5>>;
    /// number of vertices of each piece, 0 beyond the last [5]
    std::array<std::int32_t, 5> piece_vertices = detail::none<std::array<std::int32_t, 5>>;
    /// m²: area of the overlap
    float area = detail::none<float>;
};

/// Arrays for what overlap_alias returns.
struct OverlapAliasArrays {
    std::span<std::array<std::array<float, 25>, 5>> piece_x;
    std::span<std::array<std::array<float, 25>, 5>> piece_y;
    std::span<std::array<std::int32_t, 5>> piece_vertices;
    std::span<float> area;
};

/// The same as GEOVER.
///
/// @note As GEOVER, in all.
///
/// @param x_1  m: x of polygon 1 [vertices_1]
/// @param y_1  m: y of polygon 1 [vertices_1]
/// @param x_2  m: x of polygon 2 [vertices_2]
/// @param y_2  m: y of polygon 2 [vertices_2]
/// @throws std::out_of_range unless x_1 and y_1 have from 3 (vertices_1: number of vertices of
///     polygon 1, from 3)
/// @throws std::out_of_range unless x_2 and y_2 have from 3 (vertices_2: number of vertices of
///     polygon 2, from 3)
/// Source: As HOHOLEDP.
/// (GEHOLE of quorvel.h)
inline OverlapAlias overlap_alias(std::span<const float> x_1, std::span<const float> y_1,
        std::span<const float> x_2, std::span<const float> y_2) {
    const std::int32_t vertices_1 = detail::counted("overlap_alias", "vertices_1", {3, 2147483647},
        {{"x_1", x_1.size()}, {"y_1", y_1.size()}});
    const std::int32_t vertices_2 = detail::counted("overlap_alias", "vertices_2", {3, 2147483647},
        {{"x_2", x_2.size()}, {"y_2", y_2.size()}});
    OverlapAlias out;
    GEHOLE(detail::numbers(x_1), detail::numbers(y_1), &vertices_1, detail::numbers(x_2),
        detail::numbers(y_2), &vertices_2, detail::numbers(out.piece_x),
        detail::numbers(out.piece_y), detail::numbers(out.piece_vertices), &out.area);
    return out;
}

/// overlap_alias for whole arrays.
/// Of a row of x_1 and y_1, vertices_1 tells how many count.
/// Of a row of x_2 and y_2, vertices_2 tells how many count.
inline void overlap_alias(Table<const float> x_1, Table<const float> y_1,
        const Input<std::int32_t>& vertices_1, Table<const float> x_2, Table<const float> y_2,
        const Input<std::int32_t>& vertices_2, const OverlapAliasArrays& out) {
    detail::call_arrays("overlap_alias", quorvel_overlap_alias,
        detail::given("x_1", x_1, vertices_1),
        detail::given("y_1", y_1, vertices_1),
        detail::given("vertices_1", vertices_1),
        detail::given("x_2", x_2, vertices_2),
        detail::given("y_2", y_2, vertices_2),
        detail::given("vertices_2", vertices_2),
        detail::returned("piece_x", out.piece_x),
        detail::returned("piece_y", out.piece_y),
        detail::returned("piece_vertices", out.piece_vertices),
        detail::returned("area", out.area));
}

/// Whether points in plan lie on one straight line.
///
/// @note The points are held against the line through the first two that differ by 1e-5 or more in
/// both coordinates. A point is off it when the ratios of its offsets to theirs, in x and in y,
/// differ by more than 1e-5: what is tolerated grows with the distance between the two.
///
/// @note Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a
/// number counts as equal to anything.
///
/// @note Coordinates near one another within 1e-5 can leave no two points to draw the line through;
/// then the points are not on one line, and finding that out takes n²/2 comparisons.
///
/// @param x  m: x of the vertices [points]
/// @param y  m: y of the vertices [points]
/// @return 1 on one line; otherwise the number, counted from 1, of the first point whose y differs
///     from that of the first of all
/// @throws std::out_of_range unless x and y have from 1 (points: number of points)
/// Source: Intercept theorem.
/// (IGELIN of quorvel.h)
inline std::int32_t collinearity(std::span<const float> x, std::span<const float> y) {
    const std::int32_t points = detail::counted("collinearity", "points", {1, 2147483647}, {{"x",
        x.size()}, {"y", y.size()}});
    return IGELIN(detail::numbers(x), detail::numbers(y), &points);
}

/// collinearity for whole arrays.
/// Of a row of x and y, points tells how many count.
inline void collinearity(Table<const float> x, Table<const float> y,
        const Input<std::int32_t>& points, std::span<std::int32_t> result) {
    detail::call_arrays("collinearity", quorvel_collinearity,
        detail::given("x", x, points),
        detail::given("y", y, points),
        detail::given("points", points),
        detail::returned("result", result));
}

/// What count_enclosed returns.
struct CountEnclosed {
    /// 1 for points that are enclosed: 0 not enclosed, 1 enclosed [points]; as given for points
    /// that are not enclosed
    std::vector<std::int32_t> enclosed;
    /// number of enclosed points
    std::int32_t enclosed_points = detail::none<std::int32_t>;
};

/// Arrays for what count_enclosed returns.
struct CountEnclosedArrays {
    Table<std::int32_t> enclosed;
    std::span<std::int32_t> enclosed_points;
};

/// How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
///
/// @note A point is enclosed when it is left of no edge, as IGEPNT sees it, or is at a vertex (to
/// less than 1e-5 in each coordinate) that comes before any such edge.
///
/// @note Points that are not numbers are left of no edge, and so enclosed.
///
/// @param x  m: x of the vertices [vertices]
/// @param y  m: y of the vertices [vertices]
/// @param point_x  m: x of the points [points]
/// @param point_y  m: y of the points [points]
/// @param enclosed  1 for points that are enclosed: 0 not enclosed, 1 enclosed [points]
/// @throws std::out_of_range unless x and y have from 3 (vertices: number of vertices)
/// @throws std::out_of_range unless point_x and point_y and enclosed have from 1 (points: number of
///     points)
/// Source: A convex polygon is the intersection of half-planes.
/// (GECLOS of quorvel.h)
inline CountEnclosed count_enclosed(std::span<const float> x, std::span<const float> y,
        std::span<const float> point_x, std::span<const float> point_y,
        std::span<const std::int32_t> enclosed) {
    const std::int32_t vertices = detail::counted("count_enclosed", "vertices", {3, 2147483647},
        {{"x", x.size()}, {"y", y.size()}});
    const std::int32_t points = detail::counted("count_enclosed", "points", {1, 2147483647},
        {{"point_x", point_x.size()}, {"point_y", point_y.size()}, {"enclosed", enclosed.size()}});
    CountEnclosed out;
    out.enclosed.assign(enclosed.begin(), enclosed.end());
    GECLOS(detail::numbers(x), detail::numbers(y), &vertices, detail::numbers(point_x),
        detail::numbers(point_y), &points, detail::numbers(out.enclosed), &out.enclosed_points);
    return out;
}

/// count_enclosed for whole arrays.
/// Of a row of x and y, vertices tells how many count.
/// Of a row of point_x and point_y and enclosed, points tells how many count.
inline void count_enclosed(Table<const float> x, Table<const float> y,
        const Input<std::int32_t>& vertices, Table<const float> point_x, Table<const float> point_y,
        const Input<std::int32_t>& points, Table<const std::int32_t> enclosed,
        const CountEnclosedArrays& out) {
    detail::call_arrays("count_enclosed", quorvel_count_enclosed,
        detail::given("x", x, vertices),
        detail::given("y", y, vertices),
        detail::given("vertices", vertices),
        detail::given("point_x", point_x, points),
        detail::given("point_y", point_y, points),
        detail::given("points", points),
        detail::given("enclosed", enclosed, points),
        detail::returned("enclosed", out.enclosed, points),
        detail::returned("enclosed_points", out.enclosed_points));
}

/// What boundary_crossing returns.
struct BoundaryCrossing {
    /// m: crossing point, or what the notes say [2]; 1e20 for none
    std::array<float, 2> crossing_point = detail::none<std::array<float, 2>>;
    /// number, counted from 1, of the vertex that ends the crossed edge, or what the notes say
    std::int32_t crossing_code = detail::none<std::int32_t>;
};

/// Arrays for what boundary_crossing returns.
struct BoundaryCrossingArrays {
    std::span<std::array<float, 2>> crossing_point;
    std::span<std::int32_t> crossing_code;
};

/// Where a segment crosses the boundary of a polygon in plan.
///
/// @note The edges are tried in turn, from that between the first two vertices on, as GECROS does;
/// the first one that is crossed away from the start ends the search. A crossing beyond 100000 is
/// none.
///
/// @note No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a
/// minus, and the point is the last outcome of the search, the start or 1e20.
///
/// @note Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the
/// last of them, and the point that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000
/// vertices or more, small codes of this kind cannot be told from edges by the code alone.)
///
/// @note Otherwise the code is 0, and the point 1e20.
///
/// @param segment_start  m: start of the segment [2]
/// @param segment_end  m: end of the segment [2]
/// @param x  m: x of the vertices [vertices]
/// @param y  m: y of the vertices [vertices]
/// @throws std::out_of_range unless x and y have from 3 (vertices: number of vertices)
/// Source: As GECROS.
/// (GESIDE of quorvel.h)
inline BoundaryCrossing boundary_crossing(const std::array<float, 2>& segment_start,
        const std::array<float, 2>& segment_end, std::span<const float> x,
        std::span<const float> y) {
    const std::int32_t vertices = detail::counted("boundary_crossing", "vertices", {3, 2147483647},
        {{"x", x.size()}, {"y", y.size()}});
    BoundaryCrossing out;
    GESIDE(detail::numbers(segment_start), detail::numbers(segment_end), detail::numbers(x),
        detail::numbers(y), &vertices, detail::numbers(out.crossing_point), &out.crossing_code);
    return out;
}

/// boundary_crossing for whole arrays.
/// Of a row of x and y, vertices tells how many count.
inline void boundary_crossing(const Input<std::array<float, 2>>& segment_start,
        const Input<std::array<float, 2>>& segment_end, Table<const float> x, Table<const float> y,
        const Input<std::int32_t>& vertices, const BoundaryCrossingArrays& out) {
    detail::call_arrays("boundary_crossing", quorvel_boundary_crossing,
        detail::given("segment_start", segment_start),
        detail::given("segment_end", segment_end),
        detail::given("x", x, vertices),
        detail::given("y", y, vertices),
        detail::given("vertices", vertices),
        detail::returned("crossing_point", out.crossing_point),
        detail::returned("crossing_code", out.crossing_code));
}

/// Whether a point in the plane of a polygon in space lies inside or on its boundary.
///
/// @note The first edge with whose line the point is in line (twice the area of the triangle
/// between them at most 1e-6) decides alone: 1 if the point is in the span of the edge, as GEINLN
/// sees it, else 0. So a point may be found outside a polygon that is not convex because it is in
/// line with an edge.
///
/// @note That the point is in the plane is not tested: over the middle of a square it is inside up
/// to half the length of a side.
///
/// @note Not a number gives 0.
///
/// @param point  m: point [3]
/// @param polygon  m: vertices, the last of which repeats the first [3, vertices]
/// @return 1 inside, 0 outside
/// @throws std::out_of_range unless polygon has from 4 (vertices: number of vertices, the repeated
///     one included)
/// Source: Sum of the angles under which the point sees the edges.
/// (GEINSI of quorvel.h)
inline std::int32_t inside(const std::array<float, 3>& point,
        std::span<const std::array<float, 3>> polygon) {
    const std::int32_t vertices = detail::counted("inside", "vertices", {4, 2147483647},
        {{"polygon", polygon.size()}});
    std::int32_t out = detail::none<std::int32_t>;
    GEINSI(detail::numbers(point), detail::numbers(polygon), &vertices, &out);
    return out;
}

/// inside for whole arrays.
/// Of a row of polygon, vertices tells how many count.
inline void inside(const Input<std::array<float, 3>>& point,
        Table<const std::array<float, 3>> polygon, const Input<std::int32_t>& vertices,
        std::span<std::int32_t> inside) {
    detail::call_arrays("inside", quorvel_inside,
        detail::given("point", point),
        detail::given("polygon", polygon, vertices),
        detail::given("vertices", vertices),
        detail::returned("inside", inside));
}

/// Whether the planes of two triangles are parallel.
///
/// @note So they are when the cross product of their normals, each as long as twice the triangle's
/// area, is shorter than 0.001: small triangles are parallel to any.
///
/// @param triangle_1  m: corners of one triangle [3, 3]
/// @param triangle_2  m: corners of the other [3, 3]
/// @return whether they are parallel
/// Source: Definition.
/// (GEPLEL of quorvel.h)
inline bool parallel_planes(const std::array<std::array<double, 3>, 3>& triangle_1,
        const std::array<std::array<double, 3>, 3>& triangle_2) {
    return GEPLEL(detail::numbers(triangle_1), detail::numbers(triangle_2)) != 0;
}

/// parallel_planes for whole arrays.
/// The result is -1 for true, 0 for false.
inline void parallel_planes(const Input<std::array<std::array<double, 3>, 3>>& triangle_1,
        const Input<std::array<std::array<double, 3>, 3>>& triangle_2,
        std::span<std::int32_t> result) {
    detail::call_arrays("parallel_planes", quorvel_parallel_planes,
        detail::given("triangle_1", triangle_1),
        detail::given("triangle_2", triangle_2),
        detail::returned("result", result));
}

/// What parallel_sides returns.
struct ParallelSides {
    /// whether there are any
    bool result = detail::none<bool>;
    /// side of one triangle: 1 between its first two corners, 2 between its last two; 3 none
    std::int32_t side_1 = detail::none<std::int32_t>;
    /// side of the other, likewise
    std::int32_t side_2 = detail::none<std::int32_t>;
};

/// Arrays for what parallel_sides returns.
struct ParallelSidesArrays {
    std::span<std::int32_t> result;
    std::span<std::int32_t> side_1;
    std::span<std::int32_t> side_2;
};

/// Whether two triangles have parallel sides, and which.
///
/// @note Sides are parallel when their cross product is shorter than 0.001, so that short sides are
/// parallel to any.
///
/// @note The sides between last and first corner are not tested.
///
/// @param triangle_1  m: corners of one triangle [3, 3]
/// @param triangle_2  m: corners of the other [3, 3]
/// Source: Definition.
/// (GEPSID of quorvel.h)
inline ParallelSides parallel_sides(const std::array<std::array<double, 3>, 3>& triangle_1,
        const std::array<std::array<double, 3>, 3>& triangle_2) {
    ParallelSides out;
    out.result = GEPSID(detail::numbers(triangle_1), detail::numbers(triangle_2), &out.side_1,
        &out.side_2) != 0;
    return out;
}

/// parallel_sides for whole arrays.
/// The result is -1 for true, 0 for false.
inline void parallel_sides(const Input<std::array<std::array<double, 3>, 3>>& triangle_1,
        const Input<std::array<std::array<double, 3>, 3>>& triangle_2,
        const ParallelSidesArrays& out) {
    detail::call_arrays("parallel_sides", quorvel_parallel_sides,
        detail::given("triangle_1", triangle_1),
        detail::given("triangle_2", triangle_2),
        detail::returned("result", out.result),
        detail::returned("side_1", out.side_1),
        detail::returned("side_2", out.side_2));
}

/// Whether a quadrilateral is rectangular.
///
/// @note So it is when at all corners but the first the dot product of the two sides is at most
/// 1e-6 in magnitude.
///
/// @param quadrilateral  m: corners in turn [3, 4]
/// @return whether it is rectangular
/// Source: Definition.
/// (GERECT of quorvel.h)
inline bool rectangular(const std::array<std::array<double, 3>, 4>& quadrilateral) {
    return GERECT(detail::numbers(quadrilateral)) != 0;
}

/// rectangular for whole arrays.
/// The result is -1 for true, 0 for false.
inline void rectangular(const Input<std::array<std::array<double, 3>, 4>>& quadrilateral,
        std::span<std::int32_t> result) {
    detail::call_arrays("rectangular", quorvel_rectangular,
        detail::given("quadrilateral", quadrilateral),
        detail::returned("result", result));
}

/// What facing returns.
struct Facing {
    /// °: azimuth of the outward normal; given, what a level triangle gets, in radians
    double azimuth = detail::none<double>;
    /// °: tilt: 0 horizontal facing up, 90 vertical, 180 facing down
    double tilt = detail::none<double>;
};

/// Arrays for what facing returns.
struct FacingArrays {
    std::span<double> azimuth;
    std::span<double> tilt;
};

/// Azimuth and tilt of the plane of a triangle.
///
/// @note A level triangle, the level part of whose normal (as long as twice its area) is shorter
/// than 1e-10, gets the given azimuth times 180/pi.
///
/// @note Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
///
/// @note A triangle without area gives a tilt that is not a number.
///
/// @param triangle  m: corners, clockwise seen from outside [3, 3]
/// @param azimuth  °, 0 .. 6.2832: azimuth of the outward normal; given, what a level triangle
///     gets, in radians
/// Source: Definition.
/// (GETILT of quorvel.h)
inline Facing facing(const std::array<std::array<double, 3>, 3>& triangle, double azimuth) {
    Facing out;
    out.azimuth = azimuth;
    GETILT(detail::numbers(triangle), &out.azimuth, &out.tilt);
    return out;
}

/// facing for whole arrays.
inline void facing(const Input<std::array<std::array<double, 3>, 3>>& triangle,
        const Input<double>& azimuth, const FacingArrays& out) {
    detail::call_arrays("facing", quorvel_facing,
        detail::given("triangle", triangle),
        detail::given("azimuth", azimuth),
        detail::returned("azimuth", out.azimuth),
        detail::returned("tilt", out.tilt));
}

/// What local_coordinates returns.
struct LocalCoordinates {
    /// m: the first in local coordinates [3, 4]
    std::array<std::array<double, 3>, 4> local_1 =
        detail::none<std::array<std::array<double, 3>, 4>>;
    /// m: the second in local coordinates [3, 4]
    std::array<std::array<double, 3>, 4> local_2 =
        detail::none<std::array<std::array<double, 3>, 4>>;
};

/// Arrays for what local_coordinates returns.
struct LocalCoordinatesArrays {
    std::span<std::array<std::array<double, 3>, 4>> local_1;
    std::span<std::array<std::array<double, 3>, 4>> local_2;
};

/// Two quadrilaterals in local coordinates of the first.
///
/// @note The origin is the first corner of the first; from there x points to the second corner, y
/// to the fourth, z along the cross product of the ways to the second and the third.
///
/// @note Coordinates are dot products with the axes, so that lengths are kept only where that has a
/// right angle at its first corner.
///
/// @note Coincident corners give what is not a number.
///
/// @param quadrilateral_1  m: corners of the first [3, 4]
/// @param quadrilateral_2  m: corners of the second [3, 4]
/// Source: Definition.
/// (GELCAL of quorvel.h)
inline LocalCoordinates local_coordinates(const std::array<std::array<double, 3>, 4>& quadrilateral_1,
        const std::array<std::array<double, 3>, 4>& quadrilateral_2) {
    LocalCoordinates out;
    GELCAL(detail::numbers(quadrilateral_1), detail::numbers(quadrilateral_2),
        detail::numbers(out.local_1), detail::numbers(out.local_2));
    return out;
}

/// local_coordinates for whole arrays.
inline void local_coordinates(const Input<std::array<std::array<double, 3>, 4>>& quadrilateral_1,
        const Input<std::array<std::array<double, 3>, 4>>& quadrilateral_2,
        const LocalCoordinatesArrays& out) {
    detail::call_arrays("local_coordinates", quorvel_local_coordinates,
        detail::given("quadrilateral_1", quadrilateral_1),
        detail::given("quadrilateral_2", quadrilateral_2),
        detail::returned("local_1", out.local_1),
        detail::returned("local_2", out.local_2));
}

/// Components of each of four points along three axes.
///
/// @param corners  m: points [3, 4]
/// @param x_axis  x axis [3]
/// @param y_axis  y axis [3]
/// @param z_axis  z axis [3]
/// @return m: points [3, 4]
/// Source: Definition.
/// (GETRNS of quorvel.h)
inline std::array<std::array<double, 3>, 4> to_local(const std::array<std::array<double, 3>, 4>& corners,
        const std::array<double, 3>& x_axis, const std::array<double, 3>& y_axis,
        const std::array<double, 3>& z_axis) {
    std::array<std::array<double, 3>, 4> out = detail::none<std::array<std::array<double, 3>, 4>>;
    out = corners;
    GETRNS(detail::numbers(out), detail::numbers(x_axis), detail::numbers(y_axis),
        detail::numbers(z_axis));
    return out;
}

/// to_local for whole arrays.
inline void to_local(const Input<std::array<std::array<double, 3>, 4>>& corners,
        const Input<std::array<double, 3>>& x_axis, const Input<std::array<double, 3>>& y_axis,
        const Input<std::array<double, 3>>& z_axis,
        std::span<std::array<std::array<double, 3>, 4>> new_corners) {
    detail::call_arrays("to_local", quorvel_to_local,
        detail::given("corners", corners),
        detail::given("x_axis", x_axis),
        detail::given("y_axis", y_axis),
        detail::given("z_axis", z_axis),
        detail::returned("corners", new_corners));
}

/// Where two infinite lines in plan meet.
///
/// @note Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of
/// the angle between them is below 1e-10.
///
/// @note Any of the points may be vectors; their z is not read.
///
/// @param line_1_start  m: point of line 1 [2]
/// @param line_1_end  m: another point of line 1 [2]
/// @param line_2_start  m: point of line 2 [2]
/// @param line_2_end  m: another point of line 2 [2]
/// @return m: meeting point [2]; 1e20 for none
/// Source: Elementary analytic geometry.
/// (GEMEET of quorvel.h)
inline std::array<float, 2> meeting_point(const std::array<float, 2>& line_1_start,
        const std::array<float, 2>& line_1_end, const std::array<float, 2>& line_2_start,
        const std::array<float, 2>& line_2_end) {
    std::array<float, 2> out = detail::none<std::array<float, 2>>;
    GEMEET(detail::numbers(line_1_start), detail::numbers(line_1_end),
        detail::numbers(line_2_start), detail::numbers(line_2_end), detail::numbers(out));
    return out;
}

/// meeting_point for whole arrays.
inline void meeting_point(const Input<std::array<float, 2>>& line_1_start,
        const Input<std::array<float, 2>>& line_1_end,
        const Input<std::array<float, 2>>& line_2_start,
        const Input<std::array<float, 2>>& line_2_end,
        std::span<std::array<float, 2>> meeting_point) {
    detail::call_arrays("meeting_point", quorvel_meeting_point,
        detail::given("line_1_start", line_1_start),
        detail::given("line_1_end", line_1_end),
        detail::given("line_2_start", line_2_start),
        detail::given("line_2_end", line_2_end),
        detail::returned("meeting_point", meeting_point));
}

/// Where two segments in plan cross or touch.
///
/// @note Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both
/// coordinates. Not a number counts as not meeting.
///
/// @note A segment reaches almost 0.0001 beyond its ends in x and in y.
///
/// @param segment_1_start  m: start of segment 1 [2]
/// @param segment_1_end  m: end of segment 1 [2]
/// @param segment_2_start  m: start of segment 2 [2]
/// @param segment_2_end  m: end of segment 2 [2]
/// @return m: crossing point [2]; 1e20 for none
/// Source: As GEMEET.
/// (GECROS of quorvel.h)
inline std::array<float, 2> crossing_point(const std::array<float, 2>& segment_1_start,
        const std::array<float, 2>& segment_1_end, const std::array<float, 2>& segment_2_start,
        const std::array<float, 2>& segment_2_end) {
    std::array<float, 2> out = detail::none<std::array<float, 2>>;
    GECROS(detail::numbers(segment_1_start), detail::numbers(segment_1_end),
        detail::numbers(segment_2_start), detail::numbers(segment_2_end), detail::numbers(out));
    return out;
}

/// crossing_point for whole arrays.
inline void crossing_point(const Input<std::array<float, 2>>& segment_1_start,
        const Input<std::array<float, 2>>& segment_1_end,
        const Input<std::array<float, 2>>& segment_2_start,
        const Input<std::array<float, 2>>& segment_2_end,
        std::span<std::array<float, 2>> crossing_point) {
    detail::call_arrays("crossing_point", quorvel_crossing_point,
        detail::given("segment_1_start", segment_1_start),
        detail::given("segment_1_end", segment_1_end),
        detail::given("segment_2_start", segment_2_start),
        detail::given("segment_2_end", segment_2_end),
        detail::returned("crossing_point", crossing_point));
}

/// Whether a point of the line AB lies between A and B.
///
/// @note That the point is on the line is not tested: the answer is whether it is in the box of
/// which A and B are corners.
///
/// @note Not a number in y or z of the point does not exclude it.
///
/// @param first_end  m: one end [3]
/// @param second_end  m: other end [3]
/// @param point  m: point on the line AB [3]
/// @return 1 between them or at an end, else 0
/// Source: Definition.
/// (GEINLN of quorvel.h)
inline float in_span(const std::array<float, 3>& first_end, const std::array<float, 3>& second_end,
        const std::array<float, 3>& point) {
    return GEINLN(detail::numbers(first_end), detail::numbers(second_end), detail::numbers(point));
}

/// in_span for whole arrays.
inline void in_span(const Input<std::array<float, 3>>& first_end,
        const Input<std::array<float, 3>>& second_end, const Input<std::array<float, 3>>& point,
        std::span<float> result) {
    detail::call_arrays("in_span", quorvel_in_span,
        detail::given("first_end", first_end),
        detail::given("second_end", second_end),
        detail::given("point", point),
        detail::returned("result", result));
}

/// Whether a point lies on B's side of A and nearer to A than B does.
///
/// @note A itself counts, B does not; so nothing does where the two coincide.
///
/// @note Not a number anywhere gives 1.
///
/// @param first_end  m: one end [3]
/// @param second_end  m: other end [3]
/// @param point  m: point [3]
/// @return 1 if so, else 0
/// Source: Definition.
/// (GEINLN2 of quorvel.h)
inline float ahead_and_nearer(const std::array<float, 3>& first_end,
        const std::array<float, 3>& second_end, const std::array<float, 3>& point) {
    return GEINLN2(detail::numbers(first_end), detail::numbers(second_end), detail::numbers(point));
}

/// ahead_and_nearer for whole arrays.
inline void ahead_and_nearer(const Input<std::array<float, 3>>& first_end,
        const Input<std::array<float, 3>>& second_end, const Input<std::array<float, 3>>& point,
        std::span<float> result) {
    detail::call_arrays("ahead_and_nearer", quorvel_ahead_and_nearer,
        detail::given("first_end", first_end),
        detail::given("second_end", second_end),
        detail::given("point", point),
        detail::returned("result", result));
}

/// Whether two points in plan coincide.
///
/// @param x_1  m: x of one point
/// @param y_1  m: y of one point
/// @param x_2  m: x of the other
/// @param y_2  m: y of the other
/// @return whether both coordinates differ by less than 1e-5
/// Source: Definition.
/// (GECOIN of quorvel.h)
inline bool coincide(float x_1, float y_1, float x_2, float y_2) {
    return GECOIN(&x_1, &y_1, &x_2, &y_2) != 0;
}

/// coincide for whole arrays.
/// The result is -1 for true, 0 for false.
inline void coincide(const Input<float>& x_1, const Input<float>& y_1, const Input<float>& x_2,
        const Input<float>& y_2, std::span<std::int32_t> result) {
    detail::call_arrays("coincide", quorvel_coincide,
        detail::given("x_1", x_1),
        detail::given("y_1", y_1),
        detail::given("x_2", x_2),
        detail::given("y_2", y_2),
        detail::returned("result", result));
}

/// Side of a directed line in plan on which a point lies.
///
/// @note Where the two points of the line are the same the line runs north.
///
/// @note Not a number gives 0.
///
/// @param line_start  m: start of the line [2]
/// @param line_end  m: point towards which it runs [2]
/// @param point  m: point [2]
/// @return 1 right of the line, -1 left of it, 0 nearer to it than 1e-5
/// Source: Distance of a point from a line by its bearing.
/// (IGEPNT of quorvel.h)
inline std::int32_t side_of_line(const std::array<float, 2>& line_start,
        const std::array<float, 2>& line_end, const std::array<float, 2>& point) {
    return IGEPNT(detail::numbers(line_start), detail::numbers(line_end), detail::numbers(point));
}

/// side_of_line for whole arrays.
inline void side_of_line(const Input<std::array<float, 2>>& line_start,
        const Input<std::array<float, 2>>& line_end, const Input<std::array<float, 2>>& point,
        std::span<std::int32_t> result) {
    detail::call_arrays("side_of_line", quorvel_side_of_line,
        detail::given("line_start", line_start),
        detail::given("line_end", line_end),
        detail::given("point", point),
        detail::returned("result", result));
}

/// Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the
/// angle of an azimuth.
///
/// @note It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630
/// give negative results.
///
/// @note Magnitudes from 1000 on are no angles and are returned as they are.
///
/// @param angle  °, 0 .. 360: angle from east, anticlockwise, or azimuth
/// @return °: azimuth of the opposite direction, or angle of it
/// Source: Definition.
/// (BORI of quorvel.h)
inline float back_azimuth(float angle) {
    return BORI(&angle);
}

/// back_azimuth for whole arrays.
inline void back_azimuth(const Input<float>& angle, std::span<float> result) {
    detail::call_arrays("back_azimuth", quorvel_back_azimuth,
        detail::given("angle", angle),
        detail::returned("result", result));
}

/// Unit vector of a direction, such as that to the sun.
///
/// Formula: (sin(solar_azimuth) cos(solar_altitude), cos(solar_azimuth) cos(solar_altitude),
/// sin(solar_altitude))
///
/// @param solar_altitude  rad, -1.5708 .. 1.5708: altitude
/// @param solar_azimuth  rad, 0 .. 6.2832: azimuth
/// @return direction [3]
/// Source: Spherical to rectangular coordinates.
/// (GESUNV of quorvel.h)
inline std::array<float, 3> direction_to(float solar_altitude, float solar_azimuth) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GESUNV(&solar_altitude, &solar_azimuth, detail::numbers(out));
    return out;
}

/// direction_to for whole arrays.
inline void direction_to(const Input<float>& solar_altitude, const Input<float>& solar_azimuth,
        std::span<std::array<float, 3>> direction) {
    detail::call_arrays("direction_to", quorvel_direction_to,
        detail::given("solar_altitude", solar_altitude),
        detail::given("solar_azimuth", solar_azimuth),
        detail::returned("direction", direction));
}

/// What surface_axes returns.
struct SurfaceAxes {
    /// matrix; its columns are the local axes in global coordinates [3, 3]
    std::array<std::array<float, 3>, 3> rotation_matrix =
        detail::none<std::array<std::array<float, 3>, 3>>;
    /// inverse of it [3, 3]
    std::array<std::array<float, 3>, 3> inverse_matrix =
        detail::none<std::array<std::array<float, 3>, 3>>;
};

/// Arrays for what surface_axes returns.
struct SurfaceAxesArrays {
    std::span<std::array<std::array<float, 3>, 3>> rotation_matrix;
    std::span<std::array<std::array<float, 3>, 3>> inverse_matrix;
};

/// Rotation matrix of a surface, from local to global coordinates, and its inverse.
///
/// Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b),
/// cos(a) sin(b), cos(b)); a = surface_azimuth, b = tilt
///
/// @note Local x is level and points to the right seen from outside, y points up the slope, z
/// outwards; the axes are right-handed.
///
/// @note Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination
/// with full pivoting, is the transpose to rounding.
///
/// @param surface_azimuth  rad, 0 .. 6.2832: azimuth of the surface's outward normal
/// @param tilt  rad, 0 .. 3.1416: tilt: 0 horizontal facing up, pi/2 vertical
/// Source: Rotation matrices; Gauss-Jordan elimination.
/// (GERSET of quorvel.h)
inline SurfaceAxes surface_axes(float surface_azimuth, float tilt) {
    SurfaceAxes out;
    GERSET(&surface_azimuth, &tilt, detail::numbers(out.rotation_matrix),
        detail::numbers(out.inverse_matrix));
    return out;
}

/// surface_axes for whole arrays.
inline void surface_axes(const Input<float>& surface_azimuth, const Input<float>& tilt,
        const SurfaceAxesArrays& out) {
    detail::call_arrays("surface_axes", quorvel_surface_axes,
        detail::given("surface_azimuth", surface_azimuth),
        detail::given("tilt", tilt),
        detail::returned("rotation_matrix", out.rotation_matrix),
        detail::returned("inverse_matrix", out.inverse_matrix));
}

/// Local to global coordinates: the rotation matrix times the vector.
///
/// @param local_vector  m: vector in local coordinates [3]
/// @param rotation_matrix  -1 .. 1: rotation matrix [3, 3]
/// @return m: vector in global coordinates [3]
/// Source: Definition.
/// (GERAXI of quorvel.h)
inline std::array<float, 3> local_to_global(const std::array<float, 3>& local_vector,
        const std::array<std::array<float, 3>, 3>& rotation_matrix) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GERAXI(detail::numbers(local_vector), detail::numbers(rotation_matrix), detail::numbers(out));
    return out;
}

/// local_to_global for whole arrays.
inline void local_to_global(const Input<std::array<float, 3>>& local_vector,
        const Input<std::array<std::array<float, 3>, 3>>& rotation_matrix,
        std::span<std::array<float, 3>> global_vector) {
    detail::call_arrays("local_to_global", quorvel_local_to_global,
        detail::given("local_vector", local_vector),
        detail::given("rotation_matrix", rotation_matrix),
        detail::returned("global_vector", global_vector));
}

/// Global to local coordinates: the transpose of the rotation matrix times the vector.
///
/// @param global_vector  m: vector in global coordinates [3]
/// @param rotation_matrix  -1 .. 1: rotation matrix [3, 3]
/// @return m: vector in local coordinates [3]
/// Source: Definition.
/// (GERAX2 of quorvel.h)
inline std::array<float, 3> global_to_local(const std::array<float, 3>& global_vector,
        const std::array<std::array<float, 3>, 3>& rotation_matrix) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GERAX2(detail::numbers(global_vector), detail::numbers(rotation_matrix), detail::numbers(out));
    return out;
}

/// global_to_local for whole arrays.
inline void global_to_local(const Input<std::array<float, 3>>& global_vector,
        const Input<std::array<std::array<float, 3>, 3>>& rotation_matrix,
        std::span<std::array<float, 3>> local_vector) {
    detail::call_arrays("global_to_local", quorvel_global_to_local,
        detail::given("global_vector", global_vector),
        detail::given("rotation_matrix", rotation_matrix),
        detail::returned("local_vector", local_vector));
}

/// Area of a polygon in plan.
///
/// Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the
/// first
///
/// @note A polygon far from the origin beside its size loses digits.
///
/// @param x  m: x of the vertices [vertices]
/// @param y  m: y of the vertices [vertices]
/// @return m²: area
/// @throws std::out_of_range unless x and y have from 3 (vertices: number of vertices)
/// Source: Shoelace formula.
/// (GEAPOL of quorvel.h)
inline float plan_area(std::span<const float> x, std::span<const float> y) {
    const std::int32_t vertices = detail::counted("plan_area", "vertices", {3, 2147483647}, {{"x",
        x.size()}, {"y", y.size()}});
    return GEAPOL(detail::numbers(x), detail::numbers(y), &vertices);
}

/// plan_area for whole arrays.
/// Of a row of x and y, vertices tells how many count.
inline void plan_area(Table<const float> x, Table<const float> y,
        const Input<std::int32_t>& vertices, std::span<float> result) {
    detail::call_arrays("plan_area", quorvel_plan_area,
        detail::given("x", x, vertices),
        detail::given("y", y, vertices),
        detail::given("vertices", vertices),
        detail::returned("result", result));
}

/// Area of a polygon in plan, positive for clockwise vertices.
///
/// Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
///
/// @note As GEAPOL.
///
/// @param x  m: x of the vertices [vertices]
/// @param y  m: y of the vertices [vertices]
/// @return m²: area, negative for anticlockwise vertices
/// @throws std::out_of_range unless x and y have from 3 (vertices: number of vertices)
/// Source: Shoelace formula.
/// (GEAPO2 of quorvel.h)
inline float signed_plan_area(std::span<const float> x, std::span<const float> y) {
    const std::int32_t vertices = detail::counted("signed_plan_area", "vertices", {3, 2147483647},
        {{"x", x.size()}, {"y", y.size()}});
    return GEAPO2(detail::numbers(x), detail::numbers(y), &vertices);
}

/// signed_plan_area for whole arrays.
/// Of a row of x and y, vertices tells how many count.
inline void signed_plan_area(Table<const float> x, Table<const float> y,
        const Input<std::int32_t>& vertices, std::span<float> result) {
    detail::call_arrays("signed_plan_area", quorvel_signed_plan_area,
        detail::given("x", x, vertices),
        detail::given("y", y, vertices),
        detail::given("vertices", vertices),
        detail::returned("result", result));
}

/// Area of a plane polygon in space.
///
/// @note It is the sum of the triangles over the edges with the mean of the vertices as apex, all
/// counted as positive: too large for a polygon that is not seen whole from there. Of the surfaces
/// of real buildings 3.3 % come out too large by more than 0.1 %, half of these by more than 7 %.
///
/// @param x  m: x of the vertices [vertices]
/// @param y  m: y of the vertices [vertices]
/// @param z  m: z of the vertices [vertices]
/// @return m²: area
/// @throws std::out_of_range unless x and y and z have from 3 (vertices: number of vertices)
/// Source: Elementary geometry.
/// (GEAPO3 of quorvel.h)
inline float area_in_space(std::span<const float> x, std::span<const float> y,
        std::span<const float> z) {
    const std::int32_t vertices = detail::counted("area_in_space", "vertices", {3, 2147483647},
        {{"x", x.size()}, {"y", y.size()}, {"z", z.size()}});
    return GEAPO3(detail::numbers(x), detail::numbers(y), detail::numbers(z), &vertices);
}

/// area_in_space for whole arrays.
/// Of a row of x and y and z, vertices tells how many count.
inline void area_in_space(Table<const float> x, Table<const float> y, Table<const float> z,
        const Input<std::int32_t>& vertices, std::span<float> result) {
    detail::call_arrays("area_in_space", quorvel_area_in_space,
        detail::given("x", x, vertices),
        detail::given("y", y, vertices),
        detail::given("z", z, vertices),
        detail::given("vertices", vertices),
        detail::returned("result", result));
}

/// What polygon_orientation returns.
struct PolygonOrientation {
    /// m²: area, positive when the vertices run as the corner at the first one turns
    float area = detail::none<float>;
    /// °: angle between the normal and the vertical
    float tilt = detail::none<float>;
    /// °: azimuth opposite to the normal
    float back_azimuth = detail::none<float>;
};

/// Arrays for what polygon_orientation returns.
struct PolygonOrientationArrays {
    std::span<float> area;
    std::span<float> tilt;
    std::span<float> back_azimuth;
};

/// Area, tilt and orientation of a plane polygon in space.
///
/// @note The normal points to where the corner at the first vertex is seen to turn anticlockwise:
/// its opposite is the outward normal of a convex polygon that runs clockwise seen from outside.
///
/// @note Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings
/// 141 begin within a straight side, and for 7 of these rounding alone decides the normal, so that
/// area, tilt and orientation are wrong: let the first vertex be a true corner.
///
/// @note The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the
/// azimuth opposite to its first side if the normal points up, and that of the side if it points
/// down.
///
/// @note Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and
/// what faces north may get 0.00003.
///
/// @param polygon  m: vertices [3, vertices]
/// @throws std::out_of_range unless polygon has from 3 (vertices: number of vertices)
/// Source: Shoelace formula in the plane of the polygon.
/// (GEASO of quorvel.h)
inline PolygonOrientation polygon_orientation(std::span<const std::array<float, 3>> polygon) {
    const std::int32_t vertices = detail::counted("polygon_orientation", "vertices", {3,
        2147483647}, {{"polygon", polygon.size()}});
    PolygonOrientation out;
    GEASO(&vertices, detail::numbers(polygon), &out.area, &out.tilt, &out.back_azimuth);
    return out;
}

/// polygon_orientation for whole arrays.
/// Of a row of polygon, vertices tells how many count.
inline void polygon_orientation(const Input<std::int32_t>& vertices,
        Table<const std::array<float, 3>> polygon, const PolygonOrientationArrays& out) {
    detail::call_arrays("polygon_orientation", quorvel_polygon_orientation,
        detail::given("vertices", vertices),
        detail::given("polygon", polygon, vertices),
        detail::returned("area", out.area),
        detail::returned("tilt", out.tilt),
        detail::returned("back_azimuth", out.back_azimuth));
}

/// Projection of a point along a direction, forwards or backwards, onto a plane.
///
/// Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
/// plane_normal)
///
/// @note A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or
/// less, or not a number) gives 1e20 in all coordinates.
///
/// @param plane_point  m: a point of the plane [3]
/// @param plane_normal  normal of the plane, of any length [3]
/// @param point  m: the point [3]
/// @param direction  direction, of any length [3]
/// @return m: projected point [3]; 1e20 for none
/// Source: Elementary analytic geometry.
/// (GEPROJ of quorvel.h)
inline std::array<float, 3> projection(const std::array<float, 3>& plane_point,
        const std::array<float, 3>& plane_normal, const std::array<float, 3>& point,
        const std::array<float, 3>& direction) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GEPROJ(detail::numbers(plane_point), detail::numbers(plane_normal), detail::numbers(point),
        detail::numbers(direction), detail::numbers(out));
    return out;
}

/// projection for whole arrays.
inline void projection(const Input<std::array<float, 3>>& plane_point,
        const Input<std::array<float, 3>>& plane_normal, const Input<std::array<float, 3>>& point,
        const Input<std::array<float, 3>>& direction,
        std::span<std::array<float, 3>> projected_point) {
    detail::call_arrays("projection", quorvel_projection,
        detail::given("plane_point", plane_point),
        detail::given("plane_normal", plane_normal),
        detail::given("point", point),
        detail::given("direction", direction),
        detail::returned("projected_point", projected_point));
}

/// Projection of a point along a direction, forwards only, onto a plane.
///
/// Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
/// plane_normal)
///
/// @note A direction parallel to the plane or away from it, and a point that is in the plane
/// already, give 1e20 in all coordinates.
///
/// @note Forwards means that the way from the point to its projection, scaled to length 1, differs
/// from the direction, scaled so, by 1e-6 at most in each component. Coordinates that are large
/// beside the way to the plane can spoil that by rounding: at site coordinates of real buildings,
/// about 7 % of the points whose projection lies ahead are not found.
///
/// @param plane_point  m: a point of the plane [3]
/// @param plane_normal  normal of the plane, of any length [3]
/// @param point  m: the point [3]
/// @param direction  direction, of any length [3]
/// @return m: projected point [3]; 1e20 for none
/// Source: As GEPROJ.
/// (GEPROJ2 of quorvel.h)
inline std::array<float, 3> forward_projection(const std::array<float, 3>& plane_point,
        const std::array<float, 3>& plane_normal, const std::array<float, 3>& point,
        const std::array<float, 3>& direction) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GEPROJ2(detail::numbers(plane_point), detail::numbers(plane_normal), detail::numbers(point),
        detail::numbers(direction), detail::numbers(out));
    return out;
}

/// forward_projection for whole arrays.
inline void forward_projection(const Input<std::array<float, 3>>& plane_point,
        const Input<std::array<float, 3>>& plane_normal, const Input<std::array<float, 3>>& point,
        const Input<std::array<float, 3>>& direction,
        std::span<std::array<float, 3>> projected_point) {
    detail::call_arrays("forward_projection", quorvel_forward_projection,
        detail::given("plane_point", plane_point),
        detail::given("plane_normal", plane_normal),
        detail::given("point", point),
        detail::given("direction", direction),
        detail::returned("projected_point", projected_point));
}

/// Projection of a point along a direction onto a plane, or the point itself where the plane does
/// not lie ahead.
///
/// Formula: point + t direction, t = (plane_point - point) . plane_normal / (direction .
/// plane_normal)
///
/// @note A direction whose product with the normal is exactly 0 gives what the division by zero
/// makes of it: infinities or not a number. There is no other limit for parallel directions, so
/// that the length of the normal does not matter.
///
/// @note Ahead is as in GEPROJ2, and so about 7 % of the points at site coordinates of real
/// buildings are returned as they are, although the plane lies ahead.
///
/// @param plane_point  m: a point of the plane [3]
/// @param plane_normal  normal of the plane, of any length [3]
/// @param point  m: the point [3]
/// @param direction  direction, of any length [3]
/// @return m: projected point, or the point itself [3]
/// Source: As GEPROJ.
/// (GEPROJ3 of quorvel.h)
inline std::array<float, 3> forward_projection_or_start(const std::array<float, 3>& plane_point,
        const std::array<float, 3>& plane_normal, const std::array<float, 3>& point,
        const std::array<float, 3>& direction) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GEPROJ3(detail::numbers(plane_point), detail::numbers(plane_normal), detail::numbers(point),
        detail::numbers(direction), detail::numbers(out));
    return out;
}

/// forward_projection_or_start for whole arrays.
inline void forward_projection_or_start(const Input<std::array<float, 3>>& plane_point,
        const Input<std::array<float, 3>>& plane_normal, const Input<std::array<float, 3>>& point,
        const Input<std::array<float, 3>>& direction,
        std::span<std::array<float, 3>> projected_point) {
    detail::call_arrays("forward_projection_or_start", quorvel_forward_projection_or_start,
        detail::given("plane_point", plane_point),
        detail::given("plane_normal", plane_normal),
        detail::given("point", point),
        detail::given("direction", direction),
        detail::returned("projected_point", projected_point));
}

/// Dot product of two vectors.
///
/// Formula: a1 b1 + a2 b2 + a3 b3
///
/// @param vector_a  m: vector [3]
/// @param vector_b  m: vector [3]
/// @return m²: a . b
/// Source: Definition.
/// (GEDOTP of quorvel.h)
inline float dot_product(const std::array<float, 3>& vector_a,
        const std::array<float, 3>& vector_b) {
    return GEDOTP(detail::numbers(vector_a), detail::numbers(vector_b));
}

/// dot_product for whole arrays.
inline void dot_product(const Input<std::array<float, 3>>& vector_a,
        const Input<std::array<float, 3>>& vector_b, std::span<float> result) {
    detail::call_arrays("dot_product", quorvel_dot_product,
        detail::given("vector_a", vector_a),
        detail::given("vector_b", vector_b),
        detail::returned("result", result));
}

/// Dot product of two vectors in double precision.
///
/// Formula: a1 b1 + a2 b2 + a3 b3
///
/// @param vector_a  m: vector [3]
/// @param vector_b  m: vector [3]
/// @return m²: a . b
/// Source: Definition.
/// (GEDTDP of quorvel.h)
inline double dot_product_in_double(const std::array<double, 3>& vector_a,
        const std::array<double, 3>& vector_b) {
    return GEDTDP(detail::numbers(vector_a), detail::numbers(vector_b));
}

/// dot_product_in_double for whole arrays.
inline void dot_product_in_double(const Input<std::array<double, 3>>& vector_a,
        const Input<std::array<double, 3>>& vector_b, std::span<double> result) {
    detail::call_arrays("dot_product_in_double", quorvel_dot_product_in_double,
        detail::given("vector_a", vector_a),
        detail::given("vector_b", vector_b),
        detail::returned("result", result));
}

/// Cross product of two vectors.
///
/// Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
///
/// @param vector_a  m: vector [3]
/// @param vector_b  m: vector [3]
/// @return m²: a x b [3]
/// Source: Definition.
/// (GEXPRO of quorvel.h)
inline std::array<float, 3> cross_product(const std::array<float, 3>& vector_a,
        const std::array<float, 3>& vector_b) {
    std::array<float, 3> out = detail::none<std::array<float, 3>>;
    GEXPRO(detail::numbers(vector_a), detail::numbers(vector_b), detail::numbers(out));
    return out;
}

/// cross_product for whole arrays.
inline void cross_product(const Input<std::array<float, 3>>& vector_a,
        const Input<std::array<float, 3>>& vector_b,
        std::span<std::array<float, 3>> cross_product) {
    detail::call_arrays("cross_product", quorvel_cross_product,
        detail::given("vector_a", vector_a),
        detail::given("vector_b", vector_b),
        detail::returned("cross_product", cross_product));
}

/// Cross product of two vectors in double precision.
///
/// Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
///
/// @param vector_a  m: vector [3]
/// @param vector_b  m: vector [3]
/// @return m²: a x b [3]
/// Source: Definition.
/// (GEXPDP of quorvel.h)
inline std::array<double, 3> cross_product_in_double(const std::array<double, 3>& vector_a,
        const std::array<double, 3>& vector_b) {
    std::array<double, 3> out = detail::none<std::array<double, 3>>;
    GEXPDP(detail::numbers(vector_a), detail::numbers(vector_b), detail::numbers(out));
    return out;
}

/// cross_product_in_double for whole arrays.
inline void cross_product_in_double(const Input<std::array<double, 3>>& vector_a,
        const Input<std::array<double, 3>>& vector_b,
        std::span<std::array<double, 3>> cross_product) {
    detail::call_arrays("cross_product_in_double", quorvel_cross_product_in_double,
        detail::given("vector_a", vector_a),
        detail::given("vector_b", vector_b),
        detail::returned("cross_product", cross_product));
}

/// Length of a vector.
///
/// Formula: sqrt(v1^2 + v2^2 + v3^2)
///
/// @note Squares beyond the range of a float make the length infinite or 0: from about 1e19, below
/// about 1e-23.
///
/// @param vector  m: vector [3]
/// @return m: length
/// Source: Definition.
/// (GEVMOD of quorvel.h)
inline float length(const std::array<float, 3>& vector) {
    return GEVMOD(detail::numbers(vector));
}

/// length for whole arrays.
inline void length(const Input<std::array<float, 3>>& vector, std::span<float> result) {
    detail::call_arrays("length", quorvel_length,
        detail::given("vector", vector),
        detail::returned("result", result));
}

/// Length of a vector in double precision.
///
/// Formula: sqrt(v1^2 + v2^2 + v3^2)
///
/// @param vector  m: vector [3]
/// @return m: length
/// Source: Definition.
/// (GEVMDP of quorvel.h)
inline double length_in_double(const std::array<double, 3>& vector) {
    return GEVMDP(detail::numbers(vector));
}

/// length_in_double for whole arrays.
inline void length_in_double(const Input<std::array<double, 3>>& vector, std::span<double> result) {
    detail::call_arrays("length_in_double", quorvel_length_in_double,
        detail::given("vector", vector),
        detail::returned("result", result));
}

}  // namespace v0
}  // namespace quorvel::geometry
