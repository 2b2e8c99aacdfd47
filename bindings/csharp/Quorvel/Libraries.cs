using System;
using System.Runtime.InteropServices;
using System.Text;

namespace Quorvel
{
    // quorvel.dll and quorvel_arrays.dll, or libquorvel.so and libquorvel_arrays.so: beside the program, or where the
    // system looks for libraries.
    internal static partial class Native
    {
        private const string Library = "quorvel", Arrays = "quorvel_arrays";
        private const CallingConvention C = CallingConvention.Cdecl;
    }

    /// <summary>All routines without a look at the values: what is outside of the valid ranges gets what the remarks
    /// of the methods say, to the bit as in C. Lists must still be as long as one another.</summary>
    public static partial class Unchecked
    {
    }

    /// <summary>Stand for arguments that no routine reads.</summary>
    internal static class Unread
    {
        internal static float Real = 0;
        internal static double DoubleReal = 0;
        internal static int Integer = 0;
    }

    /// <summary>Arrays of not-a-number, for what a call may leave as it was.</summary>
    internal static class Blank
    {
        internal static float[] Of(float[] values)
        {
            for (int k = 0; k < values.Length; ++k) values[k] = float.NaN;
            return values;
        }

        internal static double[] Of(double[] values)
        {
            for (int k = 0; k < values.Length; ++k) values[k] = double.NaN;
            return values;
        }

        internal static float[,] Of(float[,] values)
        {
            for (int k = 0; k < values.Length; ++k) values[k / values.GetLength(1), k % values.GetLength(1)] = float.NaN;
            return values;
        }

        internal static double[,] Of(double[,] values)
        {
            for (int k = 0; k < values.Length; ++k) values[k / values.GetLength(1), k % values.GetLength(1)] = double.NaN;
            return values;
        }
    }

    internal static class Text
    {
        /// <summary>Bytes that end with a NUL.</summary>
        internal static byte[] Of(string routine, string name, string text)
        {
            if (Check.NotNull(name, text).IndexOf('\0') >= 0)
                throw new ArgumentException($"{routine}: {name} has a NUL in it", name);
            return Encoding.UTF8.GetBytes(text + '\0');
        }
    }
}
