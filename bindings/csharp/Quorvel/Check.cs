using System;
using System.Globalization;

namespace Quorvel
{
    /// <summary>What is refused, and in which words. Texts are made only where something is.</summary>
    internal static class Check
    {
        private const int MostRoom = 1 << 28;

        internal static void Range(string routine, string name, float value, float low, float high, string unit)
        {
            if (!(value >= low && value <= high)) Refuse(routine, name, value, Limits(low, high) + unit, name);
        }

        internal static void Range(string routine, string name, double value, double low, double high, string unit)
        {
            if (!(value >= low && value <= high)) Refuse(routine, name, value, Limits(low, high) + unit, name);
        }

        internal static void Range(string routine, string name, int value, int low, int high, string unit)
        {
            if (value < low || value > high) Refuse(routine, name, value, Limits(low, Limit(high)) + unit, name);
        }

        internal static void Range(string routine, string name, float[] values, float low, float high, string unit)
        {
            int at = Array.FindIndex(NotNull(name, values), value => !(value >= low && value <= high));
            if (at >= 0) Refuse(routine, $"{name}[{at}]", values[at], Limits(low, high) + unit, name);
        }

        internal static void Range(string routine, string name, double[] values, double low, double high, string unit)
        {
            int at = Array.FindIndex(NotNull(name, values), value => !(value >= low && value <= high));
            if (at >= 0) Refuse(routine, $"{name}[{at}]", values[at], Limits(low, high) + unit, name);
        }

        internal static void Range(string routine, string name, int[] values, int low, int high, string unit)
        {
            int at = Array.FindIndex(NotNull(name, values), value => value < low || value > high);
            if (at >= 0) Refuse(routine, $"{name}[{at}]", values[at], Limits(low, Limit(high)) + unit, name);
        }

        internal static void Range(string routine, string name, float[,] values, float low, float high, string unit)
        {
            foreach (float value in NotNull(name, values)) Range(routine, name, value, low, high, unit);
        }

        internal static void Range(string routine, string name, double[,] values, double low, double high, string unit)
        {
            foreach (double value in NotNull(name, values)) Range(routine, name, value, low, high, unit);
        }

        internal static void Range(string routine, string name, Input<float> values, float low, float high,
            string unit)
            => Range(routine, name, values.Items, low, high, unit);

        internal static void Range(string routine, string name, Input<double> values, double low, double high,
            string unit)
            => Range(routine, name, values.Items, low, high, unit);

        internal static void Range(string routine, string name, Input<int> values, int low, int high,
            string unit)
            => Range(routine, name, values.Items, low, high, unit);

        /// <summary>The values of an enumeration go from `low` to `high`.</summary>
        internal static void Selector<T>(string routine, string name, T value, int low, int high) where T : struct
        {
            int number = (int)(object)value;
            if (number < low || number > high)
                Refuse(routine, name, number, string.Join(", ", Enum.GetNames(typeof(T))), name);
        }

        internal static void Selector<T>(string routine, string name, T[] values, int low, int high) where T : struct
        {
            foreach (T value in NotNull(name, values)) Selector(routine, name, value, low, high);
        }

        internal static void Selector<T>(string routine, string name, Input<T> values, int low, int high)
            where T : struct
            => Selector(routine, name, values.Items, low, high);

        /// <summary>How many there are of what is counted: the extent that varies most slowly.</summary>
        internal static int Count(string routine, string name, Array list) => NotNull(name, list).GetLength(0);

        internal static void Count(string routine, string name, Array list, string other, int count)
        {
            if (Count(routine, name, list) != count)
                throw new ArgumentException(
                    $"{routine}: {name} has {list.GetLength(0)} elements and {other} {count}", name);
        }

        internal static void Length(string routine, string name, Array list, int low, int high)
        {
            int count = Count(routine, name, list);
            if (count >= low && count <= high) return;
            string limits = Limits(low, Limit(high));
            throw new ArgumentException($"{routine}: {name} has {count} elements; valid are {limits}", name);
        }

        /// <summary>As many numbers as are read or written; -1 for an extent of any length.</summary>
        internal static void Shape(string routine, string name, Array list, params int[] extents)
        {
            NotNull(name, list);
            string of = extents.Length > 1 ? "rows" : "elements";
            for (int k = 0; k < extents.Length; ++k, of = "columns")
                if (extents[k] >= 0 && list.GetLength(k) != extents[k])
                    throw new ArgumentException(
                        $"{routine}: {name} has {list.GetLength(k)} {of}, not {extents[k]}", name);
        }

        /// <summary>Results that are counted must fit into the memory.</summary>
        internal static void Room(string routine, string name, int count)
        {
            if (count > MostRoom) Refuse(routine, name, count, Limits(double.NegativeInfinity, MostRoom), name);
        }

        internal static T NotNull<T>(string name, T value) where T : class
            => value ?? throw new ArgumentNullException(name);

        private static double Limit(int high) => high == int.MaxValue ? double.PositiveInfinity : high;

        private static string Limits(double low, double high)
        {
            if (double.IsInfinity(low)) return double.IsInfinity(high) ? "any number" : $"to {Text(high)}";
            return double.IsInfinity(high) ? $"from {Text(low)}" : $"{Text(low)} to {Text(high)}";
        }

        private static string Text(double value) => value.ToString("G7", CultureInfo.InvariantCulture);

        private static void Refuse(string routine, string what, IConvertible value, string valid, string name)
        {
            string shown = value.ToString(CultureInfo.InvariantCulture);
            throw new ArgumentOutOfRangeException(name, value, $"{routine}: {what} = {shown} is not valid: {valid}");
        }
    }
}
