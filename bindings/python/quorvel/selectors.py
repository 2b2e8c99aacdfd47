"""What the selectors stand for."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from enum import IntEnum


class Psychrometer(IntEnum):
    """Psychrometer type."""

    sling = 1
    """sling (aspirated)"""
    screen = 2
    """screen (naturally ventilated)"""


class ElementKind(IntEnum):
    """Kind of element."""

    between = 1
    """element between two environments"""
    partition = 2
    """internal partition, the same swing on both sides"""


class HeatFlowDirection(IntEnum):
    """Direction of the heat flow."""

    upward = 1
    """heat flow upwards"""
    horizontal = 2
    """vertical surface"""
    downward = 3
    """heat flow downwards"""


class Packing(IntEnum):
    """Direction."""

    pack = 1
    """pack"""
    unpack = 2
    """unpack, as any other value"""


class Surface(IntEnum):
    """Surface type of the outer face, normally 1."""

    outside = 1
    """outside"""
    inside = 2
    """inside"""


class Exposure(IntEnum):
    """Exposure of the outer face to the wind."""

    sheltered = 1
    """sheltered"""
    normal = 2
    """normal"""
    severe = 3
    """severe"""


class PaneKind(IntEnum):
    """Kind of pane 3."""

    closing = 1
    """closes the cavities on both sides"""
    vented = 2
    """closes none"""


class Radiation(IntEnum):
    """Kind of radiation."""

    direct = 1
    """direct radiation (`unit_direct_shares`)"""
    diffuse = 2
    """diffuse radiation (`unit_diffuse_shares`), as any other value"""


class BandSet(IntEnum):
    """Set of bands."""

    first = 1
    """bands from the warmest to the coldest days"""
    second = 2
    """bands from the highest to the lowest Q1"""


class DayKind(IntEnum):
    """How the day is counted."""

    of_month = 1
    """day of the month"""
    of_year = 2
    """day of the year"""


class SkyKind(IntEnum):
    """Kind of sky."""

    clear = 0
    """clear"""
    cloudy = 1
    """cloudy: the larger diffuse irradiance"""


class SkyModel(IntEnum):
    """Model of the sky."""

    radiance_index = 0
    """radiance index by the kind of sky"""
    northern_europe = 1
    """clearness, northern Europe"""
    southern_europe = 2
    """clearness, southern Europe, as any other value"""


class TimeKind(IntEnum):
    """What the time is."""

    solar = 1
    """solar time; longitude and zone meridian are set to 0"""
    zone = 2
    """clock of the zone, at the longitude"""
    dated_solar = 3
    """solar time; the zone meridian only dates the declination"""


class Enclosed(IntEnum):
    """1 for points that are enclosed."""

    outside = 0
    """not enclosed"""
    inside = 1
    """enclosed"""
