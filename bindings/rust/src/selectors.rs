// Produced from the catalogue of routines (catalogue/); do not edit.

use crate::selector::selector;

selector! {
    /// Psychrometer type.
    Psychrometer {
        /// Sling (aspirated)
        Sling = 1,
        /// Screen (naturally ventilated)
        Screen = 2,
    }
}

selector! {
    /// Kind of element.
    ElementKind {
        /// Element between two environments.
        Between = 1,
        /// Internal partition, the same swing on both sides.
        Partition = 2,
    }
}

selector! {
    /// Direction of the heat flow.
    HeatFlowDirection {
        /// Heat flow upwards.
        Upward = 1,
        /// Vertical surface.
        Horizontal = 2,
        /// Heat flow downwards.
        Downward = 3,
    }
}

selector! {
    /// Direction.
    Packing {
        /// Pack.
        Pack = 1,
        /// Unpack, as any other value.
        Unpack = 2,
    }
}

selector! {
    /// Surface type of the outer face, normally 1.
    Surface {
        /// Outside.
        Outside = 1,
        /// Inside.
        Inside = 2,
    }
}

selector! {
    /// Exposure of the outer face to the wind.
    Exposure {
        /// Sheltered.
        Sheltered = 1,
        /// Normal.
        Normal = 2,
        /// Severe.
        Severe = 3,
    }
}

selector! {
    /// Kind of pane 3.
    PaneKind {
        /// Closes the cavities on both sides.
        Closing = 1,
        /// Closes none.
        Vented = 2,
    }
}

selector! {
    /// Kind of radiation.
    Radiation {
        /// Direct radiation ([`glazing::unit_direct_shares`](crate::glazing::unit_direct_shares))
        Direct = 1,
        /// Diffuse radiation ([`glazing::unit_diffuse_shares`](crate::glazing::unit_diffuse_shares)), as any other
        /// value.
        Diffuse = 2,
    }
}

selector! {
    /// Set of bands.
    BandSet {
        /// Set 1.
        First = 1,
        /// Set 2.
        Second = 2,
    }
}

selector! {
    /// How the day is counted.
    DayKind {
        /// Day of the month.
        OfMonth = 1,
        /// Day of the year.
        OfYear = 2,
    }
}

selector! {
    /// Unit.
    FileUnit {
        /// The file that [`climate::station_records`](crate::climate::station_records) opened last.
        OpenedLast = 31,
    }
}

selector! {
    /// Kind of sky.
    SkyKind {
        /// Clear.
        Clear = 0,
        /// Cloudy: the larger diffuse irradiance.
        Cloudy = 1,
    }
}

selector! {
    /// Model of the sky.
    SkyModel {
        /// Radiance index by the kind of sky.
        RadianceIndex = 0,
        /// Clearness, northern Europe.
        NorthernEurope = 1,
        /// Clearness, southern Europe, as any other value.
        SouthernEurope = 2,
    }
}

selector! {
    /// What the time is.
    TimeKind {
        /// Solar time; longitude and zone meridian are set to 0.
        Solar = 1,
        /// Clock of the zone, at the longitude.
        Zone = 2,
        /// Solar time; the zone meridian only dates the declination.
        DatedSolar = 3,
    }
}

selector! {
    /// 1 for points that are enclosed.
    Enclosed {
        /// Not enclosed.
        Outside = 0,
        /// Enclosed.
        Inside = 1,
    }
}
