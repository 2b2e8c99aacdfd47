using System;
using System.Collections.Generic;

namespace Quorvel
{
    /// <summary>A point in plan, in m. A pair of numbers is one too: <c>PlanPoint[] square = { (0, 0), (0, 2), (2, 2),
    /// (2, 0) };</c></summary>
    public struct PlanPoint
    {
        /// <summary>In m.</summary>
        public double X;

        /// <summary>In m.</summary>
        public double Y;

        /// <summary>Of its coordinates.</summary>
        public PlanPoint(double x, double y)
        {
            X = x;
            Y = y;
        }

        /// <summary>A pair of numbers as a point.</summary>
        public static implicit operator PlanPoint((double X, double Y) point) => new PlanPoint(point.X, point.Y);
    }

    /// <summary>What is left of a polygon A without another one, B, and what they have in common. The pieces run in
    /// the sense of A. Where B lies within A the difference is two pieces, which touch along level bridges.</summary>
    public sealed class Clipped
    {
        internal Clipped(PlanPoint[][] difference, PlanPoint[][] overlap)
        {
            Difference = difference;
            Overlap = overlap;
        }

        /// <summary>A without B.</summary>
        public PlanPoint[][] Difference { get; }

        /// <summary>A and B.</summary>
        public PlanPoint[][] Overlap { get; }
    }

    /// <summary>Two polygons cannot be clipped; says why.</summary>
    public sealed class ClippingException : ArgumentException
    {
        internal ClippingException(int status) : base($"Geometry.Clip: {ClippingStatus.Fault(status)}") =>
            Status = status;

        /// <summary>As HOHOLEDP of quorvel.h returns it.</summary>
        public int Status { get; }
    }

    // Polygons are lists of vertices one after the other, either way round.
    public static partial class Geometry
    {
        private const int FirstRoom = 64, MostRoom = 1 << 24, MostCrossings = 1024;

        /// <summary>Difference A - B and overlap of two polygons in plan.</summary>
        /// <remarks>Exact to about 1e-4 of the diagonal of the box round both, times the length of the boundaries; the
        /// areas of difference and overlap add up to that of A to rounding.</remarks>
        /// <exception cref="ClippingException">A polygon crosses itself, has no area or fewer than 3 vertices, or
        /// coordinates that are not numbers, or the two cross more than 1024 times.</exception>
        public static Clipped Clip(IReadOnlyList<PlanPoint> a, IReadOnlyList<PlanPoint> b)
        {
            int given = Check.NotNull("a", a).Count + Check.NotNull("b", b).Count;
            for (int room = FirstRoom; ; room *= 2)
            {
                double[] x = new double[given + room], y = new double[given + room];
                Fill(a, 0, x, y);
                Fill(b, a.Count, x, y);
                Clip found = Unchecked.Geometry.Clip(x, y, Positions(1, a.Count), Positions(1 + a.Count, b.Count),
                    MostCrossings, given + room, given + room, given);
                if (ClippingStatus.IsShortOfRoom(found.Status) && room < MostRoom) continue;
                if (found.Status != 0) throw new ClippingException(found.Status);
                return new Clipped(Pieces(found, found.DifferencePieces), Pieces(found, found.OverlapPieces));
            }
        }

        /// <summary>Area that two polygons in plan have in common [m²].</summary>
        /// <exception cref="ClippingException">As of <see cref="Clip"/>.</exception>
        public static double OverlapArea(IReadOnlyList<PlanPoint> a, IReadOnlyList<PlanPoint> b)
        {
            double sum = 0;
            foreach (PlanPoint[] piece in Clip(a, b).Overlap) sum += Area(piece);
            return sum;
        }

        /// <summary>Area of a polygon in plan [m²], whichever way round it is.</summary>
        public static double Area(IReadOnlyList<PlanPoint> polygon)
        {
            double twice = 0;
            for (int k = 2; k < Check.NotNull("polygon", polygon).Count; ++k)
            {
                PlanPoint o = polygon[0], p = polygon[k - 1], q = polygon[k];
                twice += (q.X - o.X) * (p.Y - o.Y) - (p.X - o.X) * (q.Y - o.Y);
            }
            return Math.Abs(twice) / 2;
        }

        private static void Fill(IReadOnlyList<PlanPoint> polygon, int first, double[] x, double[] y)
        {
            for (int k = 0; k < polygon.Count; ++k)
            {
                x[first + k] = polygon[k].X;
                y[first + k] = polygon[k].Y;
                if (double.IsNaN(x[first + k] - x[first + k]) || double.IsNaN(y[first + k] - y[first + k]))
                    throw new ClippingException(109);
            }
        }

        private static int[] Positions(int first, int count)
        {
            var positions = new int[count];
            for (int k = 0; k < count; ++k) positions[k] = first + k;
            return positions;
        }

        // A list has the number of vertices of each piece, their positions from 1, negative where a bridge begins, and
        // a 0 at last.
        private static PlanPoint[][] Pieces(Clip found, int[] list)
        {
            var pieces = new List<PlanPoint[]>();
            for (int at = 0; list[at] != 0; at += list[at] + 1)
            {
                var piece = new PlanPoint[list[at]];
                for (int k = 0; k < piece.Length; ++k)
                {
                    int place = Math.Abs(list[at + 1 + k]) - 1;
                    piece[k] = new PlanPoint(found.X[place], found.Y[place]);
                }
                pieces.Add(piece);
            }
            return pieces.ToArray();
        }
    }
}
