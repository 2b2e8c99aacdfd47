// Produced from the catalogue of routines (catalogue/); do not edit.

//! Geometry.

use crate::{check, unchecked, Error, Input};

/// What [`crate::unchecked::geometry::clip`] returns.
#[derive(Clone, Debug, PartialEq)]
pub struct Clip {
    /// X of the pool of points; new points are appended (m)
    pub x: Vec<f64>,
    /// Y of the pool of points (m)
    pub y: Vec<f64>,
    /// Points in use in the pool.
    pub used_points: i32,
    /// Pieces of A - B; 0 with a status other than 0.
    pub difference_pieces: Vec<i32>,
    /// Pieces of the overlap; 0 with a status other than 0.
    pub overlap_pieces: Vec<i32>,
    /// 0 success, else what went wrong.
    pub status: i32,
}

/// What [`overlap`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct Overlap {
    /// X of the vertices of the pieces, a column each; 0 beyond them (m)
    pub piece_x: [[f32; 25]; 5],
    /// Y of the vertices of the pieces (m)
    pub piece_y: [[f32; 25]; 5],
    /// Number of vertices of each piece, 0 beyond the last.
    pub piece_vertices: [i32; 5],
    /// Area of the overlap (m²)
    pub area: f32,
}

/// What [`overlap_alias`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct OverlapAlias {
    /// X of the vertices of the pieces, a column each; 0 beyond them (m)
    pub piece_x: [[f32; 25]; 5],
    /// Y of the vertices of the pieces (m)
    pub piece_y: [[f32; 25]; 5],
    /// Number of vertices of each piece, 0 beyond the last.
    pub piece_vertices: [i32; 5],
    /// Area of the overlap (m²)
    pub area: f32,
}

/// What [`count_enclosed`] returns.
#[derive(Clone, Debug, PartialEq)]
pub struct CountEnclosed {
    /// 1 for points that are enclosed; as given for points that are not enclosed.
    pub enclosed: Vec<i32>,
    /// Number of enclosed points.
    pub enclosed_points: i32,
}

/// What [`boundary_crossing`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct BoundaryCrossing {
    /// Crossing point, or what the notes say (m); 1e20 where there is none.
    pub crossing_point: [f32; 2],
    /// Number, counted from 1, of the vertex that ends the crossed edge, or what the notes say.
    pub crossing_code: i32,
}

/// What [`parallel_sides`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct ParallelSides {
    /// Whether there are any.
    pub truth: bool,
    /// Side of one triangle: 1 between its first two corners, 2 between its last two; 3 none.
    pub side_1: i32,
    /// Side of the other, likewise.
    pub side_2: i32,
}

/// What [`facing`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct Facing {
    /// Azimuth of the outward normal; given, what a level triangle gets, in radians (°)
    pub azimuth: f64,
    /// Tilt: 0 horizontal facing up, 90 vertical, 180 facing down (°)
    pub tilt: f64,
}

/// What [`local_coordinates`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct LocalCoordinates {
    /// The first in local coordinates (m)
    pub local_1: [[f64; 3]; 4],
    /// The second in local coordinates (m)
    pub local_2: [[f64; 3]; 4],
}

/// What [`surface_axes`] returns.
#[repr(C)]
#[derive(Clone, Copy, Debug, PartialEq, Default)]
pub struct SurfaceAxes {
    /// Matrix; its columns are the local axes in global coordinates.
    pub rotation_matrix: [[f32; 3]; 3],
    /// Inverse of it.
    pub inverse_matrix: [[f32; 3]; 3],
}

/// What [`polygon_orientation`] returns.
#[derive(Clone, Copy, Debug, PartialEq)]
pub struct PolygonOrientation {
    /// Area, positive when the vertices run as the corner at the first one turns (m²)
    pub area: f32,
    /// Angle between the normal and the vertical (°)
    pub tilt: f32,
    /// Azimuth opposite to the normal (°)
    pub back_azimuth: f32,
}

/// Pieces and area of the overlap of two simple polygons in plan.
///
/// # Arguments
/// * `x_1`: x of polygon 1 (m)
/// * `y_1`: y of polygon 1 (m)
/// * `x_2`: x of polygon 2 (m)
/// * `y_2`: y of polygon 2 (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The overlap of [`unchecked::geometry::clip`] with polygon 2 as A and polygon 1 as B, and with its
///   accuracy. The pieces run in the sense of polygon 2.
/// * A coordinate nearer to 0 than 1e-4 is taken as 0.
/// * The outputs are all 0 where the polygons do not overlap, and where [`unchecked::geometry::clip`] fails: a
///   polygon that crosses itself, more than 10 crossings, more than 50 vertices and crossings in all. Likewise
///   for more than 5 pieces, or more than 24 vertices in one. Of pairs of real polygons 0.75 % exceed one of
///   these capacities.
/// * The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or more together:
///   what is left of polygon 2 around it does not fit. Where polygon 2 lies in polygon 1 they may have 50, as
///   anywhere else.
///
/// # Source
/// As [`unchecked::geometry::clip`].
///
/// `GEOVER` in quorvel.h.
pub fn overlap(x_1: &[f32], y_1: &[f32], x_2: &[f32], y_2: &[f32]) -> Result<Overlap, Error> {
    check::length("geometry::overlap", "x_1", x_1.len(), 3..=i32::MAX)?;
    check::length("geometry::overlap", "x_2", x_2.len(), 3..=i32::MAX)?;
    check::range("geometry::overlap", "x_1", x_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap", "y_1", y_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap", "x_2", x_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap", "y_2", y_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::overlap(x_1, y_1, x_2, y_2)
}

/// The same as [`overlap`].
///
/// # Arguments
/// * `x_1`: x of polygon 1 (m)
/// * `y_1`: y of polygon 1 (m)
/// * `x_2`: x of polygon 2 (m)
/// * `y_2`: y of polygon 2 (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * As [`overlap`], in all.
///
/// # Source
/// As [`unchecked::geometry::clip`].
///
/// `GEHOLE` in quorvel.h.
pub fn overlap_alias(x_1: &[f32], y_1: &[f32], x_2: &[f32], y_2: &[f32]) -> Result<OverlapAlias, Error> {
    check::length("geometry::overlap_alias", "x_1", x_1.len(), 3..=i32::MAX)?;
    check::length("geometry::overlap_alias", "x_2", x_2.len(), 3..=i32::MAX)?;
    check::range("geometry::overlap_alias", "x_1", x_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap_alias", "y_1", y_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap_alias", "x_2", x_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::overlap_alias", "y_2", y_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::overlap_alias(x_1, y_1, x_2, y_2)
}

/// Whether points in plan lie on one straight line.
///
/// # Arguments
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
///
/// # Returns
/// 1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that of the
/// first of all.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The points are held against the line through the first two that differ by 1e-5 or more in both
///   coordinates. A point is off it when the ratios of its offsets to theirs, in x and in y, differ by more
///   than 1e-5: what is tolerated grows with the distance between the two.
/// * Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number counts as
///   equal to anything.
/// * Coordinates near one another within 1e-5 can leave no two points to draw the line through; then the points
///   are not on one line, and finding that out takes n²/2 comparisons.
///
/// # Source
/// Intercept theorem.
///
/// `IGELIN` in quorvel.h.
pub fn collinearity(x: &[f32], y: &[f32]) -> Result<i32, Error> {
    check::length("geometry::collinearity", "x", x.len(), 1..=i32::MAX)?;
    check::range("geometry::collinearity", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::collinearity", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::collinearity(x, y)
}

/// How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
///
/// # Arguments
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
/// * `point_x`: x of the points (m)
/// * `point_y`: y of the points (m)
/// * `enclosed`: 1 for points that are enclosed: 0 not enclosed, 1 enclosed
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A point is enclosed when it is left of no edge, as [`side_of_line`] sees it, or is at a vertex (to less
///   than 1e-5 in each coordinate) that comes before any such edge.
/// * Points that are not numbers are left of no edge, and so enclosed.
///
/// # Source
/// A convex polygon is the intersection of half-planes.
///
/// `GECLOS` in quorvel.h.
pub fn count_enclosed(
    x: &[f32], y: &[f32], point_x: &[f32], point_y: &[f32], enclosed: &[i32],
) -> Result<CountEnclosed, Error> {
    check::length("geometry::count_enclosed", "x", x.len(), 3..=i32::MAX)?;
    check::length("geometry::count_enclosed", "point_x", point_x.len(), 1..=i32::MAX)?;
    check::range("geometry::count_enclosed", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::count_enclosed", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::count_enclosed", "point_x", point_x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::count_enclosed", "point_y", point_y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::count_enclosed", "enclosed", enclosed, 0..=1, "")?;
    unchecked::geometry::count_enclosed(x, y, point_x, point_y, enclosed)
}

/// Where a segment crosses the boundary of a polygon in plan.
///
/// # Arguments
/// * `segment_start`: start of the segment (m)
/// * `segment_end`: end of the segment (m)
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The edges are tried in turn, from that between the first two vertices on, as [`crossing_point`] does; the
///   first one that is crossed away from the start ends the search. A crossing beyond 100000 is none.
/// * No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a minus, and the
///   point is the last outcome of the search, the start or 1e20.
/// * Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of them, and
///   the point that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more, small codes
///   of this kind cannot be told from edges by the code alone.)
/// * Otherwise the code is 0, and the point 1e20.
///
/// # Source
/// As [`crossing_point`].
///
/// `GESIDE` in quorvel.h.
pub fn boundary_crossing(
    segment_start: &[f32; 2], segment_end: &[f32; 2], x: &[f32], y: &[f32],
) -> Result<BoundaryCrossing, Error> {
    check::length("geometry::boundary_crossing", "x", x.len(), 3..=i32::MAX)?;
    check::range(
        "geometry::boundary_crossing", "segment_start", segment_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::boundary_crossing", "segment_end", segment_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::boundary_crossing", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::boundary_crossing", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::boundary_crossing(segment_start, segment_end, x, y)
}

/// Whether a point in the plane of a polygon in space lies inside or on its boundary.
///
/// # Arguments
/// * `point`: point (m)
/// * `polygon`: vertices, the last of which repeats the first (m)
///
/// # Returns
/// 1 inside, 0 outside.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The first edge with whose line the point is in line (twice the area of the triangle between them at most
///   1e-6) decides alone: 1 if the point is in the span of the edge, as [`in_span`] sees it, else 0. So a point
///   may be found outside a polygon that is not convex because it is in line with an edge.
/// * That the point is in the plane is not tested: over the middle of a square it is inside up to half the
///   length of a side.
/// * Not a number gives 0.
///
/// # Source
/// Sum of the angles under which the point sees the edges.
///
/// `GEINSI` in quorvel.h.
pub fn inside(point: &[f32; 3], polygon: &[[f32; 3]]) -> Result<i32, Error> {
    check::length("geometry::inside", "polygon", polygon.len(), 4..=i32::MAX)?;
    check::range("geometry::inside", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::inside", "polygon", polygon, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::inside(point, polygon)
}

/// Whether the planes of two triangles are parallel.
///
/// # Arguments
/// * `triangle_1`: corners of one triangle (m)
/// * `triangle_2`: corners of the other (m)
///
/// # Returns
/// Whether they are parallel.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * So they are when the cross product of their normals, each as long as twice the triangle's area, is shorter
///   than 0.001: small triangles are parallel to any.
///
/// # Source
/// Definition.
///
/// `GEPLEL` in quorvel.h.
pub fn parallel_planes(triangle_1: &[[f64; 3]; 3], triangle_2: &[[f64; 3]; 3]) -> Result<bool, Error> {
    check::range(
        "geometry::parallel_planes", "triangle_1", triangle_1, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    check::range(
        "geometry::parallel_planes", "triangle_2", triangle_2, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    Ok(unchecked::geometry::parallel_planes(triangle_1, triangle_2))
}

/// Whether two triangles have parallel sides, and which.
///
/// # Arguments
/// * `triangle_1`: corners of one triangle (m)
/// * `triangle_2`: corners of the other (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Sides are parallel when their cross product is shorter than 0.001, so that short sides are parallel to
///   any.
/// * The sides between last and first corner are not tested.
///
/// # Source
/// Definition.
///
/// `GEPSID` in quorvel.h.
pub fn parallel_sides(
    triangle_1: &[[f64; 3]; 3], triangle_2: &[[f64; 3]; 3],
) -> Result<ParallelSides, Error> {
    check::range("geometry::parallel_sides", "triangle_1", triangle_1, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
    check::range("geometry::parallel_sides", "triangle_2", triangle_2, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
    Ok(unchecked::geometry::parallel_sides(triangle_1, triangle_2))
}

/// Whether a quadrilateral is rectangular.
///
/// # Arguments
/// * `quadrilateral`: corners in turn (m)
///
/// # Returns
/// Whether it is rectangular.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in magnitude.
///
/// # Source
/// Definition.
///
/// `GERECT` in quorvel.h.
pub fn rectangular(quadrilateral: &[[f64; 3]; 4]) -> Result<bool, Error> {
    check::range(
        "geometry::rectangular", "quadrilateral", quadrilateral, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    Ok(unchecked::geometry::rectangular(quadrilateral))
}

/// Azimuth and tilt of the plane of a triangle.
///
/// # Arguments
/// * `triangle`: corners, clockwise seen from outside (m)
/// * `azimuth`: azimuth of the outward normal; given, what a level triangle gets, in radians (°); valid 0 to
///   6.2832
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A level triangle, the level part of whose normal (as long as twice its area) is shorter than 1e-10, gets
///   the given azimuth times 180/pi.
/// * Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
/// * A triangle without area gives a tilt that is not a number.
///
/// # Source
/// Definition.
///
/// `GETILT` in quorvel.h.
pub fn facing(triangle: &[[f64; 3]; 3], azimuth: f64) -> Result<Facing, Error> {
    check::range("geometry::facing", "triangle", triangle, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
    check::range("geometry::facing", "azimuth", &azimuth, 0.0..=6.2832, "°")?;
    Ok(unchecked::geometry::facing(triangle, azimuth))
}

/// Two quadrilaterals in local coordinates of the first.
///
/// # Arguments
/// * `quadrilateral_1`: corners of the first (m)
/// * `quadrilateral_2`: corners of the second (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The origin is the first corner of the first; from there x points to the second corner, y to the fourth, z
///   along the cross product of the ways to the second and the third.
/// * Coordinates are dot products with the axes, so that lengths are kept only where that has a right angle at
///   its first corner.
/// * Coincident corners give what is not a number.
///
/// # Source
/// Definition.
///
/// `GELCAL` in quorvel.h.
pub fn local_coordinates(
    quadrilateral_1: &[[f64; 3]; 4], quadrilateral_2: &[[f64; 3]; 4],
) -> Result<LocalCoordinates, Error> {
    check::range(
        "geometry::local_coordinates", "quadrilateral_1", quadrilateral_1, f64::NEG_INFINITY..=f64::INFINITY,
        "m",
    )?;
    check::range(
        "geometry::local_coordinates", "quadrilateral_2", quadrilateral_2, f64::NEG_INFINITY..=f64::INFINITY,
        "m",
    )?;
    Ok(unchecked::geometry::local_coordinates(quadrilateral_1, quadrilateral_2))
}

/// Components of each of four points along three axes.
///
/// # Arguments
/// * `corners`: points (m)
/// * `x_axis`: x axis
/// * `y_axis`: y axis
/// * `z_axis`: z axis
///
/// # Returns
/// Points (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Source
/// Definition.
///
/// `GETRNS` in quorvel.h.
pub fn to_local(
    corners: &[[f64; 3]; 4], x_axis: &[f64; 3], y_axis: &[f64; 3], z_axis: &[f64; 3],
) -> Result<[[f64; 3]; 4], Error> {
    check::range("geometry::to_local", "corners", corners, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
    check::range("geometry::to_local", "x_axis", x_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
    check::range("geometry::to_local", "y_axis", y_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
    check::range("geometry::to_local", "z_axis", z_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
    Ok(unchecked::geometry::to_local(corners, x_axis, y_axis, z_axis))
}

/// Where two infinite lines in plan meet.
///
/// # Arguments
/// * `line_1_start`: point of line 1 (m)
/// * `line_1_end`: another point of line 1 (m)
/// * `line_2_start`: point of line 2 (m)
/// * `line_2_end`: another point of line 2 (m)
///
/// # Returns
/// Meeting point (m); 1e20 where there is none.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the angle
///   between them is below 1e-10.
/// * Any of the points may be vectors; their z is not read.
///
/// # Source
/// Elementary analytic geometry.
///
/// `GEMEET` in quorvel.h.
pub fn meeting_point(
    line_1_start: &[f32; 2], line_1_end: &[f32; 2], line_2_start: &[f32; 2], line_2_end: &[f32; 2],
) -> Result<[f32; 2], Error> {
    check::range(
        "geometry::meeting_point", "line_1_start", line_1_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::meeting_point", "line_1_end", line_1_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range(
        "geometry::meeting_point", "line_2_start", line_2_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::meeting_point", "line_2_end", line_2_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::meeting_point(line_1_start, line_1_end, line_2_start, line_2_end))
}

/// Where two segments in plan cross or touch.
///
/// # Arguments
/// * `segment_1_start`: start of segment 1 (m)
/// * `segment_1_end`: end of segment 1 (m)
/// * `segment_2_start`: start of segment 2 (m)
/// * `segment_2_end`: end of segment 2 (m)
///
/// # Returns
/// Crossing point (m); 1e20 where there is none.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both coordinates. Not
///   a number counts as not meeting.
/// * A segment reaches almost 0.0001 beyond its ends in x and in y.
///
/// # Source
/// As [`meeting_point`].
///
/// `GECROS` in quorvel.h.
pub fn crossing_point(
    segment_1_start: &[f32; 2], segment_1_end: &[f32; 2], segment_2_start: &[f32; 2],
    segment_2_end: &[f32; 2],
) -> Result<[f32; 2], Error> {
    check::range(
        "geometry::crossing_point", "segment_1_start", segment_1_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::crossing_point", "segment_1_end", segment_1_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::crossing_point", "segment_2_start", segment_2_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::crossing_point", "segment_2_end", segment_2_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    Ok(unchecked::geometry::crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end))
}

/// Whether a point of the line AB lies between A and B.
///
/// # Arguments
/// * `first_end`: one end (m)
/// * `second_end`: other end (m)
/// * `point`: point on the line AB (m)
///
/// # Returns
/// 1 between them or at an end, else 0.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * That the point is on the line is not tested: the answer is whether it is in the box of which A and B are
///   corners.
/// * Not a number in y or z of the point does not exclude it.
///
/// # Source
/// Definition.
///
/// `GEINLN` in quorvel.h.
pub fn in_span(first_end: &[f32; 3], second_end: &[f32; 3], point: &[f32; 3]) -> Result<f32, Error> {
    check::range("geometry::in_span", "first_end", first_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::in_span", "second_end", second_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::in_span", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::in_span(first_end, second_end, point))
}

/// Whether a point lies on B's side of A and nearer to A than B does.
///
/// # Arguments
/// * `first_end`: one end (m)
/// * `second_end`: other end (m)
/// * `point`: point (m)
///
/// # Returns
/// 1 if so, else 0.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * A itself counts, B does not; so nothing does where the two coincide.
/// * Not a number anywhere gives 1.
///
/// # Source
/// Definition.
///
/// `GEINLN2` in quorvel.h.
pub fn ahead_and_nearer(first_end: &[f32; 3], second_end: &[f32; 3], point: &[f32; 3]) -> Result<f32, Error> {
    check::range("geometry::ahead_and_nearer", "first_end", first_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range(
        "geometry::ahead_and_nearer", "second_end", second_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::ahead_and_nearer", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::ahead_and_nearer(first_end, second_end, point))
}

/// Whether two points in plan coincide.
///
/// # Arguments
/// * `x_1`: x of one point (m)
/// * `y_1`: y of one point (m)
/// * `x_2`: x of the other (m)
/// * `y_2`: y of the other (m)
///
/// # Returns
/// Whether both coordinates differ by less than 1e-5.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Source
/// Definition.
///
/// `GECOIN` in quorvel.h.
pub fn coincide(x_1: f32, y_1: f32, x_2: f32, y_2: f32) -> Result<bool, Error> {
    check::range("geometry::coincide", "x_1", &x_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::coincide", "y_1", &y_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::coincide", "x_2", &x_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::coincide", "y_2", &y_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::coincide(x_1, y_1, x_2, y_2))
}

/// Side of a directed line in plan on which a point lies.
///
/// # Arguments
/// * `line_start`: start of the line (m)
/// * `line_end`: point towards which it runs (m)
/// * `point`: point (m)
///
/// # Returns
/// 1 right of the line, -1 left of it, 0 nearer to it than 1e-5.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Where the two points of the line are the same the line runs north.
/// * Not a number gives 0.
///
/// # Source
/// Distance of a point from a line by its bearing.
///
/// `IGEPNT` in quorvel.h.
pub fn side_of_line(line_start: &[f32; 2], line_end: &[f32; 2], point: &[f32; 2]) -> Result<i32, Error> {
    check::range("geometry::side_of_line", "line_start", line_start, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::side_of_line", "line_end", line_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::side_of_line", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::side_of_line(line_start, line_end, point))
}

/// Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle of an
/// azimuth.
///
/// # Arguments
/// * `angle`: angle from east, anticlockwise, or azimuth (°); valid 0 to 360
///
/// # Returns
/// Azimuth of the opposite direction, or angle of it (°)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give negative
///   results.
/// * Magnitudes from 1000 on are no angles and are returned as they are.
///
/// # Source
/// Definition.
///
/// `BORI` in quorvel.h.
pub fn back_azimuth(angle: f32) -> Result<f32, Error> {
    check::range("geometry::back_azimuth", "angle", &angle, 0.0..=360.0, "°")?;
    Ok(unchecked::geometry::back_azimuth(angle))
}

/// Unit vector of a direction, such as that to the sun.
///
/// # Arguments
/// * `solar_altitude`: altitude (rad); valid -1.5708 to 1.5708
/// * `solar_azimuth`: azimuth (rad); valid 0 to 6.2832
///
/// # Returns
/// Direction.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (sin(`solar_azimuth`) cos(`solar_altitude`), cos(`solar_azimuth`) cos(`solar_altitude`),
///   sin(`solar_altitude`))
///
/// # Source
/// Spherical to rectangular coordinates.
///
/// `GESUNV` in quorvel.h.
pub fn direction_to(solar_altitude: f32, solar_azimuth: f32) -> Result<[f32; 3], Error> {
    check::range("geometry::direction_to", "solar_altitude", &solar_altitude, -1.5708..=1.5708, "rad")?;
    check::range("geometry::direction_to", "solar_azimuth", &solar_azimuth, 0.0..=6.2832, "rad")?;
    Ok(unchecked::geometry::direction_to(solar_altitude, solar_azimuth))
}

/// Rotation matrix of a surface, from local to global coordinates, and its inverse.
///
/// # Arguments
/// * `surface_azimuth`: azimuth of the surface's outward normal (rad); valid 0 to 6.2832
/// * `tilt`: tilt: 0 horizontal facing up, pi/2 vertical (rad); valid 0 to 3.1416
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b), cos(a)
///   sin(b), cos(b)); a = `surface_azimuth`, b = tilt
/// * Local x is level and points to the right seen from outside, y points up the slope, z outwards; the axes
///   are right-handed.
/// * Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with full
///   pivoting, is the transpose to rounding.
///
/// # Source
/// Rotation matrices; Gauss-Jordan elimination.
///
/// `GERSET` in quorvel.h.
pub fn surface_axes(surface_azimuth: f32, tilt: f32) -> Result<SurfaceAxes, Error> {
    check::range("geometry::surface_axes", "surface_azimuth", &surface_azimuth, 0.0..=6.2832, "rad")?;
    check::range("geometry::surface_axes", "tilt", &tilt, 0.0..=3.1416, "rad")?;
    Ok(unchecked::geometry::surface_axes(surface_azimuth, tilt))
}

/// Local to global coordinates: the rotation matrix times the vector.
///
/// # Arguments
/// * `local_vector`: vector in local coordinates (m)
/// * `rotation_matrix`: rotation matrix; valid -1 to 1
///
/// # Returns
/// Vector in global coordinates (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Source
/// Definition.
///
/// `GERAXI` in quorvel.h.
pub fn local_to_global(local_vector: &[f32; 3], rotation_matrix: &[[f32; 3]; 3]) -> Result<[f32; 3], Error> {
    check::range(
        "geometry::local_to_global", "local_vector", local_vector, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::local_to_global", "rotation_matrix", rotation_matrix, -1.0..=1.0, "")?;
    Ok(unchecked::geometry::local_to_global(local_vector, rotation_matrix))
}

/// Global to local coordinates: the transpose of the rotation matrix times the vector.
///
/// # Arguments
/// * `global_vector`: vector in global coordinates (m)
/// * `rotation_matrix`: rotation matrix; valid -1 to 1
///
/// # Returns
/// Vector in local coordinates (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Source
/// Definition.
///
/// `GERAX2` in quorvel.h.
pub fn global_to_local(global_vector: &[f32; 3], rotation_matrix: &[[f32; 3]; 3]) -> Result<[f32; 3], Error> {
    check::range(
        "geometry::global_to_local", "global_vector", global_vector, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range("geometry::global_to_local", "rotation_matrix", rotation_matrix, -1.0..=1.0, "")?;
    Ok(unchecked::geometry::global_to_local(global_vector, rotation_matrix))
}

/// Area of a polygon in plan.
///
/// # Arguments
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
///
/// # Returns
/// Area (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
/// * A polygon far from the origin beside its size loses digits.
///
/// # Source
/// Shoelace formula.
///
/// `GEAPOL` in quorvel.h.
pub fn plan_area(x: &[f32], y: &[f32]) -> Result<f32, Error> {
    check::length("geometry::plan_area", "x", x.len(), 3..=i32::MAX)?;
    check::range("geometry::plan_area", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::plan_area", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::plan_area(x, y)
}

/// Area of a polygon in plan, positive for clockwise vertices.
///
/// # Arguments
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
///
/// # Returns
/// Area, negative for anticlockwise vertices (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
/// * As [`plan_area`].
///
/// # Source
/// Shoelace formula.
///
/// `GEAPO2` in quorvel.h.
pub fn signed_plan_area(x: &[f32], y: &[f32]) -> Result<f32, Error> {
    check::length("geometry::signed_plan_area", "x", x.len(), 3..=i32::MAX)?;
    check::range("geometry::signed_plan_area", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::signed_plan_area", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::signed_plan_area(x, y)
}

/// Area of a plane polygon in space.
///
/// # Arguments
/// * `x`: x of the vertices (m)
/// * `y`: y of the vertices (m)
/// * `z`: z of the vertices (m)
///
/// # Returns
/// Area (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted as
///   positive: too large for a polygon that is not seen whole from there. Of the surfaces of real buildings 3.3
///   % come out too large by more than 0.1 %, half of these by more than 7 %.
///
/// # Source
/// Elementary geometry.
///
/// `GEAPO3` in quorvel.h.
pub fn area_in_space(x: &[f32], y: &[f32], z: &[f32]) -> Result<f32, Error> {
    check::length("geometry::area_in_space", "x", x.len(), 3..=i32::MAX)?;
    check::range("geometry::area_in_space", "x", x, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::area_in_space", "y", y, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::area_in_space", "z", z, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::area_in_space(x, y, z)
}

/// Area, tilt and orientation of a plane polygon in space.
///
/// # Arguments
/// * `polygon`: vertices (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * The normal points to where the corner at the first vertex is seen to turn anticlockwise: its opposite is
///   the outward normal of a convex polygon that runs clockwise seen from outside.
/// * Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141 begin within
///   a straight side, and for 7 of these rounding alone decides the normal, so that area, tilt and orientation
///   are wrong: let the first vertex be a true corner.
/// * The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth opposite to
///   its first side if the normal points up, and that of the side if it points down.
/// * Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what faces north
///   may get 0.00003.
///
/// # Source
/// Shoelace formula in the plane of the polygon.
///
/// `GEASO` in quorvel.h.
pub fn polygon_orientation(polygon: &[[f32; 3]]) -> Result<PolygonOrientation, Error> {
    check::length("geometry::polygon_orientation", "polygon", polygon.len(), 3..=i32::MAX)?;
    check::range("geometry::polygon_orientation", "polygon", polygon, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    unchecked::geometry::polygon_orientation(polygon)
}

/// Projection of a point along a direction, forwards or backwards, onto a plane.
///
/// # Arguments
/// * `plane_point`: a point of the plane (m)
/// * `plane_normal`: normal of the plane, of any length
/// * `point`: the point (m)
/// * `direction`: direction, of any length
///
/// # Returns
/// Projected point (m); 1e20 where there is none.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: point + t direction, t = (`plane_point` - point) . `plane_normal` / (direction . `plane_normal`)
/// * A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less, or not a
///   number) gives 1e20 in all coordinates.
///
/// # Source
/// Elementary analytic geometry.
///
/// `GEPROJ` in quorvel.h.
pub fn projection(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> Result<[f32; 3], Error> {
    check::range("geometry::projection", "plane_point", plane_point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::projection", "plane_normal", plane_normal, f32::NEG_INFINITY..=f32::INFINITY, "")?;
    check::range("geometry::projection", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::projection", "direction", direction, f32::NEG_INFINITY..=f32::INFINITY, "")?;
    Ok(unchecked::geometry::projection(plane_point, plane_normal, point, direction))
}

/// Projection of a point along a direction, forwards only, onto a plane.
///
/// # Arguments
/// * `plane_point`: a point of the plane (m)
/// * `plane_normal`: normal of the plane, of any length
/// * `point`: the point (m)
/// * `direction`: direction, of any length
///
/// # Returns
/// Projected point (m); 1e20 where there is none.
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: point + t direction, t = (`plane_point` - point) . `plane_normal` / (direction . `plane_normal`)
/// * A direction parallel to the plane or away from it, and a point that is in the plane already, give 1e20 in
///   all coordinates.
/// * Forwards means that the way from the point to its projection, scaled to length 1, differs from the
///   direction, scaled so, by 1e-6 at most in each component. Coordinates that are large beside the way to the
///   plane can spoil that by rounding: at site coordinates of real buildings, about 7 % of the points whose
///   projection lies ahead are not found.
///
/// # Source
/// As [`projection`].
///
/// `GEPROJ2` in quorvel.h.
pub fn forward_projection(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> Result<[f32; 3], Error> {
    check::range(
        "geometry::forward_projection", "plane_point", plane_point, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::forward_projection", "plane_normal", plane_normal, f32::NEG_INFINITY..=f32::INFINITY, "",
    )?;
    check::range("geometry::forward_projection", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range(
        "geometry::forward_projection", "direction", direction, f32::NEG_INFINITY..=f32::INFINITY, "",
    )?;
    Ok(unchecked::geometry::forward_projection(plane_point, plane_normal, point, direction))
}

/// Projection of a point along a direction onto a plane, or the point itself where the plane does not lie
/// ahead.
///
/// # Arguments
/// * `plane_point`: a point of the plane (m)
/// * `plane_normal`: normal of the plane, of any length
/// * `point`: the point (m)
/// * `direction`: direction, of any length
///
/// # Returns
/// Projected point, or the point itself (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: point + t direction, t = (`plane_point` - point) . `plane_normal` / (direction . `plane_normal`)
/// * A direction whose product with the normal is exactly 0 gives what the division by zero makes of it:
///   infinities or not a number. There is no other limit for parallel directions, so that the length of the
///   normal does not matter.
/// * Ahead is as in [`forward_projection`], and so about 7 % of the points at site coordinates of real
///   buildings are returned as they are, although the plane lies ahead.
///
/// # Source
/// As [`projection`].
///
/// `GEPROJ3` in quorvel.h.
pub fn forward_projection_or_start(
    plane_point: &[f32; 3], plane_normal: &[f32; 3], point: &[f32; 3], direction: &[f32; 3],
) -> Result<[f32; 3], Error> {
    check::range(
        "geometry::forward_projection_or_start", "plane_point", plane_point, f32::NEG_INFINITY..=f32::INFINITY,
        "m",
    )?;
    check::range(
        "geometry::forward_projection_or_start", "plane_normal", plane_normal,
        f32::NEG_INFINITY..=f32::INFINITY, "",
    )?;
    check::range(
        "geometry::forward_projection_or_start", "point", point, f32::NEG_INFINITY..=f32::INFINITY, "m",
    )?;
    check::range(
        "geometry::forward_projection_or_start", "direction", direction, f32::NEG_INFINITY..=f32::INFINITY, "",
    )?;
    Ok(unchecked::geometry::forward_projection_or_start(plane_point, plane_normal, point, direction))
}

/// Dot product of two vectors.
///
/// # Arguments
/// * `vector_a`: vector (m)
/// * `vector_b`: vector (m)
///
/// # Returns
/// A . b (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: a1 b1 + a2 b2 + a3 b3
///
/// # Source
/// Definition.
///
/// `GEDOTP` in quorvel.h.
pub fn dot_product(vector_a: &[f32; 3], vector_b: &[f32; 3]) -> Result<f32, Error> {
    check::range("geometry::dot_product", "vector_a", vector_a, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::dot_product", "vector_b", vector_b, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::dot_product(vector_a, vector_b))
}

/// Dot product of two vectors in double precision.
///
/// # Arguments
/// * `vector_a`: vector (m)
/// * `vector_b`: vector (m)
///
/// # Returns
/// A . b (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: a1 b1 + a2 b2 + a3 b3
///
/// # Source
/// Definition.
///
/// `GEDTDP` in quorvel.h.
pub fn dot_product_in_double(vector_a: &[f64; 3], vector_b: &[f64; 3]) -> Result<f64, Error> {
    check::range(
        "geometry::dot_product_in_double", "vector_a", vector_a, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    check::range(
        "geometry::dot_product_in_double", "vector_b", vector_b, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    Ok(unchecked::geometry::dot_product_in_double(vector_a, vector_b))
}

/// Cross product of two vectors.
///
/// # Arguments
/// * `vector_a`: vector (m)
/// * `vector_b`: vector (m)
///
/// # Returns
/// A x b (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
///
/// # Source
/// Definition.
///
/// `GEXPRO` in quorvel.h.
pub fn cross_product(vector_a: &[f32; 3], vector_b: &[f32; 3]) -> Result<[f32; 3], Error> {
    check::range("geometry::cross_product", "vector_a", vector_a, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    check::range("geometry::cross_product", "vector_b", vector_b, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::cross_product(vector_a, vector_b))
}

/// Cross product of two vectors in double precision.
///
/// # Arguments
/// * `vector_a`: vector (m)
/// * `vector_b`: vector (m)
///
/// # Returns
/// A x b (m²)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
///
/// # Source
/// Definition.
///
/// `GEXPDP` in quorvel.h.
pub fn cross_product_in_double(vector_a: &[f64; 3], vector_b: &[f64; 3]) -> Result<[f64; 3], Error> {
    check::range(
        "geometry::cross_product_in_double", "vector_a", vector_a, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    check::range(
        "geometry::cross_product_in_double", "vector_b", vector_b, f64::NEG_INFINITY..=f64::INFINITY, "m",
    )?;
    Ok(unchecked::geometry::cross_product_in_double(vector_a, vector_b))
}

/// Length of a vector.
///
/// # Arguments
/// * `vector`: vector (m)
///
/// # Returns
/// Length (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: sqrt(v1^2 + v2^2 + v3^2)
/// * Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about 1e-23.
///
/// # Source
/// Definition.
///
/// `GEVMOD` in quorvel.h.
pub fn length(vector: &[f32; 3]) -> Result<f32, Error> {
    check::range("geometry::length", "vector", vector, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
    Ok(unchecked::geometry::length(vector))
}

/// Length of a vector in double precision.
///
/// # Arguments
/// * `vector`: vector (m)
///
/// # Returns
/// Length (m)
///
/// # Errors
/// Where an argument is not valid.
///
/// # Notes
/// * Formula: sqrt(v1^2 + v2^2 + v3^2)
///
/// # Source
/// Definition.
///
/// `GEVMDP` in quorvel.h.
pub fn length_in_double(vector: &[f64; 3]) -> Result<f64, Error> {
    check::range("geometry::length_in_double", "vector", vector, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
    Ok(unchecked::geometry::length_in_double(vector))
}

/// Functions of whole arrays.
pub mod arrays {
    use super::*;

    /// [`crate::geometry::parallel_planes`] of whole arrays.
    pub fn parallel_planes<'a>(
        triangle_1: impl Into<Input<'a, [[f64; 3]; 3]>>, triangle_2: impl Into<Input<'a, [[f64; 3]; 3]>>,
    ) -> Result<Vec<bool>, Error> {
        let triangle_1 = triangle_1.into();
        let triangle_2 = triangle_2.into();
        check::range(
            "geometry::parallel_planes", "triangle_1", &triangle_1, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        check::range(
            "geometry::parallel_planes", "triangle_2", &triangle_2, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        unchecked::geometry::arrays::parallel_planes(triangle_1, triangle_2)
    }

    /// [`crate::geometry::rectangular`] of whole arrays.
    pub fn rectangular<'a>(quadrilateral: impl Into<Input<'a, [[f64; 3]; 4]>>) -> Result<Vec<bool>, Error> {
        let quadrilateral = quadrilateral.into();
        check::range(
            "geometry::rectangular", "quadrilateral", &quadrilateral, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        unchecked::geometry::arrays::rectangular(quadrilateral)
    }

    /// [`crate::geometry::facing`] of whole arrays.
    pub fn facing<'a>(
        triangle: impl Into<Input<'a, [[f64; 3]; 3]>>, azimuth: impl Into<Input<'a, f64>>,
    ) -> Result<Vec<Facing>, Error> {
        let triangle = triangle.into();
        let azimuth = azimuth.into();
        check::range("geometry::facing", "triangle", &triangle, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
        check::range("geometry::facing", "azimuth", &azimuth, 0.0..=6.2832, "°")?;
        unchecked::geometry::arrays::facing(triangle, azimuth)
    }

    /// [`crate::geometry::local_coordinates`] of whole arrays.
    pub fn local_coordinates<'a>(
        quadrilateral_1: impl Into<Input<'a, [[f64; 3]; 4]>>,
        quadrilateral_2: impl Into<Input<'a, [[f64; 3]; 4]>>,
    ) -> Result<Vec<LocalCoordinates>, Error> {
        let quadrilateral_1 = quadrilateral_1.into();
        let quadrilateral_2 = quadrilateral_2.into();
        check::range(
            "geometry::local_coordinates", "quadrilateral_1", &quadrilateral_1, f64::NEG_INFINITY..=f64::INFINITY,
            "m",
        )?;
        check::range(
            "geometry::local_coordinates", "quadrilateral_2", &quadrilateral_2, f64::NEG_INFINITY..=f64::INFINITY,
            "m",
        )?;
        unchecked::geometry::arrays::local_coordinates(quadrilateral_1, quadrilateral_2)
    }

    /// [`crate::geometry::to_local`] of whole arrays.
    pub fn to_local<'a>(
        corners: impl Into<Input<'a, [[f64; 3]; 4]>>, x_axis: impl Into<Input<'a, [f64; 3]>>,
        y_axis: impl Into<Input<'a, [f64; 3]>>, z_axis: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<[[f64; 3]; 4]>, Error> {
        let corners = corners.into();
        let x_axis = x_axis.into();
        let y_axis = y_axis.into();
        let z_axis = z_axis.into();
        check::range("geometry::to_local", "corners", &corners, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
        check::range("geometry::to_local", "x_axis", &x_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
        check::range("geometry::to_local", "y_axis", &y_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
        check::range("geometry::to_local", "z_axis", &z_axis, f64::NEG_INFINITY..=f64::INFINITY, "")?;
        unchecked::geometry::arrays::to_local(corners, x_axis, y_axis, z_axis)
    }

    /// [`crate::geometry::meeting_point`] of whole arrays.
    pub fn meeting_point<'a>(
        line_1_start: impl Into<Input<'a, [f32; 2]>>, line_1_end: impl Into<Input<'a, [f32; 2]>>,
        line_2_start: impl Into<Input<'a, [f32; 2]>>, line_2_end: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<[f32; 2]>, Error> {
        let line_1_start = line_1_start.into();
        let line_1_end = line_1_end.into();
        let line_2_start = line_2_start.into();
        let line_2_end = line_2_end.into();
        check::range(
            "geometry::meeting_point", "line_1_start", &line_1_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range("geometry::meeting_point", "line_1_end", &line_1_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range(
            "geometry::meeting_point", "line_2_start", &line_2_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range("geometry::meeting_point", "line_2_end", &line_2_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::meeting_point(line_1_start, line_1_end, line_2_start, line_2_end)
    }

    /// [`crate::geometry::crossing_point`] of whole arrays.
    pub fn crossing_point<'a>(
        segment_1_start: impl Into<Input<'a, [f32; 2]>>, segment_1_end: impl Into<Input<'a, [f32; 2]>>,
        segment_2_start: impl Into<Input<'a, [f32; 2]>>, segment_2_end: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<[f32; 2]>, Error> {
        let segment_1_start = segment_1_start.into();
        let segment_1_end = segment_1_end.into();
        let segment_2_start = segment_2_start.into();
        let segment_2_end = segment_2_end.into();
        check::range(
            "geometry::crossing_point", "segment_1_start", &segment_1_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::crossing_point", "segment_1_end", &segment_1_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::crossing_point", "segment_2_start", &segment_2_start, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::crossing_point", "segment_2_end", &segment_2_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        unchecked::geometry::arrays::crossing_point(segment_1_start, segment_1_end, segment_2_start, segment_2_end)
    }

    /// [`crate::geometry::in_span`] of whole arrays.
    pub fn in_span<'a>(
        first_end: impl Into<Input<'a, [f32; 3]>>, second_end: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let first_end = first_end.into();
        let second_end = second_end.into();
        let point = point.into();
        check::range("geometry::in_span", "first_end", &first_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::in_span", "second_end", &second_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::in_span", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::in_span(first_end, second_end, point)
    }

    /// [`crate::geometry::ahead_and_nearer`] of whole arrays.
    pub fn ahead_and_nearer<'a>(
        first_end: impl Into<Input<'a, [f32; 3]>>, second_end: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let first_end = first_end.into();
        let second_end = second_end.into();
        let point = point.into();
        check::range(
            "geometry::ahead_and_nearer", "first_end", &first_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::ahead_and_nearer", "second_end", &second_end, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range("geometry::ahead_and_nearer", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::ahead_and_nearer(first_end, second_end, point)
    }

    /// [`crate::geometry::coincide`] of whole arrays.
    pub fn coincide<'a>(
        x_1: impl Into<Input<'a, f32>>, y_1: impl Into<Input<'a, f32>>, x_2: impl Into<Input<'a, f32>>,
        y_2: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<bool>, Error> {
        let x_1 = x_1.into();
        let y_1 = y_1.into();
        let x_2 = x_2.into();
        let y_2 = y_2.into();
        check::range("geometry::coincide", "x_1", &x_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::coincide", "y_1", &y_1, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::coincide", "x_2", &x_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::coincide", "y_2", &y_2, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::coincide(x_1, y_1, x_2, y_2)
    }

    /// [`crate::geometry::side_of_line`] of whole arrays.
    pub fn side_of_line<'a>(
        line_start: impl Into<Input<'a, [f32; 2]>>, line_end: impl Into<Input<'a, [f32; 2]>>,
        point: impl Into<Input<'a, [f32; 2]>>,
    ) -> Result<Vec<i32>, Error> {
        let line_start = line_start.into();
        let line_end = line_end.into();
        let point = point.into();
        check::range("geometry::side_of_line", "line_start", &line_start, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::side_of_line", "line_end", &line_end, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::side_of_line", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::side_of_line(line_start, line_end, point)
    }

    /// [`crate::geometry::back_azimuth`] of whole arrays.
    pub fn back_azimuth<'a>(angle: impl Into<Input<'a, f32>>) -> Result<Vec<f32>, Error> {
        let angle = angle.into();
        check::range("geometry::back_azimuth", "angle", &angle, 0.0..=360.0, "°")?;
        unchecked::geometry::arrays::back_azimuth(angle)
    }

    /// [`crate::geometry::direction_to`] of whole arrays.
    pub fn direction_to<'a>(
        solar_altitude: impl Into<Input<'a, f32>>, solar_azimuth: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let solar_altitude = solar_altitude.into();
        let solar_azimuth = solar_azimuth.into();
        check::range("geometry::direction_to", "solar_altitude", &solar_altitude, -1.5708..=1.5708, "rad")?;
        check::range("geometry::direction_to", "solar_azimuth", &solar_azimuth, 0.0..=6.2832, "rad")?;
        unchecked::geometry::arrays::direction_to(solar_altitude, solar_azimuth)
    }

    /// [`crate::geometry::surface_axes`] of whole arrays.
    pub fn surface_axes<'a>(
        surface_azimuth: impl Into<Input<'a, f32>>, tilt: impl Into<Input<'a, f32>>,
    ) -> Result<Vec<SurfaceAxes>, Error> {
        let surface_azimuth = surface_azimuth.into();
        let tilt = tilt.into();
        check::range("geometry::surface_axes", "surface_azimuth", &surface_azimuth, 0.0..=6.2832, "rad")?;
        check::range("geometry::surface_axes", "tilt", &tilt, 0.0..=3.1416, "rad")?;
        unchecked::geometry::arrays::surface_axes(surface_azimuth, tilt)
    }

    /// [`crate::geometry::local_to_global`] of whole arrays.
    pub fn local_to_global<'a>(
        local_vector: impl Into<Input<'a, [f32; 3]>>, rotation_matrix: impl Into<Input<'a, [[f32; 3]; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let local_vector = local_vector.into();
        let rotation_matrix = rotation_matrix.into();
        check::range(
            "geometry::local_to_global", "local_vector", &local_vector, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range("geometry::local_to_global", "rotation_matrix", &rotation_matrix, -1.0..=1.0, "")?;
        unchecked::geometry::arrays::local_to_global(local_vector, rotation_matrix)
    }

    /// [`crate::geometry::global_to_local`] of whole arrays.
    pub fn global_to_local<'a>(
        global_vector: impl Into<Input<'a, [f32; 3]>>, rotation_matrix: impl Into<Input<'a, [[f32; 3]; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let global_vector = global_vector.into();
        let rotation_matrix = rotation_matrix.into();
        check::range(
            "geometry::global_to_local", "global_vector", &global_vector, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range("geometry::global_to_local", "rotation_matrix", &rotation_matrix, -1.0..=1.0, "")?;
        unchecked::geometry::arrays::global_to_local(global_vector, rotation_matrix)
    }

    /// [`crate::geometry::projection`] of whole arrays.
    pub fn projection<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        check::range("geometry::projection", "plane_point", &plane_point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::projection", "plane_normal", &plane_normal, f32::NEG_INFINITY..=f32::INFINITY, "")?;
        check::range("geometry::projection", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::projection", "direction", &direction, f32::NEG_INFINITY..=f32::INFINITY, "")?;
        unchecked::geometry::arrays::projection(plane_point, plane_normal, point, direction)
    }

    /// [`crate::geometry::forward_projection`] of whole arrays.
    pub fn forward_projection<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        check::range(
            "geometry::forward_projection", "plane_point", &plane_point, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::forward_projection", "plane_normal", &plane_normal, f32::NEG_INFINITY..=f32::INFINITY, "",
        )?;
        check::range("geometry::forward_projection", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range(
            "geometry::forward_projection", "direction", &direction, f32::NEG_INFINITY..=f32::INFINITY, "",
        )?;
        unchecked::geometry::arrays::forward_projection(plane_point, plane_normal, point, direction)
    }

    /// [`crate::geometry::forward_projection_or_start`] of whole arrays.
    pub fn forward_projection_or_start<'a>(
        plane_point: impl Into<Input<'a, [f32; 3]>>, plane_normal: impl Into<Input<'a, [f32; 3]>>,
        point: impl Into<Input<'a, [f32; 3]>>, direction: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let plane_point = plane_point.into();
        let plane_normal = plane_normal.into();
        let point = point.into();
        let direction = direction.into();
        check::range(
            "geometry::forward_projection_or_start", "plane_point", &plane_point, f32::NEG_INFINITY..=f32::INFINITY,
            "m",
        )?;
        check::range(
            "geometry::forward_projection_or_start", "plane_normal", &plane_normal,
            f32::NEG_INFINITY..=f32::INFINITY, "",
        )?;
        check::range(
            "geometry::forward_projection_or_start", "point", &point, f32::NEG_INFINITY..=f32::INFINITY, "m",
        )?;
        check::range(
            "geometry::forward_projection_or_start", "direction", &direction, f32::NEG_INFINITY..=f32::INFINITY, "",
        )?;
        unchecked::geometry::arrays::forward_projection_or_start(plane_point, plane_normal, point, direction)
    }

    /// [`crate::geometry::dot_product`] of whole arrays.
    pub fn dot_product<'a>(
        vector_a: impl Into<Input<'a, [f32; 3]>>, vector_b: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<f32>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        check::range("geometry::dot_product", "vector_a", &vector_a, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::dot_product", "vector_b", &vector_b, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::dot_product(vector_a, vector_b)
    }

    /// [`crate::geometry::dot_product_in_double`] of whole arrays.
    pub fn dot_product_in_double<'a>(
        vector_a: impl Into<Input<'a, [f64; 3]>>, vector_b: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<f64>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        check::range(
            "geometry::dot_product_in_double", "vector_a", &vector_a, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        check::range(
            "geometry::dot_product_in_double", "vector_b", &vector_b, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        unchecked::geometry::arrays::dot_product_in_double(vector_a, vector_b)
    }

    /// [`crate::geometry::cross_product`] of whole arrays.
    pub fn cross_product<'a>(
        vector_a: impl Into<Input<'a, [f32; 3]>>, vector_b: impl Into<Input<'a, [f32; 3]>>,
    ) -> Result<Vec<[f32; 3]>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        check::range("geometry::cross_product", "vector_a", &vector_a, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        check::range("geometry::cross_product", "vector_b", &vector_b, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::cross_product(vector_a, vector_b)
    }

    /// [`crate::geometry::cross_product_in_double`] of whole arrays.
    pub fn cross_product_in_double<'a>(
        vector_a: impl Into<Input<'a, [f64; 3]>>, vector_b: impl Into<Input<'a, [f64; 3]>>,
    ) -> Result<Vec<[f64; 3]>, Error> {
        let vector_a = vector_a.into();
        let vector_b = vector_b.into();
        check::range(
            "geometry::cross_product_in_double", "vector_a", &vector_a, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        check::range(
            "geometry::cross_product_in_double", "vector_b", &vector_b, f64::NEG_INFINITY..=f64::INFINITY, "m",
        )?;
        unchecked::geometry::arrays::cross_product_in_double(vector_a, vector_b)
    }

    /// [`crate::geometry::length`] of whole arrays.
    pub fn length<'a>(vector: impl Into<Input<'a, [f32; 3]>>) -> Result<Vec<f32>, Error> {
        let vector = vector.into();
        check::range("geometry::length", "vector", &vector, f32::NEG_INFINITY..=f32::INFINITY, "m")?;
        unchecked::geometry::arrays::length(vector)
    }

    /// [`crate::geometry::length_in_double`] of whole arrays.
    pub fn length_in_double<'a>(vector: impl Into<Input<'a, [f64; 3]>>) -> Result<Vec<f64>, Error> {
        let vector = vector.into();
        check::range("geometry::length_in_double", "vector", &vector, f64::NEG_INFINITY..=f64::INFINITY, "m")?;
        unchecked::geometry::arrays::length_in_double(vector)
    }
}
