using System;
using System.Collections.Generic;
using System.IO;
using System.Linq;
using System.Threading.Tasks;
using Quorvel;

/// <summary>Runs all tests in the folder that it is started in, which has the corpus and the climate data
/// file.</summary>
internal static class Program
{
    private static readonly float[] many = new float[21]; // layers
    private static readonly PlanPoint[] square = { (0, 0), (0, 2), (2, 2), (2, 0) };

    private static int Main()
    {
        Examples.Run();
        Test.That("all examples", Test.Held >= Examples.Count);
        CorpusCalls.Run();
        Test.Equal("routines of the corpus", Corpus.Routines, Directory.GetFiles("corpus").Length);
        Refused();
        LeftAlone();
        WholeArrays();
        ClimateFiles();
        Polygons();
        Threads();
        Console.WriteLine($"{Test.Held} held, {Test.Failed} failed");
        return Test.Failed == 0 ? 0 : 1;
    }

    private static void Refused()
    {
        Test.Throws<ArgumentOutOfRangeException>("too high", () => Psychro.VapourPressure(20, 150),
            "Psychro.VapourPressure", "relativeHumidity = 150", "0 to 100 %");
        Test.Throws<ArgumentOutOfRangeException>("no number", () => Psychro.DewPoint(float.NaN), "vapourPressure",
            "NaN", "from 0 Pa");
        Test.Throws<ArgumentOutOfRangeException>("unknown selector",
            () => Psychro.VapourPressureFromPsychrometer(20, 14, 101325, (Psychrometer)3), "psychrometer = 3",
            "Sling, Screen");
        Test.Throws<ArgumentOutOfRangeException>("one of many", () => Psychro.DewPoint(new[] { 1000f, -1f }),
            "vapourPressure[1] = -1");
        Test.Throws<ArgumentException>("unequal arrays", () => Psychro.VapourPressure(new float[3], new float[2]),
            "relativeHumidity has 2 elements and dryBulb 3");
        Test.Throws<ArgumentException>("unequal lists", () => Fabric.UValue(new float[2], new float[3], 0.13f, 0.04f),
            "conductivity has 3 elements and thickness 2");
        Test.Throws<ArgumentException>("too many layers", () => Fabric.UValue(many, many, 0.13f, 0.04f), "0 to 20");
        Test.Throws<ArgumentException>("a vector of two", () => Geometry.Length(new float[2]),
            "vector has 2 elements, not 3");
        Test.Throws<ArgumentNullException>("no list", () => Geometry.PlanArea(null, new float[3]), "x");
        Test.Throws<ArgumentException>("a NUL", () => Climate.StationRecords("a\0b", 1, 1, new float[12, 11]), "NUL");
    }

    private static void LeftAlone()
    {
        Test.Equal("unchecked", Unchecked.Psychro.VapourPressure(20, 150), Unchecked.Psychro.VapourPressure(20, 100));
        var day = Unchecked.Climate.SolarGeometry(0.9f, 400, 12);
        Test.That("no such day, unchecked", float.IsNaN(day.Sunrise) && day.SolarAltitude == 0);
        Test.That("too many layers, unchecked", float.IsNaN(Unchecked.Fabric.UValue(many, many, 0.13f, 0.04f)));
        UnitDirectShares shares = Unchecked.Glazing.UnitDirectShares(0.5f, 0.1f, 0, 7);
        Test.That("so many panes, unchecked", shares.PaneShares.All(float.IsNaN));
        Test.Equal("fewer panes than none", Unchecked.Glazing.UnitDirectShares(0.5f, 0.1f, 0, -1).PaneShares.Length, 0);
        Test.Throws<ArgumentException>("no room, unchecked",
            () => Unchecked.Glazing.UnitDirectShares(0.5f, 0.1f, 0, int.MaxValue));
        Test.Throws<ArgumentException>("memory, unchecked",
            () => Unchecked.Fabric.UValue(new float[2], new float[3], 0, 0), "conductivity");
    }

    private static void WholeArrays()
    {
        float[] hours = Enumerable.Range(0, 24).Select(hour => (float)hour).ToArray();
        SolarGeometry[] day = Climate.SolarGeometry(0.9f, 172, hours);
        Test.That("highest at noon", day.All(of => of.SolarAltitude <= day[12].SolarAltitude));
        Test.Same("structure", Climate.SolarGeometry(0.9f, 172, 7).SolarAzimuth, day[7].SolarAzimuth);
        Test.Equal("nothing of nothing", Psychro.DewPoint(new float[0]).Length, 0);
        AdiabaticMixing mixed = Psychro.AdiabaticMixing(1, 20, 0.007f, 1, 30, 0.012f);
        mixed.Deconstruct(out float dryBulb, out float content, out float enthalpy); // which mcs does not call by itself
        Test.That("between both airs", dryBulb > 20 && dryBulb < 30 && content > 0.007f && enthalpy > 30);
        bool[] coincide = Geometry.Coincide(new[] { 0f, 5f }, 0, 0, 0);
        Test.That("logical", coincide[0] && !coincide[1]);
    }

    private static void ClimateFiles()
    {
        string name = "Klimadaten \u00e9\u6c17.climate"; // of two and three bytes in UTF-8
        File.Copy("example.climate", name, true);
        using (var file = new ClimateFile(name))
        {
            Test.Near("band", file.StationClimate(1, 1, band: 1).Q3, 2e-5, 4.337352);
            LocateStationBand band = file.LocateBand(1, 0.343052f, 1);
            Test.Equal("bands", (band.LowerBand, band.UpperBand), (3, 4));
            Test.Near("row", file.Row(1, 1), 0, 15, 14, 15);
            Test.Near("between rows", file.InterpolateRows(1, 12, band, 1), 2e-5, 0.532542);
            Test.Throws<IOException>("no such station", () => file.Row(5000, 1), name, "5000");
            Test.Throws<ArgumentException>("no such month", () => file.StationClimate(1, 13), "month = 13", "1 to 12");
            file.Dispose();
            Test.Throws<ObjectDisposedException>("closed", () => file.Row(1, 1));
        }
        Test.Throws<FileNotFoundException>("no file", () => new ClimateFile("no.climate"), "no.climate");
        Test.Throws<IOException>("a folder", () => new ClimateFile("corpus"), "corpus");
        Test.Throws<ArgumentException>("a NUL", () => new ClimateFile("a\0b"), "NUL");
    }

    private static void Polygons()
    {
        PlanPoint[] shifted = square.Select(point => new PlanPoint(point.X + 1, point.Y + 1)).ToArray();
        Clipped clipped = Geometry.Clip(square, shifted);
        Test.Near("overlap", clipped.Overlap.Sum(Geometry.Area), 1e-3, 1);
        Test.Near("both add up", clipped.Overlap.Concat(clipped.Difference).Sum(Geometry.Area), 1e-12, 4);
        PlanPoint[] apart = square.Select(point => new PlanPoint(point.X + 9, point.Y)).ToArray();
        Test.Equal("apart", Geometry.OverlapArea(square, apart), 0.0);
        PlanPoint[] upright = Comb();
        PlanPoint[] level = upright.Select(point => new PlanPoint(point.Y - 0.5, point.X + 0.5)).ToArray();
        Test.Equal("more crossings than there is room for at first", Geometry.Clip(upright, level).Overlap.Length, 25);
        PlanPoint[] bow = { (0, 0), (2, 2), (2, 0), (0, 2) };
        Test.Throws<ClippingException>("crosses itself", () => Geometry.Clip(bow, square), "a crosses itself");
        PlanPoint[] endless = { (0, 0), (0, 1), (1, double.NaN) };
        Test.Throws<ClippingException>("no number", () => Geometry.Clip(square, endless), "not numbers");
    }

    /// <summary>Five teeth, 1 m wide and 10 m high, on a bar.</summary>
    private static PlanPoint[] Comb()
    {
        var points = new List<PlanPoint> { (9, -1), (0, -1) };
        for (int k = 0; k < 10; k += 2) points.AddRange(new PlanPoint[] { (k, 0), (k, 10), (k + 1, 10), (k + 1, 0) });
        return points.ToArray();
    }

    private static void Threads()
    {
        float expected = Psychro.VapourPressure(20, 50);
        using (var file = new ClimateFile("example.climate"))
        {
            float[] row = file.Row(7, 20);
            Parallel.For(0, 2000, k => {
                if (Psychro.VapourPressure(20, 50) != expected) throw new Exception("another vapour pressure");
                file.Row(1 + k % 90, 1 + k % 160);
                if (!file.Row(7, 20).SequenceEqual(row)) throw new Exception("another row");
            });
        }
        Test.That("threads", true);
    }
}
