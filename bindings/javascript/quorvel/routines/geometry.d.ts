// Produced from the catalogue of routines (catalogue/); do not edit.
import type { Each, List } from '../numbers.js';
import type { Enclosed } from '../selectors.js';

/** What clip returns. */
export interface Clip<Integer = number> {
  /** x of the pool of points; new points are appended [m] */
  readonly x: Float64Array;
  /** y of the pool of points [m] */
  readonly y: Float64Array;
  /** points in use in the pool */
  readonly usedPoints: Integer;
  /** pieces of A - B; 0 with a status other than 0 */
  readonly differencePieces: Int32Array;
  /** pieces of the overlap; 0 with a status other than 0 */
  readonly overlapPieces: Int32Array;
  /** 0 success, else what went wrong */
  readonly status: Integer;
}

/**
 * Difference A - B and overlap of two simple polygons A and B in plan, in double precision.
 *
 * - A list of pieces is, for each piece, its number of vertices and their positions in the pool, and at last a 0,
 *   which counts in its capacity. The pieces run in the sense of A. A list without room for the 0 is not written.
 * - Where B lies within A the difference is two pieces, cut along level bridges from the leftmost and the rightmost
 *   vertex of B. The negative of a position marks a vertex from which a bridge leads to the next one. A piece may
 *   touch itself along a bridge.
 * - The polygons may run either way, touch, and have vertices and edges in common; repeated vertices are let be. B
 *   is moved off A where they touch: contact within a tolerance of 1e-4 of the diagonal of the box round both
 *   counts as none, and the areas are exact to about this times the length of the boundaries. The areas of
 *   difference and overlap add up to that of A to rounding.
 * - B without area is nothing to subtract. In no case does anything happen beyond what the capacities allow. A
 *   failure leaves lists and pool as they are by then.
 * - On which side of an edge a point lies is decided exactly, also at site coordinates, where edges are in line
 *   with one another only to rounding.
 * - Status: 0 success; 1 A has fewer than 3 vertices, or one that is not in the pool (up to usedPoints and
 *   pointCapacity); 2 B has fewer than 3 vertices, or one that is not in the pool; 3 A crosses itself; 4 B crosses
 *   itself; 5 A has no area to speak of (25 square tolerances); 6 A and B cross more than crossingCapacity times; 7
 *   the pool is full; 8 an edge of A carries more than 10 crossings; 9 an edge of B carries more than 10 crossings;
 *   10 differencePieces is full; 11 overlapPieces is full; 105 the edges of A do not enter and leave B by turns, as
 *   can happen where a polygon is narrower than the tolerance, or touches itself; 106 the edges of B do not enter
 *   and leave A by turns, likewise; 109 no bridge from B to A, for polygons with coordinates that are not numbers.
 *
 * Source: Boundary tracing from crossing to crossing: K. Weiler, P. Atherton, Hidden surface removal using polygon
 *   area sorting, 1977.
 *
 * @param x x of the pool of points; new points are appended [m]
 * @param y y of the pool of points [m]
 * @param positionsA vertices of A: positions in the pool, from 1; valid from 1
 * @param positionsB vertices of B; valid from 1
 * @param crossingCapacity most crossings of A and B to deal with, up to 1024; valid 0 to 1024
 * @param differenceCapacity capacity of differencePieces; valid from 0
 * @param overlapCapacity capacity of overlapPieces; valid from 0
 * @param usedPoints points in use in the pool; valid from 1
 * @see HOHOLEDP of quorvel.h
 */
export function clip(
  x: List,
  y: List,
  positionsA: List,
  positionsB: List,
  crossingCapacity: number,
  differenceCapacity: number,
  overlapCapacity: number,
  usedPoints: number,
): Clip;
export function clip(
  x: List,
  y: List,
  positionsA: List,
  positionsB: List,
  crossingCapacity: Each<number>,
  differenceCapacity: Each<number>,
  overlapCapacity: Each<number>,
  usedPoints: Each<number>,
): Clip<Int32Array>;

/** What overlap returns. */
export interface Overlap<Real = number> {
  /** x of the vertices of the pieces, a column each; 0 beyond them [m] */
  readonly pieceX: Float32Array;
  /** y of the vertices of the pieces [m] */
  readonly pieceY: Float32Array;
  /** number of vertices of each piece, 0 beyond the last */
  readonly pieceVertices: Int32Array;
  /** area of the overlap [m²] */
  readonly area: Real;
}

/**
 * Pieces and area of the overlap of two simple polygons in plan.
 *
 * - The overlap of clip with polygon 2 as A and polygon 1 as B, and with its accuracy. The pieces run in the sense
 *   of polygon 2.
 * - A coordinate nearer to 0 than 1e-4 is taken as 0.
 * - The outputs are all 0 where the polygons do not overlap, and where clip fails: a polygon that crosses itself,
 *   more than 10 crossings, more than 50 vertices and crossings in all. Likewise for more than 5 pieces, or more
 *   than 24 vertices in one. Of pairs of real polygons 0.75 % exceed one of these capacities.
 * - The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or more together: what is
 *   left of polygon 2 around it does not fit. Where polygon 2 lies in polygon 1 they may have 50, as anywhere else.
 *
 * Source: As clip.
 *
 * @param x1 x of polygon 1 [m]
 * @param y1 y of polygon 1 [m]
 * @param x2 x of polygon 2 [m]
 * @param y2 y of polygon 2 [m]
 * @see GEOVER of quorvel.h
 */
export function overlap(x1: List, y1: List, x2: List, y2: List): Overlap;

/** What overlapAlias returns. */
export interface OverlapAlias<Real = number> {
  /** x of the vertices of the pieces, a column each; 0 beyond them [m] */
  readonly pieceX: Float32Array;
  /** y of the vertices of the pieces [m] */
  readonly pieceY: Float32Array;
  /** number of vertices of each piece, 0 beyond the last */
  readonly pieceVertices: Int32Array;
  /** area of the overlap [m²] */
  readonly area: Real;
}

/**
 * The same as overlap.
 *
 * - As overlap, in all.
 *
 * Source: As clip.
 *
 * @param x1 x of polygon 1 [m]
 * @param y1 y of polygon 1 [m]
 * @param x2 x of polygon 2 [m]
 * @param y2 y of polygon 2 [m]
 * @see GEHOLE of quorvel.h
 */
export function overlapAlias(x1: List, y1: List, x2: List, y2: List): OverlapAlias;

/**
 * Whether points in plan lie on one straight line.
 *
 * - The points are held against the line through the first two that differ by 1e-5 or more in both coordinates. A
 *   point is off it when the ratios of its offsets to theirs, in x and in y, differ by more than 1e-5: what is
 *   tolerated grows with the distance between the two.
 * - Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number counts as equal
 *   to anything.
 * - Coordinates near one another within 1e-5 can leave no two points to draw the line through; then the points are
 *   not on one line, and finding that out takes n²/2 comparisons.
 *
 * Source: Intercept theorem.
 *
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @returns 1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that of the
 *   first of all
 * @see IGELIN of quorvel.h
 */
export function collinearity(x: List, y: List): number;

/** What countEnclosed returns. */
export interface CountEnclosed<Integer = number> {
  /** 1 for points that are enclosed; as given for points that are not enclosed */
  readonly enclosed: Int32Array;
  /** number of enclosed points */
  readonly enclosedPoints: Integer;
}

/**
 * How many points lie in a convex polygon with clockwise vertices or on its boundary, and which.
 *
 * - A point is enclosed when it is left of no edge, as sideOfLine sees it, or is at a vertex (to less than 1e-5 in
 *   each coordinate) that comes before any such edge.
 * - Points that are not numbers are left of no edge, and so enclosed.
 *
 * Source: A convex polygon is the intersection of half-planes.
 *
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @param pointX x of the points [m]
 * @param pointY y of the points [m]
 * @param enclosed 1 for points that are enclosed: 0 not enclosed, 1 enclosed
 * @see GECLOS of quorvel.h
 */
export function countEnclosed(
  x: List,
  y: List,
  pointX: List,
  pointY: List,
  enclosed: ArrayLike<Enclosed>,
): CountEnclosed;

/** What boundaryCrossing returns. */
export interface BoundaryCrossing<Integer = number> {
  /** crossing point, or what the notes say [m]; 1e20 where there is none */
  readonly crossingPoint: Float32Array;
  /** number, counted from 1, of the vertex that ends the crossed edge, or what the notes say */
  readonly crossingCode: Integer;
}

/**
 * Where a segment crosses the boundary of a polygon in plan.
 *
 * - The edges are tried in turn, from that between the first two vertices on, as crossingPoint does; the first one
 *   that is crossed away from the start ends the search. A crossing beyond 100000 is none.
 * - No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a minus, and the point
 *   is the last outcome of the search, the start or 1e20.
 * - Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of them, and the
 *   point that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more, small codes of this
 *   kind cannot be told from edges by the code alone.)
 * - Otherwise the code is 0, and the point 1e20.
 *
 * Source: As crossingPoint.
 *
 * @param segmentStart start of the segment [m]
 * @param segmentEnd end of the segment [m]
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @see GESIDE of quorvel.h
 */
export function boundaryCrossing(segmentStart: List, segmentEnd: List, x: List, y: List): BoundaryCrossing;

/**
 * Whether a point in the plane of a polygon in space lies inside or on its boundary.
 *
 * - The first edge with whose line the point is in line (twice the area of the triangle between them at most 1e-6)
 *   decides alone: 1 if the point is in the span of the edge, as inSpan sees it, else 0. So a point may be found
 *   outside a polygon that is not convex because it is in line with an edge.
 * - That the point is in the plane is not tested: over the middle of a square it is inside up to half the length of
 *   a side.
 * - Not a number gives 0.
 *
 * Source: Sum of the angles under which the point sees the edges.
 *
 * @param point point [m]
 * @param polygon vertices, the last of which repeats the first [m]
 * @returns 1 inside, 0 outside
 * @see GEINSI of quorvel.h
 */
export function inside(point: List, polygon: List): number;

/**
 * Whether the planes of two triangles are parallel.
 *
 * - So they are when the cross product of their normals, each as long as twice the triangle's area, is shorter than
 *   0.001: small triangles are parallel to any.
 *
 * Source: Definition.
 *
 * @param triangle1 corners of one triangle [m]
 * @param triangle2 corners of the other [m]
 * @returns whether they are parallel
 * @see GEPLEL of quorvel.h
 */
export function parallelPlanes(triangle1: List, triangle2: List): boolean;

/** What parallelSides returns. */
export interface ParallelSides<Logical = boolean, Integer = number> {
  /** whether there are any */
  readonly truth: Logical;
  /** side of one triangle: 1 between its first two corners, 2 between its last two; 3 none */
  readonly side1: Integer;
  /** side of the other, likewise */
  readonly side2: Integer;
}

/**
 * Whether two triangles have parallel sides, and which.
 *
 * - Sides are parallel when their cross product is shorter than 0.001, so that short sides are parallel to any.
 * - The sides between last and first corner are not tested.
 *
 * Source: Definition.
 *
 * @param triangle1 corners of one triangle [m]
 * @param triangle2 corners of the other [m]
 * @see GEPSID of quorvel.h
 */
export function parallelSides(triangle1: List, triangle2: List): ParallelSides;

/**
 * Whether a quadrilateral is rectangular.
 *
 * - So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in magnitude.
 *
 * Source: Definition.
 *
 * @param quadrilateral corners in turn [m]
 * @returns whether it is rectangular
 * @see GERECT of quorvel.h
 */
export function rectangular(quadrilateral: List): boolean;

/** What facing returns. */
export interface Facing<DoubleReal = number> {
  /** azimuth of the outward normal; given, what a level triangle gets, in radians [°] */
  readonly azimuth: DoubleReal;
  /** tilt: 0 horizontal facing up, 90 vertical, 180 facing down [°] */
  readonly tilt: DoubleReal;
}

/**
 * Azimuth and tilt of the plane of a triangle.
 *
 * - A level triangle, the level part of whose normal (as long as twice its area) is shorter than 1e-10, gets the
 *   given azimuth times 180/pi.
 * - Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.
 * - A triangle without area gives a tilt that is not a number.
 *
 * Source: Definition.
 *
 * @param triangle corners, clockwise seen from outside [m]
 * @param azimuth azimuth of the outward normal; given, what a level triangle gets, in radians [°]; valid 0 to
 *   6.2832
 * @see GETILT of quorvel.h
 */
export function facing(triangle: List, azimuth: number): Facing;
export function facing(triangle: List, azimuth: Each<number>): Facing<Float64Array>;

/** What localCoordinates returns. */
export interface LocalCoordinates {
  /** the first in local coordinates [m] */
  readonly local1: Float64Array;
  /** the second in local coordinates [m] */
  readonly local2: Float64Array;
}

/**
 * Two quadrilaterals in local coordinates of the first.
 *
 * - The origin is the first corner of the first; from there x points to the second corner, y to the fourth, z along
 *   the cross product of the ways to the second and the third.
 * - Coordinates are dot products with the axes, so that lengths are kept only where that has a right angle at its
 *   first corner.
 * - Coincident corners give what is not a number.
 *
 * Source: Definition.
 *
 * @param quadrilateral1 corners of the first [m]
 * @param quadrilateral2 corners of the second [m]
 * @see GELCAL of quorvel.h
 */
export function localCoordinates(quadrilateral1: List, quadrilateral2: List): LocalCoordinates;

/**
 * Components of each of four points along three axes.
 *
 * Source: Definition.
 *
 * @param corners points [m]
 * @param xAxis x axis
 * @param yAxis y axis
 * @param zAxis z axis
 * @returns points [m]
 * @see GETRNS of quorvel.h
 */
export function toLocal(corners: List, xAxis: List, yAxis: List, zAxis: List): Float64Array;

/**
 * Where two infinite lines in plan meet.
 *
 * - Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the angle between
 *   them is below 1e-10.
 * - Any of the points may be vectors; their z is not read.
 *
 * Source: Elementary analytic geometry.
 *
 * @param line1Start point of line 1 [m]
 * @param line1End another point of line 1 [m]
 * @param line2Start point of line 2 [m]
 * @param line2End another point of line 2 [m]
 * @returns meeting point [m]; 1e20 where there is none
 * @see GEMEET of quorvel.h
 */
export function meetingPoint(line1Start: List, line1End: List, line2Start: List, line2End: List): Float32Array;

/**
 * Where two segments in plan cross or touch.
 *
 * - Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both coordinates. Not a
 *   number counts as not meeting.
 * - A segment reaches almost 0.0001 beyond its ends in x and in y.
 *
 * Source: As meetingPoint.
 *
 * @param segment1Start start of segment 1 [m]
 * @param segment1End end of segment 1 [m]
 * @param segment2Start start of segment 2 [m]
 * @param segment2End end of segment 2 [m]
 * @returns crossing point [m]; 1e20 where there is none
 * @see GECROS of quorvel.h
 */
export function crossingPoint(
  segment1Start: List,
  segment1End: List,
  segment2Start: List,
  segment2End: List,
): Float32Array;

/**
 * Whether a point of the line AB lies between A and B.
 *
 * - That the point is on the line is not tested: the answer is whether it is in the box of which A and B are
 *   corners.
 * - Not a number in y or z of the point does not exclude it.
 *
 * Source: Definition.
 *
 * @param firstEnd one end [m]
 * @param secondEnd other end [m]
 * @param point point on the line AB [m]
 * @returns 1 between them or at an end, else 0
 * @see GEINLN of quorvel.h
 */
export function inSpan(firstEnd: List, secondEnd: List, point: List): number;

/**
 * Whether a point lies on B's side of A and nearer to A than B does.
 *
 * - A itself counts, B does not; so nothing does where the two coincide.
 * - Not a number anywhere gives 1.
 *
 * Source: Definition.
 *
 * @param firstEnd one end [m]
 * @param secondEnd other end [m]
 * @param point point [m]
 * @returns 1 if so, else 0
 * @see GEINLN2 of quorvel.h
 */
export function aheadAndNearer(firstEnd: List, secondEnd: List, point: List): number;

/**
 * Whether two points in plan coincide.
 *
 * Source: Definition.
 *
 * @param x1 x of one point [m]
 * @param y1 y of one point [m]
 * @param x2 x of the other [m]
 * @param y2 y of the other [m]
 * @returns whether both coordinates differ by less than 1e-5
 * @see GECOIN of quorvel.h
 */
export function coincide(x1: number, y1: number, x2: number, y2: number): boolean;
export function coincide(x1: Each<number>, y1: Each<number>, x2: Each<number>, y2: Each<number>): boolean[];

/**
 * Side of a directed line in plan on which a point lies.
 *
 * - Where the two points of the line are the same the line runs north.
 * - Not a number gives 0.
 *
 * Source: Distance of a point from a line by its bearing.
 *
 * @param lineStart start of the line [m]
 * @param lineEnd point towards which it runs [m]
 * @param point point [m]
 * @returns 1 right of the line, -1 left of it, 0 nearer to it than 1e-5
 * @see IGEPNT of quorvel.h
 */
export function sideOfLine(lineStart: List, lineEnd: List, point: List): number;

/**
 * Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle of an
 *   azimuth.
 *
 * - It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give negative
 *   results.
 * - Magnitudes from 1000 on are no angles and are returned as they are.
 *
 * Source: Definition.
 *
 * @param angle angle from east, anticlockwise, or azimuth [°]; valid 0 to 360
 * @returns azimuth of the opposite direction, or angle of it [°]
 * @see BORI of quorvel.h
 */
export function backAzimuth(angle: number): number;
export function backAzimuth(angle: Each<number>): Float32Array;

/**
 * Unit vector of a direction, such as that to the sun.
 *
 * Formula: (sin(solarAzimuth) cos(solarAltitude), cos(solarAzimuth) cos(solarAltitude), sin(solarAltitude))
 *
 * Source: Spherical to rectangular coordinates.
 *
 * @param solarAltitude altitude [rad]; valid -1.5708 to 1.5708
 * @param solarAzimuth azimuth [rad]; valid 0 to 6.2832
 * @returns direction
 * @see GESUNV of quorvel.h
 */
export function directionTo(solarAltitude: number, solarAzimuth: number): Float32Array;
export function directionTo(solarAltitude: Each<number>, solarAzimuth: Each<number>): Float32Array;

/** What surfaceAxes returns. */
export interface SurfaceAxes {
  /** matrix; its columns are the local axes in global coordinates */
  readonly rotationMatrix: Float32Array;
  /** inverse of it */
  readonly inverseMatrix: Float32Array;
}

/**
 * Rotation matrix of a surface, from local to global coordinates, and its inverse.
 *
 * Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b), cos(a) sin(b),
 *   cos(b)); a = surfaceAzimuth, b = tilt
 *
 * - Local x is level and points to the right seen from outside, y points up the slope, z outwards; the axes are
 *   right-handed.
 * - Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with full pivoting, is
 *   the transpose to rounding.
 *
 * Source: Rotation matrices; Gauss-Jordan elimination.
 *
 * @param surfaceAzimuth azimuth of the surface's outward normal [rad]; valid 0 to 6.2832
 * @param tilt tilt: 0 horizontal facing up, pi/2 vertical [rad]; valid 0 to 3.1416
 * @see GERSET of quorvel.h
 */
export function surfaceAxes(surfaceAzimuth: number, tilt: number): SurfaceAxes;
export function surfaceAxes(surfaceAzimuth: Each<number>, tilt: Each<number>): SurfaceAxes;

/**
 * Local to global coordinates: the rotation matrix times the vector.
 *
 * Source: Definition.
 *
 * @param localVector vector in local coordinates [m]
 * @param rotationMatrix rotation matrix; valid -1 to 1
 * @returns vector in global coordinates [m]
 * @see GERAXI of quorvel.h
 */
export function localToGlobal(localVector: List, rotationMatrix: List): Float32Array;

/**
 * Global to local coordinates: the transpose of the rotation matrix times the vector.
 *
 * Source: Definition.
 *
 * @param globalVector vector in global coordinates [m]
 * @param rotationMatrix rotation matrix; valid -1 to 1
 * @returns vector in local coordinates [m]
 * @see GERAX2 of quorvel.h
 */
export function globalToLocal(globalVector: List, rotationMatrix: List): Float32Array;

/**
 * Area of a polygon in plan.
 *
 * Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
 *
 * - A polygon far from the origin beside its size loses digits.
 *
 * Source: Shoelace formula.
 *
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @returns area [m²]
 * @see GEAPOL of quorvel.h
 */
export function planArea(x: List, y: List): number;

/**
 * Area of a polygon in plan, positive for clockwise vertices.
 *
 * Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first
 *
 * - As planArea.
 *
 * Source: Shoelace formula.
 *
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @returns area, negative for anticlockwise vertices [m²]
 * @see GEAPO2 of quorvel.h
 */
export function signedPlanArea(x: List, y: List): number;

/**
 * Area of a plane polygon in space.
 *
 * - It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted as positive:
 *   too large for a polygon that is not seen whole from there. Of the surfaces of real buildings 3.3 % come out too
 *   large by more than 0.1 %, half of these by more than 7 %.
 *
 * Source: Elementary geometry.
 *
 * @param x x of the vertices [m]
 * @param y y of the vertices [m]
 * @param z z of the vertices [m]
 * @returns area [m²]
 * @see GEAPO3 of quorvel.h
 */
export function areaInSpace(x: List, y: List, z: List): number;

/** What polygonOrientation returns. */
export interface PolygonOrientation<Real = number> {
  /** area, positive when the vertices run as the corner at the first one turns [m²] */
  readonly area: Real;
  /** angle between the normal and the vertical [°] */
  readonly tilt: Real;
  /** azimuth opposite to the normal [°] */
  readonly backAzimuth: Real;
}

/**
 * Area, tilt and orientation of a plane polygon in space.
 *
 * - The normal points to where the corner at the first vertex is seen to turn anticlockwise: its opposite is the
 *   outward normal of a convex polygon that runs clockwise seen from outside.
 * - Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141 begin within a
 *   straight side, and for 7 of these rounding alone decides the normal, so that area, tilt and orientation are
 *   wrong: let the first vertex be a true corner.
 * - The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth opposite to its
 *   first side if the normal points up, and that of the side if it points down.
 * - Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what faces north may
 *   get 0.00003.
 *
 * Source: Shoelace formula in the plane of the polygon.
 *
 * @param polygon vertices [m]
 * @see GEASO of quorvel.h
 */
export function polygonOrientation(polygon: List): PolygonOrientation;

/**
 * Projection of a point along a direction, forwards or backwards, onto a plane.
 *
 * Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction . planeNormal)
 *
 * - A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less, or not a number)
 *   gives 1e20 in all coordinates.
 *
 * Source: Elementary analytic geometry.
 *
 * @param planePoint a point of the plane [m]
 * @param planeNormal normal of the plane, of any length
 * @param point the point [m]
 * @param direction direction, of any length
 * @returns projected point [m]; 1e20 where there is none
 * @see GEPROJ of quorvel.h
 */
export function projection(planePoint: List, planeNormal: List, point: List, direction: List): Float32Array;

/**
 * Projection of a point along a direction, forwards only, onto a plane.
 *
 * Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction . planeNormal)
 *
 * - A direction parallel to the plane or away from it, and a point that is in the plane already, give 1e20 in all
 *   coordinates.
 * - Forwards means that the way from the point to its projection, scaled to length 1, differs from the direction,
 *   scaled so, by 1e-6 at most in each component. Coordinates that are large beside the way to the plane can spoil
 *   that by rounding: at site coordinates of real buildings, about 7 % of the points whose projection lies ahead
 *   are not found.
 *
 * Source: As projection.
 *
 * @param planePoint a point of the plane [m]
 * @param planeNormal normal of the plane, of any length
 * @param point the point [m]
 * @param direction direction, of any length
 * @returns projected point [m]; 1e20 where there is none
 * @see GEPROJ2 of quorvel.h
 */
export function forwardProjection(planePoint: List, planeNormal: List, point: List, direction: List): Float32Array;

/**
 * Projection of a point along a direction onto a plane, or the point itself where the plane does not lie ahead.
 *
 * Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction . planeNormal)
 *
 * - A direction whose product with the normal is exactly 0 gives what the division by zero makes of it: infinities
 *   or not a number. There is no other limit for parallel directions, so that the length of the normal does not
 *   matter.
 * - Ahead is as in forwardProjection, and so about 7 % of the points at site coordinates of real buildings are
 *   returned as they are, although the plane lies ahead.
 *
 * Source: As projection.
 *
 * @param planePoint a point of the plane [m]
 * @param planeNormal normal of the plane, of any length
 * @param point the point [m]
 * @param direction direction, of any length
 * @returns projected point, or the point itself [m]
 * @see GEPROJ3 of quorvel.h
 */
export function forwardProjectionOrStart(
  planePoint: List,
  planeNormal: List,
  point: List,
  direction: List,
): Float32Array;

/**
 * Dot product of two vectors.
 *
 * Formula: a1 b1 + a2 b2 + a3 b3
 *
 * Source: Definition.
 *
 * @param vectorA vector [m]
 * @param vectorB vector [m]
 * @returns a . b [m²]
 * @see GEDOTP of quorvel.h
 */
export function dotProduct(vectorA: List, vectorB: List): number;

/**
 * Dot product of two vectors in double precision.
 *
 * Formula: a1 b1 + a2 b2 + a3 b3
 *
 * Source: Definition.
 *
 * @param vectorA vector [m]
 * @param vectorB vector [m]
 * @returns a . b [m²]
 * @see GEDTDP of quorvel.h
 */
export function dotProductInDouble(vectorA: List, vectorB: List): number;

/**
 * Cross product of two vectors.
 *
 * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
 *
 * Source: Definition.
 *
 * @param vectorA vector [m]
 * @param vectorB vector [m]
 * @returns a x b [m²]
 * @see GEXPRO of quorvel.h
 */
export function crossProduct(vectorA: List, vectorB: List): Float32Array;

/**
 * Cross product of two vectors in double precision.
 *
 * Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)
 *
 * Source: Definition.
 *
 * @param vectorA vector [m]
 * @param vectorB vector [m]
 * @returns a x b [m²]
 * @see GEXPDP of quorvel.h
 */
export function crossProductInDouble(vectorA: List, vectorB: List): Float64Array;

/**
 * Length of a vector.
 *
 * Formula: sqrt(v1^2 + v2^2 + v3^2)
 *
 * - Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about 1e-23.
 *
 * Source: Definition.
 *
 * @param vector vector [m]
 * @returns length [m]
 * @see GEVMOD of quorvel.h
 */
export function length(vector: List): number;

/**
 * Length of a vector in double precision.
 *
 * Formula: sqrt(v1^2 + v2^2 + v3^2)
 *
 * Source: Definition.
 *
 * @param vector vector [m]
 * @returns length [m]
 * @see GEVMDP of quorvel.h
 */
export function lengthInDouble(vector: List): number;
