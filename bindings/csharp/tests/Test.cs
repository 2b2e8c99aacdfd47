using System;
using System.Collections;
using System.Collections.Generic;
using System.Linq;

/// <summary>What the tests hold against each other. A failure is told and counted; the rest goes on.</summary>
internal static class Test
{
    private const uint AnyNaN = 0x7fc00000;
    private const long AnyDoubleNaN = 0x7ff8000000000000;

    internal static int Held { get; private set; }
    internal static int Failed { get; private set; }

    internal static void That(string what, bool holds)
    {
        ++Held;
        if (holds) return;
        if (++Failed <= 50) Console.Error.WriteLine($"failed: {what}");
    }

    internal static void Equal(string what, object got, object expected)
        => That($"{what}: {got} and not {expected}", Equals(got, expected));

    internal static void Near(string what, object got, double within, params double[] expected)
    {
        double[] numbers = Each(got).Select(Convert.ToDouble).ToArray();
        That($"{what}: too few numbers", numbers.Length >= expected.Length);
        for (int k = 0; k < Math.Min(numbers.Length, expected.Length); ++k)
            That($"{what}: {numbers[k]} and not {expected[k]}", Math.Abs(numbers[k] - expected[k]) <= within);
    }

    internal static void Same(string what, object one, object other)
        => That($"{what}: {one} for one and {other} of an array", Words(one).SequenceEqual(Words(other)));

    internal static void Throws<T>(string what, Action action, params string[] words) where T : Exception
    {
        try
        {
            action();
        }
        catch (T error)
        {
            ++Held;
            foreach (string word in words)
                That($"{what}: \"{error.Message}\" has {word}", error.Message.Contains(word));
            return;
        }
        That($"{what}: throws {typeof(T).Name}", false);
    }

    internal static T[] Repeated<T>(T value) => new[] { value, value, value };

    /// <summary>The bits as the corpus writes them: one not-a-number for all.</summary>
    internal static IEnumerable<uint> Words(object value)
    {
        foreach (object number in Each(value))
        {
            if (number is float real)
            {
                yield return float.IsNaN(real) ? AnyNaN : BitConverter.ToUInt32(BitConverter.GetBytes(real), 0);
            }
            else if (number is double wide)
            {
                long bits = double.IsNaN(wide) ? AnyDoubleNaN : BitConverter.DoubleToInt64Bits(wide);
                yield return (uint)bits;
                yield return (uint)(bits >> 32);
            }
            else
            {
                yield return (uint)Convert.ToInt32(number);
            }
        }
    }

    /// <summary>The numbers of a value or an array; -1 for true.</summary>
    private static IEnumerable<object> Each(object value)
    {
        if (value is bool logical) return new object[] { logical ? -1 : 0 };
        return value is Array array ? array.Cast<object>() : new[] { value };
    }
}
