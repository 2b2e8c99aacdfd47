using System;
using System.IO;
using System.Runtime.InteropServices;

namespace Quorvel
{
    /// <summary>An open climate data file: band climate of many stations, monthly.</summary>
    /// <remarks>
    /// <para>Objects have nothing in common, those of one file either. Any thread may use one; one waits for the
    /// other.</para>
    /// <para>Bad input is an <see cref="ArgumentException"/>, a station that the file does not have an
    /// <see cref="IOException"/>.</para>
    /// </remarks>
    public sealed class ClimateFile : IDisposable
    {
        private readonly ClimateFileHandle file;

        /// <summary>Opens a regular file.</summary>
        /// <exception cref="FileNotFoundException">There is no such file.</exception>
        /// <exception cref="IOException">It is no regular file, or may not be read.</exception>
        public ClimateFile(string path)
        {
            file = Native.quorvel_climate_file_open(Text.Of("ClimateFile", "path", path), out int status);
            Path = path;
            if (!file.IsInvalid) return;
            if (status == Native.NoMemory) throw new OutOfMemoryException();
            if (!File.Exists(path) && !Directory.Exists(path))
                throw new FileNotFoundException($"there is no climate data file {path}", path);
            throw new IOException($"{path}: cannot be read as a climate data file");
        }

        /// <summary>As it was given.</summary>
        public string Path { get; }

        /// <summary>Closes the file.</summary>
        public void Dispose() => file.Dispose();

        /// <summary>Climate of a month, 1 to 12: of a band from 1 to 10 or, for band 0, at a cumulative percentage of
        /// days.</summary>
        public StationClimate StationClimate(int station, int month, int band = 0, float percentage = 0,
            BandSet bandSet = BandSet.First)
        {
            Climate.CheckStationClimate(FileUnit.OpenedLast, station, band, month, bandSet, percentage);
            float[] q = new float[7], times = new float[2];
            lock (file)
                Found(station, Native.quorvel_climate_file_station_climate(
                    file, station, band, month, bandSet, percentage, q, times));
            return new StationClimate {
                Q1 = q[0], Q2 = q[1], Q3 = q[2], Q4 = q[3], Q5 = q[4], Q6 = q[5], Q7 = q[6],
                TimeA = times[0], TimeB = times[1]
            };
        }

        /// <summary>Where a cumulative fraction of days, 0 to 1, lies among the ten bands of a month.</summary>
        public LocateStationBand LocateBand(int station, float fraction, int month, BandSet bandSet = BandSet.First)
        {
            CheckStation(station);
            Climate.CheckLocateStationBand(fraction, month);
            var band = new LocateStationBand();
            lock (file)
                Found(station, Native.quorvel_climate_file_locate_station_band(
                    file, station, bandSet, fraction, month, out band.LowerBand, out band.UpperBand,
                    out band.BandWeight));
            return band;
        }

        /// <summary>Value between the rows `baseRow + band.LowerBand` and `baseRow + band.UpperBand`.</summary>
        public float InterpolateRows(int station, int baseRow, LocateStationBand band, int month)
        {
            CheckStation(station);
            Climate.CheckInterpolateStationRows(baseRow, band.LowerBand, band.UpperBand, month, band.BandWeight);
            float value;
            lock (file)
                Found(station, Native.quorvel_climate_file_interpolate_station_rows(
                    file, station, baseRow, band.LowerBand, band.UpperBand, month, band.BandWeight, out value));
            return value;
        }

        /// <summary>A row, a value for each month: 1 time A, 2 time B, 3 to 12 frequencies of the bands, 13 to 82 Q1 to
        /// Q7, ten each; 82 more in set 2.</summary>
        public float[] Row(int station, int row)
        {
            CheckStation(station);
            Climate.CheckStationRow(row);
            var values = new float[12];
            lock (file) Found(station, Native.quorvel_climate_file_station_row(file, station, row, values));
            return values;
        }

        private static void CheckStation(int station)
            => Check.Range("ClimateFile", "station", station, 1, int.MaxValue, "");

        private void Found(int station, int status)
        {
            if (status != 0) throw new IOException($"{Path}: station {station} cannot be read");
        }
    }

    internal sealed class ClimateFileHandle : SafeHandle
    {
        public ClimateFileHandle() : base(IntPtr.Zero, true)
        {
        }

        public override bool IsInvalid => handle == IntPtr.Zero;

        protected override bool ReleaseHandle()
        {
            Native.quorvel_climate_file_close(handle);
            return true;
        }
    }

    internal static partial class Native
    {
        internal const int NoMemory = 6;

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern ClimateFileHandle quorvel_climate_file_open([In] byte[] path, out int status);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern void quorvel_climate_file_close(IntPtr file);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_climate_file_station_climate(ClimateFileHandle file, int station, int band,
            int month, BandSet bandSet, float percentage, [In, Out] float[] quantities, [In, Out] float[] times);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_climate_file_locate_station_band(ClimateFileHandle file, int station,
            BandSet bandSet, float fraction, int month, out int lowerBand, out int upperBand, out float bandWeight);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_climate_file_interpolate_station_rows(ClimateFileHandle file, int station,
            int baseRow, int lowerBand, int upperBand, int month, float bandWeight, out float value);

        [DllImport(Arrays, CallingConvention = C)]
        internal static extern int quorvel_climate_file_station_row(ClimateFileHandle file, int station, int row,
            [In, Out] float[] values);
    }
}
