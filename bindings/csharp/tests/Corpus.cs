using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Text;
using Quorvel;

/// <summary>The calls of one routine in the corpus, column by column: arguments before the call, then what it left.
/// </summary>
internal sealed class Corpus
{
    private const int Cases = CorpusCalls.Cases;
    private const uint Untouched = 0xC5C5C5C5;
    private const int TextWords = 16;

    internal static int Routines { get; private set; }

    private readonly string routine;
    private readonly byte[] bytes;
    private readonly int wordsOfCase;
    private bool[] chosen = Enumerable.Repeat(true, Cases).ToArray();
    private int place;

    private Corpus(string routine)
    {
        this.routine = routine;
        bytes = File.ReadAllBytes(Path.Combine("corpus", routine));
        wordsOfCase = bytes.Length / 4 / Cases;
    }

    /// <summary>From the state in which the corpus begins.</summary>
    internal static void Run(string routine, Action<Corpus> test)
    {
        ++Routines;
        var records = new float[12, 11];
        for (int k = 0; k < records.Length; ++k) records[k / 11, k % 11] = 1;
        Unchecked.Climate.StationRecords("example.climate", 1, 0, records);
        var corpus = new Corpus(routine);
        test(corpus);
        Test.Equal($"{routine}: words of a case", corpus.place, corpus.wordsOfCase);
        Test.That($"{routine}: most cases can be called", corpus.chosen.Count(one => one) > Cases / 2);
    }

    internal float[] Reals() => Column(1, BitConverter.ToSingle);
    internal int[] Integers() => Column(1, BitConverter.ToInt32);
    internal double[] Doubles() => Column(2, BitConverter.ToDouble);
    internal T[] Selectors<T>() => Selected<T>(Integers());
    internal float[][] Reals(int room)
        => Column(room, (from, at) => Numbers(room, k => BitConverter.ToSingle(from, at + 4 * k)));
    internal int[][] Integers(int room)
        => Column(room, (from, at) => Numbers(room, k => BitConverter.ToInt32(from, at + 4 * k)));
    internal double[][] Doubles(int room)
        => Column(2 * room, (from, at) => Numbers(room, k => BitConverter.ToDouble(from, at + 8 * k)));
    internal T[][] Selectors<T>(int room) => Integers(room).Select(Selected<T>).ToArray();
    internal string[] Texts() => Column(TextWords, TextAt);

    /// <summary>The beginning of a list: as much as is counted.</summary>
    internal static T[] Part<T>(T[] list, int count) => list.Take(count).ToArray();

    internal static T[,] Part<T>(T[] list, int rows, int columns)
    {
        var matrix = new T[rows, columns];
        for (int k = 0; k < matrix.Length; ++k) matrix[k / columns, k % columns] = list[k];
        return matrix;
    }

    /// <summary>Leaves out cases that no list can tell.</summary>
    internal void Only(Func<int, bool> which) => chosen = Numbers(Cases, which);

    internal T[] Each<T>(Func<int, T> call) => Numbers(Cases, i => chosen[i] ? call(i) : default(T));

    /// <summary>Holds the next column against what calls gave. What a call leaves as it was is not a number.</summary>
    internal void Left(string name, int words, params Func<int, object>[] got)
    {
        uint[][] left = Column(words, (from, at) => Numbers(words, k => BitConverter.ToUInt32(from, at + 4 * k)));
        foreach (var of in got)
        {
            int differing = Enumerable.Range(0, Cases).Count(i => chosen[i] && !AreSame(Test.Words(of(i)), left[i]));
            Test.That($"{routine}, {name}: {differing} cases differ", differing == 0);
        }
    }

    private static T[] Selected<T>(int[] numbers) => Array.ConvertAll(numbers, number => (T)(object)number);

    private static bool AreSame(IEnumerable<uint> got, uint[] left)
        => got.Zip(left, (one, other) => one == other || other == Untouched && IsNone(one)).All(same => same);

    private static bool IsNone(uint word) => word == 0 || word == 0x7fc00000 || word == 0x7ff80000;

    // Bytes that are no text in any encoding are in names of no file only.
    private static string TextAt(byte[] from, int at)
    {
        int length = Array.IndexOf(from, (byte)0, at, 4 * TextWords) - at;
        return Encoding.GetEncoding("iso-8859-1").GetString(from, at, length);
    }

    private T[] Column<T>(int words, Func<byte[], int, T> read)
    {
        int first = place;
        place += words;
        return Numbers(Cases, i => read(bytes, 4 * (i * wordsOfCase + first)));
    }

    private static T[] Numbers<T>(int count, Func<int, T> number)
        => Enumerable.Range(0, count).Select(number).ToArray();
}
