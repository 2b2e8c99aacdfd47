// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>What <c>Geometry.Clip</c> returns.</summary>
    public struct Clip
    {
        /// <summary>X of the pool of points; new points are appended [m].</summary>
        public double[] X;

        /// <summary>Y of the pool of points [m].</summary>
        public double[] Y;

        /// <summary>Points in use in the pool.</summary>
        public int UsedPoints;

        /// <summary>Pieces of A - B; 0 with a status other than 0.</summary>
        public int[] DifferencePieces;

        /// <summary>Pieces of the overlap; 0 with a status other than 0.</summary>
        public int[] OverlapPieces;

        /// <summary>0 success, else what went wrong.</summary>
        public int Status;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out double[] x, out double[] y, out int usedPoints, out int[] differencePieces,
            out int[] overlapPieces, out int status)
        {
            x = X;
            y = Y;
            usedPoints = UsedPoints;
            differencePieces = DifferencePieces;
            overlapPieces = OverlapPieces;
            status = Status;
        }
    }

    /// <summary>What <c>Geometry.Overlap</c> returns.</summary>
    public struct Overlap
    {
        /// <summary>X of the vertices of the pieces, a column each; 0 beyond them [m].</summary>
        public float[,] PieceX;

        /// <summary>Y of the vertices of the pieces [m].</summary>
        public float[,] PieceY;

        /// <summary>Number of vertices of each piece, 0 beyond the last.</summary>
        public int[] PieceVertices;

        /// <summary>Area of the overlap [m²].</summary>
        public float Area;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float[,] pieceX, out float[,] pieceY, out int[] pieceVertices, out float area)
        {
            pieceX = PieceX;
            pieceY = PieceY;
            pieceVertices = PieceVertices;
            area = Area;
        }
    }

    /// <summary>What <c>Geometry.OverlapAlias</c> returns.</summary>
    public struct OverlapAlias
    {
        /// <summary>X of the vertices of the pieces, a column each; 0 beyond them [m].</summary>
        public float[,] PieceX;

        /// <summary>Y of the vertices of the pieces [m].</summary>
        public float[,] PieceY;

        /// <summary>Number of vertices of each piece, 0 beyond the last.</summary>
        public int[] PieceVertices;

        /// <summary>Area of the overlap [m²].</summary>
        public float Area;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float[,] pieceX, out float[,] pieceY, out int[] pieceVertices, out float area)
        {
            pieceX = PieceX;
            pieceY = PieceY;
            pieceVertices = PieceVertices;
            area = Area;
        }
    }

    /// <summary>What <c>Geometry.CountEnclosed</c> returns.</summary>
    public struct CountEnclosed
    {
        /// <summary>1 for points that are enclosed; as given for points that are not enclosed.</summary>
        public Enclosed[] Enclosed;

        /// <summary>Number of enclosed points.</summary>
        public int EnclosedPoints;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out Enclosed[] enclosed, out int enclosedPoints)
        {
            enclosed = Enclosed;
            enclosedPoints = EnclosedPoints;
        }
    }

    /// <summary>What <c>Geometry.BoundaryCrossing</c> returns.</summary>
    public struct BoundaryCrossing
    {
        /// <summary>Crossing point, or what the notes say [m]; 1e20 where there is none.</summary>
        public float[] CrossingPoint;

        /// <summary>Number, counted from 1, of the vertex that ends the crossed edge, or what the notes say.</summary>
        public int CrossingCode;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float[] crossingPoint, out int crossingCode)
        {
            crossingPoint = CrossingPoint;
            crossingCode = CrossingCode;
        }
    }

    /// <summary>What <c>Geometry.ParallelSides</c> returns.</summary>
    public struct ParallelSides
    {
        /// <summary>Whether there are any.</summary>
        public bool Truth;

        /// <summary>Side of one triangle: 1 between its first two corners, 2 between its last two; 3 none.</summary>
        public int Side1;

        /// <summary>Side of the other, likewise.</summary>
        public int Side2;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out bool truth, out int side1, out int side2)
        {
            truth = Truth;
            side1 = Side1;
            side2 = Side2;
        }
    }

    /// <summary>What <c>Geometry.Facing</c> returns.</summary>
    public struct Facing
    {
        /// <summary>Azimuth of the outward normal; given, what a level triangle gets, in radians [°].</summary>
        public double Azimuth;

        /// <summary>Tilt: 0 horizontal facing up, 90 vertical, 180 facing down [°].</summary>
        public double Tilt;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out double azimuth, out double tilt)
        {
            azimuth = Azimuth;
            tilt = Tilt;
        }
    }

    /// <summary>What <c>Geometry.LocalCoordinates</c> returns.</summary>
    public struct LocalCoordinates
    {
        /// <summary>The first in local coordinates [m].</summary>
        public double[,] Local1;

        /// <summary>The second in local coordinates [m].</summary>
        public double[,] Local2;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out double[,] local1, out double[,] local2)
        {
            local1 = Local1;
            local2 = Local2;
        }
    }

    /// <summary>What <c>Geometry.SurfaceAxes</c> returns.</summary>
    public struct SurfaceAxes
    {
        /// <summary>Matrix; its columns are the local axes in global coordinates.</summary>
        public float[,] RotationMatrix;

        /// <summary>Inverse of it.</summary>
        public float[,] InverseMatrix;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float[,] rotationMatrix, out float[,] inverseMatrix)
        {
            rotationMatrix = RotationMatrix;
            inverseMatrix = InverseMatrix;
        }
    }

    /// <summary>What <c>Geometry.PolygonOrientation</c> returns.</summary>
    public struct PolygonOrientation
    {
        /// <summary>Area, positive when the vertices run as the corner at the first one turns [m²].</summary>
        public float Area;

        /// <summary>Angle between the normal and the vertical [°].</summary>
        public float Tilt;

        /// <summary>Azimuth opposite to the normal [°].</summary>
        public float BackAzimuth;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float area, out float tilt, out float backAzimuth)
        {
            area = Area;
            tilt = Tilt;
            backAzimuth = BackAzimuth;
        }
    }

    /// <summary>Geometry.</summary>
    public static partial class Geometry
    {
        /// <summary>Pieces and area of the overlap of two simple polygons in plan.</summary>
        /// <param name="x1">X of polygon 1 [m].</param>
        /// <param name="y1">Y of polygon 1 [m].</param>
        /// <param name="x2">X of polygon 2 [m].</param>
        /// <param name="y2">Y of polygon 2 [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The overlap of <c>Geometry.Clip</c> with polygon 2 as A and polygon 1 as B, and with its accuracy. The
        /// pieces run in the sense of polygon 2.</para>
        /// <para>A coordinate nearer to 0 than 1e-4 is taken as 0.</para>
        /// <para>The outputs are all 0 where the polygons do not overlap, and where <c>Geometry.Clip</c> fails: a
        /// polygon that crosses itself, more than 10 crossings, more than 50 vertices and crossings in all. Likewise
        /// for more than 5 pieces, or more than 24 vertices in one. Of pairs of real polygons 0.75 % exceed one of
        /// these capacities.</para>
        /// <para>The outputs are also 0 where polygon 1 lies in polygon 2 and the two have 42 vertices or more
        /// together: what is left of polygon 2 around it does not fit. Where polygon 2 lies in polygon 1 they may have
        /// 50, as anywhere else.</para>
        /// <para>Source: As <c>Geometry.Clip</c>.</para>
        /// <para>The bits of GEOVER in quorvel.h.</para>
        /// </remarks>
        public static Overlap Overlap(float[] x1, float[] y1, float[] x2, float[] y2)
        {
            Check.Length("Geometry.Overlap", "x1", x1, 3, 2147483647);
            Check.Length("Geometry.Overlap", "x2", x2, 3, 2147483647);
            Check.Range("Geometry.Overlap", "x1", x1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Overlap", "y1", y1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Overlap", "x2", x2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Overlap", "y2", y2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Overlap(x1, y1, x2, y2);
        }

        /// <summary>The same as <c>Geometry.Overlap</c>.</summary>
        /// <param name="x1">X of polygon 1 [m].</param>
        /// <param name="y1">Y of polygon 1 [m].</param>
        /// <param name="x2">X of polygon 2 [m].</param>
        /// <param name="y2">Y of polygon 2 [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>As <c>Geometry.Overlap</c>, in all.</para>
        /// <para>Source: As <c>Geometry.Clip</c>.</para>
        /// <para>The bits of GEHOLE in quorvel.h.</para>
        /// </remarks>
        public static OverlapAlias OverlapAlias(float[] x1, float[] y1, float[] x2, float[] y2)
        {
            Check.Length("Geometry.OverlapAlias", "x1", x1, 3, 2147483647);
            Check.Length("Geometry.OverlapAlias", "x2", x2, 3, 2147483647);
            Check.Range("Geometry.OverlapAlias", "x1", x1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.OverlapAlias", "y1", y1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.OverlapAlias", "x2", x2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.OverlapAlias", "y2", y2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.OverlapAlias(x1, y1, x2, y2);
        }

        /// <summary>Whether points in plan lie on one straight line.</summary>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <returns>1 on one line; otherwise the number, counted from 1, of the first point whose y differs from that
        /// of the first of all.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The points are held against the line through the first two that differ by 1e-5 or more in both
        /// coordinates. A point is off it when the ratios of its offsets to theirs, in x and in y, differ by more than
        /// 1e-5: what is tolerated grows with the distance between the two.</para>
        /// <para>Points that all have the x or the y of the first, to within 1e-5, are on one line. Not a number counts
        /// as equal to anything.</para>
        /// <para>Coordinates near one another within 1e-5 can leave no two points to draw the line through; then the
        /// points are not on one line, and finding that out takes n²/2 comparisons.</para>
        /// <para>Source: Intercept theorem.</para>
        /// <para>The bits of IGELIN in quorvel.h.</para>
        /// </remarks>
        public static int Collinearity(float[] x, float[] y)
        {
            Check.Length("Geometry.Collinearity", "x", x, 1, 2147483647);
            Check.Range("Geometry.Collinearity", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Collinearity", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Collinearity(x, y);
        }

        /// <summary>How many points lie in a convex polygon with clockwise vertices or on its boundary, and
        /// which.</summary>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <param name="pointX">X of the points [m].</param>
        /// <param name="pointY">Y of the points [m].</param>
        /// <param name="enclosed">1 for points that are enclosed.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A point is enclosed when it is left of no edge, as <c>Geometry.SideOfLine</c> sees it, or is at a
        /// vertex (to less than 1e-5 in each coordinate) that comes before any such edge.</para>
        /// <para>Points that are not numbers are left of no edge, and so enclosed.</para>
        /// <para>Source: A convex polygon is the intersection of half-planes.</para>
        /// <para>The bits of GECLOS in quorvel.h.</para>
        /// </remarks>
        public static CountEnclosed CountEnclosed(float[] x, float[] y, float[] pointX, float[] pointY,
            Enclosed[] enclosed)
        {
            Check.Length("Geometry.CountEnclosed", "x", x, 3, 2147483647);
            Check.Length("Geometry.CountEnclosed", "pointX", pointX, 1, 2147483647);
            Check.Range("Geometry.CountEnclosed", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.CountEnclosed", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.CountEnclosed", "pointX", pointX, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.CountEnclosed", "pointY", pointY, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Selector("Geometry.CountEnclosed", "enclosed", enclosed, 0, 1);
            return Unchecked.Geometry.CountEnclosed(x, y, pointX, pointY, enclosed);
        }

        /// <summary>Where a segment crosses the boundary of a polygon in plan.</summary>
        /// <param name="segmentStart">Start of the segment [m].</param>
        /// <param name="segmentEnd">End of the segment [m].</param>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The edges are tried in turn, from that between the first two vertices on, as
        /// <c>Geometry.CrossingPoint</c> does; the first one that is crossed away from the start ends the search. A
        /// crossing beyond 100000 is none.</para>
        /// <para>No such edge, but the start at a vertex (to less than 1e-5): the code is its number with a minus, and
        /// the point is the last outcome of the search, the start or 1e20.</para>
        /// <para>Otherwise, the start on edges: the code is 999 + the number of the vertex that ends the last of them,
        /// and the point that vertex. (The sum is taken modulo 2^32. Of a polygon with 1000 vertices or more, small
        /// codes of this kind cannot be told from edges by the code alone.)</para>
        /// <para>Otherwise the code is 0, and the point 1e20.</para>
        /// <para>Source: As <c>Geometry.CrossingPoint</c>.</para>
        /// <para>The bits of GESIDE in quorvel.h.</para>
        /// </remarks>
        public static BoundaryCrossing BoundaryCrossing(float[] segmentStart, float[] segmentEnd, float[] x, float[] y)
        {
            Check.Length("Geometry.BoundaryCrossing", "x", x, 3, 2147483647);
            Check.Range("Geometry.BoundaryCrossing", "segmentStart", segmentStart, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.BoundaryCrossing", "segmentEnd", segmentEnd, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.BoundaryCrossing", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.BoundaryCrossing", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.BoundaryCrossing(segmentStart, segmentEnd, x, y);
        }

        /// <summary>Whether a point in the plane of a polygon in space lies inside or on its boundary.</summary>
        /// <param name="point">Point [m].</param>
        /// <param name="polygon">Vertices, the last of which repeats the first [m].</param>
        /// <returns>1 inside, 0 outside.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The first edge with whose line the point is in line (twice the area of the triangle between them at
        /// most 1e-6) decides alone: 1 if the point is in the span of the edge, as <c>Geometry.InSpan</c> sees it, else
        /// 0. So a point may be found outside a polygon that is not convex because it is in line with an edge.</para>
        /// <para>That the point is in the plane is not tested: over the middle of a square it is inside up to half the
        /// length of a side.</para>
        /// <para>Not a number gives 0.</para>
        /// <para>Source: Sum of the angles under which the point sees the edges.</para>
        /// <para>The bits of GEINSI in quorvel.h.</para>
        /// </remarks>
        public static int Inside(float[] point, float[,] polygon)
        {
            Check.Length("Geometry.Inside", "polygon", polygon, 4, 2147483647);
            Check.Range("Geometry.Inside", "point", point, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Inside", "polygon", polygon, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Inside(point, polygon);
        }

        /// <summary>Whether the planes of two triangles are parallel.</summary>
        /// <param name="triangle1">Corners of one triangle [m].</param>
        /// <param name="triangle2">Corners of the other [m].</param>
        /// <returns>Whether they are parallel.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>So they are when the cross product of their normals, each as long as twice the triangle's area, is
        /// shorter than 0.001: small triangles are parallel to any.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEPLEL in quorvel.h.</para>
        /// </remarks>
        public static bool ParallelPlanes(double[,] triangle1, double[,] triangle2)
        {
            Check.Range("Geometry.ParallelPlanes", "triangle1", triangle1, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            Check.Range("Geometry.ParallelPlanes", "triangle2", triangle2, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.ParallelPlanes(triangle1, triangle2);
        }

        /// <summary>Whether two triangles have parallel sides, and which.</summary>
        /// <param name="triangle1">Corners of one triangle [m].</param>
        /// <param name="triangle2">Corners of the other [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Sides are parallel when their cross product is shorter than 0.001, so that short sides are parallel to
        /// any.</para>
        /// <para>The sides between last and first corner are not tested.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEPSID in quorvel.h.</para>
        /// </remarks>
        public static ParallelSides ParallelSides(double[,] triangle1, double[,] triangle2)
        {
            Check.Range("Geometry.ParallelSides", "triangle1", triangle1, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            Check.Range("Geometry.ParallelSides", "triangle2", triangle2, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.ParallelSides(triangle1, triangle2);
        }

        /// <summary>Whether a quadrilateral is rectangular.</summary>
        /// <param name="quadrilateral">Corners in turn [m].</param>
        /// <returns>Whether it is rectangular.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>So it is when at all corners but the first the dot product of the two sides is at most 1e-6 in
        /// magnitude.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GERECT in quorvel.h.</para>
        /// </remarks>
        public static bool Rectangular(double[,] quadrilateral)
        {
            Check.Range("Geometry.Rectangular", "quadrilateral", quadrilateral, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.Rectangular(quadrilateral);
        }

        /// <summary>Azimuth and tilt of the plane of a triangle.</summary>
        /// <param name="triangle">Corners, clockwise seen from outside [m].</param>
        /// <param name="azimuth">Azimuth of the outward normal; given, what a level triangle gets, in radians [°];
        /// valid 0 to 6.2832.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A level triangle, the level part of whose normal (as long as twice its area) is shorter than 1e-10,
        /// gets the given azimuth times 180/pi.</para>
        /// <para>Azimuths of 360 or more are reduced by 360 once; from 359.99 on they become 0.</para>
        /// <para>A triangle without area gives a tilt that is not a number.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GETILT in quorvel.h.</para>
        /// </remarks>
        public static Facing Facing(double[,] triangle, double azimuth)
        {
            Check.Range("Geometry.Facing", "triangle", triangle, -double.PositiveInfinity, double.PositiveInfinity,
                " m");
            Check.Range("Geometry.Facing", "azimuth", azimuth, 0, 6.2832, " °");
            return Unchecked.Geometry.Facing(triangle, azimuth);
        }

        /// <summary>Two quadrilaterals in local coordinates of the first.</summary>
        /// <param name="quadrilateral1">Corners of the first [m].</param>
        /// <param name="quadrilateral2">Corners of the second [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The origin is the first corner of the first; from there x points to the second corner, y to the
        /// fourth, z along the cross product of the ways to the second and the third.</para>
        /// <para>Coordinates are dot products with the axes, so that lengths are kept only where that has a right angle
        /// at its first corner.</para>
        /// <para>Coincident corners give what is not a number.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GELCAL in quorvel.h.</para>
        /// </remarks>
        public static LocalCoordinates LocalCoordinates(double[,] quadrilateral1, double[,] quadrilateral2)
        {
            Check.Range("Geometry.LocalCoordinates", "quadrilateral1", quadrilateral1, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            Check.Range("Geometry.LocalCoordinates", "quadrilateral2", quadrilateral2, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.LocalCoordinates(quadrilateral1, quadrilateral2);
        }

        /// <summary>Components of each of four points along three axes.</summary>
        /// <param name="corners">Points [m].</param>
        /// <param name="xAxis">X axis.</param>
        /// <param name="yAxis">Y axis.</param>
        /// <param name="zAxis">Z axis.</param>
        /// <returns>Points [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GETRNS in quorvel.h.</para>
        /// </remarks>
        public static double[,] ToLocal(double[,] corners, double[] xAxis, double[] yAxis, double[] zAxis)
        {
            Check.Range("Geometry.ToLocal", "corners", corners, -double.PositiveInfinity, double.PositiveInfinity,
                " m");
            Check.Range("Geometry.ToLocal", "xAxis", xAxis, -double.PositiveInfinity, double.PositiveInfinity, "");
            Check.Range("Geometry.ToLocal", "yAxis", yAxis, -double.PositiveInfinity, double.PositiveInfinity, "");
            Check.Range("Geometry.ToLocal", "zAxis", zAxis, -double.PositiveInfinity, double.PositiveInfinity, "");
            return Unchecked.Geometry.ToLocal(corners, xAxis, yAxis, zAxis);
        }

        /// <summary>Where two infinite lines in plan meet.</summary>
        /// <param name="line1Start">Point of line 1 [m].</param>
        /// <param name="line1End">Another point of line 1 [m].</param>
        /// <param name="line2Start">Point of line 2 [m].</param>
        /// <param name="line2End">Another point of line 2 [m].</param>
        /// <returns>Meeting point [m]; 1e20 where there is none.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Parallel lines give 1e20 in both coordinates: those for which |ab| |cd| times the sine of the angle
        /// between them is below 1e-10.</para>
        /// <para>Any of the points may be vectors; their z is not read.</para>
        /// <para>Source: Elementary analytic geometry.</para>
        /// <para>The bits of GEMEET in quorvel.h.</para>
        /// </remarks>
        public static float[] MeetingPoint(float[] line1Start, float[] line1End, float[] line2Start, float[] line2End)
        {
            Check.Range("Geometry.MeetingPoint", "line1Start", line1Start, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.MeetingPoint", "line1End", line1End, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.MeetingPoint", "line2Start", line2Start, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.MeetingPoint", "line2End", line2End, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            return Unchecked.Geometry.MeetingPoint(line1Start, line1End, line2Start, line2End);
        }

        /// <summary>Where two segments in plan cross or touch.</summary>
        /// <param name="segment1Start">Start of segment 1 [m].</param>
        /// <param name="segment1End">End of segment 1 [m].</param>
        /// <param name="segment2Start">Start of segment 2 [m].</param>
        /// <param name="segment2End">End of segment 2 [m].</param>
        /// <returns>Crossing point [m]; 1e20 where there is none.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Segments that do not meet, and parallel ones whether they meet or not, give 1e20 in both coordinates.
        /// Not a number counts as not meeting.</para>
        /// <para>A segment reaches almost 0.0001 beyond its ends in x and in y.</para>
        /// <para>Source: As <c>Geometry.MeetingPoint</c>.</para>
        /// <para>The bits of GECROS in quorvel.h.</para>
        /// </remarks>
        public static float[] CrossingPoint(float[] segment1Start, float[] segment1End, float[] segment2Start,
            float[] segment2End)
        {
            Check.Range("Geometry.CrossingPoint", "segment1Start", segment1Start, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.CrossingPoint", "segment1End", segment1End, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.CrossingPoint", "segment2Start", segment2Start, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.CrossingPoint", "segment2End", segment2End, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            return Unchecked.Geometry.CrossingPoint(segment1Start, segment1End, segment2Start, segment2End);
        }

        /// <summary>Whether a point of the line AB lies between A and B.</summary>
        /// <param name="firstEnd">One end [m].</param>
        /// <param name="secondEnd">Other end [m].</param>
        /// <param name="point">Point on the line AB [m].</param>
        /// <returns>1 between them or at an end, else 0.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>That the point is on the line is not tested: the answer is whether it is in the box of which A and B
        /// are corners.</para>
        /// <para>Not a number in y or z of the point does not exclude it.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEINLN in quorvel.h.</para>
        /// </remarks>
        public static float InSpan(float[] firstEnd, float[] secondEnd, float[] point)
        {
            Check.Range("Geometry.InSpan", "firstEnd", firstEnd, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.InSpan", "secondEnd", secondEnd, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.InSpan", "point", point, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.InSpan(firstEnd, secondEnd, point);
        }

        /// <summary>Whether a point lies on B's side of A and nearer to A than B does.</summary>
        /// <param name="firstEnd">One end [m].</param>
        /// <param name="secondEnd">Other end [m].</param>
        /// <param name="point">Point [m].</param>
        /// <returns>1 if so, else 0.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A itself counts, B does not; so nothing does where the two coincide.</para>
        /// <para>Not a number anywhere gives 1.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEINLN2 in quorvel.h.</para>
        /// </remarks>
        public static float AheadAndNearer(float[] firstEnd, float[] secondEnd, float[] point)
        {
            Check.Range("Geometry.AheadAndNearer", "firstEnd", firstEnd, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.AheadAndNearer", "secondEnd", secondEnd, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.AheadAndNearer", "point", point, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            return Unchecked.Geometry.AheadAndNearer(firstEnd, secondEnd, point);
        }

        /// <summary>Whether two points in plan coincide.</summary>
        /// <param name="x1">X of one point [m].</param>
        /// <param name="y1">Y of one point [m].</param>
        /// <param name="x2">X of the other [m].</param>
        /// <param name="y2">Y of the other [m].</param>
        /// <returns>Whether both coordinates differ by less than 1e-5.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GECOIN in quorvel.h.</para>
        /// </remarks>
        public static bool Coincide(float x1, float y1, float x2, float y2)
        {
            Check.Range("Geometry.Coincide", "x1", x1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "y1", y1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "x2", x2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "y2", y2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Coincide(x1, y1, x2, y2);
        }

        /// <inheritdoc cref="Quorvel.Geometry.Coincide(float, float, float, float)"/>
        public static bool[] Coincide(Input<float> x1, Input<float> y1, Input<float> x2, Input<float> y2)
        {
            Check.Range("Geometry.Coincide", "x1", x1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "y1", y1, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "x2", x2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Coincide", "y2", y2, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Coincide(x1, y1, x2, y2);
        }

        /// <summary>Side of a directed line in plan on which a point lies.</summary>
        /// <param name="lineStart">Start of the line [m].</param>
        /// <param name="lineEnd">Point towards which it runs [m].</param>
        /// <param name="point">Point [m].</param>
        /// <returns>1 right of the line, -1 left of it, 0 nearer to it than 1e-5.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Where the two points of the line are the same the line runs north.</para>
        /// <para>Not a number gives 0.</para>
        /// <para>Source: Distance of a point from a line by its bearing.</para>
        /// <para>The bits of IGEPNT in quorvel.h.</para>
        /// </remarks>
        public static int SideOfLine(float[] lineStart, float[] lineEnd, float[] point)
        {
            Check.Range("Geometry.SideOfLine", "lineStart", lineStart, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.SideOfLine", "lineEnd", lineEnd, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.SideOfLine", "point", point, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.SideOfLine(lineStart, lineEnd, point);
        }

        /// <summary>Azimuth opposite to a direction that is given by its angle from east, anticlockwise; also the angle
        /// of an azimuth.</summary>
        /// <param name="angle">Angle from east, anticlockwise, or azimuth [°]; valid 0 to 360.</param>
        /// <returns>Azimuth of the opposite direction, or angle of it [°].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>It is the remainder of 630 - angle by 360 with the sign of the dividend: angles above 630 give
        /// negative results.</para>
        /// <para>Magnitudes from 1000 on are no angles and are returned as they are.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of BORI in quorvel.h.</para>
        /// </remarks>
        public static float BackAzimuth(float angle)
        {
            Check.Range("Geometry.BackAzimuth", "angle", angle, 0f, 360f, " °");
            return Unchecked.Geometry.BackAzimuth(angle);
        }

        /// <inheritdoc cref="Quorvel.Geometry.BackAzimuth(float)"/>
        public static float[] BackAzimuth(Input<float> angle)
        {
            Check.Range("Geometry.BackAzimuth", "angle", angle, 0f, 360f, " °");
            return Unchecked.Geometry.BackAzimuth(angle);
        }

        /// <summary>Unit vector of a direction, such as that to the sun.</summary>
        /// <param name="solarAltitude">Altitude [rad]; valid -1.5708 to 1.5708.</param>
        /// <param name="solarAzimuth">Azimuth [rad]; valid 0 to 6.2832.</param>
        /// <returns>Direction.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (sin(solarAzimuth) cos(solarAltitude), cos(solarAzimuth) cos(solarAltitude),
        /// sin(solarAltitude))</para>
        /// <para>Source: Spherical to rectangular coordinates.</para>
        /// <para>The bits of GESUNV in quorvel.h.</para>
        /// </remarks>
        public static float[] DirectionTo(float solarAltitude, float solarAzimuth)
        {
            Check.Range("Geometry.DirectionTo", "solarAltitude", solarAltitude, -1.5708f, 1.5708f, " rad");
            Check.Range("Geometry.DirectionTo", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            return Unchecked.Geometry.DirectionTo(solarAltitude, solarAzimuth);
        }

        /// <summary>Rotation matrix of a surface, from local to global coordinates, and its inverse.</summary>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt: 0 horizontal facing up, pi/2 vertical [rad]; valid 0 to 3.1416.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: columns (-cos(a), sin(a), 0), (-sin(a) cos(b), -cos(a) cos(b), sin(b)), (sin(a) sin(b),
        /// cos(a) sin(b), cos(b)); a = surfaceAzimuth, b = tilt</para>
        /// <para>Local x is level and points to the right seen from outside, y points up the slope, z outwards; the
        /// axes are right-handed.</para>
        /// <para>Elements of the matrix below 1e-5 in magnitude are set to 0. The inverse, by elimination with full
        /// pivoting, is the transpose to rounding.</para>
        /// <para>Source: Rotation matrices; Gauss-Jordan elimination.</para>
        /// <para>The bits of GERSET in quorvel.h.</para>
        /// </remarks>
        public static SurfaceAxes SurfaceAxes(float surfaceAzimuth, float tilt)
        {
            Check.Range("Geometry.SurfaceAxes", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Geometry.SurfaceAxes", "tilt", tilt, 0f, 3.1416f, " rad");
            return Unchecked.Geometry.SurfaceAxes(surfaceAzimuth, tilt);
        }

        /// <summary>Local to global coordinates: the rotation matrix times the vector.</summary>
        /// <param name="localVector">Vector in local coordinates [m].</param>
        /// <param name="rotationMatrix">Rotation matrix; valid -1 to 1.</param>
        /// <returns>Vector in global coordinates [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GERAXI in quorvel.h.</para>
        /// </remarks>
        public static float[] LocalToGlobal(float[] localVector, float[,] rotationMatrix)
        {
            Check.Range("Geometry.LocalToGlobal", "localVector", localVector, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.LocalToGlobal", "rotationMatrix", rotationMatrix, -1f, 1f, "");
            return Unchecked.Geometry.LocalToGlobal(localVector, rotationMatrix);
        }

        /// <summary>Global to local coordinates: the transpose of the rotation matrix times the vector.</summary>
        /// <param name="globalVector">Vector in global coordinates [m].</param>
        /// <param name="rotationMatrix">Rotation matrix; valid -1 to 1.</param>
        /// <returns>Vector in local coordinates [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GERAX2 in quorvel.h.</para>
        /// </remarks>
        public static float[] GlobalToLocal(float[] globalVector, float[,] rotationMatrix)
        {
            Check.Range("Geometry.GlobalToLocal", "globalVector", globalVector, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.GlobalToLocal", "rotationMatrix", rotationMatrix, -1f, 1f, "");
            return Unchecked.Geometry.GlobalToLocal(globalVector, rotationMatrix);
        }

        /// <summary>Area of a polygon in plan.</summary>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <returns>Area [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: half the size of the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the
        /// first</para>
        /// <para>A polygon far from the origin beside its size loses digits.</para>
        /// <para>Source: Shoelace formula.</para>
        /// <para>The bits of GEAPOL in quorvel.h.</para>
        /// </remarks>
        public static float PlanArea(float[] x, float[] y)
        {
            Check.Length("Geometry.PlanArea", "x", x, 3, 2147483647);
            Check.Range("Geometry.PlanArea", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.PlanArea", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.PlanArea(x, y);
        }

        /// <summary>Area of a polygon in plan, positive for clockwise vertices.</summary>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <returns>Area, negative for anticlockwise vertices [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: half the sum of x(i) y(i - 1) - y(i) x(i - 1), the last one before the first</para>
        /// <para>As <c>Geometry.PlanArea</c>.</para>
        /// <para>Source: Shoelace formula.</para>
        /// <para>The bits of GEAPO2 in quorvel.h.</para>
        /// </remarks>
        public static float SignedPlanArea(float[] x, float[] y)
        {
            Check.Length("Geometry.SignedPlanArea", "x", x, 3, 2147483647);
            Check.Range("Geometry.SignedPlanArea", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.SignedPlanArea", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.SignedPlanArea(x, y);
        }

        /// <summary>Area of a plane polygon in space.</summary>
        /// <param name="x">X of the vertices [m].</param>
        /// <param name="y">Y of the vertices [m].</param>
        /// <param name="z">Z of the vertices [m].</param>
        /// <returns>Area [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>It is the sum of the triangles over the edges with the mean of the vertices as apex, all counted as
        /// positive: too large for a polygon that is not seen whole from there. Of the surfaces of real buildings 3.3 %
        /// come out too large by more than 0.1 %, half of these by more than 7 %.</para>
        /// <para>Source: Elementary geometry.</para>
        /// <para>The bits of GEAPO3 in quorvel.h.</para>
        /// </remarks>
        public static float AreaInSpace(float[] x, float[] y, float[] z)
        {
            Check.Length("Geometry.AreaInSpace", "x", x, 3, 2147483647);
            Check.Range("Geometry.AreaInSpace", "x", x, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.AreaInSpace", "y", y, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.AreaInSpace", "z", z, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.AreaInSpace(x, y, z);
        }

        /// <summary>Area, tilt and orientation of a plane polygon in space.</summary>
        /// <param name="polygon">Vertices [m].</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The normal points to where the corner at the first vertex is seen to turn anticlockwise: its opposite
        /// is the outward normal of a convex polygon that runs clockwise seen from outside.</para>
        /// <para>Only the corner at the first vertex gives the plane. Of 31605 surfaces of real buildings 141 begin
        /// within a straight side, and for 7 of these rounding alone decides the normal, so that area, tilt and
        /// orientation are wrong: let the first vertex be a true corner.</para>
        /// <para>The orientation of a nearly level polygon (the cosine of its tilt beyond 0.999) is the azimuth
        /// opposite to its first side if the normal points up, and that of the side if it points down.</para>
        /// <para>Degrees are radians times 180 by 3.141593, so that right angles can be one step off, and what faces
        /// north may get 0.00003.</para>
        /// <para>Source: Shoelace formula in the plane of the polygon.</para>
        /// <para>The bits of GEASO in quorvel.h.</para>
        /// </remarks>
        public static PolygonOrientation PolygonOrientation(float[,] polygon)
        {
            Check.Length("Geometry.PolygonOrientation", "polygon", polygon, 3, 2147483647);
            Check.Range("Geometry.PolygonOrientation", "polygon", polygon, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            return Unchecked.Geometry.PolygonOrientation(polygon);
        }

        /// <summary>Projection of a point along a direction, forwards or backwards, onto a plane.</summary>
        /// <param name="planePoint">A point of the plane [m].</param>
        /// <param name="planeNormal">Normal of the plane, of any length.</param>
        /// <param name="point">The point [m].</param>
        /// <param name="direction">Direction, of any length.</param>
        /// <returns>Projected point [m]; 1e20 where there is none.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction .
        /// planeNormal)</para>
        /// <para>A direction parallel to the plane (its dot product with the normal of magnitude 1e-15 or less, or not
        /// a number) gives 1e20 in all coordinates.</para>
        /// <para>Source: Elementary analytic geometry.</para>
        /// <para>The bits of GEPROJ in quorvel.h.</para>
        /// </remarks>
        public static float[] Projection(float[] planePoint, float[] planeNormal, float[] point, float[] direction)
        {
            Check.Range("Geometry.Projection", "planePoint", planePoint, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.Projection", "planeNormal", planeNormal, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            Check.Range("Geometry.Projection", "point", point, -float.PositiveInfinity, float.PositiveInfinity, " m");
            Check.Range("Geometry.Projection", "direction", direction, -float.PositiveInfinity, float.PositiveInfinity,
                "");
            return Unchecked.Geometry.Projection(planePoint, planeNormal, point, direction);
        }

        /// <summary>Projection of a point along a direction, forwards only, onto a plane.</summary>
        /// <param name="planePoint">A point of the plane [m].</param>
        /// <param name="planeNormal">Normal of the plane, of any length.</param>
        /// <param name="point">The point [m].</param>
        /// <param name="direction">Direction, of any length.</param>
        /// <returns>Projected point [m]; 1e20 where there is none.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction .
        /// planeNormal)</para>
        /// <para>A direction parallel to the plane or away from it, and a point that is in the plane already, give 1e20
        /// in all coordinates.</para>
        /// <para>Forwards means that the way from the point to its projection, scaled to length 1, differs from the
        /// direction, scaled so, by 1e-6 at most in each component. Coordinates that are large beside the way to the
        /// plane can spoil that by rounding: at site coordinates of real buildings, about 7 % of the points whose
        /// projection lies ahead are not found.</para>
        /// <para>Source: As <c>Geometry.Projection</c>.</para>
        /// <para>The bits of GEPROJ2 in quorvel.h.</para>
        /// </remarks>
        public static float[] ForwardProjection(float[] planePoint, float[] planeNormal, float[] point,
            float[] direction)
        {
            Check.Range("Geometry.ForwardProjection", "planePoint", planePoint, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.ForwardProjection", "planeNormal", planeNormal, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            Check.Range("Geometry.ForwardProjection", "point", point, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.ForwardProjection", "direction", direction, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            return Unchecked.Geometry.ForwardProjection(planePoint, planeNormal, point, direction);
        }

        /// <summary>Projection of a point along a direction onto a plane, or the point itself where the plane does not
        /// lie ahead.</summary>
        /// <param name="planePoint">A point of the plane [m].</param>
        /// <param name="planeNormal">Normal of the plane, of any length.</param>
        /// <param name="point">The point [m].</param>
        /// <param name="direction">Direction, of any length.</param>
        /// <returns>Projected point, or the point itself [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: point + t direction, t = (planePoint - point) . planeNormal / (direction .
        /// planeNormal)</para>
        /// <para>A direction whose product with the normal is exactly 0 gives what the division by zero makes of it:
        /// infinities or not a number. There is no other limit for parallel directions, so that the length of the
        /// normal does not matter.</para>
        /// <para>Ahead is as in <c>Geometry.ForwardProjection</c>, and so about 7 % of the points at site coordinates
        /// of real buildings are returned as they are, although the plane lies ahead.</para>
        /// <para>Source: As <c>Geometry.Projection</c>.</para>
        /// <para>The bits of GEPROJ3 in quorvel.h.</para>
        /// </remarks>
        public static float[] ForwardProjectionOrStart(float[] planePoint, float[] planeNormal, float[] point,
            float[] direction)
        {
            Check.Range("Geometry.ForwardProjectionOrStart", "planePoint", planePoint, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.ForwardProjectionOrStart", "planeNormal", planeNormal, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            Check.Range("Geometry.ForwardProjectionOrStart", "point", point, -float.PositiveInfinity,
                float.PositiveInfinity, " m");
            Check.Range("Geometry.ForwardProjectionOrStart", "direction", direction, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            return Unchecked.Geometry.ForwardProjectionOrStart(planePoint, planeNormal, point, direction);
        }

        /// <summary>Dot product of two vectors.</summary>
        /// <param name="vectorA">Vector [m].</param>
        /// <param name="vectorB">Vector [m].</param>
        /// <returns>A . b [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: a1 b1 + a2 b2 + a3 b3</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEDOTP in quorvel.h.</para>
        /// </remarks>
        public static float DotProduct(float[] vectorA, float[] vectorB)
        {
            Check.Range("Geometry.DotProduct", "vectorA", vectorA, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.DotProduct", "vectorB", vectorB, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            return Unchecked.Geometry.DotProduct(vectorA, vectorB);
        }

        /// <summary>Dot product of two vectors in double precision.</summary>
        /// <param name="vectorA">Vector [m].</param>
        /// <param name="vectorB">Vector [m].</param>
        /// <returns>A . b [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: a1 b1 + a2 b2 + a3 b3</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEDTDP in quorvel.h.</para>
        /// </remarks>
        public static double DotProductInDouble(double[] vectorA, double[] vectorB)
        {
            Check.Range("Geometry.DotProductInDouble", "vectorA", vectorA, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            Check.Range("Geometry.DotProductInDouble", "vectorB", vectorB, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.DotProductInDouble(vectorA, vectorB);
        }

        /// <summary>Cross product of two vectors.</summary>
        /// <param name="vectorA">Vector [m].</param>
        /// <param name="vectorB">Vector [m].</param>
        /// <returns>A x b [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEXPRO in quorvel.h.</para>
        /// </remarks>
        public static float[] CrossProduct(float[] vectorA, float[] vectorB)
        {
            Check.Range("Geometry.CrossProduct", "vectorA", vectorA, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            Check.Range("Geometry.CrossProduct", "vectorB", vectorB, -float.PositiveInfinity, float.PositiveInfinity,
                " m");
            return Unchecked.Geometry.CrossProduct(vectorA, vectorB);
        }

        /// <summary>Cross product of two vectors in double precision.</summary>
        /// <param name="vectorA">Vector [m].</param>
        /// <param name="vectorB">Vector [m].</param>
        /// <returns>A x b [m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: (a2 b3 - a3 b2, a3 b1 - a1 b3, a1 b2 - a2 b1)</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEXPDP in quorvel.h.</para>
        /// </remarks>
        public static double[] CrossProductInDouble(double[] vectorA, double[] vectorB)
        {
            Check.Range("Geometry.CrossProductInDouble", "vectorA", vectorA, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            Check.Range("Geometry.CrossProductInDouble", "vectorB", vectorB, -double.PositiveInfinity,
                double.PositiveInfinity, " m");
            return Unchecked.Geometry.CrossProductInDouble(vectorA, vectorB);
        }

        /// <summary>Length of a vector.</summary>
        /// <param name="vector">Vector [m].</param>
        /// <returns>Length [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: sqrt(v1^2 + v2^2 + v3^2)</para>
        /// <para>Squares beyond the range of a float make the length infinite or 0: from about 1e19, below about
        /// 1e-23.</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEVMOD in quorvel.h.</para>
        /// </remarks>
        public static float Length(float[] vector)
        {
            Check.Range("Geometry.Length", "vector", vector, -float.PositiveInfinity, float.PositiveInfinity, " m");
            return Unchecked.Geometry.Length(vector);
        }

        /// <summary>Length of a vector in double precision.</summary>
        /// <param name="vector">Vector [m].</param>
        /// <returns>Length [m].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: sqrt(v1^2 + v2^2 + v3^2)</para>
        /// <para>Source: Definition.</para>
        /// <para>The bits of GEVMDP in quorvel.h.</para>
        /// </remarks>
        public static double LengthInDouble(double[] vector)
        {
            Check.Range("Geometry.LengthInDouble", "vector", vector, -double.PositiveInfinity, double.PositiveInfinity,
                " m");
            return Unchecked.Geometry.LengthInDouble(vector);
        }
    }

    public static partial class Unchecked
    {
        /// <summary>Geometry, unchecked.</summary>
        public static class Geometry
        {
            /// <summary>HOHOLEDP as it is in quorvel.h.</summary>
            public static Clip Clip(double[] x, double[] y, int[] positionsA, int[] positionsB, int crossingCapacity,
                int differenceCapacity, int overlapCapacity, int usedPoints)
            {
                int verticesA = Check.Count("Geometry.Clip", "positionsA", positionsA);
                int verticesB = Check.Count("Geometry.Clip", "positionsB", positionsB);
                int pointCapacity = Check.Count("Geometry.Clip", "x", x);
                Check.Count("Geometry.Clip", "y", y, "x", pointCapacity);
                Check.Room("Geometry.Clip", "differenceCapacity", differenceCapacity);
                Check.Room("Geometry.Clip", "overlapCapacity", overlapCapacity);
                var results = new Clip { X = (double[])x.Clone(), Y = (double[])y.Clone(), UsedPoints = usedPoints,
                    DifferencePieces = new int[Math.Max(0, differenceCapacity)], OverlapPieces = new int[Math.Max(0,
                    overlapCapacity)] };
                Native.HOHOLEDP(results.X, results.Y, ref verticesA, positionsA, ref verticesB, positionsB,
                    ref pointCapacity, ref crossingCapacity, ref differenceCapacity, ref overlapCapacity,
                    ref results.UsedPoints, results.DifferencePieces, results.OverlapPieces, ref results.Status);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Overlap(float[], float[], float[], float[])"/>
            public static Overlap Overlap(float[] x1, float[] y1, float[] x2, float[] y2)
            {
                int vertices1 = Check.Count("Geometry.Overlap", "x1", x1);
                Check.Count("Geometry.Overlap", "y1", y1, "x1", vertices1);
                int vertices2 = Check.Count("Geometry.Overlap", "x2", x2);
                Check.Count("Geometry.Overlap", "y2", y2, "x2", vertices2);
                var results = new Overlap { PieceX = new float[5, 25], PieceY = new float[5, 25],
                    PieceVertices = new int[5], Area = float.NaN };
                Native.GEOVER(x1, y1, ref vertices1, x2, y2, ref vertices2, results.PieceX, results.PieceY,
                    results.PieceVertices, ref results.Area);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.OverlapAlias(float[], float[], float[], float[])"/>
            public static OverlapAlias OverlapAlias(float[] x1, float[] y1, float[] x2, float[] y2)
            {
                int vertices1 = Check.Count("Geometry.OverlapAlias", "x1", x1);
                Check.Count("Geometry.OverlapAlias", "y1", y1, "x1", vertices1);
                int vertices2 = Check.Count("Geometry.OverlapAlias", "x2", x2);
                Check.Count("Geometry.OverlapAlias", "y2", y2, "x2", vertices2);
                var results = new OverlapAlias { PieceX = new float[5, 25], PieceY = new float[5, 25],
                    PieceVertices = new int[5], Area = float.NaN };
                Native.GEHOLE(x1, y1, ref vertices1, x2, y2, ref vertices2, results.PieceX, results.PieceY,
                    results.PieceVertices, ref results.Area);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Collinearity(float[], float[])"/>
            public static int Collinearity(float[] x, float[] y)
            {
                int points = Check.Count("Geometry.Collinearity", "x", x);
                Check.Count("Geometry.Collinearity", "y", y, "x", points);
                return Native.IGELIN(x, y, ref points);
            }

            /// <inheritdoc cref="Quorvel.Geometry.CountEnclosed(float[], float[], float[], float[], Enclosed[])"/>
            public static CountEnclosed CountEnclosed(float[] x, float[] y, float[] pointX, float[] pointY,
                Enclosed[] enclosed)
            {
                int vertices = Check.Count("Geometry.CountEnclosed", "x", x);
                Check.Count("Geometry.CountEnclosed", "y", y, "x", vertices);
                int points = Check.Count("Geometry.CountEnclosed", "pointX", pointX);
                Check.Count("Geometry.CountEnclosed", "pointY", pointY, "pointX", points);
                Check.Count("Geometry.CountEnclosed", "enclosed", enclosed, "pointX", points);
                var results = new CountEnclosed { Enclosed = (Enclosed[])enclosed.Clone() };
                Native.GECLOS(x, y, ref vertices, pointX, pointY, ref points, results.Enclosed,
                    ref results.EnclosedPoints);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.BoundaryCrossing(float[], float[], float[], float[])"/>
            public static BoundaryCrossing BoundaryCrossing(float[] segmentStart, float[] segmentEnd, float[] x,
                float[] y)
            {
                int vertices = Check.Count("Geometry.BoundaryCrossing", "x", x);
                Check.Count("Geometry.BoundaryCrossing", "y", y, "x", vertices);
                Check.Shape("Geometry.BoundaryCrossing", "segmentStart", segmentStart, 2);
                Check.Shape("Geometry.BoundaryCrossing", "segmentEnd", segmentEnd, 2);
                var results = new BoundaryCrossing { CrossingPoint = new float[2] };
                Native.GESIDE(segmentStart, segmentEnd, x, y, ref vertices, results.CrossingPoint,
                    ref results.CrossingCode);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Inside(float[], float[,])"/>
            public static int Inside(float[] point, float[,] polygon)
            {
                int vertices = Check.Count("Geometry.Inside", "polygon", polygon);
                Check.Shape("Geometry.Inside", "point", point, 3);
                Check.Shape("Geometry.Inside", "polygon", polygon, -1, 3);
                int results = 0;
                Native.GEINSI(point, polygon, ref vertices, ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.ParallelPlanes(double[,], double[,])"/>
            public static bool ParallelPlanes(double[,] triangle1, double[,] triangle2)
            {
                Check.Shape("Geometry.ParallelPlanes", "triangle1", triangle1, 3, 3);
                Check.Shape("Geometry.ParallelPlanes", "triangle2", triangle2, 3, 3);
                return Native.GEPLEL(triangle1, triangle2) != 0;
            }

            /// <inheritdoc cref="Quorvel.Geometry.ParallelSides(double[,], double[,])"/>
            public static ParallelSides ParallelSides(double[,] triangle1, double[,] triangle2)
            {
                Check.Shape("Geometry.ParallelSides", "triangle1", triangle1, 3, 3);
                Check.Shape("Geometry.ParallelSides", "triangle2", triangle2, 3, 3);
                var results = new ParallelSides();
                results.Truth = Native.GEPSID(triangle1, triangle2, ref results.Side1, ref results.Side2) != 0;
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Rectangular(double[,])"/>
            public static bool Rectangular(double[,] quadrilateral)
            {
                Check.Shape("Geometry.Rectangular", "quadrilateral", quadrilateral, 4, 3);
                return Native.GERECT(quadrilateral) != 0;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Facing(double[,], double)"/>
            public static Facing Facing(double[,] triangle, double azimuth)
            {
                Check.Shape("Geometry.Facing", "triangle", triangle, 3, 3);
                var results = new Facing { Azimuth = azimuth, Tilt = double.NaN };
                Native.GETILT(triangle, ref results.Azimuth, ref results.Tilt);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.LocalCoordinates(double[,], double[,])"/>
            public static LocalCoordinates LocalCoordinates(double[,] quadrilateral1, double[,] quadrilateral2)
            {
                Check.Shape("Geometry.LocalCoordinates", "quadrilateral1", quadrilateral1, 4, 3);
                Check.Shape("Geometry.LocalCoordinates", "quadrilateral2", quadrilateral2, 4, 3);
                var results = new LocalCoordinates { Local1 = new double[4, 3], Local2 = new double[4, 3] };
                Native.GELCAL(quadrilateral1, quadrilateral2, results.Local1, results.Local2);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.ToLocal(double[,], double[], double[], double[])"/>
            public static double[,] ToLocal(double[,] corners, double[] xAxis, double[] yAxis, double[] zAxis)
            {
                Check.Shape("Geometry.ToLocal", "corners", corners, 4, 3);
                Check.Shape("Geometry.ToLocal", "xAxis", xAxis, 3);
                Check.Shape("Geometry.ToLocal", "yAxis", yAxis, 3);
                Check.Shape("Geometry.ToLocal", "zAxis", zAxis, 3);
                double[,] results = (double[,])corners.Clone();
                Native.GETRNS(results, xAxis, yAxis, zAxis);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.MeetingPoint(float[], float[], float[], float[])"/>
            public static float[] MeetingPoint(float[] line1Start, float[] line1End, float[] line2Start,
                float[] line2End)
            {
                Check.Shape("Geometry.MeetingPoint", "line1Start", line1Start, 2);
                Check.Shape("Geometry.MeetingPoint", "line1End", line1End, 2);
                Check.Shape("Geometry.MeetingPoint", "line2Start", line2Start, 2);
                Check.Shape("Geometry.MeetingPoint", "line2End", line2End, 2);
                float[] results = new float[2];
                Native.GEMEET(line1Start, line1End, line2Start, line2End, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.CrossingPoint(float[], float[], float[], float[])"/>
            public static float[] CrossingPoint(float[] segment1Start, float[] segment1End, float[] segment2Start,
                float[] segment2End)
            {
                Check.Shape("Geometry.CrossingPoint", "segment1Start", segment1Start, 2);
                Check.Shape("Geometry.CrossingPoint", "segment1End", segment1End, 2);
                Check.Shape("Geometry.CrossingPoint", "segment2Start", segment2Start, 2);
                Check.Shape("Geometry.CrossingPoint", "segment2End", segment2End, 2);
                float[] results = new float[2];
                Native.GECROS(segment1Start, segment1End, segment2Start, segment2End, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.InSpan(float[], float[], float[])"/>
            public static float InSpan(float[] firstEnd, float[] secondEnd, float[] point)
            {
                Check.Shape("Geometry.InSpan", "firstEnd", firstEnd, 3);
                Check.Shape("Geometry.InSpan", "secondEnd", secondEnd, 3);
                Check.Shape("Geometry.InSpan", "point", point, 3);
                return Native.GEINLN(firstEnd, secondEnd, point);
            }

            /// <inheritdoc cref="Quorvel.Geometry.AheadAndNearer(float[], float[], float[])"/>
            public static float AheadAndNearer(float[] firstEnd, float[] secondEnd, float[] point)
            {
                Check.Shape("Geometry.AheadAndNearer", "firstEnd", firstEnd, 3);
                Check.Shape("Geometry.AheadAndNearer", "secondEnd", secondEnd, 3);
                Check.Shape("Geometry.AheadAndNearer", "point", point, 3);
                return Native.GEINLN2(firstEnd, secondEnd, point);
            }

            /// <inheritdoc cref="Quorvel.Geometry.Coincide(float, float, float, float)"/>
            public static bool Coincide(float x1, float y1, float x2, float y2)
            {
                return Native.GECOIN(ref x1, ref y1, ref x2, ref y2) != 0;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Coincide(float, float, float, float)"/>
            public static bool[] Coincide(Input<float> x1, Input<float> y1, Input<float> x2, Input<float> y2)
            {
                int count = Elements.Count("Geometry.Coincide", ("x1", x1.Length), ("y1", y1.Length), ("x2", x2.Length),
                    ("y2", y2.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_coincide((UIntPtr)count, ref x1.First, x1.Stride, ref y1.First, y1.Stride,
                    ref x2.First, x2.Stride, ref y2.First, y2.Stride, ref Elements.First(results),
                    Elements<int>.Stride));
                return Elements.Logical(results);
            }

            /// <inheritdoc cref="Quorvel.Geometry.SideOfLine(float[], float[], float[])"/>
            public static int SideOfLine(float[] lineStart, float[] lineEnd, float[] point)
            {
                Check.Shape("Geometry.SideOfLine", "lineStart", lineStart, 2);
                Check.Shape("Geometry.SideOfLine", "lineEnd", lineEnd, 2);
                Check.Shape("Geometry.SideOfLine", "point", point, 2);
                return Native.IGEPNT(lineStart, lineEnd, point);
            }

            /// <inheritdoc cref="Quorvel.Geometry.BackAzimuth(float)"/>
            public static float BackAzimuth(float angle)
            {
                return Native.BORI(ref angle);
            }

            /// <inheritdoc cref="Quorvel.Geometry.BackAzimuth(float)"/>
            public static float[] BackAzimuth(Input<float> angle)
            {
                int count = Elements.Count("Geometry.BackAzimuth", ("angle", angle.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_back_azimuth((UIntPtr)count, ref angle.First, angle.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.DirectionTo(float, float)"/>
            public static float[] DirectionTo(float solarAltitude, float solarAzimuth)
            {
                float[] results = new float[3];
                Native.GESUNV(ref solarAltitude, ref solarAzimuth, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.SurfaceAxes(float, float)"/>
            public static SurfaceAxes SurfaceAxes(float surfaceAzimuth, float tilt)
            {
                var results = new SurfaceAxes { RotationMatrix = new float[3, 3], InverseMatrix = new float[3, 3] };
                Native.GERSET(ref surfaceAzimuth, ref tilt, results.RotationMatrix, results.InverseMatrix);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.LocalToGlobal(float[], float[,])"/>
            public static float[] LocalToGlobal(float[] localVector, float[,] rotationMatrix)
            {
                Check.Shape("Geometry.LocalToGlobal", "localVector", localVector, 3);
                Check.Shape("Geometry.LocalToGlobal", "rotationMatrix", rotationMatrix, 3, 3);
                float[] results = new float[3];
                Native.GERAXI(localVector, rotationMatrix, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.GlobalToLocal(float[], float[,])"/>
            public static float[] GlobalToLocal(float[] globalVector, float[,] rotationMatrix)
            {
                Check.Shape("Geometry.GlobalToLocal", "globalVector", globalVector, 3);
                Check.Shape("Geometry.GlobalToLocal", "rotationMatrix", rotationMatrix, 3, 3);
                float[] results = new float[3];
                Native.GERAX2(globalVector, rotationMatrix, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.PlanArea(float[], float[])"/>
            public static float PlanArea(float[] x, float[] y)
            {
                int vertices = Check.Count("Geometry.PlanArea", "x", x);
                Check.Count("Geometry.PlanArea", "y", y, "x", vertices);
                return Native.GEAPOL(x, y, ref vertices);
            }

            /// <inheritdoc cref="Quorvel.Geometry.SignedPlanArea(float[], float[])"/>
            public static float SignedPlanArea(float[] x, float[] y)
            {
                int vertices = Check.Count("Geometry.SignedPlanArea", "x", x);
                Check.Count("Geometry.SignedPlanArea", "y", y, "x", vertices);
                return Native.GEAPO2(x, y, ref vertices);
            }

            /// <inheritdoc cref="Quorvel.Geometry.AreaInSpace(float[], float[], float[])"/>
            public static float AreaInSpace(float[] x, float[] y, float[] z)
            {
                int vertices = Check.Count("Geometry.AreaInSpace", "x", x);
                Check.Count("Geometry.AreaInSpace", "y", y, "x", vertices);
                Check.Count("Geometry.AreaInSpace", "z", z, "x", vertices);
                return Native.GEAPO3(x, y, z, ref vertices);
            }

            /// <inheritdoc cref="Quorvel.Geometry.PolygonOrientation(float[,])"/>
            public static PolygonOrientation PolygonOrientation(float[,] polygon)
            {
                int vertices = Check.Count("Geometry.PolygonOrientation", "polygon", polygon);
                Check.Shape("Geometry.PolygonOrientation", "polygon", polygon, -1, 3);
                var results = new PolygonOrientation { Area = float.NaN, Tilt = float.NaN, BackAzimuth = float.NaN };
                Native.GEASO(ref vertices, polygon, ref results.Area, ref results.Tilt, ref results.BackAzimuth);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Projection(float[], float[], float[], float[])"/>
            public static float[] Projection(float[] planePoint, float[] planeNormal, float[] point, float[] direction)
            {
                Check.Shape("Geometry.Projection", "planePoint", planePoint, 3);
                Check.Shape("Geometry.Projection", "planeNormal", planeNormal, 3);
                Check.Shape("Geometry.Projection", "point", point, 3);
                Check.Shape("Geometry.Projection", "direction", direction, 3);
                float[] results = new float[3];
                Native.GEPROJ(planePoint, planeNormal, point, direction, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.ForwardProjection(float[], float[], float[], float[])"/>
            public static float[] ForwardProjection(float[] planePoint, float[] planeNormal, float[] point,
                float[] direction)
            {
                Check.Shape("Geometry.ForwardProjection", "planePoint", planePoint, 3);
                Check.Shape("Geometry.ForwardProjection", "planeNormal", planeNormal, 3);
                Check.Shape("Geometry.ForwardProjection", "point", point, 3);
                Check.Shape("Geometry.ForwardProjection", "direction", direction, 3);
                float[] results = new float[3];
                Native.GEPROJ2(planePoint, planeNormal, point, direction, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.ForwardProjectionOrStart(float[], float[], float[], float[])"/>
            public static float[] ForwardProjectionOrStart(float[] planePoint, float[] planeNormal, float[] point,
                float[] direction)
            {
                Check.Shape("Geometry.ForwardProjectionOrStart", "planePoint", planePoint, 3);
                Check.Shape("Geometry.ForwardProjectionOrStart", "planeNormal", planeNormal, 3);
                Check.Shape("Geometry.ForwardProjectionOrStart", "point", point, 3);
                Check.Shape("Geometry.ForwardProjectionOrStart", "direction", direction, 3);
                float[] results = new float[3];
                Native.GEPROJ3(planePoint, planeNormal, point, direction, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.DotProduct(float[], float[])"/>
            public static float DotProduct(float[] vectorA, float[] vectorB)
            {
                Check.Shape("Geometry.DotProduct", "vectorA", vectorA, 3);
                Check.Shape("Geometry.DotProduct", "vectorB", vectorB, 3);
                return Native.GEDOTP(vectorA, vectorB);
            }

            /// <inheritdoc cref="Quorvel.Geometry.DotProductInDouble(double[], double[])"/>
            public static double DotProductInDouble(double[] vectorA, double[] vectorB)
            {
                Check.Shape("Geometry.DotProductInDouble", "vectorA", vectorA, 3);
                Check.Shape("Geometry.DotProductInDouble", "vectorB", vectorB, 3);
                return Native.GEDTDP(vectorA, vectorB);
            }

            /// <inheritdoc cref="Quorvel.Geometry.CrossProduct(float[], float[])"/>
            public static float[] CrossProduct(float[] vectorA, float[] vectorB)
            {
                Check.Shape("Geometry.CrossProduct", "vectorA", vectorA, 3);
                Check.Shape("Geometry.CrossProduct", "vectorB", vectorB, 3);
                float[] results = new float[3];
                Native.GEXPRO(vectorA, vectorB, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.CrossProductInDouble(double[], double[])"/>
            public static double[] CrossProductInDouble(double[] vectorA, double[] vectorB)
            {
                Check.Shape("Geometry.CrossProductInDouble", "vectorA", vectorA, 3);
                Check.Shape("Geometry.CrossProductInDouble", "vectorB", vectorB, 3);
                double[] results = new double[3];
                Native.GEXPDP(vectorA, vectorB, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Geometry.Length(float[])"/>
            public static float Length(float[] vector)
            {
                Check.Shape("Geometry.Length", "vector", vector, 3);
                return Native.GEVMOD(vector);
            }

            /// <inheritdoc cref="Quorvel.Geometry.LengthInDouble(double[])"/>
            public static double LengthInDouble(double[] vector)
            {
                Check.Shape("Geometry.LengthInDouble", "vector", vector, 3);
                return Native.GEVMDP(vector);
            }
        }
    }
}
