"""Glazing: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from ..selectors import Radiation

_new = tuple.__new__  # a third of the time of _make

__all__ = [
    "Radiation",
    "GlassDirect",
    "GlassDiffuse",
    "StackedLayers",
    "TracedLayers",
    "RollerBlind",
    "DiffuseRollerBlind",
    "SurfaceReflectance",
    "SlabOptics",
    "PaneTemperatures",
    "UnitDirect",
    "UnitDiffuse",
    "UnitDirectShares",
    "UnitDiffuseShares",
    "UnitShares",
    "SlatDirect",
    "TwoFacedSlatDirect",
    "OpenSlatDirect",
    "SlatDiffuse",
    "TwoFacedSlatDiffuse",
    "OpenSlatDiffuse",
    "glass_direct",
    "glass_diffuse",
    "stacked_layers",
    "traced_layers",
    "roller_blind",
    "diffuse_roller_blind",
    "refraction_angle",
    "surface_reflectance",
    "single_pass_absorption",
    "slab_optics",
    "absorption_product",
    "normal_transmittance",
    "pane_temperatures",
    "unit_direct",
    "unit_diffuse",
    "unit_direct_shares",
    "unit_diffuse_shares",
    "unit_shares",
    "slat_direct",
    "two_faced_slat_direct",
    "open_slat_direct",
    "slat_diffuse",
    "two_faced_slat_diffuse",
    "open_slat_diffuse",
]

_glass_direct = functions["glass_direct"]
_glass_diffuse = functions["glass_diffuse"]
_stacked_layers = functions["stacked_layers"]
_traced_layers = functions["traced_layers"]
_roller_blind = functions["roller_blind"]
_diffuse_roller_blind = functions["diffuse_roller_blind"]
_refraction_angle = functions["refraction_angle"]
_surface_reflectance = functions["surface_reflectance"]
_single_pass_absorption = functions["single_pass_absorption"]
_slab_optics = functions["slab_optics"]
_absorption_product = functions["absorption_product"]
_normal_transmittance = functions["normal_transmittance"]
_pane_temperatures = functions["pane_temperatures"]
_unit_direct = functions["unit_direct"]
_unit_diffuse = functions["unit_diffuse"]
_unit_direct_shares = functions["unit_direct_shares"]
_unit_diffuse_shares = functions["unit_diffuse_shares"]
_unit_shares = functions["unit_shares"]
_slat_direct = functions["slat_direct"]
_two_faced_slat_direct = functions["two_faced_slat_direct"]
_open_slat_direct = functions["open_slat_direct"]
_slat_diffuse = functions["slat_diffuse"]
_two_faced_slat_diffuse = functions["two_faced_slat_diffuse"]
_open_slat_diffuse = functions["open_slat_diffuse"]


GlassDirect = namedtuple("GlassDirect", "parallel_transmittance parallel_absorptance parallel_reflectance perpendicular_transmittance perpendicular_absorptance perpendicular_reflectance")
GlassDirect.__doc__ = """What glass_direct returns.

    parallel_transmittance: transmittance, parallel polarisation
    parallel_absorptance: absorptance, parallel
    parallel_reflectance: reflectance, parallel
    perpendicular_transmittance: transmittance, perpendicular polarisation
    perpendicular_absorptance: absorptance, perpendicular
    perpendicular_reflectance: reflectance, perpendicular
"""

GlassDiffuse = namedtuple("GlassDiffuse", "transmittance absorptance")
GlassDiffuse.__doc__ = """What glass_diffuse returns.

    transmittance: diffuse transmittance
    absorptance: diffuse absorptance
"""

StackedLayers = namedtuple("StackedLayers", "transmittance absorptance reflectance")
StackedLayers.__doc__ = """What stacked_layers returns.

    transmittance: transmittance of the stack
    absorptance: absorptance, 1 - transmittance - reflectance
    reflectance: reflectance of the stack
"""

TracedLayers = namedtuple("TracedLayers", "transmittance absorptance reflectance")
TracedLayers.__doc__ = """What traced_layers returns.

    transmittance: transmittance of the stack
    absorptance: absorptance of the stack
    reflectance: reflectance of the stack
"""

RollerBlind = namedtuple("RollerBlind", "transmittance absorptance reflectance")
RollerBlind.__doc__ = """What roller_blind returns.

    transmittance: transmittance, that of the blind
    absorptance: absorptance, the rest
    reflectance: reflectance, that of the blind
"""

DiffuseRollerBlind = namedtuple("DiffuseRollerBlind", "transmittance absorptance reflectance")
DiffuseRollerBlind.__doc__ = """What diffuse_roller_blind returns.

    transmittance: transmittance, that of the blind to rounding
    absorptance: absorptance, the rest to rounding
    reflectance: reflectance, 1 - transmittance - absorptance
"""

SurfaceReflectance = namedtuple("SurfaceReflectance", "parallel_reflectance perpendicular_reflectance")
SurfaceReflectance.__doc__ = """What surface_reflectance returns.

    parallel_reflectance: reflectance, polarised parallel to the plane of incidence
    perpendicular_reflectance: reflectance, polarised perpendicular to it
"""

SlabOptics = namedtuple("SlabOptics", "transmittance absorptance reflectance")
SlabOptics.__doc__ = """What slab_optics returns.

    transmittance: transmittance
    absorptance: absorptance, not below 0
    reflectance: reflectance
"""

PaneTemperatures = namedtuple("PaneTemperatures", "pane_temperature_1 pane_temperature_2 pane_temperature_3 pane_temperature_4 pane_temperature_5")
PaneTemperatures.__doc__ = """What pane_temperatures returns.

    pane_temperature_1: temperature of pane 1, nearest the room [°C]
    pane_temperature_2: temperature of pane 2 [°C]
    pane_temperature_3: temperature of pane 3 [°C]
    pane_temperature_4: temperature of pane 4 [°C]
    pane_temperature_5: temperature of pane 5 [°C]
"""

UnitDirect = namedtuple("UnitDirect", "transmittance absorptance reflectance")
UnitDirect.__doc__ = """What unit_direct returns.

    transmittance: transmittance
    absorptance: absorptance
    reflectance: reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding
"""

UnitDiffuse = namedtuple("UnitDiffuse", "transmittance absorptance reflectance")
UnitDiffuse.__doc__ = """What unit_diffuse returns.

    transmittance: diffuse transmittance
    absorptance: diffuse absorptance
    reflectance: diffuse reflectance, 1 - transmittance - absorptance
"""

UnitDirectShares = namedtuple("UnitDirectShares", "transmittance pane_shares absorptance")
UnitDirectShares.__doc__ = """What unit_direct_shares returns.

    transmittance: transmittance
    pane_shares: share of each pane in 1 - transmittance - absorptance
    absorptance: absorptance
"""

UnitDiffuseShares = namedtuple("UnitDiffuseShares", "transmittance pane_shares absorptance")
UnitDiffuseShares.__doc__ = """What unit_diffuse_shares returns.

    transmittance: diffuse transmittance
    pane_shares: share of each pane in 1 - transmittance - absorptance
    absorptance: diffuse absorptance
"""

UnitShares = namedtuple("UnitShares", "transmittance pane_shares absorptance")
UnitShares.__doc__ = """What unit_shares returns.

    transmittance: transmittance
    pane_shares: share of each pane in 1 - transmittance - absorptance
    absorptance: absorptance
"""

SlatDirect = namedtuple("SlatDirect", "transmittance absorptance reflectance")
SlatDirect.__doc__ = """What slat_direct returns.

    transmittance: transmittance
    absorptance: absorptance
    reflectance: reflectance, 1 - transmittance - absorptance
"""

TwoFacedSlatDirect = namedtuple("TwoFacedSlatDirect", "transmittance absorptance reflectance")
TwoFacedSlatDirect.__doc__ = """What two_faced_slat_direct returns.

    transmittance: transmittance
    absorptance: absorptance
    reflectance: reflectance, 1 - transmittance - absorptance, not limited
"""

OpenSlatDirect = namedtuple("OpenSlatDirect", "transmittance absorptance reflectance")
OpenSlatDirect.__doc__ = """What open_slat_direct returns.

    transmittance: transmittance, the open share included
    absorptance: absorptance
    reflectance: reflectance
"""

SlatDiffuse = namedtuple("SlatDiffuse", "sky_transmittance ground_transmittance sky_absorptance ground_absorptance")
SlatDiffuse.__doc__ = """What slat_diffuse returns.

    sky_transmittance: transmittance for radiation from above the horizon
    ground_transmittance: transmittance for radiation from below it
    sky_absorptance: absorptance for radiation from above the horizon
    ground_absorptance: absorptance for radiation from below it
"""

TwoFacedSlatDiffuse = namedtuple("TwoFacedSlatDiffuse", "sky_transmittance ground_transmittance sky_absorptance ground_absorptance")
TwoFacedSlatDiffuse.__doc__ = """What two_faced_slat_diffuse returns.

    sky_transmittance: transmittance for radiation from above the horizon
    ground_transmittance: transmittance for radiation from below it
    sky_absorptance: absorptance for radiation from above the horizon
    ground_absorptance: absorptance for radiation from below it
"""

OpenSlatDiffuse = namedtuple("OpenSlatDiffuse", "sky_transmittance ground_transmittance sky_absorptance ground_absorptance")
OpenSlatDiffuse.__doc__ = """What open_slat_diffuse returns.

    sky_transmittance: transmittance for radiation from above the horizon
    ground_transmittance: transmittance for radiation from below it
    sky_absorptance: absorptance for radiation from above the horizon
    ground_absorptance: absorptance for radiation from below it
"""

def glass_direct(normal_transmittance, normal_reflectance, incidence, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a pane for direct radiation, both polarisations.

    Parameters
    ----------
    normal_transmittance : array_like of float
        Normal transmittance; valid 0 to 0.92.
    normal_reflectance : array_like of float
        Normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99.
    incidence : array_like of float
        Angle of incidence [rad]; valid -1.5708 to 1.5708.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    GlassDirect
        A named tuple of:

    parallel_transmittance : float32
        Transmittance, parallel polarisation.
    parallel_absorptance : float32
        Absorptance, parallel.
    parallel_reflectance : float32
        Reflectance, parallel.
    perpendicular_transmittance : float32
        Transmittance, perpendicular polarisation.
    perpendicular_absorptance : float32
        Absorptance, perpendicular.
    perpendicular_reflectance : float32
        Reflectance, perpendicular.

    Notes
    -----
    The unpolarised values are the means of the two polarisations.

    A normal reflectance in 0.01..0.99 means coated: factors on the normal transmittance and on 1 -
    normal_reflectance are interpolated from a table every 5 degrees, the same for both
    polarisations; beyond 1.57 rad everything is reflected. Any other means uncoated and is not
    used.

    Uncoated glass has the refractive index 1.52. Below a transmittance of 0.001 it is opaque and
    reflects everything.

    No uncoated glass has a normal transmittance above 0.9184: from there on its absorption would be
    below 0 and is held at 0, so that the three add up to more than 1. At 0.92 their unpolarised sum
    is 1.0018 at normal incidence, 1.0024 at 1.5 rad and 1.011 at 1.57 rad.

    For nearly opaque uncoated glass the difference in `absorption_product` cancels: at normal
    incidence the transmittance comes back to within 4 % from 0.02 on and 34 % from 0.005 on; below
    that 0.002 gives 0 and 0.0025 gives 0.006.

    Uncoated, an angle beyond pi/2 is not tested, and the results mean nothing there.

    The transmittance of coated glass is not tested: where it exceeds 1 with the reflectance the
    three do not add up to 1.

    Each element has the bits of WNDRGL in quorvel.h.

    References
    ----------
    Uncoated glass: `absorption_product`, `refraction_angle`, `surface_reflectance`,
    `single_pass_absorption`, `slab_optics` in turn. Coated glass: tabulated angular factors whose
    origin is not recorded.

    Examples
    --------
    >>> from quorvel.glazing import glass_direct
    >>> result = glass_direct(normal_transmittance=0.87338, normal_reflectance=0, incidence=0)
    >>> bool(abs(result.parallel_transmittance - 0.87338) <= 0.0001)
    True
    >>> bool(abs(result.parallel_absorptance - 0.0487) <= 0.0001)
    True
    >>> bool(abs(result.parallel_reflectance - 0.078) <= 0.0001)
    True
    >>> bool(abs(result.perpendicular_transmittance - 0.87338) <= 0.0001)
    True
    >>> bool(abs(result.perpendicular_absorptance - 0.0487) <= 0.0001)
    True
    >>> bool(abs(result.perpendicular_reflectance - 0.078) <= 0.0001)
    True

    (the slab of index 1.52 with absorption product 0.05 at normal incidence)
    """
    return _new(GlassDirect, _glass_direct(normal_transmittance, normal_reflectance, incidence, out, where))


def glass_diffuse(normal_transmittance, normal_reflectance, *, out=None, where=True):
    """Transmittance and absorptance of a pane for isotropic diffuse radiation.

    Parameters
    ----------
    normal_transmittance : array_like of float
        Normal transmittance; valid 0 to 0.92.
    normal_reflectance : array_like of float
        Normal reflectance of coated glass, 0 for uncoated; valid 0 to 0.99.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    GlassDiffuse
        A named tuple of:

    transmittance : float32
        Diffuse transmittance.
    absorptance : float32
        Diffuse absorptance.

    Notes
    -----
    The pane is taken exactly as by `glass_direct`, coated and opaque glass included.

    The bits are those of `glass_direct` summed over the bands.

    Each element has the bits of WNDFGL in quorvel.h.

    References
    ----------
    `glass_direct` at the centres of 18 bands of 5 degrees, each weighted with the integral of 2 sin
    cos over the band.

    Examples
    --------
    >>> from quorvel.glazing import glass_diffuse
    >>> result = glass_diffuse(normal_transmittance=0.83, normal_reflectance=0)
    >>> bool(abs(result.transmittance - 0.75) <= 0.01)
    True

    (ASHRAE Handbook of Fundamentals: clear glass of 3 mm)
    """
    return _new(GlassDiffuse, _glass_diffuse(normal_transmittance, normal_reflectance, out, where))


def stacked_layers(layer_transmittances, layer_reflectances, *, out=None):
    """Transmittance, absorptance and reflectance of a stack of layers, each reflection counted once.

    Parameters
    ----------
    layer_transmittances : array_like of float, shape (..., layers)
        Transmittance of each layer; valid 0 to 1.
    layer_reflectances : array_like of float, shape (..., layers)
        Reflectance of each layer; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    StackedLayers
        A named tuple of:

    transmittance : float32
        Transmittance of the stack.
    absorptance : float32
        Absorptance, 1 - transmittance - reflectance.
    reflectance : float32
        Reflectance of the stack.

    Raises
    ------
    ValueError
        Unless all arguments have as many layers.

    Notes
    -----
    A layer's reflection passes the layers above it once each way; there is no further
    inter-reflection.

    Where transmittance and reflectance exceed 0.99 together, the reflectance is reduced until they
    do not. It turns negative if the transmittance alone is above 0.99.

    The last layer is met first. No layers are an empty stack, which transmits everything.

    Each element has the bits of WNCOM2 in quorvel.h.

    References
    ----------
    First-order combination of the layers.

    Examples
    --------
    >>> from quorvel.glazing import stacked_layers
    >>> result = stacked_layers(layer_transmittances=[0.5, 0.5], layer_reflectances=[0.2, 0.2])
    >>> bool(abs(result.transmittance - 0.25) <= 1e-06)
    True
    >>> bool(abs(result.absorptance - 0.5) <= 1e-06)
    True
    >>> bool(abs(result.reflectance - 0.25) <= 1e-06)
    True

    (0.5 0.5 through both; 0.2 from the first met and 0.5² 0.2 from the other)
    """
    return _new(StackedLayers, _stacked_layers(layer_transmittances, layer_reflectances, out, True))


def traced_layers(layer_transmittances, layer_absorptances, layer_reflectances, *, out=None):
    """Transmittance, absorptance and reflectance of a stack of layers with the inter-reflections
    between all of them.

    Parameters
    ----------
    layer_transmittances : array_like of float, shape (..., layers)
        Transmittance of each layer, the same from both sides; valid 0 to 1.
    layer_absorptances : array_like of float, shape (..., layers)
        Absorptance of each layer; valid 0 to 1.
    layer_reflectances : array_like of float, shape (..., layers)
        Reflectance of each layer, the same from both sides; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    TracedLayers
        A named tuple of:

    transmittance : float32
        Transmittance of the stack.
    absorptance : float32
        Absorptance of the stack.
    reflectance : float32
        Reflectance of the stack.

    Raises
    ------
    ValueError
        Unless the number of layers is at most 11.
        Unless all arguments have as many layers.

    Notes
    -----
    In a pass the flux goes forward through all layers and back by one; nine passes are made. What
    needs more than eight steps back is missing from all three results: nothing of one layer; of
    two, the ninth power of the product of their reflectances as a share of the transmittance; of
    ten and eleven layers all that the last ones reflect.

    The last layer is met first. No layers are an empty stack, which transmits everything.

    That transmittance, absorptance and reflectance of a layer add up to 1 is left to the caller.

    Each element has the bits of WNCOMP in quorvel.h.

    References
    ----------
    Tracing of one forward and one backward flux, which tends to the adding method.

    Examples
    --------
    >>> from quorvel.glazing import traced_layers
    >>> result = traced_layers(layer_transmittances=[0.5, 0.5], layer_absorptances=[0.3, 0.3],
    ...     layer_reflectances=[0.2, 0.2])
    >>> bool(abs(result.transmittance - 0.260417) <= 1e-06)
    True
    >>> bool(abs(result.reflectance - 0.252083) <= 1e-06)
    True

    (two layers, sum of the geometric series)
    """
    return _new(TracedLayers, _traced_layers(layer_transmittances, layer_absorptances, layer_reflectances, out, True))


def roller_blind(blind_transmittance, blind_reflectance, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a roller blind, the same at every angle.

    Parameters
    ----------
    blind_transmittance : array_like of float
        Transmittance of the blind; valid 0 to 1.
    blind_reflectance : array_like of float
        Reflectance of the blind; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    RollerBlind
        A named tuple of:

    transmittance : float32
        Transmittance, that of the blind.
    absorptance : float32
        Absorptance, the rest.
    reflectance : float32
        Reflectance, that of the blind.

    Notes
    -----
    Formula: absorptance = 1 - blind_transmittance - blind_reflectance

    Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
    absorptance.

    Each element has the bits of WNDRRO in quorvel.h.

    References
    ----------
    Conservation of energy.

    Examples
    --------
    >>> from quorvel.glazing import roller_blind
    >>> result = roller_blind(blind_transmittance=0.3, blind_reflectance=0.5)
    >>> bool(abs(result.transmittance - 0.3) <= 1e-06)
    True
    >>> bool(abs(result.absorptance - 0.2) <= 1e-06)
    True
    >>> bool(abs(result.reflectance - 0.5) <= 1e-06)
    True

    (does not depend on the angle)
    """
    return _new(RollerBlind, _roller_blind(blind_transmittance, blind_reflectance, out, where))


def diffuse_roller_blind(blind_transmittance, blind_reflectance, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a roller blind for diffuse radiation.

    Parameters
    ----------
    blind_transmittance : array_like of float
        Transmittance of the blind; valid 0 to 1.
    blind_reflectance : array_like of float
        Reflectance of the blind; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    DiffuseRollerBlind
        A named tuple of:

    transmittance : float32
        Transmittance, that of the blind to rounding.
    absorptance : float32
        Absorptance, the rest to rounding.
    reflectance : float32
        Reflectance, 1 - transmittance - absorptance.

    Notes
    -----
    The blind is the same at every angle; the sum of the bands' weights, 0.9999999, remains as a
    factor.

    Nothing is limited: a blind that transmits and reflects more than 1 gives a negative
    absorptance.

    Each element has the bits of WNDFRO in quorvel.h.

    References
    ----------
    `roller_blind`, integrated as in `slat_diffuse`.

    Examples
    --------
    >>> from quorvel.glazing import diffuse_roller_blind
    >>> result = diffuse_roller_blind(blind_transmittance=0.3, blind_reflectance=0.5)
    >>> bool(abs(result.transmittance - 0.3) <= 1e-05)
    True
    >>> bool(abs(result.absorptance - 0.2) <= 1e-05)
    True
    >>> bool(abs(result.reflectance - 0.5) <= 1e-05)
    True

    (does not depend on the angle)
    """
    return _new(DiffuseRollerBlind, _diffuse_roller_blind(blind_transmittance, blind_reflectance, out, where))


def refraction_angle(incidence, refractive_index, *, out=None, where=True):
    """Angle of a ray inside the glass, by Snell's law.

    Parameters
    ----------
    incidence : array_like of float
        Angle of incidence [rad]; valid -1.5708 to 1.5708.
    refractive_index : array_like of float
        Refractive index of the glass; valid 1 to 4.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    refraction_angle : float32
        Refraction angle [rad].

    Notes
    -----
    Formula: asin(sin(incidence) / refractive_index)

    Where the sine of the incidence is below 0.01 in size the result is incidence /
    refractive_index, the ratio of the angles in place of that of the sines.

    An index so far below 1 that the reflection is total gives no number.

    Each element has the bits of WNRANG in quorvel.h.

    References
    ----------
    Snell's law.

    Examples
    --------
    >>> from quorvel.glazing import refraction_angle
    >>> result = refraction_angle(incidence=0.5235988, refractive_index=1.526)
    >>> bool(abs(result - 0.333819) <= 2e-06)
    True

    (Snell's law: asin(0.5 / 1.526))
    """
    return _refraction_angle(incidence, refractive_index, out, where)


def surface_reflectance(incidence, refraction_angle, refractive_index, *, out=None, where=True):
    """Reflectance of one face of the glass for the two polarisations, by Fresnel's equations.

    Parameters
    ----------
    incidence : array_like of float
        Angle of incidence [rad]; valid -1.5708 to 1.5708.
    refraction_angle : array_like of float
        Refraction angle, of the sign of the incidence [rad]; valid -1.5708 to 1.5708.
    refractive_index : array_like of float
        Refractive index, used at normal incidence only; valid 1 to 4.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SurfaceReflectance
        A named tuple of:

    parallel_reflectance : float32
        Reflectance, polarised parallel to the plane of incidence.
    perpendicular_reflectance : float32
        Reflectance, polarised perpendicular to it.

    Notes
    -----
    Formula: perpendicular (sin(i - r) / sin(i + r))^2, parallel (tan(i - r) / tan(i + r))^2; i =
    incidence, r = refraction_angle

    Up to an angle of 0.01 in size, and for an incidence that is no number, both are the value at
    normal incidence, ((1 - n) / (1 + n))^2 with the refractive index n. `refraction_angle` tests
    the sine of the angle instead; the two limits differ deliberately.

    Each element has the bits of WNREFL in quorvel.h.

    References
    ----------
    Fresnel's equations; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.

    Examples
    --------
    >>> from quorvel.glazing import surface_reflectance
    >>> result = surface_reflectance(incidence=1.0471976, refraction_angle=0.6035,
    ...     refractive_index=1.526)
    >>> bool(abs(result.parallel_reflectance - 0.001) <= 0.0005)
    True
    >>> bool(abs(result.perpendicular_reflectance - 0.185) <= 0.0005)
    True

    (Duffie and Beckman, Solar Engineering of Thermal Processes, example 5.1.1)
    """
    return _new(SurfaceReflectance, _surface_reflectance(incidence, refraction_angle, refractive_index, out, where))


def single_pass_absorption(refraction_angle, absorption_product, *, out=None, where=True):
    """Share of a ray that is absorbed in one pass through the body of a pane.

    Parameters
    ----------
    refraction_angle : array_like of float
        Refraction angle [rad]; valid -1.5708 to 1.5708.
    absorption_product : array_like of float
        Absorption coefficient times thickness; valid 0 to 20.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    absorptance : float32
        Absorbed share.

    Notes
    -----
    Formula: 1 - exp(-absorption_product / cos(refraction_angle))

    Each element has the bits of WNABEN in quorvel.h.

    References
    ----------
    Bouguer's law of absorption.

    Examples
    --------
    >>> from quorvel.glazing import single_pass_absorption
    >>> result = single_pass_absorption(refraction_angle=0.6035, absorption_product=0.0736)
    >>> bool(abs(result - 0.0855) <= 0.0001)
    True

    (1 - exp(-0.0736 / cos 34.58°))
    """
    return _single_pass_absorption(refraction_angle, absorption_product, out, where)


def slab_optics(single_pass_absorptance, face_reflectance, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a pane for one polarisation, with all
    inter-reflections between its two faces.

    Parameters
    ----------
    single_pass_absorptance : array_like of float
        Share absorbed in a single pass; valid 0 to 1.
    face_reflectance : array_like of float
        Reflectance of either face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SlabOptics
        A named tuple of:

    transmittance : float32
        Transmittance.
    absorptance : float32
        Absorptance, not below 0.
    reflectance : float32
        Reflectance.

    Notes
    -----
    Formula: transmittance = (1 - r)^2 tau / (1 - r^2 tau^2), reflectance = r + r (1 - r)^2 tau^2 /
    (1 - r^2 tau^2), absorptance = 1 - transmittance - reflectance; tau = 1 -
    single_pass_absorptance, r = face_reflectance

    Faces that reflect everything around a body that absorbs nothing leave the result undefined
    (0/0).

    What is no number stays so; the limit at 0 touches only numbers.

    Each element has the bits of WNTAR in quorvel.h.

    References
    ----------
    Stokes, On the intensity of the light reflected from or transmitted through a pile of plates,
    1862; Duffie and Beckman, Solar Engineering of Thermal Processes, chapter 5.

    Examples
    --------
    >>> from quorvel.glazing import slab_optics
    >>> result = slab_optics(single_pass_absorptance=0.0855, face_reflectance=0.185)
    >>> bool(abs(result.transmittance - 0.6253) <= 0.0001)
    True
    >>> bool(abs(result.absorptance - 0.0839) <= 0.0001)
    True
    >>> bool(abs(result.reflectance - 0.2908) <= 0.0001)
    True

    (sums of the geometric series: T = 0.9145 0.815² / (1 - 0.1692²), A = 0.0855 0.815 / (1 -
    0.1692), R = 0.185 (1 + 0.9145 T))
    """
    return _new(SlabOptics, _slab_optics(single_pass_absorptance, face_reflectance, out, where))


def absorption_product(normal_transmittance, refractive_index, *, out=None, where=True):
    """Absorption coefficient times thickness of a pane, from its transmittance at normal incidence.

    Parameters
    ----------
    normal_transmittance : array_like of float
        Normal transmittance of the pane; valid 0 to 0.92.
    refractive_index : array_like of float
        Refractive index; valid 1 to 4.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    absorption_product : float32
        Absorption coefficient times thickness.

    Notes
    -----
    Formula: -ln((sqrt((1 - r)^4 + 4 r^2 T^2) - (1 - r)^2) / (2 T r^2)); T = normal_transmittance, r
    = ((refractive_index - 1) / (refractive_index + 1))^2

    Evaluated as written in single precision, where a difference of roots cancels for nearly opaque
    glass: the relative error of the transmittance T, given back by `normal_transmittance`, is up to
    1.5e-5 / T^2, which is 0.02 % at 0.3, 0.15 % at 0.1 and 0.6 % at 0.05; at 0.002 and less the
    result is infinite.

    Above the transmittance of glass that absorbs nothing, 0.918 for an index of 1.52, the result is
    negative.

    A transmittance of 0 and an index of 1 divide by zero and give no finite number.

    Each element has the bits of WNKL in quorvel.h.

    References
    ----------
    The slab of `slab_optics` at normal incidence, solved for the absorption.

    Examples
    --------
    >>> from quorvel.glazing import absorption_product
    >>> result = absorption_product(normal_transmittance=0.8516, refractive_index=1.526)
    >>> bool(abs(result - 0.0736) <= 5e-05)
    True

    (exp(-0.0736) = 0.92904; 0.92904 0.95664² / (1 - (0.04336 0.92904)²) = 0.8516)
    """
    return _absorption_product(normal_transmittance, refractive_index, out, where)


def normal_transmittance(absorption_product, normal_reflectance, *, out=None, where=True):
    """Transmittance of a pane at normal incidence: the inverse of `absorption_product`.

    Parameters
    ----------
    absorption_product : array_like of float
        Absorption coefficient times thickness; valid 0 to 20.
    normal_reflectance : array_like of float
        Normal reflectance of one face; valid 0 to 0.99.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    normal_transmittance : float32
        Normal transmittance of the pane.

    Notes
    -----
    Formula: (1 - r)^2 tau / (1 - r^2 tau^2); tau = exp(-absorption_product), r = normal_reflectance

    The second argument is a reflectance, ((n - 1) / (n + 1))^2, where `absorption_product` takes
    the refractive index.

    Each element has the bits of WNTNOR in quorvel.h.

    References
    ----------
    The slab of `slab_optics` at normal incidence.

    Examples
    --------
    >>> from quorvel.glazing import normal_transmittance
    >>> result = normal_transmittance(absorption_product=0.0736, normal_reflectance=0.043362)
    >>> bool(abs(result - 0.8516) <= 1e-05)
    True

    (exp(-0.0736) = 0.92904; 0.92904 0.95664² / (1 - (0.04336 0.92904)²))
    """
    return _normal_transmittance(absorption_product, normal_reflectance, out, where)


def pane_temperatures(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4, absorbed_5, *, out=None, where=True):
    """Steady temperatures of the panes of a glazing from the air temperatures on both sides and the
    solar radiation that each pane absorbs.

    Parameters
    ----------
    inside_temperature : array_like of float
        Air temperature in the room [°C]; valid -100 to 200.
    outside_temperature : array_like of float
        Air temperature outdoors [°C]; valid -100 to 200.
    panes : array_like of int
        Number of panes; valid 1 to 5.
    absorbed_1 : array_like of float
        Absorbed in pane 1, nearest the room [W/m²]; valid from 0.
    absorbed_2 : array_like of float
        Absorbed in pane 2 [W/m²]; valid from 0.
    absorbed_3 : array_like of float
        Absorbed in pane 3 [W/m²]; valid from 0.
    absorbed_4 : array_like of float
        Absorbed in pane 4 [W/m²]; valid from 0.
    absorbed_5 : array_like of float
        Absorbed in pane 5 [W/m²]; valid from 0.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PaneTemperatures
        A named tuple of:

    pane_temperature_1 : float32
        Temperature of pane 1, nearest the room [°C]; not a number with panes outside 1 to 5.
    pane_temperature_2 : float32
        Temperature of pane 2 [°C]; not a number with panes outside 2 to 5.
    pane_temperature_3 : float32
        Temperature of pane 3 [°C]; not a number with panes outside 3 to 5.
    pane_temperature_4 : float32
        Temperature of pane 4 [°C]; not a number with panes outside 4 to 5.
    pane_temperature_5 : float32
        Temperature of pane 5 [°C]; not a number with panes outside 4 to 5.

    Notes
    -----
    What is given as absorbed in panes that are not there has no influence. Four panes are
    calculated as five: what the fifth absorbs counts (give 0 for it), and it has a temperature.

    Each element has the bits of WNTEMP in quorvel.h.

    References
    ----------
    Heat balance of the panes with fixed resistances: 0.12 m²K/W at the room side, 0.06 m²K/W
    outdoors; coefficients rounded to two decimals.

    Examples
    --------
    >>> from quorvel.glazing import pane_temperatures
    >>> result = pane_temperatures(inside_temperature=20, outside_temperature=0, panes=1,
    ...     absorbed_1=100, absorbed_2=0, absorbed_3=0, absorbed_4=0, absorbed_5=0)
    >>> bool(abs(result.pane_temperature_1 - 10.67) <= 0.1)
    True

    ((20 / 0.12 + 100) / (1 / 0.12 + 1 / 0.06), coefficients rounded to two decimals)
    """
    return _new(PaneTemperatures, _pane_temperatures(inside_temperature, outside_temperature, panes, absorbed_1, absorbed_2, absorbed_3, absorbed_4, absorbed_5, out, where))


def unit_direct(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, *, out=None, where=True):
    """Transmittance, absorptance and reflectance for direct radiation of a glazing unit known only by
    its shading coefficients.

    Parameters
    ----------
    shortwave_shading_coefficient : array_like of float
        Short-wave shading coefficient; the total one if the long-wave one is missing; valid 0 to
        1.05.
    longwave_shading_coefficient : array_like of float
        Long-wave shading coefficient, 0 if missing; valid 0 to 1.
    incidence : array_like of float
        Angle of incidence [rad]; valid -1.5708 to 1.5708.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    UnitDirect
        A named tuple of:

    transmittance : float32
        Transmittance.
    absorptance : float32
        Absorptance.
    reflectance : float32
        Reflectance, 1 - transmittance - absorptance, at least 0.01 to rounding.

    Notes
    -----
    A long-wave coefficient below 0.0001 counts as missing: the other is then split into 0.9
    short-wave and 0.1 long-wave.

    An uncoated pane of index 1.52 and normal transmittance 0.87 times the short-wave coefficient
    carries the angular behaviour.

    If the two coefficients add up to at most 1, the absorptance is 2.61 times the long-wave one at
    normal incidence and follows the pane over the angle; otherwise it is that of the pane. A total
    of 1 belongs to the former, but only as single precision rounds.

    The absorptance is at most 0.99 - transmittance. An opaque unit, whose equivalent pane absorbs
    nothing, gets just that: coefficients of 0 give an absorptance of 0.99.

    An angle beyond pi/2 is not tested, and the results mean nothing there: coefficients of 0.9 and
    0.05 give a transmittance of -0.54 at 1.6 rad.

    Each element has the bits of WNDRSC in quorvel.h.

    References
    ----------
    Shading coefficients relative to clear float glass of total transmittance 0.87, of whose
    absorbed part a third flows inwards.

    Examples
    --------
    >>> from quorvel.glazing import unit_direct
    >>> result = unit_direct(shortwave_shading_coefficient=0.5, longwave_shading_coefficient=0.1,
    ...     incidence=0)
    >>> bool(abs(result.transmittance - 0.435) <= 0.0002)
    True
    >>> bool(abs(result.absorptance - 0.261) <= 0.0002)
    True
    >>> bool(abs(result.reflectance - 0.304) <= 0.0002)
    True

    (0.87 0.5, 2.61 0.1 and the rest)
    """
    return _new(UnitDirect, _unit_direct(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, out, where))


def unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient, *, out=None, where=True):
    """Transmittance, absorptance and reflectance for isotropic diffuse radiation of a glazing unit
    known only by its shading coefficients.

    Parameters
    ----------
    shortwave_shading_coefficient : array_like of float
        Short-wave shading coefficient; the total one if the long-wave one is missing; valid 0 to
        1.05.
    longwave_shading_coefficient : array_like of float
        Long-wave shading coefficient, 0 if missing; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    UnitDiffuse
        A named tuple of:

    transmittance : float32
        Diffuse transmittance.
    absorptance : float32
        Diffuse absorptance.
    reflectance : float32
        Diffuse reflectance, 1 - transmittance - absorptance.

    Notes
    -----
    Coefficients as in `unit_direct`. If they add up to at most 1 the absorptance is 2.61 times the
    long-wave one, otherwise that of the equivalent pane.

    The absorptance is at most 0.99 - transmittance. Unlike `unit_direct`, coefficients of 0 give a
    reflectance of 1.

    Each element has the bits of WNDFSC in quorvel.h.

    References
    ----------
    `unit_direct`, with the equivalent pane integrated as in `glass_diffuse`.

    Examples
    --------
    >>> from quorvel.glazing import unit_diffuse
    >>> result = unit_diffuse(shortwave_shading_coefficient=0.5, longwave_shading_coefficient=0.1)
    >>> bool(abs(result.transmittance - 0.3616) <= 0.0006)
    True
    >>> bool(abs(result.absorptance - 0.261) <= 0.0006)
    True
    >>> bool(abs(result.reflectance - 0.3774) <= 0.0006)
    True

    (pane of normal transmittance 0.435 integrated over the hemisphere in 20000 steps; 2.61 0.1)
    """
    return _new(UnitDiffuse, _unit_diffuse(shortwave_shading_coefficient, longwave_shading_coefficient, out, where))


def unit_direct_shares(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, *, out=None):
    """`unit_direct`, with the remainder that is neither transmitted nor absorbed split among the panes
    of the unit.

    Parameters
    ----------
    shortwave_shading_coefficient : array_like of float
        Short-wave shading coefficient; the total one if the long-wave one is missing; valid 0 to
        1.05.
    longwave_shading_coefficient : array_like of float
        Long-wave shading coefficient, 0 if missing; valid 0 to 1.
    incidence : array_like of float
        Angle of incidence [rad]; valid -1.5708 to 1.5708.
    panes : array_like of int
        Number of panes; valid 1 to 5.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    UnitDirectShares
        A named tuple of:

    transmittance : float32
        Transmittance.
    pane_shares : float32, shape (..., 5)
        Share of each pane in 1 - transmittance - absorptance.
    absorptance : float32
        Absorptance.

    Raises
    ------
    ValueError
        Unless the number of panes is 1 to 5.

    Notes
    -----
    What is split is the remainder, not the absorptance.

    Elements of `pane_shares` beyond `panes` are not numbers.

    Each element has the bits of WNDRSM in quorvel.h.

    References
    ----------
    `unit_direct`; the shares by number of panes are fixed, 0.4 and 0.6 for two, their origin is not
    recorded.

    Examples
    --------
    >>> from quorvel.glazing import unit_direct_shares
    >>> result = unit_direct_shares(shortwave_shading_coefficient=0.5,
    ...     longwave_shading_coefficient=0.1, incidence=0, panes=2)
    >>> bool(abs(result.transmittance - 0.435) <= 0.0002)
    True
    >>> all(abs(a - b) <= 0.0002 for a, b in zip(result.pane_shares.flat, [0.1216, 0.1824]))
    True
    >>> bool(abs(result.absorptance - 0.261) <= 0.0002)
    True

    (0.4 and 0.6 of the remainder 1 - 0.435 - 0.261)
    """
    return _new(UnitDirectShares, _unit_direct_shares(shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, out, True))


def unit_diffuse_shares(shortwave_shading_coefficient, longwave_shading_coefficient, panes, *, out=None):
    """`unit_diffuse`, with the remainder that is neither transmitted nor absorbed split among the
    panes of the unit.

    Parameters
    ----------
    shortwave_shading_coefficient : array_like of float
        Short-wave shading coefficient; the total one if the long-wave one is missing; valid 0 to
        1.05.
    longwave_shading_coefficient : array_like of float
        Long-wave shading coefficient, 0 if missing; valid 0 to 1.
    panes : array_like of int
        Number of panes; valid 1 to 5.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    UnitDiffuseShares
        A named tuple of:

    transmittance : float32
        Diffuse transmittance.
    pane_shares : float32, shape (..., 5)
        Share of each pane in 1 - transmittance - absorptance.
    absorptance : float32
        Diffuse absorptance.

    Raises
    ------
    ValueError
        Unless the number of panes is 1 to 5.

    Notes
    -----
    The remainder is split as in `unit_direct_shares`.

    Elements of `pane_shares` beyond `panes` are not numbers.

    Each element has the bits of WNDFSM in quorvel.h.

    References
    ----------
    `unit_diffuse`, with the shares of `unit_direct_shares`.

    Examples
    --------
    >>> from quorvel.glazing import unit_diffuse_shares
    >>> result = unit_diffuse_shares(shortwave_shading_coefficient=0.5,
    ...     longwave_shading_coefficient=0.1, panes=2)
    >>> bool(abs(result.transmittance - 0.3616) <= 0.0006)
    True
    >>> all(abs(a - b) <= 0.0006 for a, b in zip(result.pane_shares.flat, [0.151, 0.2264]))
    True
    >>> bool(abs(result.absorptance - 0.261) <= 0.0006)
    True

    (0.4 and 0.6 of the remainder of `unit_diffuse`)
    """
    return _new(UnitDiffuseShares, _unit_diffuse_shares(shortwave_shading_coefficient, longwave_shading_coefficient, panes, out, True))


def unit_shares(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, *, out=None):
    """`unit_direct_shares` or `unit_diffuse_shares`, by a selector.

    Parameters
    ----------
    radiation : Radiation, or array_like of its names or numbers
        Kind of radiation: 1 direct radiation (`unit_direct_shares`), 2 diffuse radiation
        (`unit_diffuse_shares`), as any other value.
    shortwave_shading_coefficient : array_like of float
        Short-wave shading coefficient; the total one if the long-wave one is missing; valid 0 to
        1.05.
    longwave_shading_coefficient : array_like of float
        Long-wave shading coefficient, 0 if missing; valid 0 to 1.
    incidence : array_like of float
        Angle of incidence, read for direct radiation only [rad]; valid -1.5708 to 1.5708.
    panes : array_like of int
        Number of panes; valid 1 to 5.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    UnitShares
        A named tuple of:

    transmittance : float32
        Transmittance.
    pane_shares : float32, shape (..., 5)
        Share of each pane in 1 - transmittance - absorptance.
    absorptance : float32
        Absorptance.

    Raises
    ------
    ValueError
        Unless the number of panes is 1 to 5.

    Notes
    -----
    The remainder is split as in `unit_direct_shares`.

    Elements of `pane_shares` beyond `panes` are not numbers.

    Each element has the bits of WNDRS0 in quorvel.h.

    References
    ----------
    `unit_direct_shares` and `unit_diffuse_shares`.

    Examples
    --------
    >>> from quorvel.glazing import Radiation, unit_shares
    >>> result = unit_shares(radiation=Radiation.direct, shortwave_shading_coefficient=0.5,
    ...     longwave_shading_coefficient=0.1, incidence=0, panes=2)
    >>> bool(abs(result.transmittance - 0.435) <= 0.0002)
    True
    >>> all(abs(a - b) <= 0.0002 for a, b in zip(result.pane_shares.flat, [0.1216, 0.1824]))
    True
    >>> bool(abs(result.absorptance - 0.261) <= 0.0002)
    True

    (0.4 and 0.6 of the remainder 1 - 0.435 - 0.261)
    """
    return _new(UnitShares, _unit_shares(radiation, shortwave_shading_coefficient, longwave_shading_coefficient, incidence, panes, out, True))


def slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a slatted blind for a beam, both faces of the
    slats alike.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    profile_angle : array_like of float
        Profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708.
    slat_absorptance : array_like of float
        Absorptance of the slats; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SlatDirect
        A named tuple of:

    transmittance : float32
        Transmittance.
    absorptance : float32
        Absorptance.
    reflectance : float32
        Reflectance, 1 - transmittance - absorptance.

    Notes
    -----
    The slats are flat, thin, opaque and diffusely reflecting. After the first reflection each slat
    is taken as evenly lit.

    For slat angles up to 90 degrees and an absorptance in 0..1 all three are in 0..1, but for the
    rounding of single precision: 1e-4 for slats that are nearly closed, 4e-7 over the cosine of the
    profile angle for grazing beams.

    A beam within 0.01 rad of the slats' plane passes whole. A beam along the blind (cosine of the
    profile angle below 1e-6, or the angle 1.570796 or more in size) meets an opaque sheet with the
    absorptance of the slats.

    The mirror image, with both angles negative, gives the same bits.

    Each element has the bits of WNDRSL in quorvel.h.

    References
    ----------
    Exchange factors by H. C. Hottel's crossed strings, and the inter-reflection between two
    neighbouring slats.

    Examples
    --------
    >>> from quorvel.glazing import slat_direct
    >>> result = slat_direct(slat_spacing=1, slat_width=1, slat_angle=45, profile_angle=-0.785398,
    ...     slat_absorptance=0.5)
    >>> bool(result.transmittance == 1)
    True
    >>> bool(result.absorptance == 0)
    True
    >>> bool(result.reflectance == 0)
    True

    (a beam along the slats)
    """
    return _new(SlatDirect, _slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, slat_absorptance, out, where))


def two_faced_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance, *, out=None, where=True):
    """Transmittance, absorptance and reflectance of a blind for a beam, whose slats have two different
    faces.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    profile_angle : array_like of float
        Profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708.
    struck_absorptance : array_like of float
        Absorptance of the face that the beam strikes first; valid 0 to 1.
    opposite_absorptance : array_like of float
        Absorptance of the opposite face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    TwoFacedSlatDirect
        A named tuple of:

    transmittance : float32
        Transmittance.
    absorptance : float32
        Absorptance.
    reflectance : float32
        Reflectance, 1 - transmittance - absorptance, not limited.

    Notes
    -----
    Equal faces give the bits of `slat_direct` and keep the balance.

    Unequal faces do not: whatever is absorbed after the first reflection counts with that of the
    face struck, as if both faces absorbed like the one struck and reflected like the opposite one.
    A bright face opposite a dark one absorbs too little, and the reflectance holds the rest; a dark
    face opposite a bright one absorbs too much, in dense blinds many times what arrives, and the
    reflectance is negative by as much. Where the face struck absorbs at most what the opposite one
    does, all three stay in 0..1.

    The face struck first is the upper one where profile angle and slat angle have a positive sum
    and the lower one else; the absorptances are to be chosen accordingly.

    Each element has the bits of WNDRS2 in quorvel.h.

    References
    ----------
    As `slat_direct`.

    Examples
    --------
    >>> from quorvel.glazing import two_faced_slat_direct
    >>> result = two_faced_slat_direct(slat_spacing=1, slat_width=1, slat_angle=0,
    ...     profile_angle=0.4636476, struck_absorptance=1, opposite_absorptance=1)
    >>> bool(abs(result.transmittance - 0.5) <= 1e-06)
    True
    >>> bool(abs(result.absorptance - 0.5) <= 1e-06)
    True
    >>> bool(abs(result.reflectance - 0) <= 1e-06)
    True

    (black level slats stop half of a beam of slope 1/2)
    """
    return _new(TwoFacedSlatDirect, _two_faced_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, struck_absorptance, opposite_absorptance, out, where))


def open_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, opposite_absorptance, *, out=None, where=True):
    """`two_faced_slat_direct` for a blind that leaves a share of the radiation to pass untouched.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    profile_angle : array_like of float
        Profile angle of the beam, positive from above [rad]; valid -1.5708 to 1.5708.
    open_share : array_like of float
        Open share of the blind; 0 or less for none; valid 0 to 1.
    struck_absorptance : array_like of float
        Absorptance of the face that the beam strikes first; valid 0 to 1.
    opposite_absorptance : array_like of float
        Absorptance of the opposite face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    OpenSlatDirect
        A named tuple of:

    transmittance : float32
        Transmittance, the open share included.
    absorptance : float32
        Absorptance.
    reflectance : float32
        Reflectance.

    Notes
    -----
    Without an open share these are the bits of `two_faced_slat_direct`; a share that is not a
    number is none.

    A beam along the blind is transmitted by the open share and absorbed as by the face struck: the
    share does not reduce the absorptance there, and the reflectance, 1 less both, may be negative:
    deliberate.

    Each element has the bits of WNDRS3 in quorvel.h.

    References
    ----------
    As `slat_direct`.

    Examples
    --------
    >>> from quorvel.glazing import open_slat_direct
    >>> result = open_slat_direct(slat_spacing=1, slat_width=1, slat_angle=0,
    ...     profile_angle=0.4636476, open_share=0.2, struck_absorptance=1, opposite_absorptance=1)
    >>> bool(abs(result.transmittance - 0.6) <= 1e-06)
    True
    >>> bool(abs(result.absorptance - 0.4) <= 1e-06)
    True
    >>> bool(abs(result.reflectance - 0) <= 1e-06)
    True

    (0.2 and half of 0.8: black level slats stop half of a beam of slope 1/2)
    """
    return _new(OpenSlatDirect, _open_slat_direct(slat_spacing, slat_width, slat_angle, profile_angle, open_share, struck_absorptance, opposite_absorptance, out, where))


def slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance, *, out=None, where=True):
    """Transmittance and absorptance of a slatted blind for the diffuse radiation from the sky's and
    from the ground's side, both faces of the slats alike.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    slat_absorptance : array_like of float
        Absorptance of the slats; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    SlatDiffuse
        A named tuple of:

    sky_transmittance : float32
        Transmittance for radiation from above the horizon.
    ground_transmittance : float32
        Transmittance for radiation from below it.
    sky_absorptance : float32
        Absorptance for radiation from above the horizon.
    ground_absorptance : float32
        Absorptance for radiation from below it.

    Notes
    -----
    The bits are those of `slat_direct` summed over the bands.

    Slats at an angle of 5, 15, ... 85 degrees have a band within 0.01 rad of their plane, which
    passes whole.

    The opposite angle swaps sky and ground.

    Each element has the bits of WNDFSL in quorvel.h.

    References
    ----------
    `slat_direct` at the centres of nine bands of 10 degrees on either side of the horizon, each
    weighted with the integral of the cosine over the band: radiance uniform in the profile angle.

    Examples
    --------
    >>> from quorvel.glazing import slat_diffuse
    >>> result = slat_diffuse(slat_spacing=1, slat_width=1, slat_angle=0, slat_absorptance=1)
    >>> bool(abs(result.sky_transmittance - 0.414) <= 0.006)
    True
    >>> bool(abs(result.ground_transmittance - 0.414) <= 0.006)
    True
    >>> bool(abs(result.sky_absorptance - 0.586) <= 0.006)
    True
    >>> bool(abs(result.ground_absorptance - 0.586) <= 0.006)
    True

    (black level slats, the integral of (1 - tan) cos up to 45°: sqrt(2) - 1)
    """
    return _new(SlatDiffuse, _slat_diffuse(slat_spacing, slat_width, slat_angle, slat_absorptance, out, where))


def two_faced_slat_diffuse(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance, *, out=None, where=True):
    """`slat_diffuse` for slats with two different faces.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    struck_absorptance : array_like of float
        Absorptance of the face that the beam strikes first; valid 0 to 1.
    opposite_absorptance : array_like of float
        Absorptance of the opposite face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    TwoFacedSlatDiffuse
        A named tuple of:

    sky_transmittance : float32
        Transmittance for radiation from above the horizon.
    ground_transmittance : float32
        Transmittance for radiation from below it.
    sky_absorptance : float32
        Absorptance for radiation from above the horizon.
    ground_absorptance : float32
        Absorptance for radiation from below it.

    Notes
    -----
    The absorptances belong to whichever face a beam strikes first. Slats with different upper and
    lower faces need two calls: with the upper face struck for the results of the sky, with the
    lower face for those of the ground. Beams between the horizon and the plane of the slats strike
    the other face all the same.

    Unequal faces as in `two_faced_slat_direct`.

    Each element has the bits of WNDFS2 in quorvel.h.

    References
    ----------
    `two_faced_slat_direct`, integrated as in `slat_diffuse`.

    Examples
    --------
    >>> from quorvel.glazing import two_faced_slat_diffuse
    >>> result = two_faced_slat_diffuse(slat_spacing=1, slat_width=1, slat_angle=0,
    ...     struck_absorptance=1, opposite_absorptance=1)
    >>> bool(abs(result.sky_transmittance - 0.414) <= 0.006)
    True
    >>> bool(abs(result.ground_transmittance - 0.414) <= 0.006)
    True
    >>> bool(abs(result.sky_absorptance - 0.586) <= 0.006)
    True
    >>> bool(abs(result.ground_absorptance - 0.586) <= 0.006)
    True

    (black level slats, the integral of (1 - tan) cos up to 45°: sqrt(2) - 1)
    """
    return _new(TwoFacedSlatDiffuse, _two_faced_slat_diffuse(slat_spacing, slat_width, slat_angle, struck_absorptance, opposite_absorptance, out, where))


def open_slat_diffuse(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance, *, out=None, where=True):
    """`two_faced_slat_diffuse` for a blind that leaves a share of the radiation to pass untouched.

    Parameters
    ----------
    slat_spacing : array_like of float
        Spacing of the slats; only its ratio to their width matters, in whatever unit [m]; valid
        from 0.
    slat_width : array_like of float
        Width of a slat [m]; valid from 0.
    slat_angle : array_like of float
        Slat angle in degrees, 0 for level slats, positive with the outer edge lowered [°]; valid
        -90 to 90.
    open_share : array_like of float
        Open share of the blind; 0 or less for none; valid 0 to 1.
    struck_absorptance : array_like of float
        Absorptance of the face that the beam strikes first; valid 0 to 1.
    opposite_absorptance : array_like of float
        Absorptance of the opposite face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    OpenSlatDiffuse
        A named tuple of:

    sky_transmittance : float32
        Transmittance for radiation from above the horizon.
    ground_transmittance : float32
        Transmittance for radiation from below it.
    sky_absorptance : float32
        Absorptance for radiation from above the horizon.
    ground_absorptance : float32
        Absorptance for radiation from below it.

    Notes
    -----
    Faces as in `two_faced_slat_diffuse`, the open share as in `open_slat_direct`.

    Each element has the bits of WNDFS3 in quorvel.h.

    References
    ----------
    `open_slat_direct`, integrated as in `slat_diffuse`.

    Examples
    --------
    >>> from quorvel.glazing import open_slat_diffuse
    >>> result = open_slat_diffuse(slat_spacing=1, slat_width=1, slat_angle=0, open_share=0.2,
    ...     struck_absorptance=1, opposite_absorptance=1)
    >>> bool(abs(result.sky_transmittance - 0.531) <= 0.006)
    True
    >>> bool(abs(result.ground_transmittance - 0.531) <= 0.006)
    True
    >>> bool(abs(result.sky_absorptance - 0.469) <= 0.006)
    True
    >>> bool(abs(result.ground_absorptance - 0.469) <= 0.006)
    True

    (0.2 + 0.8 (sqrt(2) - 1), as in `slat_diffuse`)
    """
    return _new(OpenSlatDiffuse, _open_slat_diffuse(slat_spacing, slat_width, slat_angle, open_share, struck_absorptance, opposite_absorptance, out, where))
