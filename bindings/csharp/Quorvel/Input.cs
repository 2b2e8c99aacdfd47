using System;
using System.Runtime.InteropServices;

namespace Quorvel
{
    /// <summary>What a method for whole arrays takes: an array with a value for each element, or one value that goes
    /// with all of them. Either converts by itself.</summary>
    public struct Input<T> where T : struct
    {
        private readonly T[] items;
        private readonly bool isOne;

        private Input(T[] items, bool isOne)
        {
            this.items = items;
            this.isOne = isOne;
        }

        /// <summary>One value for all elements.</summary>
        public static implicit operator Input<T>(T value) => new Input<T>(new[] { value }, true);

        /// <summary>A value for each element.</summary>
        public static implicit operator Input<T>(T[] values) => new Input<T>(values, false);

        internal T[] Items => items ?? throw new ArgumentNullException("values", "an array is null");
        internal int Length => isOne ? Elements.Any : Items.Length;
        internal IntPtr Stride => isOne ? IntPtr.Zero : Elements<T>.Stride;
        internal ref T First => ref Elements.First(Items);
    }

    /// <summary>Of arrays of one type.</summary>
    internal static class Elements<T>
    {
        /// <summary>In bytes.</summary>
        internal static readonly IntPtr Stride = (IntPtr)(typeof(T).IsEnum ? sizeof(int) : Marshal.SizeOf(typeof(T)));

        /// <summary>Stands for the first element of an empty array.</summary>
        internal static T None;
    }

    internal static class Elements
    {
        /// <summary>The length of what goes with any number of elements.</summary>
        internal const int Any = -1;

        /// <summary>The number of elements, in which all arrays must agree.</summary>
        internal static int Count(string routine, params (string Name, int Length)[] inputs)
        {
            int known = Array.FindIndex(inputs, input => input.Length != Any);
            if (known < 0) return 1;
            foreach (var input in inputs)
                if (input.Length != Any && input.Length != inputs[known].Length)
                    throw new ArgumentException($"{routine}: {input.Name} has {input.Length} elements and " +
                                                $"{inputs[known].Name} {inputs[known].Length}", input.Name);
            return inputs[known].Length;
        }

        internal static ref T First<T>(T[] items)
        {
            if (items.Length == 0) return ref Elements<T>.None;
            return ref items[0];
        }

        /// <summary>Of what has been checked and does not overlap, nothing can be refused.</summary>
        internal static void Done(int status)
        {
            if (status != 0) throw new InvalidOperationException($"the library of arrays returned the status {status}");
        }

        internal static bool[] Logical(int[] values) => Array.ConvertAll(values, value => value != 0);
    }
}
