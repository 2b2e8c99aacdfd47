// Produced from the catalogue of routines (catalogue/); do not edit.
using System;

namespace Quorvel
{
    /// <summary>Psychrometer type.</summary>
    public enum Psychrometer
    {
        /// <summary>Sling (aspirated)</summary>
        Sling = 1,
        /// <summary>Screen (naturally ventilated)</summary>
        Screen = 2,
    }

    /// <summary>Kind of element.</summary>
    public enum ElementKind
    {
        /// <summary>Element between two environments.</summary>
        Between = 1,
        /// <summary>Internal partition, the same swing on both sides.</summary>
        Partition = 2,
    }

    /// <summary>Direction of the heat flow.</summary>
    public enum HeatFlowDirection
    {
        /// <summary>Heat flow upwards.</summary>
        Upward = 1,
        /// <summary>Vertical surface.</summary>
        Horizontal = 2,
        /// <summary>Heat flow downwards.</summary>
        Downward = 3,
    }

    /// <summary>Direction.</summary>
    public enum Packing
    {
        /// <summary>Pack.</summary>
        Pack = 1,
        /// <summary>Unpack, as any other value.</summary>
        Unpack = 2,
    }

    /// <summary>Surface type of the outer face, normally 1.</summary>
    public enum Surface
    {
        /// <summary>Outside.</summary>
        Outside = 1,
        /// <summary>Inside.</summary>
        Inside = 2,
    }

    /// <summary>Exposure of the outer face to the wind.</summary>
    public enum Exposure
    {
        /// <summary>Sheltered.</summary>
        Sheltered = 1,
        /// <summary>Normal.</summary>
        Normal = 2,
        /// <summary>Severe.</summary>
        Severe = 3,
    }

    /// <summary>Kind of pane 3.</summary>
    public enum PaneKind
    {
        /// <summary>Closes the cavities on both sides.</summary>
        Closing = 1,
        /// <summary>Closes none.</summary>
        Vented = 2,
    }

    /// <summary>Kind of radiation.</summary>
    public enum Radiation
    {
        /// <summary>Direct radiation (<c>Glazing.UnitDirectShares</c>)</summary>
        Direct = 1,
        /// <summary>Diffuse radiation (<c>Glazing.UnitDiffuseShares</c>), as any other value.</summary>
        Diffuse = 2,
    }

    /// <summary>Set of bands.</summary>
    public enum BandSet
    {
        /// <summary>Set 1.</summary>
        First = 1,
        /// <summary>Set 2.</summary>
        Second = 2,
    }

    /// <summary>How the day is counted.</summary>
    public enum DayKind
    {
        /// <summary>Day of the month.</summary>
        OfMonth = 1,
        /// <summary>Day of the year.</summary>
        OfYear = 2,
    }

    /// <summary>Unit.</summary>
    public enum FileUnit
    {
        /// <summary>The file that <c>Climate.StationRecords</c> opened last.</summary>
        OpenedLast = 31,
    }

    /// <summary>Kind of sky.</summary>
    public enum SkyKind
    {
        /// <summary>Clear.</summary>
        Clear = 0,
        /// <summary>Cloudy: the larger diffuse irradiance.</summary>
        Cloudy = 1,
    }

    /// <summary>Model of the sky.</summary>
    public enum SkyModel
    {
        /// <summary>Radiance index by the kind of sky.</summary>
        RadianceIndex = 0,
        /// <summary>Clearness, northern Europe.</summary>
        NorthernEurope = 1,
        /// <summary>Clearness, southern Europe, as any other value.</summary>
        SouthernEurope = 2,
    }

    /// <summary>What the time is.</summary>
    public enum TimeKind
    {
        /// <summary>Solar time; longitude and zone meridian are set to 0.</summary>
        Solar = 1,
        /// <summary>Clock of the zone, at the longitude.</summary>
        Zone = 2,
        /// <summary>Solar time; the zone meridian only dates the declination.</summary>
        DatedSolar = 3,
    }

    /// <summary>1 for points that are enclosed.</summary>
    public enum Enclosed
    {
        /// <summary>Not enclosed.</summary>
        Outside = 0,
        /// <summary>Enclosed.</summary>
        Inside = 1,
    }
}
