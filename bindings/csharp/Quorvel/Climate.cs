// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>What <c>Climate.LocateBand</c> returns.</summary>
    public struct LocateBand
    {
        /// <summary>Lower band, 1 to 9.</summary>
        public int LowerBand;

        /// <summary>Upper band, 2 to 10.</summary>
        public int UpperBand;

        /// <summary>(fraction - F(lower)) / (F(upper) - F(lower)), limited to -1 to 1.</summary>
        public float BandWeight;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out int lowerBand, out int upperBand, out float bandWeight)
        {
            lowerBand = LowerBand;
            upperBand = UpperBand;
            bandWeight = BandWeight;
        }
    }

    /// <summary>What <c>Climate.BandClimate</c> returns.</summary>
    public struct BandClimate
    {
        /// <summary>Cumulative percentage of days: given with band 0, otherwise returned [%]; as given with band
        /// 0.</summary>
        public float Percentage;

        /// <summary>Quantity Q1: beam factor.</summary>
        public float Q1;

        /// <summary>Quantity Q2: diffuse factor.</summary>
        public float Q2;

        /// <summary>Quantity Q3: air temperature at time A [°C].</summary>
        public float Q3;

        /// <summary>Quantity Q4: air temperature at time B [°C].</summary>
        public float Q4;

        /// <summary>Quantity Q5: wet-bulb temperature at time A [°C].</summary>
        public float Q5;

        /// <summary>Quantity Q6: wet-bulb temperature at time B [°C].</summary>
        public float Q6;

        /// <summary>Time A, in the afternoon [h].</summary>
        public float TimeA;

        /// <summary>Time B, about sunrise [h].</summary>
        public float TimeB;

        /// <summary>Quantity Q7: cloud-free share of the sky [%].</summary>
        public float Q7;

        /// <summary>Quantity Q8: wind speed [m/s].</summary>
        public float Q8;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float percentage, out float q1, out float q2, out float q3, out float q4,
            out float q5, out float q6, out float timeA, out float timeB, out float q7, out float q8)
        {
            percentage = Percentage;
            q1 = Q1;
            q2 = Q2;
            q3 = Q3;
            q4 = Q4;
            q5 = Q5;
            q6 = Q6;
            timeA = TimeA;
            timeB = TimeB;
            q7 = Q7;
            q8 = Q8;
        }
    }

    /// <summary>What <c>Climate.StationClimate</c> returns.</summary>
    public struct StationClimate
    {
        /// <summary>Quantity Q1, not below 0; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q1;

        /// <summary>Quantity Q2, not below 0; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q2;

        /// <summary>Quantity Q3, in the unit of the file; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q3;

        /// <summary>Quantity Q4, in the unit of the file; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q4;

        /// <summary>Quantity Q5, in the unit of the file; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q5;

        /// <summary>Quantity Q6, in the unit of the file; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q6;

        /// <summary>Quantity Q7, a fraction, 0 to 1; not a number when the file cannot be read, or with another
        /// unit.</summary>
        public float Q7;

        /// <summary>Time A [h]; not a number when the file cannot be read, or with another unit.</summary>
        public float TimeA;

        /// <summary>Time B [h]; not a number when the file cannot be read, or with another unit.</summary>
        public float TimeB;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float q1, out float q2, out float q3, out float q4, out float q5, out float q6,
            out float q7, out float timeA, out float timeB)
        {
            q1 = Q1;
            q2 = Q2;
            q3 = Q3;
            q4 = Q4;
            q5 = Q5;
            q6 = Q6;
            q7 = Q7;
            timeA = TimeA;
            timeB = TimeB;
        }
    }

    /// <summary>What <c>Climate.LocateStationBand</c> returns.</summary>
    public struct LocateStationBand
    {
        /// <summary>Lower band, 1 to 10.</summary>
        public int LowerBand;

        /// <summary>Upper band, 1 to 10.</summary>
        public int UpperBand;

        /// <summary>Size of (fraction - F(lower)) / (F(upper) - F(lower)), at most 1.</summary>
        public float BandWeight;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out int lowerBand, out int upperBand, out float bandWeight)
        {
            lowerBand = LowerBand;
            upperBand = UpperBand;
            bandWeight = BandWeight;
        }
    }

    /// <summary>What <c>Climate.DesignIrradiance</c> returns.</summary>
    public struct DesignIrradiance
    {
        /// <summary>Direct normal irradiance, the same for both skies [W/m²].</summary>
        public float DirectNormal;

        /// <summary>Diffuse irradiance on the horizontal [W/m²].</summary>
        public float DiffuseHorizontal;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float directNormal, out float diffuseHorizontal)
        {
            directNormal = DirectNormal;
            diffuseHorizontal = DiffuseHorizontal;
        }
    }

    /// <summary>What <c>Climate.MuneerSlope</c> returns.</summary>
    public struct MuneerSlope
    {
        /// <summary>Beam irradiance on the surface, 0 with the sun behind it [W/m²].</summary>
        public float SurfaceBeam;

        /// <summary>Diffuse irradiance of the sky on the surface [W/m²].</summary>
        public float SurfaceDiffuse;

        /// <summary>Ground-reflected irradiance on the surface [W/m²].</summary>
        public float GroundReflected;

        /// <summary>Angle of incidence, 1.5707964 with the sun behind the surface [rad].</summary>
        public float Incidence;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float surfaceBeam, out float surfaceDiffuse, out float groundReflected,
            out float incidence)
        {
            surfaceBeam = SurfaceBeam;
            surfaceDiffuse = SurfaceDiffuse;
            groundReflected = GroundReflected;
            incidence = Incidence;
        }
    }

    /// <summary>What <c>Climate.SiteConstants</c> returns.</summary>
    public struct SiteConstants
    {
        /// <summary>Reflectance of the ground.</summary>
        public float GroundReflectance;

        /// <summary>Factor on the direct normal irradiance.</summary>
        public float BeamFactor;

        /// <summary>Factor on the diffuse horizontal irradiance.</summary>
        public float DiffuseFactor;

        /// <summary>Factor that takes its place where it is 0.</summary>
        public float AlternativeDiffuseFactor;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float groundReflectance, out float beamFactor, out float diffuseFactor,
            out float alternativeDiffuseFactor)
        {
            groundReflectance = GroundReflectance;
            beamFactor = BeamFactor;
            diffuseFactor = DiffuseFactor;
            alternativeDiffuseFactor = AlternativeDiffuseFactor;
        }
    }

    /// <summary>What <c>Climate.AlmanacPosition</c> returns.</summary>
    public struct AlmanacPosition
    {
        /// <summary>Longitude, positive west [rad]; as given except with solar time.</summary>
        public float Longitude;

        /// <summary>Longitude of the clock's meridian, positive west [rad]; as given except with solar time.</summary>
        public float ZoneMeridian;

        /// <summary>Altitude, negative below the horizon; no refraction [rad].</summary>
        public float SolarAltitude;

        /// <summary>Azimuth [rad].</summary>
        public float SolarAzimuth;

        /// <summary>Declination [rad].</summary>
        public float Declination;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float longitude, out float zoneMeridian, out float solarAltitude,
            out float solarAzimuth, out float declination)
        {
            longitude = Longitude;
            zoneMeridian = ZoneMeridian;
            solarAltitude = SolarAltitude;
            solarAzimuth = SolarAzimuth;
            declination = Declination;
        }
    }

    /// <summary>What <c>Climate.AlmanacSunHours</c> returns.</summary>
    public struct AlmanacSunHours
    {
        /// <summary>Sunrise; 25 when the sun does not rise, 0 when it does not set [h].</summary>
        public float Sunrise;

        /// <summary>Sunset; 25 when the sun does not set, 0 when it does not rise [h].</summary>
        public float Sunset;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float sunrise, out float sunset)
        {
            sunrise = Sunrise;
            sunset = Sunset;
        }
    }

    /// <summary>What <c>Climate.SolarGeometry</c> returns.</summary>
    public struct SolarGeometry
    {
        /// <summary>Declination [rad].</summary>
        public float Declination;

        /// <summary>Altitude, 0 when the sun is below the horizon [rad].</summary>
        public float SolarAltitude;

        /// <summary>Azimuth, 0 when the sun is below the horizon [rad].</summary>
        public float SolarAzimuth;

        /// <summary>Sunrise; 25 when the sun does not rise, 0 when it does not set [h]; not a number with latitude, day
        /// or hour outside its range.</summary>
        public float Sunrise;

        /// <summary>Sunset; 25 when the sun does not set, 0 when it does not rise [h]; not a number with latitude, day
        /// or hour outside its range.</summary>
        public float Sunset;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float declination, out float solarAltitude, out float solarAzimuth,
            out float sunrise, out float sunset)
        {
            declination = Declination;
            solarAltitude = SolarAltitude;
            solarAzimuth = SolarAzimuth;
            sunrise = Sunrise;
            sunset = Sunset;
        }
    }

    /// <summary>What <c>Climate.SurfaceAngles</c> returns.</summary>
    public struct SurfaceAngles
    {
        /// <summary>Angle of incidence, 0 to pi; above pi/2 the sun is behind the surface [rad].</summary>
        public float Incidence;

        /// <summary>Angle off the normal in the plane of normal and slope, positive up the slope; the profile angle of
        /// a vertical surface [rad].</summary>
        public float VerticalShadowAngle;

        /// <summary>Angle off the normal in the plane of normal and level line, positive clockwise seen from above
        /// [rad].</summary>
        public float HorizontalShadowAngle;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float incidence, out float verticalShadowAngle, out float horizontalShadowAngle)
        {
            incidence = Incidence;
            verticalShadowAngle = VerticalShadowAngle;
            horizontalShadowAngle = HorizontalShadowAngle;
        }
    }

    /// <summary>What <c>Climate.SurfaceIrradiance</c> returns.</summary>
    public struct SurfaceIrradiance
    {
        /// <summary>Beam irradiance on the surface, 0 with the sun behind it [W/m²].</summary>
        public float SurfaceBeam;

        /// <summary>Diffuse irradiance of the sky on the surface [W/m²].</summary>
        public float SurfaceDiffuse;

        /// <summary>Ground-reflected irradiance on the surface [W/m²].</summary>
        public float GroundReflected;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float surfaceBeam, out float surfaceDiffuse, out float groundReflected)
        {
            surfaceBeam = SurfaceBeam;
            surfaceDiffuse = SurfaceDiffuse;
            groundReflected = GroundReflected;
        }
    }

    /// <summary>What <c>Climate.SurfaceIrradianceAndIncidence</c> returns.</summary>
    public struct SurfaceIrradianceAndIncidence
    {
        /// <summary>Beam irradiance on the surface, 0 with the sun behind it [W/m²].</summary>
        public float SurfaceBeam;

        /// <summary>Diffuse irradiance of the sky on the surface [W/m²].</summary>
        public float SurfaceDiffuse;

        /// <summary>Ground-reflected irradiance on the surface [W/m²].</summary>
        public float GroundReflected;

        /// <summary>Angle of incidence, 1.5707964 with the sun behind the surface [rad].</summary>
        public float Incidence;

        /// <summary>Into variables, in the order of the fields.</summary>
        public void Deconstruct(out float surfaceBeam, out float surfaceDiffuse, out float groundReflected,
            out float incidence)
        {
            surfaceBeam = SurfaceBeam;
            surfaceDiffuse = SurfaceDiffuse;
            groundReflected = GroundReflected;
            incidence = Incidence;
        }
    }

    /// <summary>Calendar, sun and sky.</summary>
    public static partial class Climate
    {
        /// <summary>Where a cumulative fraction of days lies among the ten bands of a month, in frequencies of the
        /// caller.</summary>
        /// <param name="fraction">Cumulative fraction of days; valid 0 to 1.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="frequencies">Cumulative frequencies of each band in each month, not falling with the band;
        /// valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Fractions, where <c>Climate.BandClimate</c> takes a percentage.</para>
        /// <para>At or below the first band's frequency the weight is 0 or negative. Bands of equal frequency are
        /// skipped upwards, to band 10 at most; for a fraction equal to the frequencies of all the rest the weight is
        /// not a number.</para>
        /// <para>A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10
        /// and a weight that is not a number.</para>
        /// <para>Source: Search for linear interpolation.</para>
        /// <para>The bits of CLBAN1 in quorvel.h.</para>
        /// </remarks>
        public static LocateBand LocateBand(float fraction, int month, float[,] frequencies)
        {
            Check.Range("Climate.LocateBand", "fraction", fraction, 0f, 1f, "");
            Check.Range("Climate.LocateBand", "month", month, 1, 12, "");
            Check.Range("Climate.LocateBand", "frequencies", frequencies, 0f, 1f, "");
            return Unchecked.Climate.LocateBand(fraction, month, frequencies);
        }

        /// <summary>Monthly climate of one of ten bands of days, or interpolated at a cumulative percentage of
        /// days.</summary>
        /// <param name="band">Band, or 0 to interpolate at the percentage; valid 0 to 10.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="bandSet">Set of bands.</param>
        /// <param name="percentage">Cumulative percentage of days: given with band 0, otherwise returned [%]; valid 0
        /// to 100.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A percentage below band 1 extrapolates backwards from it, by the step to band 2 at most; one above 100
        /// gives band 10.</para>
        /// <para>A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other
        /// than 2 as 1. A percentage that is not a number makes Q1 to Q8 not numbers.</para>
        /// <para>The table built in is representative and not measured; data/bands tells how it was made and how to
        /// build with data of your own. Q1 to Q8 mean what the table's maker says; the meanings here are those of the
        /// table built in.</para>
        /// <para>Source: Linear interpolation in the band table.</para>
        /// <para>The bits of CLBAND in quorvel.h.</para>
        /// </remarks>
        public static BandClimate BandClimate(int band, int month, BandSet bandSet, float percentage)
        {
            Check.Range("Climate.BandClimate", "band", band, 0, 10, "");
            Check.Range("Climate.BandClimate", "month", month, 1, 12, "");
            Check.Selector("Climate.BandClimate", "bandSet", bandSet, 1, 2);
            Check.Range("Climate.BandClimate", "percentage", percentage, 0f, 100f, " %");
            return Unchecked.Climate.BandClimate(band, month, bandSet, percentage);
        }

        /// <inheritdoc cref="Quorvel.Climate.BandClimate(int, int, BandSet, float)"/>
        public static BandClimate[] BandClimate(Input<int> band, Input<int> month, Input<BandSet> bandSet,
            Input<float> percentage)
        {
            Check.Range("Climate.BandClimate", "band", band, 0, 10, "");
            Check.Range("Climate.BandClimate", "month", month, 1, 12, "");
            Check.Selector("Climate.BandClimate", "bandSet", bandSet, 1, 2);
            Check.Range("Climate.BandClimate", "percentage", percentage, 0f, 100f, " %");
            return Unchecked.Climate.BandClimate(band, month, bandSet, percentage);
        }

        /// <summary>Value between two rows of the band table.</summary>
        /// <param name="baseRow">Row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 92
        /// more in set 2; valid 0 to 174.</param>
        /// <param name="lowerBand">Lower band; valid 1 to 10.</param>
        /// <param name="upperBand">Upper band; valid 1 to 10.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="bandWeight">Share of the step from the lower to the upper row; valid -1 to 1.</param>
        /// <returns>Value, in the quantity's unit.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Rows baseRow + lowerBand and baseRow + upperBand outside 1 to 184 count as the nearest row, a month
        /// outside 1 to 12 as the nearest month.</para>
        /// <para>Source: Linear interpolation in the band table.</para>
        /// <para>The bits of CLBAN2 in quorvel.h.</para>
        /// </remarks>
        public static float InterpolateBandRows(int baseRow, int lowerBand, int upperBand, int month, float bandWeight)
        {
            Check.Range("Climate.InterpolateBandRows", "baseRow", baseRow, 0, 174, "");
            Check.Range("Climate.InterpolateBandRows", "lowerBand", lowerBand, 1, 10, "");
            Check.Range("Climate.InterpolateBandRows", "upperBand", upperBand, 1, 10, "");
            Check.Range("Climate.InterpolateBandRows", "month", month, 1, 12, "");
            Check.Range("Climate.InterpolateBandRows", "bandWeight", bandWeight, -1f, 1f, "");
            return Unchecked.Climate.InterpolateBandRows(baseRow, lowerBand, upperBand, month, bandWeight);
        }

        /// <inheritdoc cref="Quorvel.Climate.InterpolateBandRows(int, int, int, int, float)"/>
        public static float[] InterpolateBandRows(Input<int> baseRow, Input<int> lowerBand, Input<int> upperBand,
            Input<int> month, Input<float> bandWeight)
        {
            Check.Range("Climate.InterpolateBandRows", "baseRow", baseRow, 0, 174, "");
            Check.Range("Climate.InterpolateBandRows", "lowerBand", lowerBand, 1, 10, "");
            Check.Range("Climate.InterpolateBandRows", "upperBand", upperBand, 1, 10, "");
            Check.Range("Climate.InterpolateBandRows", "month", month, 1, 12, "");
            Check.Range("Climate.InterpolateBandRows", "bandWeight", bandWeight, -1f, 1f, "");
            return Unchecked.Climate.InterpolateBandRows(baseRow, lowerBand, upperBand, month, bandWeight);
        }

        /// <summary>One row of the band table, a value per month.</summary>
        /// <param name="row">Row: 1 to 92 in set 1, 93 to 184 in set 2; valid 1 to 184.</param>
        /// <returns>Values from January to December, in the row's unit.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Rows of a set: 1 time A, 2 time B, 3 to 12 cumulative frequency F of bands 1 to 10, 13 to 22 Q1, 23 to
        /// 32 Q2 and so on to Q8.</para>
        /// <para>A row below 1 counts as 1, above 184 as 184.</para>
        /// <para>Source: The band table; see data/bands.</para>
        /// <para>The bits of CLBAN3 in quorvel.h.</para>
        /// </remarks>
        public static float[] BandRow(int row)
        {
            Check.Range("Climate.BandRow", "row", row, 1, 184, "");
            return Unchecked.Climate.BandRow(row);
        }

        /// <summary>Design day of a month as a day of the year, as <c>Climate.DesignDay</c> gives it.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <returns>Design day of the year.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A month outside 1 to 12 gives 0.</para>
        /// <para>The year has 365 days.</para>
        /// <para>Source: Table of customary design days, close to the 21st of each month.</para>
        /// <para>The bits of CLDAY in quorvel.h.</para>
        /// </remarks>
        public static int StoreDesignDay(int month)
        {
            Check.Range("Climate.StoreDesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.StoreDesignDay(month);
        }

        /// <inheritdoc cref="Quorvel.Climate.StoreDesignDay(int)"/>
        public static int[] StoreDesignDay(Input<int> month)
        {
            Check.Range("Climate.StoreDesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.StoreDesignDay(month);
        }

        /// <summary>Design day of a month as a day of the year or of the month, as <c>Climate.DesignDayByOption</c>
        /// gives it.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="dayKind">How the day is counted.</param>
        /// <returns>Design day.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The two counts are separate sets and not the same date: in February day 52 of the year (the 21st)
        /// stands beside the 20th.</para>
        /// <para>A month outside 1 to 12 gives 0; another way of counting counts as 2.</para>
        /// <para>Source: Table of customary design days, close to the 21st of each month.</para>
        /// <para>The bits of CLDAYEX in quorvel.h.</para>
        /// </remarks>
        public static int StoreDesignDayByOption(int month, DayKind dayKind)
        {
            Check.Range("Climate.StoreDesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.StoreDesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.StoreDesignDayByOption(month, dayKind);
        }

        /// <inheritdoc cref="Quorvel.Climate.StoreDesignDayByOption(int, DayKind)"/>
        public static int[] StoreDesignDayByOption(Input<int> month, Input<DayKind> dayKind)
        {
            Check.Range("Climate.StoreDesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.StoreDesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.StoreDesignDayByOption(month, dayKind);
        }

        /// <summary>Design day of a month as a day of the year.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <returns>Design day of the year.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A month outside 1 to 12 gives 0.</para>
        /// <para>The year has 365 days.</para>
        /// <para>Source: Table of customary design days, close to the 21st of each month.</para>
        /// <para>The bits of ICLDAY in quorvel.h.</para>
        /// </remarks>
        public static int DesignDay(int month)
        {
            Check.Range("Climate.DesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.DesignDay(month);
        }

        /// <inheritdoc cref="Quorvel.Climate.DesignDay(int)"/>
        public static int[] DesignDay(Input<int> month)
        {
            Check.Range("Climate.DesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.DesignDay(month);
        }

        /// <summary>Design day of a month as a day of the year or of the month.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="dayKind">How the day is counted.</param>
        /// <returns>Design day.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The two counts are separate sets and not the same date: in February day 52 of the year (the 21st)
        /// stands beside the 20th.</para>
        /// <para>A month outside 1 to 12 gives 0; another way of counting counts as 2.</para>
        /// <para>Source: Table of customary design days, close to the 21st of each month.</para>
        /// <para>The bits of ICLDAYEX in quorvel.h.</para>
        /// </remarks>
        public static int DesignDayByOption(int month, DayKind dayKind)
        {
            Check.Range("Climate.DesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.DesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.DesignDayByOption(month, dayKind);
        }

        /// <inheritdoc cref="Quorvel.Climate.DesignDayByOption(int, DayKind)"/>
        public static int[] DesignDayByOption(Input<int> month, Input<DayKind> dayKind)
        {
            Check.Range("Climate.DesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.DesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.DesignDayByOption(month, dayKind);
        }

        /// <summary>Second design day of a month as a day of the year.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <returns>Second design day of the year.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A month outside 1 to 12 gives 0.</para>
        /// <para>The year has 365 days.</para>
        /// <para>Source: Table of design days: about the 29th until May, 21 June, the 4th from July.</para>
        /// <para>The bits of ICLDA2 in quorvel.h.</para>
        /// </remarks>
        public static int SecondDesignDay(int month)
        {
            Check.Range("Climate.SecondDesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.SecondDesignDay(month);
        }

        /// <inheritdoc cref="Quorvel.Climate.SecondDesignDay(int)"/>
        public static int[] SecondDesignDay(Input<int> month)
        {
            Check.Range("Climate.SecondDesignDay", "month", month, 1, 12, "");
            return Unchecked.Climate.SecondDesignDay(month);
        }

        /// <summary>Second design day of a month as a day of the year or of the month.</summary>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="dayKind">How the day is counted.</param>
        /// <returns>Second design day.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Both counts are the same date here.</para>
        /// <para>A month outside 1 to 12 gives 0; another way of counting counts as 2.</para>
        /// <para>Source: Table of design days: about the 29th until May, 21 June, the 4th from July.</para>
        /// <para>The bits of ICLDA2EX in quorvel.h.</para>
        /// </remarks>
        public static int SecondDesignDayByOption(int month, DayKind dayKind)
        {
            Check.Range("Climate.SecondDesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.SecondDesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.SecondDesignDayByOption(month, dayKind);
        }

        /// <inheritdoc cref="Quorvel.Climate.SecondDesignDayByOption(int, DayKind)"/>
        public static int[] SecondDesignDayByOption(Input<int> month, Input<DayKind> dayKind)
        {
            Check.Range("Climate.SecondDesignDayByOption", "month", month, 1, 12, "");
            Check.Selector("Climate.SecondDesignDayByOption", "dayKind", dayKind, 1, 2);
            return Unchecked.Climate.SecondDesignDayByOption(month, dayKind);
        }

        internal static void CheckStationRecords(string fileName, int station, int month, float[,] stationRecords)
        {
            Check.Range("Climate.StationRecords", "station", station, 1, int.MaxValue, "");
            Check.Range("Climate.StationRecords", "month", month, 0, 12, "");
            Check.Range("Climate.StationRecords", "stationRecords", stationRecords, -float.PositiveInfinity,
                float.PositiveInfinity, "");
        }

        /// <summary>Monthly records of a station, from a climate data file at given percentages of days.</summary>
        /// <param name="fileName">Name of the climate data file, in UTF-8; trailing blanks do not count.</param>
        /// <param name="station">Station of the file; valid from 1.</param>
        /// <param name="month">Month whose record is filled, 0 for all twelve; valid 0 to 12.</param>
        /// <param name="stationRecords">A record of 11 reals per month, see the notes.</param>
        /// <returns>A record of 11 reals per month, see the notes; as given from the first month on that cannot be
        /// read.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Given in a record: 10 set of bands, rounded to the nearest integer (2 is set 2, any other set 1); 11
        /// percentage of days. Returned, in the units of the file: 1 Q4, 2 Q6, 3 time B, 4 Q3, 5 Q5, 6 time A, 7 Q1 and
        /// 8 Q2 (not below 0), 9 Q7 (0 to 1). The times are copied as they are.</para>
        /// <para>A percentage at or below band 1's frequency gives band 1, one at or above band 10's gives band 10:
        /// nothing is extrapolated, unlike <c>Climate.BandClimate</c>. One that is not a number makes the quantities
        /// not numbers.</para>
        /// <para>A file that is missing, not a regular file, too short or unreadable ends the call.</para>
        /// <para>A month outside 0 to 12 counts as 1 or 12.</para>
        /// <para>The library keeps the word of the header that places the stations for as long as it is loaded: files
        /// read by one process must agree in it. It also keeps the record read last, whatever becomes of the
        /// file.</para>
        /// <para>The five routines of the climate data file share one state behind a lock. The file is open only during
        /// a call.</para>
        /// <para>A relative name counts from the folder that is current in this call; later calls find the file
        /// wherever the process has gone.</para>
        /// <para>The name is in UTF-8, on Windows too, where one that is not UTF-8 names no file; elsewhere its bytes
        /// are taken as they are. VBA's ByVal String passes the characters of ASCII so, and no others.</para>
        /// <para>The name ends with a NUL, which Fortran does not write after characters: pass trim(name)//char(0). In
        /// VBA declare the argument as ByVal String, in Pascal as PAnsiChar and pass PAnsiChar(UTF8String(name)): both
        /// add the NUL. At most 4096 characters are read, so that a text of that length which is filled up with blanks
        /// needs none; a shorter one is read beyond its end.</para>
        /// <para>Source: Linear interpolation in the bands of the climate data file.</para>
        /// <para>The bits of CLBNF0 in quorvel.h.</para>
        /// </remarks>
        public static float[,] StationRecords(string fileName, int station, int month, float[,] stationRecords)
        {
            CheckStationRecords(fileName, station, month, stationRecords);
            return Unchecked.Climate.StationRecords(fileName, station, month, stationRecords);
        }

        internal static void CheckStationClimate(FileUnit fileUnit, int station, int band, int month, BandSet bandSet,
            float percentage)
        {
            Check.Selector("Climate.StationClimate", "fileUnit", fileUnit, 31, 31);
            Check.Range("Climate.StationClimate", "station", station, 1, int.MaxValue, "");
            Check.Range("Climate.StationClimate", "band", band, 0, 10, "");
            Check.Range("Climate.StationClimate", "month", month, 1, 12, "");
            Check.Selector("Climate.StationClimate", "bandSet", bandSet, 1, 2);
            Check.Range("Climate.StationClimate", "percentage", percentage, 0f, 100f, " %");
        }

        /// <summary>Monthly climate of one of ten bands of days of a station, or interpolated at a cumulative
        /// percentage of days.</summary>
        /// <param name="fileUnit">Unit.</param>
        /// <param name="station">Station of the file; valid from 1.</param>
        /// <param name="band">Band, or 0 to interpolate at the percentage; valid 0 to 10.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="bandSet">Set of bands.</param>
        /// <param name="percentage">Cumulative percentage of days, used with band 0 [%]; valid 0 to 100.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Percentages as in <c>Climate.StationRecords</c>; unlike <c>Climate.BandClimate</c>, a band's own
        /// percentage is not returned.</para>
        /// <para><c>Climate.InterpolateStationRows</c> and <c>Climate.StationRow</c> go on with the unit and station
        /// given here even if nothing could be read.</para>
        /// <para>A band below 0 counts as 1 and above 10 as 10, a month outside 1 to 12 as the nearest, a set other
        /// than 2 as 1.</para>
        /// <para>Source: As <c>Climate.StationRecords</c>.</para>
        /// <para>The bits of CLBNFI in quorvel.h.</para>
        /// </remarks>
        public static StationClimate StationClimate(FileUnit fileUnit, int station, int band, int month,
            BandSet bandSet, float percentage)
        {
            CheckStationClimate(fileUnit, station, band, month, bandSet, percentage);
            return Unchecked.Climate.StationClimate(fileUnit, station, band, month, bandSet, percentage);
        }

        internal static void CheckLocateStationBand(float fraction, int month)
        {
            Check.Range("Climate.LocateStationBand", "fraction", fraction, 0f, 1f, "");
            Check.Range("Climate.LocateStationBand", "month", month, 1, 12, "");
        }

        /// <summary>Where a cumulative fraction of days lies among the ten bands of a month, in the frequencies that
        /// <c>Climate.StationRecords</c> or <c>Climate.StationClimate</c> read last.</summary>
        /// <param name="fraction">Cumulative fraction of days; valid 0 to 1.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>At or below band 1's frequency both bands are 1, at or above band 10's both are 10, and the weight is
        /// 0. Bands of equal frequency are skipped.</para>
        /// <para>Before anything was read all frequencies are 0.</para>
        /// <para>A month outside 1 to 12 counts as the nearest. A fraction that is not a number gives bands 9 and 10
        /// and a weight that is not a number.</para>
        /// <para>Source: Search for linear interpolation.</para>
        /// <para>The bits of CLBNF1 in quorvel.h.</para>
        /// </remarks>
        public static LocateStationBand LocateStationBand(float fraction, int month)
        {
            CheckLocateStationBand(fraction, month);
            return Unchecked.Climate.LocateStationBand(fraction, month);
        }

        internal static void CheckInterpolateStationRows(int baseRow, int lowerBand, int upperBand, int month,
            float bandWeight)
        {
            Check.Range("Climate.InterpolateStationRows", "baseRow", baseRow, 2, 154, "");
            Check.Range("Climate.InterpolateStationRows", "lowerBand", lowerBand, 1, 10, "");
            Check.Range("Climate.InterpolateStationRows", "upperBand", upperBand, 1, 10, "");
            Check.Range("Climate.InterpolateStationRows", "month", month, 1, 12, "");
            Check.Range("Climate.InterpolateStationRows", "bandWeight", bandWeight, -1f, 1f, "");
        }

        /// <summary>Value between two rows of the station given to <c>Climate.StationRecords</c> or
        /// <c>Climate.StationClimate</c> last.</summary>
        /// <param name="baseRow">Row before the quantity's band 1: 2 for F, 12 for Q1, 22 for Q2 and so on in set 1; 82
        /// more in set 2; valid 2 to 154.</param>
        /// <param name="lowerBand">Lower band; valid 1 to 10.</param>
        /// <param name="upperBand">Upper band; valid 1 to 10.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="bandWeight">Share of the step from the lower to the upper row; valid -1 to 1.</param>
        /// <returns>Value, in the quantity's unit; not a number when the file cannot be read.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Rows baseRow + lowerBand and baseRow + upperBand outside 1 to 171 count as the nearest row of the
        /// station, a month outside 1 to 12 as the nearest month.</para>
        /// <para>Source: Linear interpolation in the bands of the climate data file.</para>
        /// <para>The bits of CLBNF2 in quorvel.h.</para>
        /// </remarks>
        public static float InterpolateStationRows(int baseRow, int lowerBand, int upperBand, int month,
            float bandWeight)
        {
            CheckInterpolateStationRows(baseRow, lowerBand, upperBand, month, bandWeight);
            return Unchecked.Climate.InterpolateStationRows(baseRow, lowerBand, upperBand, month, bandWeight);
        }

        internal static void CheckStationRow(int row)
        {
            Check.Range("Climate.StationRow", "row", row, 1, 171, "");
        }

        /// <summary>One row of the station given to <c>Climate.StationRecords</c> or <c>Climate.StationClimate</c>
        /// last.</summary>
        /// <param name="row">Row: 1 time A, 2 time B, 3 to 12 F, 13 to 82 Q1 to Q7, ten each; 82 more in set 2; valid 1
        /// to 171.</param>
        /// <returns>Value of each month; not a number when the file cannot be read.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>A station has 171 rows; numbers outside count as the first or the last.</para>
        /// <para>Source: Climate data file.</para>
        /// <para>The bits of CLBNF3 in quorvel.h.</para>
        /// </remarks>
        public static float[] StationRow(int row)
        {
            CheckStationRow(row);
            return Unchecked.Climate.StationRow(row);
        }

        /// <summary>Temperature at an hour of a day, by half cosine waves between its highest and its lowest.</summary>
        /// <param name="hour">Hour [h]; valid 0 to 24.</param>
        /// <param name="highestTemperature">Highest temperature of the day [°C]; valid -100 to 200.</param>
        /// <param name="lowestTemperature">Lowest temperature of the day [°C]; valid -100 to 200.</param>
        /// <param name="hourOfHighest">Hour of the highest [h]; valid 0 to 24.</param>
        /// <param name="hourOfLowest">Hour of the lowest [h]; valid 0 to 24.</param>
        /// <returns>Temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: m + a cos(pi h / L) after the highest, m - a cos(pi h / L) after the lowest; m = mean of
        /// both, a = half their difference, h = hours since the one passed last, L = hours from it to the other</para>
        /// <para>The same before and after midnight if the next day is like this one.</para>
        /// <para>Hours of the extremes that coincide give the mean at every hour. With one at 0 and the other at 24 the
        /// wave through midnight has no length: at the later of the two the result is no number.</para>
        /// <para>Pi is 3.141593 here, a step above the float nearest to it, so the extremes are met to rounding.</para>
        /// <para>Source: Two half cosine waves.</para>
        /// <para>The bits of CLTAO in quorvel.h.</para>
        /// </remarks>
        public static float DailyTemperature(float hour, float highestTemperature, float lowestTemperature,
            float hourOfHighest, float hourOfLowest)
        {
            Check.Range("Climate.DailyTemperature", "hour", hour, 0f, 24f, " h");
            Check.Range("Climate.DailyTemperature", "highestTemperature", highestTemperature, -100f, 200f, " °C");
            Check.Range("Climate.DailyTemperature", "lowestTemperature", lowestTemperature, -100f, 200f, " °C");
            Check.Range("Climate.DailyTemperature", "hourOfHighest", hourOfHighest, 0f, 24f, " h");
            Check.Range("Climate.DailyTemperature", "hourOfLowest", hourOfLowest, 0f, 24f, " h");
            return Unchecked.Climate.DailyTemperature(hour, highestTemperature, lowestTemperature, hourOfHighest,
                hourOfLowest);
        }

        /// <inheritdoc cref="Quorvel.Climate.DailyTemperature(float, float, float, float, float)"/>
        public static float[] DailyTemperature(Input<float> hour, Input<float> highestTemperature,
            Input<float> lowestTemperature, Input<float> hourOfHighest, Input<float> hourOfLowest)
        {
            Check.Range("Climate.DailyTemperature", "hour", hour, 0f, 24f, " h");
            Check.Range("Climate.DailyTemperature", "highestTemperature", highestTemperature, -100f, 200f, " °C");
            Check.Range("Climate.DailyTemperature", "lowestTemperature", lowestTemperature, -100f, 200f, " °C");
            Check.Range("Climate.DailyTemperature", "hourOfHighest", hourOfHighest, 0f, 24f, " h");
            Check.Range("Climate.DailyTemperature", "hourOfLowest", hourOfLowest, 0f, 24f, " h");
            return Unchecked.Climate.DailyTemperature(hour, highestTemperature, lowestTemperature, hourOfHighest,
                hourOfLowest);
        }

        /// <summary>Value at an hour of a day that swings about its mean by half cosine waves between two
        /// hours.</summary>
        /// <param name="hour">Hour [h]; valid 0 to 24.</param>
        /// <param name="mean">Mean, in the unit of the result.</param>
        /// <param name="amplitude">Half the difference of the extremes, in the same unit.</param>
        /// <param name="firstHour">Hour of the first extreme, the highest if amplitude times amplitudeFactor is
        /// positive [h]; valid 0 to 24.</param>
        /// <param name="secondHour">Hour of the second extreme, after the first [h]; valid 0 to 24.</param>
        /// <param name="amplitudeFactor">Factor on the amplitude.</param>
        /// <returns>Value.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: mean + a cos(pi (hour - firstHour) / (secondHour - firstHour)) between the two hours, mean -
        /// a cos(pi h / (firstHour + 24 - secondHour)) h hours after the second; a = amplitudeFactor amplitude</para>
        /// <para>The order of the hours is not checked: with the second before the first, the wave that should go
        /// through midnight runs beyond its extreme.</para>
        /// <para>Pi as in <c>Climate.DailyTemperature</c>.</para>
        /// <para>Source: Two half cosine waves.</para>
        /// <para>The bits of CLTAOX in quorvel.h.</para>
        /// </remarks>
        public static float DailyValue(float hour, float mean, float amplitude, float firstHour, float secondHour,
            float amplitudeFactor)
        {
            Check.Range("Climate.DailyValue", "hour", hour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "mean", mean, -float.PositiveInfinity, float.PositiveInfinity, "");
            Check.Range("Climate.DailyValue", "amplitude", amplitude, -float.PositiveInfinity, float.PositiveInfinity,
                "");
            Check.Range("Climate.DailyValue", "firstHour", firstHour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "secondHour", secondHour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "amplitudeFactor", amplitudeFactor, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            return Unchecked.Climate.DailyValue(hour, mean, amplitude, firstHour, secondHour, amplitudeFactor);
        }

        /// <inheritdoc cref="Quorvel.Climate.DailyValue(float, float, float, float, float, float)"/>
        public static float[] DailyValue(Input<float> hour, Input<float> mean, Input<float> amplitude,
            Input<float> firstHour, Input<float> secondHour, Input<float> amplitudeFactor)
        {
            Check.Range("Climate.DailyValue", "hour", hour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "mean", mean, -float.PositiveInfinity, float.PositiveInfinity, "");
            Check.Range("Climate.DailyValue", "amplitude", amplitude, -float.PositiveInfinity, float.PositiveInfinity,
                "");
            Check.Range("Climate.DailyValue", "firstHour", firstHour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "secondHour", secondHour, 0f, 24f, " h");
            Check.Range("Climate.DailyValue", "amplitudeFactor", amplitudeFactor, -float.PositiveInfinity,
                float.PositiveInfinity, "");
            return Unchecked.Climate.DailyValue(hour, mean, amplitude, firstHour, secondHour, amplitudeFactor);
        }

        /// <summary>Design irradiance by solar altitude: direct normal and diffuse horizontal.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="siteHeight">Height of the site above sea level [m]; valid 0 to 4000.</param>
        /// <param name="skyKind">Kind of sky.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: directNormal = 1035.49 - 156.13 / a - 1.91863 / a^2 + 2.51353 / a^3 - 0.148842 / a^4;
        /// diffuseHorizontal = 1.52269 + 280.358 a - 375.111 a^2 + 253.716 a^3 - 63.3311 a^4 of the clear sky, 0.331322
        /// + 283.1 a + 4.42111 a^2 of the cloudy one; a = solarAltitude above 0.087</para>
        /// <para>Both grow with the height by the factor of <c>Climate.HeightFactor</c>.</para>
        /// <para>Up to 0.087 rad both are proportional to the altitude, also below 0, where they are negative. The
        /// direct irradiance falls by 2 W/m² where the polynomial takes over.</para>
        /// <para>An altitude beyond 1.5707964 in size gives two zeros. A sky kind below 0 counts as 0, above 1 as
        /// 1.</para>
        /// <para>Source: Polynomials through the design irradiances of a clear and a cloudy sky that building services
        /// guides print.</para>
        /// <para>The bits of CLSNNR in quorvel.h.</para>
        /// </remarks>
        public static DesignIrradiance DesignIrradiance(float solarAltitude, float siteHeight, SkyKind skyKind)
        {
            Check.Range("Climate.DesignIrradiance", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.DesignIrradiance", "siteHeight", siteHeight, 0f, 4000f, " m");
            Check.Selector("Climate.DesignIrradiance", "skyKind", skyKind, 0, 1);
            return Unchecked.Climate.DesignIrradiance(solarAltitude, siteHeight, skyKind);
        }

        /// <inheritdoc cref="Quorvel.Climate.DesignIrradiance(float, float, SkyKind)"/>
        public static DesignIrradiance[] DesignIrradiance(Input<float> solarAltitude, Input<float> siteHeight,
            Input<SkyKind> skyKind)
        {
            Check.Range("Climate.DesignIrradiance", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.DesignIrradiance", "siteHeight", siteHeight, 0f, 4000f, " m");
            Check.Selector("Climate.DesignIrradiance", "skyKind", skyKind, 0, 1);
            return Unchecked.Climate.DesignIrradiance(solarAltitude, siteHeight, skyKind);
        }

        /// <summary>Factor by which irradiance grows with the height of the site.</summary>
        /// <param name="siteHeight">Height of the site above sea level [m]; valid 0 to 4000.</param>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <returns>Factor.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1.02 + siteHeight (0.00002 + 0.00005 / sin(solarAltitude))</para>
        /// <para>1 below 300 m, and for suns whose sine of altitude is below 0.08; the factor jumps from 1 to 1.041 or
        /// more at 300 m.</para>
        /// <para>Source: Linear fit to height corrections of design irradiance.</para>
        /// <para>The bits of CLHIGH in quorvel.h.</para>
        /// </remarks>
        public static float HeightFactor(float siteHeight, float solarAltitude)
        {
            Check.Range("Climate.HeightFactor", "siteHeight", siteHeight, 0f, 4000f, " m");
            Check.Range("Climate.HeightFactor", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            return Unchecked.Climate.HeightFactor(siteHeight, solarAltitude);
        }

        /// <inheritdoc cref="Quorvel.Climate.HeightFactor(float, float)"/>
        public static float[] HeightFactor(Input<float> siteHeight, Input<float> solarAltitude)
        {
            Check.Range("Climate.HeightFactor", "siteHeight", siteHeight, 0f, 4000f, " m");
            Check.Range("Climate.HeightFactor", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            return Unchecked.Climate.HeightFactor(siteHeight, solarAltitude);
        }

        /// <summary>Irradiance outside the atmosphere on a day, by that at the mean distance of the sun.</summary>
        /// <param name="day">Day of the year; valid 1 to 366.</param>
        /// <returns>Factor.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 1 + 0.03344 cos((360 day / 365.25 - 2.8) pi / 180)</para>
        /// <para>0.967 to 1.033; greatest in the first days of January.</para>
        /// <para>Source: Correction of the European Solar Radiation Atlas, 1 + 0.03344 cos(day angle - 2.8
        /// degrees).</para>
        /// <para>The bits of CLETAJ in quorvel.h.</para>
        /// </remarks>
        public static float EccentricityFactor(int day)
        {
            Check.Range("Climate.EccentricityFactor", "day", day, 1, 366, "");
            return Unchecked.Climate.EccentricityFactor(day);
        }

        /// <inheritdoc cref="Quorvel.Climate.EccentricityFactor(int)"/>
        public static float[] EccentricityFactor(Input<int> day)
        {
            Check.Range("Climate.EccentricityFactor", "day", day, 1, 366, "");
            return Unchecked.Climate.EccentricityFactor(day);
        }

        /// <summary>Global horizontal irradiance by that outside the atmosphere.</summary>
        /// <param name="day">Day of the year; valid 1 to 366.</param>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="globalHorizontal">Global horizontal irradiance [W/m²]; valid from 0.</param>
        /// <returns>Clearness index.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: globalHorizontal / (1367 <c>Climate.EccentricityFactor</c>(day) sin(solarAltitude))</para>
        /// <para>An altitude of 0 divides by zero: infinite, or not a number for an irradiance of 0.</para>
        /// <para>Source: B. Y. H. Liu and R. C. Jordan, Solar Energy 4 (1960), with a solar constant of 1367 W/m² and
        /// the eccentricity of <c>Climate.EccentricityFactor</c>.</para>
        /// <para>The bits of CLMODUL in quorvel.h.</para>
        /// </remarks>
        public static float ClearnessIndex(int day, float solarAltitude, float globalHorizontal)
        {
            Check.Range("Climate.ClearnessIndex", "day", day, 1, 366, "");
            Check.Range("Climate.ClearnessIndex", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.ClearnessIndex", "globalHorizontal", globalHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            return Unchecked.Climate.ClearnessIndex(day, solarAltitude, globalHorizontal);
        }

        /// <inheritdoc cref="Quorvel.Climate.ClearnessIndex(int, float, float)"/>
        public static float[] ClearnessIndex(Input<int> day, Input<float> solarAltitude, Input<float> globalHorizontal)
        {
            Check.Range("Climate.ClearnessIndex", "day", day, 1, 366, "");
            Check.Range("Climate.ClearnessIndex", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.ClearnessIndex", "globalHorizontal", globalHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            return Unchecked.Climate.ClearnessIndex(day, solarAltitude, globalHorizontal);
        }

        /// <summary>Irradiance on a tilted surface by Muneer's sky: beam, sky diffuse and ground-reflected.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="solarAzimuth">Solar azimuth [rad]; valid 0 to 6.2832.</param>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="beamHorizontal">Beam irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="diffuseHorizontal">Diffuse irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="extraterrestrialHorizontal">Irradiance on the horizontal outside the atmosphere [W/m²]; valid 0
        /// to 1415.</param>
        /// <param name="groundReflectance">Reflectance of the ground; valid 0 to 1.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: surfaceBeam = beamHorizontal cos(i) / sin(h); surfaceDiffuse = diffuseHorizontal (f (1 - K) +
        /// K cos(i) / sin(h)); groundReflected = groundReflectance (beamHorizontal + diffuseHorizontal) sin(b / 2)^2; f
        /// = cos(b / 2)^2 + 2 r / (pi (2 r + 3)) (sin(b) - b cos(b) - pi sin(b / 2)^2), K = beamHorizontal /
        /// extraterrestrialHorizontal, h = solarAltitude, b = tilt, i = angle of incidence</para>
        /// <para>Radiance index r = 5.73 with the sun behind the surface; else 1.68 for a beam below 5 W/m² and -0.62
        /// from there on. The circumsolar part starts above 5: exactly 5 takes -0.62 without it: deliberate.</para>
        /// <para>With the sun behind the surface cos(i) counts as 0; there, and up to a beam of 5 W/m², K does
        /// too.</para>
        /// <para>A sun up to 0.1 rad above the horizon has a form of its own: the diffuse irradiance times the cosine
        /// of the angle of incidence, brightened with the tilt. The result jumps there and at the thresholds of the
        /// beam.</para>
        /// <para>That form does not become the diffuse irradiance on the horizontal, as it does above 0.1 rad: there it
        /// is the diffuse irradiance times the sine of the altitude, 10 of 100 W/m² at 0.0999 rad and 1 at 0.01 rad,
        /// and on a wall that faces the sun 135.</para>
        /// <para>Computed in double precision: 0.1 as a single-precision altitude lies above the limit.</para>
        /// <para>The beam is divided by the sine of the altitude: an altitude of 0 gives an infinite beam on the
        /// surface, or no number.</para>
        /// <para>Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
        /// Technology 11 (1990); radiance of the sky after P. Moon and D. E. Spencer (1942).</para>
        /// <para>The bits of CLMUNRAD in quorvel.h.</para>
        /// </remarks>
        public static MuneerSlope MuneerSlope(float solarAltitude, float solarAzimuth, float surfaceAzimuth, float tilt,
            float beamHorizontal, float diffuseHorizontal, float extraterrestrialHorizontal, float groundReflectance)
        {
            Check.Range("Climate.MuneerSlope", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.MuneerSlope", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.MuneerSlope", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.MuneerSlope", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.MuneerSlope", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.MuneerSlope", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.MuneerSlope", "extraterrestrialHorizontal", extraterrestrialHorizontal, 0f, 1415f,
                " W/m²");
            Check.Range("Climate.MuneerSlope", "groundReflectance", groundReflectance, 0f, 1f, "");
            return Unchecked.Climate.MuneerSlope(solarAltitude, solarAzimuth, surfaceAzimuth, tilt, beamHorizontal,
                diffuseHorizontal, extraterrestrialHorizontal, groundReflectance);
        }

        /// <inheritdoc cref="Quorvel.Climate.MuneerSlope(float, float, float, float, float, float, float, float)"/>
        public static MuneerSlope[] MuneerSlope(Input<float> solarAltitude, Input<float> solarAzimuth,
            Input<float> surfaceAzimuth, Input<float> tilt, Input<float> beamHorizontal, Input<float> diffuseHorizontal,
            Input<float> extraterrestrialHorizontal, Input<float> groundReflectance)
        {
            Check.Range("Climate.MuneerSlope", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.MuneerSlope", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.MuneerSlope", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.MuneerSlope", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.MuneerSlope", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.MuneerSlope", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.MuneerSlope", "extraterrestrialHorizontal", extraterrestrialHorizontal, 0f, 1415f,
                " W/m²");
            Check.Range("Climate.MuneerSlope", "groundReflectance", groundReflectance, 0f, 1f, "");
            return Unchecked.Climate.MuneerSlope(solarAltitude, solarAzimuth, surfaceAzimuth, tilt, beamHorizontal,
                diffuseHorizontal, extraterrestrialHorizontal, groundReflectance);
        }

        /// <summary>Diffuse irradiance of the sky on a tilted surface by the anisotropic sky of Perez.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="beamHorizontal">Beam irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="diffuseHorizontal">Diffuse irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="incidence">Angle of incidence of the sun on the surface [rad]; valid 0 to 3.1416.</param>
        /// <param name="extraterrestrialNormal">Normal irradiance outside the atmosphere [W/m²]; valid 1320 to
        /// 1415.</param>
        /// <returns>Diffuse irradiance of the sky on the surface [W/m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: diffuseHorizontal ((1 - F1) cos(tilt / 2)^2 + F1 a / b + F2 sin(tilt)); a = cos(incidence),
        /// at least 0, b = sin(solarAltitude), at least 0.0871557; F1 = f11 + f12 D + f13 Z, at least 0, F2 = f21 + f22
        /// D + f23 Z</para>
        /// <para>The air mass is that of Kasten and Young with the altitude in radians in place of degrees: 16 % too
        /// small for the sun at 2.5 degrees, 4 % at 30 and 2 % in the zenith: deliberate.</para>
        /// <para>The circumsolar part is not below 0, the horizon's part may be; the sum is not limited.</para>
        /// <para>Computed in double precision, coefficients and limits included; a clearness on the limit of two rows
        /// of coefficients belongs to the lower. The result jumps between rows, as the published model does.</para>
        /// <para>Altitude, diffuse and extraterrestrial irradiance of 0 divide by zero.</para>
        /// <para>The formula's Z is the sun's angle from the zenith, D the brightness: the air mass times
        /// diffuseHorizontal / extraterrestrialNormal. The coefficients f are those of the row of the clearness.</para>
        /// <para>Source: R. Perez, P. Ineichen, R. Seals, J. Michalsky and R. Stewart, Modeling daylight availability
        /// and irradiance components from direct and global irradiance, Solar Energy 44 (1990): composite of all sites,
        /// coefficients with all their places. Air mass: F. Kasten and A. T. Young, Applied Optics 28 (1989).</para>
        /// <para>The bits of CLPERSKY in quorvel.h.</para>
        /// </remarks>
        public static float PerezDiffuse(float solarAltitude, float tilt, float beamHorizontal, float diffuseHorizontal,
            float incidence, float extraterrestrialNormal)
        {
            Check.Range("Climate.PerezDiffuse", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.PerezDiffuse", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.PerezDiffuse", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.PerezDiffuse", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.PerezDiffuse", "incidence", incidence, 0f, 3.1416f, " rad");
            Check.Range("Climate.PerezDiffuse", "extraterrestrialNormal", extraterrestrialNormal, 1320f, 1415f,
                " W/m²");
            return Unchecked.Climate.PerezDiffuse(solarAltitude, tilt, beamHorizontal, diffuseHorizontal, incidence,
                extraterrestrialNormal);
        }

        /// <inheritdoc cref="Quorvel.Climate.PerezDiffuse(float, float, float, float, float, float)"/>
        public static float[] PerezDiffuse(Input<float> solarAltitude, Input<float> tilt, Input<float> beamHorizontal,
            Input<float> diffuseHorizontal, Input<float> incidence, Input<float> extraterrestrialNormal)
        {
            Check.Range("Climate.PerezDiffuse", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.PerezDiffuse", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.PerezDiffuse", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.PerezDiffuse", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.PerezDiffuse", "incidence", incidence, 0f, 3.1416f, " rad");
            Check.Range("Climate.PerezDiffuse", "extraterrestrialNormal", extraterrestrialNormal, 1320f, 1415f,
                " W/m²");
            return Unchecked.Climate.PerezDiffuse(solarAltitude, tilt, beamHorizontal, diffuseHorizontal, incidence,
                extraterrestrialNormal);
        }

        /// <summary>Radiation constants of a site class in a month.</summary>
        /// <param name="siteClass">Site class; valid 1 to 6.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Only class 1 varies over the year. Classes 4 and 6 have a diffuse factor of 0 and the alternative one
        /// in its place; the caller chooses.</para>
        /// <para>A site class outside 1 to 6 or a month outside 1 to 12 gives four zeros.</para>
        /// <para>Source: Table of design constants of the library.</para>
        /// <para>The bits of CLCONS in quorvel.h.</para>
        /// </remarks>
        public static SiteConstants SiteConstants(int siteClass, int month)
        {
            Check.Range("Climate.SiteConstants", "siteClass", siteClass, 1, 6, "");
            Check.Range("Climate.SiteConstants", "month", month, 1, 12, "");
            return Unchecked.Climate.SiteConstants(siteClass, month);
        }

        /// <inheritdoc cref="Quorvel.Climate.SiteConstants(int, int)"/>
        public static SiteConstants[] SiteConstants(Input<int> siteClass, Input<int> month)
        {
            Check.Range("Climate.SiteConstants", "siteClass", siteClass, 1, 6, "");
            Check.Range("Climate.SiteConstants", "month", month, 1, 12, "");
            return Unchecked.Climate.SiteConstants(siteClass, month);
        }

        /// <summary>Diffuse irradiance of the sky on a tilted surface without circumsolar part, by that on the
        /// horizontal.</summary>
        /// <param name="day">Day of the year; valid 1 to 366.</param>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="beamHorizontal">Beam irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="skyModel">Model of the sky.</param>
        /// <returns>Factor, 1 for a horizontal surface.</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: cos(b / 2)^2 + a (sin(b) - b cos(b) - pi sin(b / 2)^2), b = tilt; model 0: a = 2 r / (pi (2 r
        /// + 3)), model 1: 0.00333 - 0.415 K - 0.6987 K^2, model 2: 0.00263 - 0.712 K - 0.6883 K^2; K = beamHorizontal
        /// / (1367 <c>Climate.EccentricityFactor</c>(day) sin(solarAltitude))</para>
        /// <para>Model 0 takes the radiance index r = 5.73 up to an altitude of 0, 1.68 for a beam below 5 W/m² and
        /// -0.62 otherwise; the side of the surface does not matter here.</para>
        /// <para>Models 1 and 2 divide by the sine of the altitude: at 0 the factor is infinite or no number.</para>
        /// <para>Source: T. Muneer, Solar radiation model for Europe, Building Services Engineering Research and
        /// Technology 11 (1990), with a solar constant of 1367 W/m² and the eccentricity of
        /// <c>Climate.EccentricityFactor</c>.</para>
        /// <para>The bits of CLDIFRAD in quorvel.h.</para>
        /// </remarks>
        public static float DiffuseTiltFactor(int day, float solarAltitude, float beamHorizontal, float tilt,
            SkyModel skyModel)
        {
            Check.Range("Climate.DiffuseTiltFactor", "day", day, 1, 366, "");
            Check.Range("Climate.DiffuseTiltFactor", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.DiffuseTiltFactor", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.DiffuseTiltFactor", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Climate.DiffuseTiltFactor", "skyModel", skyModel, 0, 2);
            return Unchecked.Climate.DiffuseTiltFactor(day, solarAltitude, beamHorizontal, tilt, skyModel);
        }

        /// <inheritdoc cref="Quorvel.Climate.DiffuseTiltFactor(int, float, float, float, SkyModel)"/>
        public static float[] DiffuseTiltFactor(Input<int> day, Input<float> solarAltitude, Input<float> beamHorizontal,
            Input<float> tilt, Input<SkyModel> skyModel)
        {
            Check.Range("Climate.DiffuseTiltFactor", "day", day, 1, 366, "");
            Check.Range("Climate.DiffuseTiltFactor", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.DiffuseTiltFactor", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.DiffuseTiltFactor", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Selector("Climate.DiffuseTiltFactor", "skyModel", skyModel, 0, 2);
            return Unchecked.Climate.DiffuseTiltFactor(day, solarAltitude, beamHorizontal, tilt, skyModel);
        }

        /// <summary>Diffuse irradiance of the sky on a tilted surface by day of the year and model of the
        /// sky.</summary>
        /// <param name="day">Day of the year; valid 1 to 366.</param>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="solarAzimuth">Solar azimuth [rad]; valid 0 to 6.2832.</param>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="beamHorizontal">Beam irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="diffuseHorizontal">Diffuse irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="skyModel">Model of the sky.</param>
        /// <returns>Diffuse irradiance of the sky on the surface [W/m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: diffuseHorizontal (f (1 - K) + K cos(i) / sin(solarAltitude)); f =
        /// <c>Climate.DiffuseTiltFactor</c>, i = angle of incidence</para>
        /// <para>The factor of <c>Climate.DiffuseTiltFactor</c> and a circumsolar part, weighted by the clearness of
        /// the beam. A sun behind the surface has no circumsolar part, as one whose direction is not a number.</para>
        /// <para>From a beam of 5 W/m² on, a sun below 0.1 rad has a form of its own, which follows the clearness but
        /// not the model. The result jumps there.</para>
        /// <para>On the horizontal the result is the diffuse irradiance, but for that form, which brightens it around
        /// the sun: at 0.0999 rad by 0.4 % for a beam of 50 W/m² and by 4.5 % for 600.</para>
        /// <para>Divides by the sine of the altitude: at 0 the result is infinite or no number.</para>
        /// <para>K is that of <c>Climate.DiffuseTiltFactor</c>.</para>
        /// <para>Source: As <c>Climate.DiffuseTiltFactor</c>. Low sun: the clear sky of R. C. Temps and K. L. Coulson
        /// (Solar Energy 19, 1977) with the modulation by T. M. Klucher (Solar Energy 23, 1979), the beam clearness in
        /// place of his factor.</para>
        /// <para>The bits of CLDIFSLO in quorvel.h.</para>
        /// </remarks>
        public static float SlopeDiffuse(int day, float solarAltitude, float solarAzimuth, float surfaceAzimuth,
            float tilt, float beamHorizontal, float diffuseHorizontal, SkyModel skyModel)
        {
            Check.Range("Climate.SlopeDiffuse", "day", day, 1, 366, "");
            Check.Range("Climate.SlopeDiffuse", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.SlopeDiffuse", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SlopeDiffuse", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SlopeDiffuse", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SlopeDiffuse", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SlopeDiffuse", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Selector("Climate.SlopeDiffuse", "skyModel", skyModel, 0, 2);
            return Unchecked.Climate.SlopeDiffuse(day, solarAltitude, solarAzimuth, surfaceAzimuth, tilt,
                beamHorizontal, diffuseHorizontal, skyModel);
        }

        /// <inheritdoc cref="Quorvel.Climate.SlopeDiffuse(int, float, float, float, float, float, float, SkyModel)"/>
        public static float[] SlopeDiffuse(Input<int> day, Input<float> solarAltitude, Input<float> solarAzimuth,
            Input<float> surfaceAzimuth, Input<float> tilt, Input<float> beamHorizontal, Input<float> diffuseHorizontal,
            Input<SkyModel> skyModel)
        {
            Check.Range("Climate.SlopeDiffuse", "day", day, 1, 366, "");
            Check.Range("Climate.SlopeDiffuse", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.SlopeDiffuse", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SlopeDiffuse", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SlopeDiffuse", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SlopeDiffuse", "beamHorizontal", beamHorizontal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SlopeDiffuse", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Selector("Climate.SlopeDiffuse", "skyModel", skyModel, 0, 2);
            return Unchecked.Climate.SlopeDiffuse(day, solarAltitude, solarAzimuth, surfaceAzimuth, tilt,
                beamHorizontal, diffuseHorizontal, skyModel);
        }

        /// <summary>Temperature of the sol-air kind: a base temperature raised by a net gain of heat.</summary>
        /// <param name="baseTemperature">Base temperature, as of the air outdoors [°C]; valid -100 to 200.</param>
        /// <param name="surfaceCoefficient">Heat transfer coefficient of the surface [W/m²K]; valid from 0.</param>
        /// <param name="absorptance">Absorptance; valid 0 to 1.</param>
        /// <param name="irradiance">Solar irradiance on the surface [W/m²]; valid from 0.</param>
        /// <param name="longWaveLoss">Net loss [W/m²]; valid from 0.</param>
        /// <returns>Sol-air temperature [°C].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: baseTemperature + absorptance (irradiance - LongWaveLoss) / surfaceCoefficient</para>
        /// <para>The absorptance weighs the long-wave loss as it does the irradiance.</para>
        /// <para>A coefficient of 0 divides by zero.</para>
        /// <para>Source: Heat balance of an outer surface.</para>
        /// <para>The bits of CLTEO in quorvel.h.</para>
        /// </remarks>
        public static float SolAirTemperature(float baseTemperature, float surfaceCoefficient, float absorptance,
            float irradiance, float longWaveLoss)
        {
            Check.Range("Climate.SolAirTemperature", "baseTemperature", baseTemperature, -100f, 200f, " °C");
            Check.Range("Climate.SolAirTemperature", "surfaceCoefficient", surfaceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Climate.SolAirTemperature", "absorptance", absorptance, 0f, 1f, "");
            Check.Range("Climate.SolAirTemperature", "irradiance", irradiance, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SolAirTemperature", "longWaveLoss", longWaveLoss, 0f, float.PositiveInfinity, " W/m²");
            return Unchecked.Climate.SolAirTemperature(baseTemperature, surfaceCoefficient, absorptance, irradiance,
                longWaveLoss);
        }

        /// <inheritdoc cref="Quorvel.Climate.SolAirTemperature(float, float, float, float, float)"/>
        public static float[] SolAirTemperature(Input<float> baseTemperature, Input<float> surfaceCoefficient,
            Input<float> absorptance, Input<float> irradiance, Input<float> longWaveLoss)
        {
            Check.Range("Climate.SolAirTemperature", "baseTemperature", baseTemperature, -100f, 200f, " °C");
            Check.Range("Climate.SolAirTemperature", "surfaceCoefficient", surfaceCoefficient, 0f,
                float.PositiveInfinity, " W/m²K");
            Check.Range("Climate.SolAirTemperature", "absorptance", absorptance, 0f, 1f, "");
            Check.Range("Climate.SolAirTemperature", "irradiance", irradiance, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SolAirTemperature", "longWaveLoss", longWaveLoss, 0f, float.PositiveInfinity, " W/m²");
            return Unchecked.Climate.SolAirTemperature(baseTemperature, surfaceCoefficient, absorptance, irradiance,
                longWaveLoss);
        }

        /// <summary>Net long-wave radiation that a surface loses to its surroundings, never negative.</summary>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="cloudCover">Share of the sky that is covered by cloud; valid 0 to 1.</param>
        /// <returns>Net loss [W/m²].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: 72 cos(tilt) + 21 - (62 cos(tilt) + 17) cloudCover, at least 0</para>
        /// <para>Horizontal 93 - 79 cloudCover, vertical 21 - 17 cloudCover, between them by the cosine of the tilt.
        /// Less than nothing is 0; not a number stays so.</para>
        /// <para>Source: Net long-wave losses of horizontal and vertical surfaces by cloud cover, as building services
        /// guides print them; meaning of the arguments inferred from these values.</para>
        /// <para>The bits of CLRERD in quorvel.h.</para>
        /// </remarks>
        public static float LongWaveLoss(float tilt, float cloudCover)
        {
            Check.Range("Climate.LongWaveLoss", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.LongWaveLoss", "cloudCover", cloudCover, 0f, 1f, "");
            return Unchecked.Climate.LongWaveLoss(tilt, cloudCover);
        }

        /// <inheritdoc cref="Quorvel.Climate.LongWaveLoss(float, float)"/>
        public static float[] LongWaveLoss(Input<float> tilt, Input<float> cloudCover)
        {
            Check.Range("Climate.LongWaveLoss", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.LongWaveLoss", "cloudCover", cloudCover, 0f, 1f, "");
            return Unchecked.Climate.LongWaveLoss(tilt, cloudCover);
        }

        /// <summary>What is to be added to clock time to get solar time.</summary>
        /// <param name="clockOffset">Hours by which the clock is put forward, as in summer time [h].</param>
        /// <param name="day">Day of the year; valid 1 to 366.</param>
        /// <param name="longitude">Longitude of the site, positive west [rad]; valid -3.1416 to 3.1416.</param>
        /// <param name="referenceLongitude">Longitude of the clock's meridian, positive west [rad]; valid -3.1416 to
        /// 3.1416.</param>
        /// <returns>Correction [h].</returns>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: equation of time - clockOffset - (longitude - referenceLongitude) / 0.2618</para>
        /// <para>Only the difference of the longitudes counts. Given positive east instead, it enters with the wrong
        /// sign.</para>
        /// <para>The equation of time stays within 0.7 min of the true one.</para>
        /// <para>The hour is rounded to 0.2618 rad here and not in <c>Climate.SolarGeometry</c>: deliberate.</para>
        /// <para>Source: Fourier series of the equation of time to the third harmonic, of the kind given by J. W.
        /// Spencer, Search 2 (1971); coefficients refitted.</para>
        /// <para>The bits of CLTCOR in quorvel.h.</para>
        /// </remarks>
        public static float SolarTimeCorrection(float clockOffset, int day, float longitude, float referenceLongitude)
        {
            Check.Range("Climate.SolarTimeCorrection", "clockOffset", clockOffset, -float.PositiveInfinity,
                float.PositiveInfinity, " h");
            Check.Range("Climate.SolarTimeCorrection", "day", day, 1, 366, "");
            Check.Range("Climate.SolarTimeCorrection", "longitude", longitude, -3.1416f, 3.1416f, " rad");
            Check.Range("Climate.SolarTimeCorrection", "referenceLongitude", referenceLongitude, -3.1416f, 3.1416f,
                " rad");
            return Unchecked.Climate.SolarTimeCorrection(clockOffset, day, longitude, referenceLongitude);
        }

        /// <inheritdoc cref="Quorvel.Climate.SolarTimeCorrection(float, int, float, float)"/>
        public static float[] SolarTimeCorrection(Input<float> clockOffset, Input<int> day, Input<float> longitude,
            Input<float> referenceLongitude)
        {
            Check.Range("Climate.SolarTimeCorrection", "clockOffset", clockOffset, -float.PositiveInfinity,
                float.PositiveInfinity, " h");
            Check.Range("Climate.SolarTimeCorrection", "day", day, 1, 366, "");
            Check.Range("Climate.SolarTimeCorrection", "longitude", longitude, -3.1416f, 3.1416f, " rad");
            Check.Range("Climate.SolarTimeCorrection", "referenceLongitude", referenceLongitude, -3.1416f, 3.1416f,
                " rad");
            return Unchecked.Climate.SolarTimeCorrection(clockOffset, day, longitude, referenceLongitude);
        }

        /// <summary>Altitude, azimuth and declination of the sun by calendar date and clock.</summary>
        /// <param name="timeKind">What the time is.</param>
        /// <param name="year">Year; valid 1976 to 2099.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="dayOfMonth">Day of the month; valid 1 to 31.</param>
        /// <param name="clockTime">Clock hour [h]; valid 0 to 24.</param>
        /// <param name="latitude">Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.</param>
        /// <param name="longitude">Longitude, positive west [rad]; valid -3.1416 to 3.1416.</param>
        /// <param name="zoneMeridian">Longitude of the clock's meridian, positive west [rad]; valid -3.1416 to
        /// 3.1416.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Within 0.03 degrees, and of the azimuth 0.1 degrees where the sun is near due south or north, since a
        /// cosine of azimuth beyond 0.999999 in size counts as 1. Of this 0.02 degrees come from a misplaced degree
        /// factor in the equation of the centre: deliberate.</para>
        /// <para>The hour angle is not brought into -180 to 180 degrees. Its sign decides between morning and
        /// afternoon, so within an hour of midnight the azimuth may be the mirror image.</para>
        /// <para>A kind of time other than 1 and 2 counts as 3. Date and hour are not checked: a day beyond the month's
        /// end counts on into the next month. Before March 1976 three years of four are a day late; 2100 is given a
        /// leap day.</para>
        /// <para>Source: Low-precision formulas of B. D. Yallop for the sun, as printed in T. Muneer, Solar Radiation
        /// and Daylight Models for the Energy Efficient Design of Buildings, 1997.</para>
        /// <para>The bits of CLYALLOP in quorvel.h.</para>
        /// </remarks>
        public static AlmanacPosition AlmanacPosition(TimeKind timeKind, int year, int month, int dayOfMonth,
            float clockTime, float latitude, float longitude, float zoneMeridian)
        {
            Check.Selector("Climate.AlmanacPosition", "timeKind", timeKind, 1, 3);
            Check.Range("Climate.AlmanacPosition", "year", year, 1976, 2099, "");
            Check.Range("Climate.AlmanacPosition", "month", month, 1, 12, "");
            Check.Range("Climate.AlmanacPosition", "dayOfMonth", dayOfMonth, 1, 31, "");
            Check.Range("Climate.AlmanacPosition", "clockTime", clockTime, 0f, 24f, " h");
            Check.Range("Climate.AlmanacPosition", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.AlmanacPosition", "longitude", longitude, -3.1416f, 3.1416f, " rad");
            Check.Range("Climate.AlmanacPosition", "zoneMeridian", zoneMeridian, -3.1416f, 3.1416f, " rad");
            return Unchecked.Climate.AlmanacPosition(timeKind, year, month, dayOfMonth, clockTime, latitude, longitude,
                zoneMeridian);
        }

        /// <inheritdoc cref="Quorvel.Climate.AlmanacPosition(TimeKind, int, int, int, float, float, float, float)"/>
        public static AlmanacPosition[] AlmanacPosition(Input<TimeKind> timeKind, Input<int> year, Input<int> month,
            Input<int> dayOfMonth, Input<float> clockTime, Input<float> latitude, Input<float> longitude,
            Input<float> zoneMeridian)
        {
            Check.Selector("Climate.AlmanacPosition", "timeKind", timeKind, 1, 3);
            Check.Range("Climate.AlmanacPosition", "year", year, 1976, 2099, "");
            Check.Range("Climate.AlmanacPosition", "month", month, 1, 12, "");
            Check.Range("Climate.AlmanacPosition", "dayOfMonth", dayOfMonth, 1, 31, "");
            Check.Range("Climate.AlmanacPosition", "clockTime", clockTime, 0f, 24f, " h");
            Check.Range("Climate.AlmanacPosition", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.AlmanacPosition", "longitude", longitude, -3.1416f, 3.1416f, " rad");
            Check.Range("Climate.AlmanacPosition", "zoneMeridian", zoneMeridian, -3.1416f, 3.1416f, " rad");
            return Unchecked.Climate.AlmanacPosition(timeKind, year, month, dayOfMonth, clockTime, latitude, longitude,
                zoneMeridian);
        }

        /// <summary>Sunrise and sunset in solar time by calendar date.</summary>
        /// <param name="year">Year; valid 1976 to 2099.</param>
        /// <param name="month">Month; valid 1 to 12.</param>
        /// <param name="dayOfMonth">Day of the month; valid 1 to 31.</param>
        /// <param name="latitude">Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The centre of the sun on a level horizon without refraction, with the declination of noon at
        /// Greenwich.</para>
        /// <para>Dates as in <c>Climate.AlmanacPosition</c>. A latitude of 1.5707964, or its negative, is by rounding
        /// just beyond the pole: midnight sun and polar night change places there.</para>
        /// <para>Source: Declination as <c>Climate.AlmanacPosition</c>; sunrise equation.</para>
        /// <para>The bits of CLRISESET in quorvel.h.</para>
        /// </remarks>
        public static AlmanacSunHours AlmanacSunHours(int year, int month, int dayOfMonth, float latitude)
        {
            Check.Range("Climate.AlmanacSunHours", "year", year, 1976, 2099, "");
            Check.Range("Climate.AlmanacSunHours", "month", month, 1, 12, "");
            Check.Range("Climate.AlmanacSunHours", "dayOfMonth", dayOfMonth, 1, 31, "");
            Check.Range("Climate.AlmanacSunHours", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            return Unchecked.Climate.AlmanacSunHours(year, month, dayOfMonth, latitude);
        }

        /// <inheritdoc cref="Quorvel.Climate.AlmanacSunHours(int, int, int, float)"/>
        public static AlmanacSunHours[] AlmanacSunHours(Input<int> year, Input<int> month, Input<int> dayOfMonth,
            Input<float> latitude)
        {
            Check.Range("Climate.AlmanacSunHours", "year", year, 1976, 2099, "");
            Check.Range("Climate.AlmanacSunHours", "month", month, 1, 12, "");
            Check.Range("Climate.AlmanacSunHours", "dayOfMonth", dayOfMonth, 1, 31, "");
            Check.Range("Climate.AlmanacSunHours", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            return Unchecked.Climate.AlmanacSunHours(year, month, dayOfMonth, latitude);
        }

        /// <summary>Declination, altitude and azimuth of the sun, sunrise and sunset, by latitude, day of the year and
        /// solar hour.</summary>
        /// <param name="latitude">Latitude, positive north [rad]; valid -1.5707964 to 1.5707964.</param>
        /// <param name="day">Day of the year; valid 1 to 365.</param>
        /// <param name="solarTime">Solar time, noon at 12 [h]; valid 0 to 24.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: sin(declination) = 0.398 sin(d - 1.4096 + 0.03347 sin(d)), d = 0.01721 day; sin(altitude) =
        /// sin(declination) sin(latitude) + cos(declination) cos(latitude) cos(H), H = 0.261799395 (12 - solarTime);
        /// sunrise = 12 / pi acos(tan(latitude) tan(declination)), sunset = 24 - sunrise</para>
        /// <para>Latitude, day or hour outside its range (day 366 too) gives a declination, altitude and azimuth of
        /// 0.</para>
        /// <para>Within 0.5 degrees of the true position; no leap years, no refraction, the sun a point.</para>
        /// <para>Noon counts as morning. With the sun in the zenith the azimuth is arbitrary.</para>
        /// <para>A latitude of 1.5707964, or its negative, is by rounding just beyond the pole: midnight sun and polar
        /// night change places there.</para>
        /// <para>Not a number for the latitude or the hour makes what depends on it not a number.</para>
        /// <para>Source: Spherical astronomy; sine of the declination as 0.398 times the sine of the sun's ecliptic
        /// longitude, with the first-order equation of the centre.</para>
        /// <para>The bits of CLSNGE in quorvel.h.</para>
        /// </remarks>
        public static SolarGeometry SolarGeometry(float latitude, int day, float solarTime)
        {
            Check.Range("Climate.SolarGeometry", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.SolarGeometry", "day", day, 1, 365, "");
            Check.Range("Climate.SolarGeometry", "solarTime", solarTime, 0f, 24f, " h");
            return Unchecked.Climate.SolarGeometry(latitude, day, solarTime);
        }

        /// <inheritdoc cref="Quorvel.Climate.SolarGeometry(float, int, float)"/>
        public static SolarGeometry[] SolarGeometry(Input<float> latitude, Input<int> day, Input<float> solarTime)
        {
            Check.Range("Climate.SolarGeometry", "latitude", latitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.SolarGeometry", "day", day, 1, 365, "");
            Check.Range("Climate.SolarGeometry", "solarTime", solarTime, 0f, 24f, " h");
            return Unchecked.Climate.SolarGeometry(latitude, day, solarTime);
        }

        /// <summary>Angle of incidence of the sun on a surface, and its angles in the vertical and the horizontal
        /// sense.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid -1.5707964 to 1.5707964.</param>
        /// <param name="solarAzimuth">Solar azimuth [rad]; valid 0 to 6.2832.</param>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: cos(incidence) = cos(solarAltitude) sin(tilt) cos(solarAzimuth - surfaceAzimuth) +
        /// sin(solarAltitude) cos(tilt)</para>
        /// <para>With the sun behind the surface the two angles exceed pi/2 in size.</para>
        /// <para>With the sun along the level line the vertical angle is pi/2, with the sun along the slope line the
        /// horizontal angle is -pi/2: exactly so only where the components vanish, anything by rounding
        /// otherwise.</para>
        /// <para>The components are rounded, so angles below 0.0005 rad are not resolved.</para>
        /// <para>Source: Vector algebra: the sun's direction in the frame of level line, slope line and outward
        /// normal.</para>
        /// <para>The bits of CLSNSR in quorvel.h.</para>
        /// </remarks>
        public static SurfaceAngles SurfaceAngles(float solarAltitude, float solarAzimuth, float surfaceAzimuth,
            float tilt)
        {
            Check.Range("Climate.SurfaceAngles", "solarAltitude", solarAltitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.SurfaceAngles", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceAngles", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceAngles", "tilt", tilt, 0f, 3.1416f, " rad");
            return Unchecked.Climate.SurfaceAngles(solarAltitude, solarAzimuth, surfaceAzimuth, tilt);
        }

        /// <inheritdoc cref="Quorvel.Climate.SurfaceAngles(float, float, float, float)"/>
        public static SurfaceAngles[] SurfaceAngles(Input<float> solarAltitude, Input<float> solarAzimuth,
            Input<float> surfaceAzimuth, Input<float> tilt)
        {
            Check.Range("Climate.SurfaceAngles", "solarAltitude", solarAltitude, -1.5707964f, 1.5707964f, " rad");
            Check.Range("Climate.SurfaceAngles", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceAngles", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceAngles", "tilt", tilt, 0f, 3.1416f, " rad");
            return Unchecked.Climate.SurfaceAngles(solarAltitude, solarAzimuth, surfaceAzimuth, tilt);
        }

        /// <summary>Irradiance on the plane of a surface: direct from the sun, diffuse from the sky, reflected from the
        /// ground.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="solarAzimuth">Solar azimuth [rad]; valid 0 to 6.2832.</param>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="directNormal">Direct normal irradiance [W/m²]; valid from 0.</param>
        /// <param name="diffuseHorizontal">Diffuse irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="groundReflectance">Reflectance of the ground; valid 0 to 1.</param>
        /// <param name="beamFactor">Factor on the direct normal irradiance; valid from 0.</param>
        /// <param name="diffuseFactor">Factor on the diffuse horizontal irradiance; valid from 0.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>Formula: surfaceBeam = directNormal beamFactor cos(i); surfaceDiffuse = d (1 + cos(tilt)) / 2 (1 - 0.1
        /// sin(tilt) (1 + cos(surfaceAzimuth))); groundReflected = groundReflectance (1 - cos(tilt)) / 2 (d +
        /// directNormal beamFactor sin(solarAltitude)); d = diffuseHorizontal diffuseFactor, i = angle of incidence,
        /// the beam 0 behind the surface</para>
        /// <para>A vertical surface gets up to 20 % less diffuse irradiance the more it faces north, whatever the
        /// hemisphere.</para>
        /// <para>Nothing is limited: a negative altitude or irradiance gives negative parts. An angle that is not a
        /// number gives a direct irradiance of 0.</para>
        /// <para>Source: Cosine law; isotropic sky and ground by view factors (B. Y. H. Liu and R. C. Jordan, Solar
        /// Energy 4, 1960), with an empirical darkening to the north.</para>
        /// <para>The bits of CLSORD in quorvel.h.</para>
        /// </remarks>
        public static SurfaceIrradiance SurfaceIrradiance(float solarAltitude, float solarAzimuth, float surfaceAzimuth,
            float tilt, float directNormal, float diffuseHorizontal, float groundReflectance, float beamFactor,
            float diffuseFactor)
        {
            Check.Range("Climate.SurfaceIrradiance", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "directNormal", directNormal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradiance", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.SurfaceIrradiance", "groundReflectance", groundReflectance, 0f, 1f, "");
            Check.Range("Climate.SurfaceIrradiance", "beamFactor", beamFactor, 0f, float.PositiveInfinity, "");
            Check.Range("Climate.SurfaceIrradiance", "diffuseFactor", diffuseFactor, 0f, float.PositiveInfinity, "");
            return Unchecked.Climate.SurfaceIrradiance(solarAltitude, solarAzimuth, surfaceAzimuth, tilt, directNormal,
                diffuseHorizontal, groundReflectance, beamFactor, diffuseFactor);
        }

        /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradiance(float, float, float, float, float, float, float, float, float)"/>
        public static SurfaceIrradiance[] SurfaceIrradiance(Input<float> solarAltitude, Input<float> solarAzimuth,
            Input<float> surfaceAzimuth, Input<float> tilt, Input<float> directNormal, Input<float> diffuseHorizontal,
            Input<float> groundReflectance, Input<float> beamFactor, Input<float> diffuseFactor)
        {
            Check.Range("Climate.SurfaceIrradiance", "solarAltitude", solarAltitude, 0f, 1.5707964f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SurfaceIrradiance", "directNormal", directNormal, 0f, float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradiance", "diffuseHorizontal", diffuseHorizontal, 0f, float.PositiveInfinity,
                " W/m²");
            Check.Range("Climate.SurfaceIrradiance", "groundReflectance", groundReflectance, 0f, 1f, "");
            Check.Range("Climate.SurfaceIrradiance", "beamFactor", beamFactor, 0f, float.PositiveInfinity, "");
            Check.Range("Climate.SurfaceIrradiance", "diffuseFactor", diffuseFactor, 0f, float.PositiveInfinity, "");
            return Unchecked.Climate.SurfaceIrradiance(solarAltitude, solarAzimuth, surfaceAzimuth, tilt, directNormal,
                diffuseHorizontal, groundReflectance, beamFactor, diffuseFactor);
        }

        /// <summary>Irradiance on the plane of a surface as <c>Climate.SurfaceIrradiance</c>, and the angle of
        /// incidence.</summary>
        /// <param name="solarAltitude">Solar altitude [rad]; valid 0 to 1.5707964.</param>
        /// <param name="solarAzimuth">Solar azimuth [rad]; valid 0 to 6.2832.</param>
        /// <param name="surfaceAzimuth">Azimuth of the surface's outward normal [rad]; valid 0 to 6.2832.</param>
        /// <param name="tilt">Tilt from the horizontal [rad]; valid 0 to 3.1416.</param>
        /// <param name="directNormal">Direct normal irradiance [W/m²]; valid from 0.</param>
        /// <param name="diffuseHorizontal">Diffuse irradiance on the horizontal [W/m²]; valid from 0.</param>
        /// <param name="groundReflectance">Reflectance of the ground; valid 0 to 1.</param>
        /// <param name="beamFactor">Factor on the direct normal irradiance; valid from 0.</param>
        /// <param name="diffuseFactor">Factor on the diffuse horizontal irradiance; valid from 0.</param>
        /// <exception cref="System.ArgumentException">Bad input: see the valid ranges.</exception>
        /// <remarks>
        /// <para>The irradiances are those of <c>Climate.SurfaceIrradiance</c>, bit for bit; see there.</para>
        /// <para><c>Climate.SurfaceAngles</c> gives the angle of incidence behind the surface too.</para>
        /// <para>Source: As <c>Climate.SurfaceIrradiance</c>.</para>
        /// <para>The bits of CLSOR2 in quorvel.h.</para>
        /// </remarks>
        public static SurfaceIrradianceAndIncidence SurfaceIrradianceAndIncidence(float solarAltitude,
            float solarAzimuth, float surfaceAzimuth, float tilt, float directNormal, float diffuseHorizontal,
            float groundReflectance, float beamFactor, float diffuseFactor)
        {
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "solarAltitude", solarAltitude, 0f, 1.5707964f,
                " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "directNormal", directNormal, 0f,
                float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "diffuseHorizontal", diffuseHorizontal, 0f,
                float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "groundReflectance", groundReflectance, 0f, 1f, "");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "beamFactor", beamFactor, 0f, float.PositiveInfinity,
                "");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "diffuseFactor", diffuseFactor, 0f,
                float.PositiveInfinity, "");
            return Unchecked.Climate.SurfaceIrradianceAndIncidence(solarAltitude, solarAzimuth, surfaceAzimuth, tilt,
                directNormal, diffuseHorizontal, groundReflectance, beamFactor, diffuseFactor);
        }

        /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradianceAndIncidence(float, float, float, float, float, float, float, float, float)"/>
        public static SurfaceIrradianceAndIncidence[] SurfaceIrradianceAndIncidence(Input<float> solarAltitude,
            Input<float> solarAzimuth, Input<float> surfaceAzimuth, Input<float> tilt, Input<float> directNormal,
            Input<float> diffuseHorizontal, Input<float> groundReflectance, Input<float> beamFactor,
            Input<float> diffuseFactor)
        {
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "solarAltitude", solarAltitude, 0f, 1.5707964f,
                " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "solarAzimuth", solarAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "surfaceAzimuth", surfaceAzimuth, 0f, 6.2832f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "tilt", tilt, 0f, 3.1416f, " rad");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "directNormal", directNormal, 0f,
                float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "diffuseHorizontal", diffuseHorizontal, 0f,
                float.PositiveInfinity, " W/m²");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "groundReflectance", groundReflectance, 0f, 1f, "");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "beamFactor", beamFactor, 0f, float.PositiveInfinity,
                "");
            Check.Range("Climate.SurfaceIrradianceAndIncidence", "diffuseFactor", diffuseFactor, 0f,
                float.PositiveInfinity, "");
            return Unchecked.Climate.SurfaceIrradianceAndIncidence(solarAltitude, solarAzimuth, surfaceAzimuth, tilt,
                directNormal, diffuseHorizontal, groundReflectance, beamFactor, diffuseFactor);
        }
    }

    public static partial class Unchecked
    {
        /// <summary>Calendar, sun and sky, unchecked.</summary>
        public static class Climate
        {
            /// <inheritdoc cref="Quorvel.Climate.LocateBand(float, int, float[,])"/>
            public static LocateBand LocateBand(float fraction, int month, float[,] frequencies)
            {
                Check.Shape("Climate.LocateBand", "frequencies", frequencies, 10, 12);
                var results = new LocateBand { BandWeight = float.NaN };
                Native.CLBAN1(ref fraction, ref month, frequencies, ref results.LowerBand, ref results.UpperBand,
                    ref results.BandWeight);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.BandClimate(int, int, BandSet, float)"/>
            public static BandClimate BandClimate(int band, int month, BandSet bandSet, float percentage)
            {
                var results = new BandClimate { Percentage = percentage, Q1 = float.NaN, Q2 = float.NaN, Q3 = float.NaN,
                    Q4 = float.NaN, Q5 = float.NaN, Q6 = float.NaN, TimeA = float.NaN, TimeB = float.NaN,
                    Q7 = float.NaN, Q8 = float.NaN };
                Native.CLBAND(ref band, ref month, ref bandSet, ref results.Percentage, ref results.Q1, ref results.Q2,
                    ref results.Q3, ref results.Q4, ref results.Q5, ref results.Q6, ref results.TimeA,
                    ref results.TimeB, ref results.Q7, ref results.Q8);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.BandClimate(int, int, BandSet, float)"/>
            public static BandClimate[] BandClimate(Input<int> band, Input<int> month, Input<BandSet> bandSet,
                Input<float> percentage)
            {
                int count = Elements.Count("Climate.BandClimate", ("band", band.Length), ("month", month.Length),
                    ("bandSet", bandSet.Length), ("percentage", percentage.Length));
                var results = new BandClimate[count];
                Elements.Done(Native.quorvel_band_climate((UIntPtr)count, ref band.First, band.Stride, ref month.First,
                    month.Stride, ref bandSet.First, bandSet.Stride, ref percentage.First, percentage.Stride,
                    ref Elements.First(results).Percentage, Elements<BandClimate>.Stride,
                    ref Elements.First(results).Q1, Elements<BandClimate>.Stride, ref Elements.First(results).Q2,
                    Elements<BandClimate>.Stride, ref Elements.First(results).Q3, Elements<BandClimate>.Stride,
                    ref Elements.First(results).Q4, Elements<BandClimate>.Stride, ref Elements.First(results).Q5,
                    Elements<BandClimate>.Stride, ref Elements.First(results).Q6, Elements<BandClimate>.Stride,
                    ref Elements.First(results).TimeA, Elements<BandClimate>.Stride, ref Elements.First(results).TimeB,
                    Elements<BandClimate>.Stride, ref Elements.First(results).Q7, Elements<BandClimate>.Stride,
                    ref Elements.First(results).Q8, Elements<BandClimate>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.InterpolateBandRows(int, int, int, int, float)"/>
            public static float InterpolateBandRows(int baseRow, int lowerBand, int upperBand, int month,
                float bandWeight)
            {
                float results = float.NaN;
                Native.CLBAN2(ref baseRow, ref lowerBand, ref upperBand, ref month, ref bandWeight, ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.InterpolateBandRows(int, int, int, int, float)"/>
            public static float[] InterpolateBandRows(Input<int> baseRow, Input<int> lowerBand, Input<int> upperBand,
                Input<int> month, Input<float> bandWeight)
            {
                int count = Elements.Count("Climate.InterpolateBandRows", ("baseRow", baseRow.Length), ("lowerBand",
                    lowerBand.Length), ("upperBand", upperBand.Length), ("month", month.Length), ("bandWeight",
                    bandWeight.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_interpolate_band_rows((UIntPtr)count, ref baseRow.First, baseRow.Stride,
                    ref lowerBand.First, lowerBand.Stride, ref upperBand.First, upperBand.Stride, ref month.First,
                    month.Stride, ref bandWeight.First, bandWeight.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.BandRow(int)"/>
            public static float[] BandRow(int row)
            {
                float[] results = new float[12];
                Native.CLBAN3(ref row, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StoreDesignDay(int)"/>
            public static int StoreDesignDay(int month)
            {
                int results = 0;
                Native.CLDAY(ref month, ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StoreDesignDay(int)"/>
            public static int[] StoreDesignDay(Input<int> month)
            {
                int count = Elements.Count("Climate.StoreDesignDay", ("month", month.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_store_design_day((UIntPtr)count, ref month.First, month.Stride,
                    ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StoreDesignDayByOption(int, DayKind)"/>
            public static int StoreDesignDayByOption(int month, DayKind dayKind)
            {
                int results = 0;
                Native.CLDAYEX(ref month, ref results, ref dayKind);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StoreDesignDayByOption(int, DayKind)"/>
            public static int[] StoreDesignDayByOption(Input<int> month, Input<DayKind> dayKind)
            {
                int count = Elements.Count("Climate.StoreDesignDayByOption", ("month", month.Length), ("dayKind",
                    dayKind.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_store_design_day_by_option((UIntPtr)count, ref month.First, month.Stride,
                    ref dayKind.First, dayKind.Stride, ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignDay(int)"/>
            public static int DesignDay(int month)
            {
                return Native.ICLDAY(ref month);
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignDay(int)"/>
            public static int[] DesignDay(Input<int> month)
            {
                int count = Elements.Count("Climate.DesignDay", ("month", month.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_design_day((UIntPtr)count, ref month.First, month.Stride,
                    ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignDayByOption(int, DayKind)"/>
            public static int DesignDayByOption(int month, DayKind dayKind)
            {
                return Native.ICLDAYEX(ref month, ref dayKind);
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignDayByOption(int, DayKind)"/>
            public static int[] DesignDayByOption(Input<int> month, Input<DayKind> dayKind)
            {
                int count = Elements.Count("Climate.DesignDayByOption", ("month", month.Length), ("dayKind",
                    dayKind.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_design_day_by_option((UIntPtr)count, ref month.First, month.Stride,
                    ref dayKind.First, dayKind.Stride, ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SecondDesignDay(int)"/>
            public static int SecondDesignDay(int month)
            {
                return Native.ICLDA2(ref month);
            }

            /// <inheritdoc cref="Quorvel.Climate.SecondDesignDay(int)"/>
            public static int[] SecondDesignDay(Input<int> month)
            {
                int count = Elements.Count("Climate.SecondDesignDay", ("month", month.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_second_design_day((UIntPtr)count, ref month.First, month.Stride,
                    ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SecondDesignDayByOption(int, DayKind)"/>
            public static int SecondDesignDayByOption(int month, DayKind dayKind)
            {
                return Native.ICLDA2EX(ref month, ref dayKind);
            }

            /// <inheritdoc cref="Quorvel.Climate.SecondDesignDayByOption(int, DayKind)"/>
            public static int[] SecondDesignDayByOption(Input<int> month, Input<DayKind> dayKind)
            {
                int count = Elements.Count("Climate.SecondDesignDayByOption", ("month", month.Length), ("dayKind",
                    dayKind.Length));
                var results = new int[count];
                Elements.Done(Native.quorvel_second_design_day_by_option((UIntPtr)count, ref month.First, month.Stride,
                    ref dayKind.First, dayKind.Stride, ref Elements.First(results), Elements<int>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StationRecords(string, int, int, float[,])"/>
            public static float[,] StationRecords(string fileName, int station, int month, float[,] stationRecords)
            {
                Check.Shape("Climate.StationRecords", "stationRecords", stationRecords, 12, 11);
                float[,] results = (float[,])stationRecords.Clone();
                Native.CLBNF0(Text.Of("Climate.StationRecords", "fileName", fileName), ref station, ref month, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StationClimate(FileUnit, int, int, int, BandSet, float)"/>
            public static StationClimate StationClimate(FileUnit fileUnit, int station, int band, int month,
                BandSet bandSet, float percentage)
            {
                var results = new StationClimate { Q1 = float.NaN, Q2 = float.NaN, Q3 = float.NaN, Q4 = float.NaN,
                    Q5 = float.NaN, Q6 = float.NaN, Q7 = float.NaN, TimeA = float.NaN, TimeB = float.NaN };
                Native.CLBNFI(ref fileUnit, ref station, ref band, ref month, ref bandSet, ref percentage,
                    ref results.Q1, ref results.Q2, ref results.Q3, ref results.Q4, ref results.Q5, ref results.Q6,
                    ref results.Q7, ref results.TimeA, ref results.TimeB);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.LocateStationBand(float, int)"/>
            public static LocateStationBand LocateStationBand(float fraction, int month)
            {
                var results = new LocateStationBand { BandWeight = float.NaN };
                Native.CLBNF1(ref fraction, ref month, ref results.LowerBand, ref results.UpperBand,
                    ref results.BandWeight);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.InterpolateStationRows(int, int, int, int, float)"/>
            public static float InterpolateStationRows(int baseRow, int lowerBand, int upperBand, int month,
                float bandWeight)
            {
                float results = float.NaN;
                Native.CLBNF2(ref baseRow, ref lowerBand, ref upperBand, ref month, ref bandWeight, ref results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.StationRow(int)"/>
            public static float[] StationRow(int row)
            {
                float[] results = Blank.Of(new float[12]);
                Native.CLBNF3(ref row, results);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DailyTemperature(float, float, float, float, float)"/>
            public static float DailyTemperature(float hour, float highestTemperature, float lowestTemperature,
                float hourOfHighest, float hourOfLowest)
            {
                return Native.CLTAO(ref hour, ref highestTemperature, ref lowestTemperature, ref hourOfHighest,
                    ref hourOfLowest);
            }

            /// <inheritdoc cref="Quorvel.Climate.DailyTemperature(float, float, float, float, float)"/>
            public static float[] DailyTemperature(Input<float> hour, Input<float> highestTemperature,
                Input<float> lowestTemperature, Input<float> hourOfHighest, Input<float> hourOfLowest)
            {
                int count = Elements.Count("Climate.DailyTemperature", ("hour", hour.Length), ("highestTemperature",
                    highestTemperature.Length), ("lowestTemperature", lowestTemperature.Length), ("hourOfHighest",
                    hourOfHighest.Length), ("hourOfLowest", hourOfLowest.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_daily_temperature((UIntPtr)count, ref hour.First, hour.Stride,
                    ref highestTemperature.First, highestTemperature.Stride, ref lowestTemperature.First,
                    lowestTemperature.Stride, ref hourOfHighest.First, hourOfHighest.Stride, ref hourOfLowest.First,
                    hourOfLowest.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DailyValue(float, float, float, float, float, float)"/>
            public static float DailyValue(float hour, float mean, float amplitude, float firstHour, float secondHour,
                float amplitudeFactor)
            {
                return Native.CLTAOX(ref hour, ref mean, ref amplitude, ref firstHour, ref secondHour,
                    ref amplitudeFactor);
            }

            /// <inheritdoc cref="Quorvel.Climate.DailyValue(float, float, float, float, float, float)"/>
            public static float[] DailyValue(Input<float> hour, Input<float> mean, Input<float> amplitude,
                Input<float> firstHour, Input<float> secondHour, Input<float> amplitudeFactor)
            {
                int count = Elements.Count("Climate.DailyValue", ("hour", hour.Length), ("mean", mean.Length),
                    ("amplitude", amplitude.Length), ("firstHour", firstHour.Length), ("secondHour", secondHour.Length),
                    ("amplitudeFactor", amplitudeFactor.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_daily_value((UIntPtr)count, ref hour.First, hour.Stride, ref mean.First,
                    mean.Stride, ref amplitude.First, amplitude.Stride, ref firstHour.First, firstHour.Stride,
                    ref secondHour.First, secondHour.Stride, ref amplitudeFactor.First, amplitudeFactor.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignIrradiance(float, float, SkyKind)"/>
            public static DesignIrradiance DesignIrradiance(float solarAltitude, float siteHeight, SkyKind skyKind)
            {
                var results = new DesignIrradiance { DirectNormal = float.NaN, DiffuseHorizontal = float.NaN };
                Native.CLSNNR(ref solarAltitude, ref Unread.Real, ref siteHeight, ref skyKind, ref results.DirectNormal,
                    ref results.DiffuseHorizontal);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DesignIrradiance(float, float, SkyKind)"/>
            public static DesignIrradiance[] DesignIrradiance(Input<float> solarAltitude, Input<float> siteHeight,
                Input<SkyKind> skyKind)
            {
                int count = Elements.Count("Climate.DesignIrradiance", ("solarAltitude", solarAltitude.Length),
                    ("siteHeight", siteHeight.Length), ("skyKind", skyKind.Length));
                var results = new DesignIrradiance[count];
                Elements.Done(Native.quorvel_design_irradiance((UIntPtr)count, ref solarAltitude.First,
                    solarAltitude.Stride, ref siteHeight.First, siteHeight.Stride, ref skyKind.First, skyKind.Stride,
                    ref Elements.First(results).DirectNormal, Elements<DesignIrradiance>.Stride,
                    ref Elements.First(results).DiffuseHorizontal, Elements<DesignIrradiance>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.HeightFactor(float, float)"/>
            public static float HeightFactor(float siteHeight, float solarAltitude)
            {
                return Native.CLHIGH(ref siteHeight, ref solarAltitude);
            }

            /// <inheritdoc cref="Quorvel.Climate.HeightFactor(float, float)"/>
            public static float[] HeightFactor(Input<float> siteHeight, Input<float> solarAltitude)
            {
                int count = Elements.Count("Climate.HeightFactor", ("siteHeight", siteHeight.Length), ("solarAltitude",
                    solarAltitude.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_height_factor((UIntPtr)count, ref siteHeight.First, siteHeight.Stride,
                    ref solarAltitude.First, solarAltitude.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.EccentricityFactor(int)"/>
            public static float EccentricityFactor(int day)
            {
                return Native.CLETAJ(ref day);
            }

            /// <inheritdoc cref="Quorvel.Climate.EccentricityFactor(int)"/>
            public static float[] EccentricityFactor(Input<int> day)
            {
                int count = Elements.Count("Climate.EccentricityFactor", ("day", day.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_eccentricity_factor((UIntPtr)count, ref day.First, day.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.ClearnessIndex(int, float, float)"/>
            public static float ClearnessIndex(int day, float solarAltitude, float globalHorizontal)
            {
                return Native.CLMODUL(ref day, ref solarAltitude, ref globalHorizontal);
            }

            /// <inheritdoc cref="Quorvel.Climate.ClearnessIndex(int, float, float)"/>
            public static float[] ClearnessIndex(Input<int> day, Input<float> solarAltitude,
                Input<float> globalHorizontal)
            {
                int count = Elements.Count("Climate.ClearnessIndex", ("day", day.Length), ("solarAltitude",
                    solarAltitude.Length), ("globalHorizontal", globalHorizontal.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_clearness_index((UIntPtr)count, ref day.First, day.Stride,
                    ref solarAltitude.First, solarAltitude.Stride, ref globalHorizontal.First, globalHorizontal.Stride,
                    ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.MuneerSlope(float, float, float, float, float, float, float, float)"/>
            public static MuneerSlope MuneerSlope(float solarAltitude, float solarAzimuth, float surfaceAzimuth,
                float tilt, float beamHorizontal, float diffuseHorizontal, float extraterrestrialHorizontal,
                float groundReflectance)
            {
                var results = new MuneerSlope { SurfaceBeam = float.NaN, SurfaceDiffuse = float.NaN,
                    GroundReflected = float.NaN, Incidence = float.NaN };
                Native.CLMUNRAD(ref solarAltitude, ref solarAzimuth, ref surfaceAzimuth, ref tilt, ref beamHorizontal,
                    ref diffuseHorizontal, ref extraterrestrialHorizontal, ref groundReflectance,
                    ref results.SurfaceBeam, ref results.SurfaceDiffuse, ref results.GroundReflected,
                    ref results.Incidence);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.MuneerSlope(float, float, float, float, float, float, float, float)"/>
            public static MuneerSlope[] MuneerSlope(Input<float> solarAltitude, Input<float> solarAzimuth,
                Input<float> surfaceAzimuth, Input<float> tilt, Input<float> beamHorizontal,
                Input<float> diffuseHorizontal, Input<float> extraterrestrialHorizontal, Input<float> groundReflectance)
            {
                int count = Elements.Count("Climate.MuneerSlope", ("solarAltitude", solarAltitude.Length),
                    ("solarAzimuth", solarAzimuth.Length), ("surfaceAzimuth", surfaceAzimuth.Length), ("tilt",
                    tilt.Length), ("beamHorizontal", beamHorizontal.Length), ("diffuseHorizontal",
                    diffuseHorizontal.Length), ("extraterrestrialHorizontal", extraterrestrialHorizontal.Length),
                    ("groundReflectance", groundReflectance.Length));
                var results = new MuneerSlope[count];
                Elements.Done(Native.quorvel_muneer_slope((UIntPtr)count, ref solarAltitude.First, solarAltitude.Stride,
                    ref solarAzimuth.First, solarAzimuth.Stride, ref surfaceAzimuth.First, surfaceAzimuth.Stride,
                    ref tilt.First, tilt.Stride, ref beamHorizontal.First, beamHorizontal.Stride,
                    ref diffuseHorizontal.First, diffuseHorizontal.Stride, ref extraterrestrialHorizontal.First,
                    extraterrestrialHorizontal.Stride, ref groundReflectance.First, groundReflectance.Stride,
                    ref Elements.First(results).SurfaceBeam, Elements<MuneerSlope>.Stride,
                    ref Elements.First(results).SurfaceDiffuse, Elements<MuneerSlope>.Stride,
                    ref Elements.First(results).GroundReflected, Elements<MuneerSlope>.Stride,
                    ref Elements.First(results).Incidence, Elements<MuneerSlope>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.PerezDiffuse(float, float, float, float, float, float)"/>
            public static float PerezDiffuse(float solarAltitude, float tilt, float beamHorizontal,
                float diffuseHorizontal, float incidence, float extraterrestrialNormal)
            {
                float results = float.NaN;
                Native.CLPERSKY(ref solarAltitude, ref tilt, ref beamHorizontal, ref diffuseHorizontal, ref results,
                    ref incidence, ref extraterrestrialNormal);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.PerezDiffuse(float, float, float, float, float, float)"/>
            public static float[] PerezDiffuse(Input<float> solarAltitude, Input<float> tilt,
                Input<float> beamHorizontal, Input<float> diffuseHorizontal, Input<float> incidence,
                Input<float> extraterrestrialNormal)
            {
                int count = Elements.Count("Climate.PerezDiffuse", ("solarAltitude", solarAltitude.Length), ("tilt",
                    tilt.Length), ("beamHorizontal", beamHorizontal.Length), ("diffuseHorizontal",
                    diffuseHorizontal.Length), ("incidence", incidence.Length), ("extraterrestrialNormal",
                    extraterrestrialNormal.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_perez_diffuse((UIntPtr)count, ref solarAltitude.First,
                    solarAltitude.Stride, ref tilt.First, tilt.Stride, ref beamHorizontal.First, beamHorizontal.Stride,
                    ref diffuseHorizontal.First, diffuseHorizontal.Stride, ref incidence.First, incidence.Stride,
                    ref extraterrestrialNormal.First, extraterrestrialNormal.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SiteConstants(int, int)"/>
            public static SiteConstants SiteConstants(int siteClass, int month)
            {
                var results = new SiteConstants { GroundReflectance = float.NaN, BeamFactor = float.NaN,
                    DiffuseFactor = float.NaN, AlternativeDiffuseFactor = float.NaN };
                Native.CLCONS(ref siteClass, ref month, ref results.GroundReflectance, ref results.BeamFactor,
                    ref results.DiffuseFactor, ref results.AlternativeDiffuseFactor);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SiteConstants(int, int)"/>
            public static SiteConstants[] SiteConstants(Input<int> siteClass, Input<int> month)
            {
                int count = Elements.Count("Climate.SiteConstants", ("siteClass", siteClass.Length), ("month",
                    month.Length));
                var results = new SiteConstants[count];
                Elements.Done(Native.quorvel_site_constants((UIntPtr)count, ref siteClass.First, siteClass.Stride,
                    ref month.First, month.Stride, ref Elements.First(results).GroundReflectance,
                    Elements<SiteConstants>.Stride, ref Elements.First(results).BeamFactor,
                    Elements<SiteConstants>.Stride, ref Elements.First(results).DiffuseFactor,
                    Elements<SiteConstants>.Stride, ref Elements.First(results).AlternativeDiffuseFactor,
                    Elements<SiteConstants>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.DiffuseTiltFactor(int, float, float, float, SkyModel)"/>
            public static float DiffuseTiltFactor(int day, float solarAltitude, float beamHorizontal, float tilt,
                SkyModel skyModel)
            {
                return Native.CLDIFRAD(ref day, ref solarAltitude, ref beamHorizontal, ref Unread.Real, ref tilt,
                    ref skyModel);
            }

            /// <inheritdoc cref="Quorvel.Climate.DiffuseTiltFactor(int, float, float, float, SkyModel)"/>
            public static float[] DiffuseTiltFactor(Input<int> day, Input<float> solarAltitude,
                Input<float> beamHorizontal, Input<float> tilt, Input<SkyModel> skyModel)
            {
                int count = Elements.Count("Climate.DiffuseTiltFactor", ("day", day.Length), ("solarAltitude",
                    solarAltitude.Length), ("beamHorizontal", beamHorizontal.Length), ("tilt", tilt.Length),
                    ("skyModel", skyModel.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_diffuse_tilt_factor((UIntPtr)count, ref day.First, day.Stride,
                    ref solarAltitude.First, solarAltitude.Stride, ref beamHorizontal.First, beamHorizontal.Stride,
                    ref tilt.First, tilt.Stride, ref skyModel.First, skyModel.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SlopeDiffuse(int, float, float, float, float, float, float, SkyModel)"/>
            public static float SlopeDiffuse(int day, float solarAltitude, float solarAzimuth, float surfaceAzimuth,
                float tilt, float beamHorizontal, float diffuseHorizontal, SkyModel skyModel)
            {
                return Native.CLDIFSLO(ref day, ref solarAltitude, ref solarAzimuth, ref surfaceAzimuth, ref tilt,
                    ref beamHorizontal, ref diffuseHorizontal, ref skyModel);
            }

            /// <inheritdoc cref="Quorvel.Climate.SlopeDiffuse(int, float, float, float, float, float, float, SkyModel)"/>
            public static float[] SlopeDiffuse(Input<int> day, Input<float> solarAltitude, Input<float> solarAzimuth,
                Input<float> surfaceAzimuth, Input<float> tilt, Input<float> beamHorizontal,
                Input<float> diffuseHorizontal, Input<SkyModel> skyModel)
            {
                int count = Elements.Count("Climate.SlopeDiffuse", ("day", day.Length), ("solarAltitude",
                    solarAltitude.Length), ("solarAzimuth", solarAzimuth.Length), ("surfaceAzimuth",
                    surfaceAzimuth.Length), ("tilt", tilt.Length), ("beamHorizontal", beamHorizontal.Length),
                    ("diffuseHorizontal", diffuseHorizontal.Length), ("skyModel", skyModel.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_slope_diffuse((UIntPtr)count, ref day.First, day.Stride,
                    ref solarAltitude.First, solarAltitude.Stride, ref solarAzimuth.First, solarAzimuth.Stride,
                    ref surfaceAzimuth.First, surfaceAzimuth.Stride, ref tilt.First, tilt.Stride,
                    ref beamHorizontal.First, beamHorizontal.Stride, ref diffuseHorizontal.First,
                    diffuseHorizontal.Stride, ref skyModel.First, skyModel.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SolAirTemperature(float, float, float, float, float)"/>
            public static float SolAirTemperature(float baseTemperature, float surfaceCoefficient, float absorptance,
                float irradiance, float longWaveLoss)
            {
                return Native.CLTEO(ref baseTemperature, ref surfaceCoefficient, ref absorptance, ref Unread.Real,
                    ref Unread.Real, ref irradiance, ref longWaveLoss);
            }

            /// <inheritdoc cref="Quorvel.Climate.SolAirTemperature(float, float, float, float, float)"/>
            public static float[] SolAirTemperature(Input<float> baseTemperature, Input<float> surfaceCoefficient,
                Input<float> absorptance, Input<float> irradiance, Input<float> longWaveLoss)
            {
                int count = Elements.Count("Climate.SolAirTemperature", ("baseTemperature", baseTemperature.Length),
                    ("surfaceCoefficient", surfaceCoefficient.Length), ("absorptance", absorptance.Length),
                    ("irradiance", irradiance.Length), ("longWaveLoss", longWaveLoss.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_sol_air_temperature((UIntPtr)count, ref baseTemperature.First,
                    baseTemperature.Stride, ref surfaceCoefficient.First, surfaceCoefficient.Stride,
                    ref absorptance.First, absorptance.Stride, ref irradiance.First, irradiance.Stride,
                    ref longWaveLoss.First, longWaveLoss.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.LongWaveLoss(float, float)"/>
            public static float LongWaveLoss(float tilt, float cloudCover)
            {
                return Native.CLRERD(ref tilt, ref cloudCover);
            }

            /// <inheritdoc cref="Quorvel.Climate.LongWaveLoss(float, float)"/>
            public static float[] LongWaveLoss(Input<float> tilt, Input<float> cloudCover)
            {
                int count = Elements.Count("Climate.LongWaveLoss", ("tilt", tilt.Length), ("cloudCover",
                    cloudCover.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_long_wave_loss((UIntPtr)count, ref tilt.First, tilt.Stride,
                    ref cloudCover.First, cloudCover.Stride, ref Elements.First(results), Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SolarTimeCorrection(float, int, float, float)"/>
            public static float SolarTimeCorrection(float clockOffset, int day, float longitude,
                float referenceLongitude)
            {
                return Native.CLTCOR(ref clockOffset, ref day, ref longitude, ref referenceLongitude);
            }

            /// <inheritdoc cref="Quorvel.Climate.SolarTimeCorrection(float, int, float, float)"/>
            public static float[] SolarTimeCorrection(Input<float> clockOffset, Input<int> day, Input<float> longitude,
                Input<float> referenceLongitude)
            {
                int count = Elements.Count("Climate.SolarTimeCorrection", ("clockOffset", clockOffset.Length), ("day",
                    day.Length), ("longitude", longitude.Length), ("referenceLongitude", referenceLongitude.Length));
                var results = new float[count];
                Elements.Done(Native.quorvel_solar_time_correction((UIntPtr)count, ref clockOffset.First,
                    clockOffset.Stride, ref day.First, day.Stride, ref longitude.First, longitude.Stride,
                    ref referenceLongitude.First, referenceLongitude.Stride, ref Elements.First(results),
                    Elements<float>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.AlmanacPosition(TimeKind, int, int, int, float, float, float, float)"/>
            public static AlmanacPosition AlmanacPosition(TimeKind timeKind, int year, int month, int dayOfMonth,
                float clockTime, float latitude, float longitude, float zoneMeridian)
            {
                var results = new AlmanacPosition { Longitude = longitude, ZoneMeridian = zoneMeridian,
                    SolarAltitude = float.NaN, SolarAzimuth = float.NaN, Declination = float.NaN };
                Native.CLYALLOP(ref timeKind, ref year, ref month, ref dayOfMonth, ref clockTime, ref latitude,
                    ref results.Longitude, ref results.ZoneMeridian, ref results.SolarAltitude,
                    ref results.SolarAzimuth, ref results.Declination);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.AlmanacPosition(TimeKind, int, int, int, float, float, float, float)"/>
            public static AlmanacPosition[] AlmanacPosition(Input<TimeKind> timeKind, Input<int> year, Input<int> month,
                Input<int> dayOfMonth, Input<float> clockTime, Input<float> latitude, Input<float> longitude,
                Input<float> zoneMeridian)
            {
                int count = Elements.Count("Climate.AlmanacPosition", ("timeKind", timeKind.Length), ("year",
                    year.Length), ("month", month.Length), ("dayOfMonth", dayOfMonth.Length), ("clockTime",
                    clockTime.Length), ("latitude", latitude.Length), ("longitude", longitude.Length), ("zoneMeridian",
                    zoneMeridian.Length));
                var results = new AlmanacPosition[count];
                Elements.Done(Native.quorvel_almanac_position((UIntPtr)count, ref timeKind.First, timeKind.Stride,
                    ref year.First, year.Stride, ref month.First, month.Stride, ref dayOfMonth.First, dayOfMonth.Stride,
                    ref clockTime.First, clockTime.Stride, ref latitude.First, latitude.Stride, ref longitude.First,
                    longitude.Stride, ref zoneMeridian.First, zoneMeridian.Stride,
                    ref Elements.First(results).Longitude, Elements<AlmanacPosition>.Stride,
                    ref Elements.First(results).ZoneMeridian, Elements<AlmanacPosition>.Stride,
                    ref Elements.First(results).SolarAltitude, Elements<AlmanacPosition>.Stride,
                    ref Elements.First(results).SolarAzimuth, Elements<AlmanacPosition>.Stride,
                    ref Elements.First(results).Declination, Elements<AlmanacPosition>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.AlmanacSunHours(int, int, int, float)"/>
            public static AlmanacSunHours AlmanacSunHours(int year, int month, int dayOfMonth, float latitude)
            {
                var results = new AlmanacSunHours { Sunrise = float.NaN, Sunset = float.NaN };
                Native.CLRISESET(ref year, ref month, ref dayOfMonth, ref latitude, ref results.Sunrise,
                    ref results.Sunset);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.AlmanacSunHours(int, int, int, float)"/>
            public static AlmanacSunHours[] AlmanacSunHours(Input<int> year, Input<int> month, Input<int> dayOfMonth,
                Input<float> latitude)
            {
                int count = Elements.Count("Climate.AlmanacSunHours", ("year", year.Length), ("month", month.Length),
                    ("dayOfMonth", dayOfMonth.Length), ("latitude", latitude.Length));
                var results = new AlmanacSunHours[count];
                Elements.Done(Native.quorvel_almanac_sun_hours((UIntPtr)count, ref year.First, year.Stride,
                    ref month.First, month.Stride, ref dayOfMonth.First, dayOfMonth.Stride, ref latitude.First,
                    latitude.Stride, ref Elements.First(results).Sunrise, Elements<AlmanacSunHours>.Stride,
                    ref Elements.First(results).Sunset, Elements<AlmanacSunHours>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SolarGeometry(float, int, float)"/>
            public static SolarGeometry SolarGeometry(float latitude, int day, float solarTime)
            {
                var results = new SolarGeometry { Declination = float.NaN, SolarAltitude = float.NaN,
                    SolarAzimuth = float.NaN, Sunrise = float.NaN, Sunset = float.NaN };
                Native.CLSNGE(ref latitude, ref day, ref solarTime, ref results.Declination, ref results.SolarAltitude,
                    ref results.SolarAzimuth, ref results.Sunrise, ref results.Sunset);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SolarGeometry(float, int, float)"/>
            public static SolarGeometry[] SolarGeometry(Input<float> latitude, Input<int> day, Input<float> solarTime)
            {
                int count = Elements.Count("Climate.SolarGeometry", ("latitude", latitude.Length), ("day", day.Length),
                    ("solarTime", solarTime.Length));
                var results = new SolarGeometry[count];
                Elements.Done(Native.quorvel_solar_geometry((UIntPtr)count, ref latitude.First, latitude.Stride,
                    ref day.First, day.Stride, ref solarTime.First, solarTime.Stride,
                    ref Elements.First(results).Declination, Elements<SolarGeometry>.Stride,
                    ref Elements.First(results).SolarAltitude, Elements<SolarGeometry>.Stride,
                    ref Elements.First(results).SolarAzimuth, Elements<SolarGeometry>.Stride,
                    ref Elements.First(results).Sunrise, Elements<SolarGeometry>.Stride,
                    ref Elements.First(results).Sunset, Elements<SolarGeometry>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceAngles(float, float, float, float)"/>
            public static SurfaceAngles SurfaceAngles(float solarAltitude, float solarAzimuth, float surfaceAzimuth,
                float tilt)
            {
                var results = new SurfaceAngles { Incidence = float.NaN, VerticalShadowAngle = float.NaN,
                    HorizontalShadowAngle = float.NaN };
                Native.CLSNSR(ref solarAltitude, ref solarAzimuth, ref surfaceAzimuth, ref tilt, ref results.Incidence,
                    ref results.VerticalShadowAngle, ref results.HorizontalShadowAngle);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceAngles(float, float, float, float)"/>
            public static SurfaceAngles[] SurfaceAngles(Input<float> solarAltitude, Input<float> solarAzimuth,
                Input<float> surfaceAzimuth, Input<float> tilt)
            {
                int count = Elements.Count("Climate.SurfaceAngles", ("solarAltitude", solarAltitude.Length),
                    ("solarAzimuth", solarAzimuth.Length), ("surfaceAzimuth", surfaceAzimuth.Length), ("tilt",
                    tilt.Length));
                var results = new SurfaceAngles[count];
                Elements.Done(Native.quorvel_surface_angles((UIntPtr)count, ref solarAltitude.First,
                    solarAltitude.Stride, ref solarAzimuth.First, solarAzimuth.Stride, ref surfaceAzimuth.First,
                    surfaceAzimuth.Stride, ref tilt.First, tilt.Stride, ref Elements.First(results).Incidence,
                    Elements<SurfaceAngles>.Stride, ref Elements.First(results).VerticalShadowAngle,
                    Elements<SurfaceAngles>.Stride, ref Elements.First(results).HorizontalShadowAngle,
                    Elements<SurfaceAngles>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradiance(float, float, float, float, float, float, float, float, float)"/>
            public static SurfaceIrradiance SurfaceIrradiance(float solarAltitude, float solarAzimuth,
                float surfaceAzimuth, float tilt, float directNormal, float diffuseHorizontal, float groundReflectance,
                float beamFactor, float diffuseFactor)
            {
                var results = new SurfaceIrradiance { SurfaceBeam = float.NaN, SurfaceDiffuse = float.NaN,
                    GroundReflected = float.NaN };
                Native.CLSORD(ref solarAltitude, ref solarAzimuth, ref surfaceAzimuth, ref tilt, ref directNormal,
                    ref diffuseHorizontal, ref groundReflectance, ref beamFactor, ref diffuseFactor,
                    ref results.SurfaceBeam, ref results.SurfaceDiffuse, ref results.GroundReflected);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradiance(float, float, float, float, float, float, float, float, float)"/>
            public static SurfaceIrradiance[] SurfaceIrradiance(Input<float> solarAltitude, Input<float> solarAzimuth,
                Input<float> surfaceAzimuth, Input<float> tilt, Input<float> directNormal,
                Input<float> diffuseHorizontal, Input<float> groundReflectance, Input<float> beamFactor,
                Input<float> diffuseFactor)
            {
                int count = Elements.Count("Climate.SurfaceIrradiance", ("solarAltitude", solarAltitude.Length),
                    ("solarAzimuth", solarAzimuth.Length), ("surfaceAzimuth", surfaceAzimuth.Length), ("tilt",
                    tilt.Length), ("directNormal", directNormal.Length), ("diffuseHorizontal",
                    diffuseHorizontal.Length), ("groundReflectance", groundReflectance.Length), ("beamFactor",
                    beamFactor.Length), ("diffuseFactor", diffuseFactor.Length));
                var results = new SurfaceIrradiance[count];
                Elements.Done(Native.quorvel_surface_irradiance((UIntPtr)count, ref solarAltitude.First,
                    solarAltitude.Stride, ref solarAzimuth.First, solarAzimuth.Stride, ref surfaceAzimuth.First,
                    surfaceAzimuth.Stride, ref tilt.First, tilt.Stride, ref directNormal.First, directNormal.Stride,
                    ref diffuseHorizontal.First, diffuseHorizontal.Stride, ref groundReflectance.First,
                    groundReflectance.Stride, ref beamFactor.First, beamFactor.Stride, ref diffuseFactor.First,
                    diffuseFactor.Stride, ref Elements.First(results).SurfaceBeam, Elements<SurfaceIrradiance>.Stride,
                    ref Elements.First(results).SurfaceDiffuse, Elements<SurfaceIrradiance>.Stride,
                    ref Elements.First(results).GroundReflected, Elements<SurfaceIrradiance>.Stride));
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradianceAndIncidence(float, float, float, float, float, float, float, float, float)"/>
            public static SurfaceIrradianceAndIncidence SurfaceIrradianceAndIncidence(float solarAltitude,
                float solarAzimuth, float surfaceAzimuth, float tilt, float directNormal, float diffuseHorizontal,
                float groundReflectance, float beamFactor, float diffuseFactor)
            {
                var results = new SurfaceIrradianceAndIncidence { SurfaceBeam = float.NaN, SurfaceDiffuse = float.NaN,
                    GroundReflected = float.NaN, Incidence = float.NaN };
                Native.CLSOR2(ref solarAltitude, ref solarAzimuth, ref surfaceAzimuth, ref tilt, ref directNormal,
                    ref diffuseHorizontal, ref groundReflectance, ref beamFactor, ref diffuseFactor,
                    ref results.SurfaceBeam, ref results.SurfaceDiffuse, ref results.GroundReflected,
                    ref results.Incidence);
                return results;
            }

            /// <inheritdoc cref="Quorvel.Climate.SurfaceIrradianceAndIncidence(float, float, float, float, float, float, float, float, float)"/>
            public static SurfaceIrradianceAndIncidence[] SurfaceIrradianceAndIncidence(Input<float> solarAltitude,
                Input<float> solarAzimuth, Input<float> surfaceAzimuth, Input<float> tilt, Input<float> directNormal,
                Input<float> diffuseHorizontal, Input<float> groundReflectance, Input<float> beamFactor,
                Input<float> diffuseFactor)
            {
                int count = Elements.Count("Climate.SurfaceIrradianceAndIncidence", ("solarAltitude",
                    solarAltitude.Length), ("solarAzimuth", solarAzimuth.Length), ("surfaceAzimuth",
                    surfaceAzimuth.Length), ("tilt", tilt.Length), ("directNormal", directNormal.Length),
                    ("diffuseHorizontal", diffuseHorizontal.Length), ("groundReflectance", groundReflectance.Length),
                    ("beamFactor", beamFactor.Length), ("diffuseFactor", diffuseFactor.Length));
                var results = new SurfaceIrradianceAndIncidence[count];
                Elements.Done(Native.quorvel_surface_irradiance_and_incidence((UIntPtr)count, ref solarAltitude.First,
                    solarAltitude.Stride, ref solarAzimuth.First, solarAzimuth.Stride, ref surfaceAzimuth.First,
                    surfaceAzimuth.Stride, ref tilt.First, tilt.Stride, ref directNormal.First, directNormal.Stride,
                    ref diffuseHorizontal.First, diffuseHorizontal.Stride, ref groundReflectance.First,
                    groundReflectance.Stride, ref beamFactor.First, beamFactor.Stride, ref diffuseFactor.First,
                    diffuseFactor.Stride, ref Elements.First(results).SurfaceBeam,
                    Elements<SurfaceIrradianceAndIncidence>.Stride, ref Elements.First(results).SurfaceDiffuse,
                    Elements<SurfaceIrradianceAndIncidence>.Stride, ref Elements.First(results).GroundReflected,
                    Elements<SurfaceIrradianceAndIncidence>.Stride, ref Elements.First(results).Incidence,
                    Elements<SurfaceIrradianceAndIncidence>.Stride));
                return results;
            }
        }
    }
}
