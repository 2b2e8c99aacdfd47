"""Building fabric: the routines of the library, element by element."""

# Produced from the catalogue of routines (catalogue/); do not edit.

from collections import namedtuple

from .._core import functions
from .._dispatch import filled
from ..selectors import ElementKind, Exposure, HeatFlowDirection, Packing, PaneKind, Surface

_new = tuple.__new__  # a third of the time of _make

__all__ = [
    "ElementKind",
    "Exposure",
    "HeatFlowDirection",
    "Packing",
    "PaneKind",
    "Surface",
    "CyclicResponse",
    "CondensationProfile",
    "PackTwoFractions",
    "PackThreeFractions",
    "PackThreeFractionsThirdFirst",
    "PackPane",
    "WindowParameters",
    "cyclic_response",
    "vertical_cavity_resistance",
    "air_cavity_resistance",
    "gas_cavity_resistance",
    "total_vapour_resistance",
    "condensation_profile",
    "condenses_within_layer",
    "element_property",
    "natural_convection_coefficient",
    "pack_two_fractions",
    "pack_three_fractions",
    "pack_three_fractions_third_first",
    "pack_pane",
    "surface_resistance",
    "surface_resistance_at_emissivity",
    "u_value",
    "u_value_at_tilt_and_exposure",
    "window_parameters",
]

_cyclic_response = functions["cyclic_response"]
_vertical_cavity_resistance = functions["vertical_cavity_resistance"]
_air_cavity_resistance = functions["air_cavity_resistance"]
_gas_cavity_resistance = functions["gas_cavity_resistance"]
_total_vapour_resistance = functions["total_vapour_resistance"]
_condensation_profile = filled("condensation_profile")
_condenses_within_layer = functions["condenses_within_layer"]
_element_property = functions["element_property"]
_natural_convection_coefficient = functions["natural_convection_coefficient"]
_pack_two_fractions = functions["pack_two_fractions"]
_pack_three_fractions = functions["pack_three_fractions"]
_pack_three_fractions_third_first = functions["pack_three_fractions_third_first"]
_pack_pane = functions["pack_pane"]
_surface_resistance = functions["surface_resistance"]
_surface_resistance_at_emissivity = functions["surface_resistance_at_emissivity"]
_u_value = functions["u_value"]
_u_value_at_tilt_and_exposure = functions["u_value_at_tilt_and_exposure"]
_window_parameters = functions["window_parameters"]


CyclicResponse = namedtuple("CyclicResponse", "admittance admittance_lead decrement_factor decrement_lag surface_factor surface_factor_lag u_value")
CyclicResponse.__doc__ = """What cyclic_response returns.

    admittance: admittance Y [W/m²K]
    admittance_lead: time lead of the admittance, 0 to 24 / harmonic [h]
    decrement_factor: decrement factor f, 0 for a partition
    decrement_lag: time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h]
    surface_factor: surface factor F
    surface_factor_lag: time lag of the surface factor, 0 to 24 / harmonic [h]
    u_value: U-value, as `u_value` gives it [W/m²K]
"""

CondensationProfile = namedtuple("CondensationProfile", "interface_temperature interface_vapour_pressure interface_saturation_pressure")
CondensationProfile.__doc__ = """What condensation_profile returns.

    interface_temperature: temperature at the interfaces, from the inside surface to the outside
    one [°C]
    interface_vapour_pressure: vapour pressure at them [Pa]
    interface_saturation_pressure: saturation pressure at them [Pa]
"""

PackTwoFractions = namedtuple("PackTwoFractions", "packed_number fraction_1 fraction_2")
PackTwoFractions.__doc__ = """What pack_two_fractions returns.

    packed_number: packed number
    fraction_1: fraction behind the point
    fraction_2: fraction held as units and tens
"""

PackThreeFractions = namedtuple("PackThreeFractions", "packed_number fraction_1 fraction_2 fraction_3")
PackThreeFractions.__doc__ = """What pack_three_fractions returns.

    packed_number: packed number
    fraction_1: fraction behind the point
    fraction_2: fraction held as units and tens
    fraction_3: fraction held as hundreds and thousands
"""

PackThreeFractionsThirdFirst = namedtuple("PackThreeFractionsThirdFirst", "packed_number fraction_3 fraction_1 fraction_2")
PackThreeFractionsThirdFirst.__doc__ = """What pack_three_fractions_third_first returns.

    packed_number: packed number
    fraction_3: fraction held as hundreds and thousands
    fraction_1: fraction behind the point
    fraction_2: fraction held as units and tens
"""

PackPane = namedtuple("PackPane", "packed_number absorptance reflectance_1 reflectance_2")
PackPane.__doc__ = """What pack_pane returns.

    packed_number: packed number
    absorptance: absorptance
    reflectance_1: reflectance of the first face
    reflectance_2: reflectance of the second face
"""

WindowParameters = namedtuple("WindowParameters", "admittance admittance_lead decrement_factor decrement_lag surface_factor surface_factor_lag u_value")
WindowParameters.__doc__ = """What window_parameters returns.

    admittance: admittance, the U-value [W/m²K]
    admittance_lead: time lead of the admittance, 0 [h]
    decrement_factor: decrement factor, 1
    decrement_lag: time lag of the decrement factor, 0 [h]
    surface_factor: surface factor, 1 - Rsi U
    surface_factor_lag: time lag of the surface factor, 0 [h]
    u_value: U-value [W/m²K]
"""

def cyclic_response(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, harmonic, element_kind, *, out=None):
    """Admittance, decrement factor and surface factor of a construction with their time shifts, and
    its U-value.

    Parameters
    ----------
    thickness : array_like of float, shape (..., layers)
        Thickness of each layer, from the room outwards; below 0: a layer of given resistance, 0: no
        layer [m].
    conductivity : array_like of float, shape (..., layers)
        Conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
        valid from 0.
    density : array_like of float, shape (..., layers)
        Density of each layer [kg/m³]; valid from 0.
    specific_heat : array_like of float, shape (..., layers)
        Specific heat of each layer [J/kgK]; valid from 0.
    inside_resistance : array_like of float
        Resistance of the surface at the room [m²K/W]; valid from 0.
    outside_resistance : array_like of float
        Resistance of the far surface [m²K/W]; valid from 0.
    harmonic : array_like of int
        Cycles in 24 hours; valid from 0.
    element_kind : ElementKind, or array_like of its names or numbers
        Kind of element: 1 element between two environments, 2 internal partition, the same swing on
        both sides.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    CyclicResponse
        A named tuple of:

    admittance : float32
        Admittance Y [W/m²K].
    admittance_lead : float32
        Time lead of the admittance, 0 to 24 / harmonic [h].
    decrement_factor : float32
        Decrement factor f, 0 for a partition.
    decrement_lag : float32
        Time lag of the decrement factor, 0 to 24 / harmonic, 0 for a partition [h].
    surface_factor : float32
        Surface factor F.
    surface_factor_lag : float32
        Time lag of the surface factor, 0 to 24 / harmonic [h].
    u_value : float32
        U-value, as `u_value` gives it [W/m²K].

    Raises
    ------
    ValueError
        Unless the number of layers is at most 20.
        Unless all arguments have as many layers.

    Notes
    -----
    Formula: M = Msi M1 ... Mn Mso; Y = m22 / m12, of a partition (m22 - 1) / m12; f = 1 / (u_value
    m12); F = 1 - inside_resistance Y

    Without layers the two surfaces are left.

    Any kind but 2 counts as 1. A harmonic of 0 is a steady temperature: the admittance is U, the
    time shifts are not numbers. One below 0 gives no numbers.

    A layer without heat capacity acts as its resistance. One with very little is the less accurate
    the smaller x is, its thickness over the depth at which the swing has sunk to 1/e (0.1 to 0.2 m
    in masonry): the relative error of its resistance is about 1e-7 / x, since sinh is formed as a
    difference in single precision.

    Shifts near 0 can come out near a whole cycle: rounding decides on which side of 0 an angle
    falls. One that is exactly 0 may be -0, as both lags of layers without heat capacity are.

    The moduli of all three factors are formed so that no square under- or overflows: a decrement
    factor of 2.8e-24 (four layers of 0.6 m of concrete under harmonic 12) is one.

    Where the x of all layers add up to about 87 the elements of the matrix overflow: the admittance
    is infinite or not a number, and from 89 on nothing but U is a number. That is 12.3 m of
    concrete of 1.75 W/mK, 2400 kg/m³ and 1000 J/kgK under the daily cycle; of 2 W/mK, 2000 kg/m³
    and 880 J/kgK 15 m still have numbers.

    Density and specific heat enter as their product only.

    The formula's M is the product of the transmission matrices of the surfaces and the layers. Its
    complex Y, f and F are the admittance, the decrement factor and the surface factor with their
    time shifts.

    Each element has the bits of TPADMT in quorvel.h.

    References
    ----------
    Pipes, Matrix analysis of heat transfer problems, Journal of the Franklin Institute 263, 1957;
    Milbank and Harrington-Lynn, Thermal response and the admittance procedure, Building Research
    Establishment CP 61/74, 1974; ISO 13786.

    Examples
    --------
    >>> from quorvel.fabric import ElementKind, cyclic_response
    >>> result = cyclic_response(thickness=[0.105], conductivity=[0.84], density=[1700],
    ...     specific_heat=[800], inside_resistance=0.12, outside_resistance=0.06, harmonic=1,
    ...     element_kind=ElementKind.between)
    >>> bool(abs(result.admittance - 4.2) <= 0.12)
    True
    >>> bool(abs(result.admittance_lead - 1) <= 0.51)
    True
    >>> bool(abs(result.decrement_factor - 0.88) <= 0.012)
    True
    >>> bool(abs(result.decrement_lag - 3) <= 0.51)
    True
    >>> bool(abs(result.surface_factor - 0.54) <= 0.012)
    True
    >>> bool(abs(result.surface_factor_lag - 1) <= 0.51)
    True
    >>> bool(abs(result.u_value - 3.3) <= 0.06)
    True

    (CIBSE Guide A3, 1980: solid brickwork without plaster)
    """
    return _new(CyclicResponse, _cyclic_response(thickness, conductivity, density, specific_heat, inside_resistance, outside_resistance, harmonic, element_kind, out, True))


def vertical_cavity_resistance(cavity_width, *, out=None, where=True):
    """Thermal resistance of a sealed vertical air cavity between ordinary building surfaces.

    Parameters
    ----------
    cavity_width : array_like of float
        Width [m]; valid from 0.001.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    cavity_resistance : float32
        Cavity resistance, not below 0.1 [m²K/W].

    Notes
    -----
    Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width), at least 0.1; Nu = 0.035
    Ra^0.38, at least 1; Ra = 793.00165 width^3 / 4.4e-7

    A width below 0.001 gives 0.1, where `air_cavity_resistance` and `gas_cavity_resistance` give 0:
    deliberate. Not a number stays so.

    The emissivities e1 and e2 of the faces are 0.85 and 0.86.

    Each element has the bits of TPRCAV in quorvel.h.

    References
    ----------
    As `air_cavity_resistance`.

    Examples
    --------
    >>> from quorvel.fabric import vertical_cavity_resistance
    >>> result = vertical_cavity_resistance(cavity_width=0.025)
    >>> bool(abs(result - 0.18) <= 0.01)
    True

    (ISO 6946, unventilated vertical cavity)
    """
    return _vertical_cavity_resistance(cavity_width, out, where)


def air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, *, out=None, where=True):
    """Thermal resistance of a sealed air cavity by convection and long-wave radiation.

    Parameters
    ----------
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    cavity_width : array_like of float
        Width [m]; valid from 0.001.
    emissivity_1 : array_like of float
        Long-wave emissivity of one face; valid 0 to 1.
    emissivity_2 : array_like of float
        Long-wave emissivity of the other face; valid 0 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    cavity_resistance : float32
        Cavity resistance [m²K/W].

    Notes
    -----
    Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + 0.025 Nu / width); Nu = C Ra^n, at least 1; Ra =
    793.00165 width^3 / 4.4e-7

    A tilt outside 0..3.1416 and a width below 0.001 give 0.

    C and n of the Nusselt number C Ra^n, which is at least 1, are interpolated over the tilt
    between 0, 0.785 and 1.57, and carried on as far as 1.59. From there the air rests and only
    conducts: the resistance jumps.

    Two faces of emissivity 0 leave the exchange undefined (0/0).

    Each element has the bits of TPRCA2 in quorvel.h.

    References
    ----------
    EN 673, Glass in building - Determination of thermal transmittance: C and n for vertical,
    inclined and horizontal cavities, and air at 10 °C with 15 K between the faces.

    Examples
    --------
    >>> from quorvel.fabric import air_cavity_resistance
    >>> result = air_cavity_resistance(tilt=3.1415927, cavity_width=0.05, emissivity_1=0.9,
    ...     emissivity_2=0.9)
    >>> bool(abs(result - 0.21) <= 0.006)
    True

    (ISO 6946, unventilated airspace, heat flow downwards)
    """
    return _air_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, out, where)


def gas_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity, *, out=None, where=True):
    """Thermal resistance of a sealed cavity filled with any gas.

    Parameters
    ----------
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    cavity_width : array_like of float
        Width [m]; valid from 0.001.
    emissivity_1 : array_like of float
        Long-wave emissivity of one face; valid 0 to 1.
    emissivity_2 : array_like of float
        Long-wave emissivity of the other face; valid 0 to 1.
    density : array_like of float
        Density of the gas [kg/m³]; valid from 0.
    conductivity : array_like of float
        Thermal conductivity of the gas [W/mK]; valid from 0.
    specific_heat : array_like of float
        Specific heat of the gas at constant pressure [J/kgK]; valid from 0.
    viscosity : array_like of float
        Dynamic viscosity of the gas [Pa s]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    cavity_resistance : float32
        Cavity resistance [m²K/W].

    Notes
    -----
    Formula: 1 / (5.14 e1 e2 / (e1 + e2 - e1 e2) + conductivity Nu / width); Nu = C Ra^n, at least
    1; Ra = 0.52 specific_heat density^2 width^3 / (viscosity conductivity)

    Guards and correlation as in `air_cavity_resistance`.

    The Rayleigh number has a factor of 0.52 m/s² for gravity times expansion times temperature
    difference, whatever the gas and its temperature.

    A negative Rayleigh number has no power: not a number.

    Each element has the bits of TPRCAX in quorvel.h.

    References
    ----------
    As `air_cavity_resistance`.

    Examples
    --------
    >>> from quorvel.fabric import gas_cavity_resistance
    >>> result = gas_cavity_resistance(tilt=3.1415927, cavity_width=0.016, emissivity_1=0.837,
    ...     emissivity_2=0.837, density=1.699, conductivity=0.01684, specific_heat=519,
    ...     viscosity=2.164e-05)
    >>> bool(abs(result - 0.2102) <= 0.0005)
    True

    (argon at rest by EN 673: 1 / (5.149 / (2 / 0.837 - 1) + 0.01684 / 0.016))
    """
    return _gas_cavity_resistance(tilt, cavity_width, emissivity_1, emissivity_2, density, conductivity, specific_heat, viscosity, out, where)


def total_vapour_resistance(thickness, vapour_resistivity, *, out=None):
    """Vapour resistance of a construction.

    Parameters
    ----------
    thickness : array_like of float, shape (..., layers)
        Thickness of each layer; below 0: a layer of given thermal resistance, 0: a membrane [m].
    vapour_resistivity : array_like of float, shape (..., layers)
        Vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg
        m)]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    vapour_resistance : float32
        Total vapour resistance [N s/kg].

    Raises
    ------
    ValueError
        Unless the number of layers is at most 20.
        Unless all arguments have as many layers.

    Notes
    -----
    Formula: sum of 1e9 thickness vapour_resistivity

    A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness,
    whatever its resistivity: an air gap 0.05 m wide is entered as -0.05, not as -1.

    Without layers it is 0.

    Results are in N s/kg, resistivities in GN s/(kg m).

    Each element has the bits of TPDAMP in quorvel.h.

    References
    ----------
    Vapour resistances in series; 5 GN s/(kg m) is the customary resistivity of still air.

    Examples
    --------
    >>> from quorvel.fabric import total_vapour_resistance
    >>> result = total_vapour_resistance(thickness=[0.1], vapour_resistivity=[50])
    >>> bool(abs(result - 5000000000) <= 1000)
    True

    (thickness times resistivity)
    """
    return _total_vapour_resistance(thickness, vapour_resistivity, out, True)


def condensation_profile(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity, *, out=None):
    """Steady temperature, vapour pressure and saturation pressure at the interfaces of a construction;
    the vapour pressure is held down to saturation where it would exceed it.

    Parameters
    ----------
    thickness : array_like of float, shape (..., layers)
        Thickness of each layer from the inside; below 0: a layer of given thermal resistance, 0: a
        membrane [m].
    conductivity : array_like of float, shape (..., layers)
        Conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
        valid from 0.
    vapour_resistivity : array_like of float, shape (..., layers)
        Vapour resistivity of each layer; of a membrane its vapour resistance in GN s/kg [GN s/(kg
        m)]; valid from 0.
    inside_resistance : array_like of float
        Resistance of the inside surface [m²K/W]; valid from 0.
    outside_resistance : array_like of float
        Resistance of the outside surface [m²K/W]; valid from 0.
    inside_temperature : array_like of float
        Inside air temperature [°C]; valid -100 to 200.
    outside_temperature : array_like of float
        Outside air temperature [°C]; valid -100 to 200.
    inside_humidity : array_like of float
        Inside relative humidity [%]; valid 0 to 100.
    outside_humidity : array_like of float
        Outside relative humidity [%]; valid 0 to 100.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    CondensationProfile
        A named tuple of:

    interface_temperature : float32, shape (..., layers + 1)
        Temperature at the interfaces, from the inside surface to the outside one [°C].
    interface_vapour_pressure : float32, shape (..., layers + 1)
        Vapour pressure at them [Pa].
    interface_saturation_pressure : float32, shape (..., layers + 1)
        Saturation pressure at them [Pa].

    Raises
    ------
    ValueError
        Unless the number of layers is at most 20.
        Unless all arguments have as many layers.

    Notes
    -----
    The first and the last interface are the surfaces. Without layers there is one surface, with the
    temperature and the vapour pressure of its inside.

    Vapour condenses at an interface where the vapour pressure equals the saturation pressure.

    Relative humidities are limited to 0 to 100 %, the vapour pressures at the two surfaces to
    saturation there. Between two surfaces without any vapour resistance the vapour pressure is no
    number.

    A layer of given thermal resistance has 5 GN s/kg for each metre of its negative thickness, as
    in `total_vapour_resistance`.

    Saturation inside a layer, between its interfaces, is not looked for: see
    `condenses_within_layer`.

    Each element has the bits of TPGRAD in quorvel.h.

    References
    ----------
    Glaser's method in the stepwise form of ISO 13788: the vapour line is straight over the vapour
    resistance between the interfaces at which it is held to saturation.

    Examples
    --------
    >>> from quorvel.fabric import condensation_profile
    >>> result = condensation_profile(thickness=[0.1], conductivity=[0.04], vapour_resistivity=[50],
    ...     inside_resistance=0.13, outside_resistance=0.04, inside_temperature=20,
    ...     outside_temperature=0, inside_humidity=50, outside_humidity=80)
    >>> all(abs(a - b) <= 0.0002 for a, b in zip(result.interface_temperature.flat, [19.0262,
    ...     0.2996]))
    True
    >>> all(abs(a - b) <= 5 for a, b in zip(result.interface_vapour_pressure.flat, [1169.7, 489]))
    True

    (20 K over 0.13 + 2.5 + 0.04; half of 2339 Pa and 0.8 of 611 Pa, nothing condenses)
    """
    return _new(CondensationProfile, _condensation_profile(thickness, conductivity, vapour_resistivity, inside_resistance, outside_resistance, inside_temperature, outside_temperature, inside_humidity, outside_humidity, out, True))


def condenses_within_layer(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure, *, out=None, where=True):
    """Whether vapour condenses inside a layer, from the temperatures and vapour pressures of its two
    faces.

    Parameters
    ----------
    warm_temperature : array_like of float
        Temperature of the warm face [°C]; valid -100 to 200.
    cold_temperature : array_like of float
        Temperature of the cold face [°C]; valid -100 to 200.
    warm_vapour_pressure : array_like of float
        Vapour pressure at the warm face [Pa]; valid from 0.
    cold_vapour_pressure : array_like of float
        Vapour pressure at the cold face [Pa]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    indicator : int32
        1 if vapour condenses, 0 if not.

    Notes
    -----
    The layer is looked at in steps of 0.5 K from the warm face: the warm face itself is not, the
    cold face only if a step falls on it. Faces less than 0.5 K apart give 0.

    A cold face that is not below the warm one, or a temperature that is no number, gives 0.

    Where the temperature is so large that a step of 0.5 K is lost in its rounding (8.4 million °C),
    the search ends there with 0.

    Each element has the bits of ITPCON in quorvel.h.

    References
    ----------
    Straight lines of temperature and vapour pressure through a homogeneous layer, against the
    saturation pressure of `saturation_pressure`.

    Examples
    --------
    >>> from quorvel.fabric import condenses_within_layer
    >>> result = condenses_within_layer(warm_temperature=20, cold_temperature=0,
    ...     warm_vapour_pressure=1400, cold_vapour_pressure=1000)
    >>> bool(result == 1)
    True

    (1000 Pa are above saturation at 0 °C)
    """
    return _condenses_within_layer(warm_temperature, cold_temperature, warm_vapour_pressure, cold_vapour_pressure, out, where)


def element_property(element_records, record_number, item, *, out=None):
    """One property of one record of a construction, a list of elements from face to face.

    Parameters
    ----------
    element_records : array_like of float, shape (..., record_count, 10)
        Ten fields of each record, counted from 1; the first is its type code [by field].
    record_number : array_like of int
        Record asked about, counted from 1; valid from 1.
    item : array_like of int
        Property asked for; valid 1 to 72.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    property_value : float32
        The property [by item]; 1e20 where there is none.

    Raises
    ------
    ValueError
        Unless the number of records is at least 1.

    Notes
    -----
    The type code, 50 to 999, is 100 times the class plus the subtype: class 1 solid layer, 2
    another layer, 3 gap (300 of given resistance, 302 filled with gas), 4 translucent layer, 5
    boundary, 6 end marker; other classes have no meaning. It is rounded after the limits are
    tested: 149.6 is class 1, subtype 50; 49.6 and what is no number are no codes.

    Items of every class: 1 type code.

    Items of classes 1, 3 and 4: 2 thickness in mm; 4 and 5 fields 4 and 5, of a layer the two
    factors of its volumetric heat capacity, of a gas specific heat and density. Of 1 and 4: 3
    conductivity in W/mK. Of 1 and 3: 6 field 6.

    Items of class 3: 7 viscosity of the gas; 11 resistance in m²K/W, or conductivity of the gas; 61
    and 62 field 8, with subtype 1 and 2.

    Items of classes 2, 4 and 5: 12 field 6. Of class 5 with subtype 1 or 2: 21 to 23 fields 2 to 4.

    Items of packed fields (`pack_three_fractions`), all classes but 3 and 6: 31 solar
    transmittance, 32 front and 33 back reflectance, 34 and 35 front and back absorptance, from
    field 9; 41 to 45 the same from field 7; 54 and 55 the long-wave fractions of the two faces, 52
    and 53 one less these, from field 8.

    Items of every class: 71 and 72 are 1 if the list ends with a record of code 601 and 602,
    whichever valid record is asked about.

    The complements of an undefined packed field, items 34, 35, 44, 45, 52 and 53, are -1e20 or
    -2e20, not 1e20: deliberate.

    Each element has the bits of BELDAT in quorvel.h.

    References
    ----------
    Layout of the element records.

    Examples
    --------
    >>> from quorvel.fabric import element_property
    >>> result = element_property(element_records=[[101, 100, 0.04, 0, 0, 0, 0, 0, 0, 0]],
    ...     record_number=1, item=2)
    >>> bool(result == 100)
    True

    (field 2 of a solid layer is its thickness in mm)
    """
    return _element_property(element_records, record_number, item, out, True)


def natural_convection_coefficient(temperature_difference, characteristic_length, heat_flow_direction, *, out=None, where=True):
    """Coefficient of natural convection at a surface of a room.

    Parameters
    ----------
    temperature_difference : array_like of float
        Difference between surface and air temperature; its sign makes no difference [K].
    characteristic_length : array_like of float
        Characteristic length: height of a vertical surface, four times the area over the perimeter
        of a horizontal one [m]; valid from 0.
    heat_flow_direction : HeatFlowDirection, or array_like of its names or numbers
        Direction of the heat flow: 1 heat flow upwards, 2 vertical surface, 3 heat flow downwards.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    heat_transfer_coefficient : float32
        Convective coefficient [W/m²K].

    Notes
    -----
    Formula: ((1.63 dT^(1/3))^6 + (1.40 (dT / L)^(1/4))^6)^(1/6) upwards, 1.23 and 1.50 for 1.63 and
    1.40 at a vertical surface, 0.6 (dT / L^2)^(1/5) downwards; dT = |temperature_difference|, L =
    characteristic_length

    Any other direction gives 0.

    The coefficients 1.23 and 1.50 of a vertical surface have the laminar term larger than the
    turbulent one, with an upward flow it is the other way round; both are as published.

    A length of 0 gives an infinite coefficient, one below 0 no number but for a downward flow.

    Each element has the bits of TPHCON in quorvel.h.

    References
    ----------
    Alamdari and Hammond, Improved data correlations for buoyancy-driven convection in rooms,
    Building Services Engineering Research and Technology 4, 1983.

    Examples
    --------
    >>> from quorvel.fabric import HeatFlowDirection, natural_convection_coefficient
    >>> result = natural_convection_coefficient(temperature_difference=4, characteristic_length=2.5,
    ...     heat_flow_direction=HeatFlowDirection.horizontal)
    >>> bool(abs(result - 2.0691) <= 0.001)
    True

    (((1.50 (4 / 2.5)^(1/4))^6 + (1.23 4^(1/3))^6)^(1/6), Alamdari and Hammond)
    """
    return _natural_convection_coefficient(temperature_difference, characteristic_length, heat_flow_direction, out, where)


def pack_two_fractions(packing, packed_number, fraction_1, fraction_2, *, out=None, where=True):
    """Packs two fractions of two decimals into one real, or unpacks them.

    Parameters
    ----------
    packing : Packing, or array_like of its names or numbers
        Direction: 1 pack, 2 unpack, as any other value.
    packed_number : array_like of float
        Packed number; valid 0 to 9999.99.
    fraction_1 : array_like of float
        Fraction behind the point; valid 0 to 0.99.
    fraction_2 : array_like of float
        Fraction held as units and tens; valid 0 to 0.99.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PackTwoFractions
        A named tuple of:

    packed_number : float32
        Packed number; 1e20 where there is none; as given when unpacking.
    fraction_1 : float32
        Fraction behind the point; 1e20 where there is none; as given when packing.
    fraction_2 : float32
        Fraction held as units and tens; 1e20 where there is none; as given when packing.

    Notes
    -----
    As `pack_three_fractions` with a third fraction of 0, which is not returned: what stands above
    100 is ignored.

    Each element has the bits of TPCOLW in quorvel.h.

    References
    ----------
    As `pack_three_fractions`.

    Examples
    --------
    >>> from quorvel.fabric import Packing, pack_two_fractions
    >>> result = pack_two_fractions(packing=Packing.pack, packed_number=0, fraction_1=0.25,
    ...     fraction_2=0.4)
    >>> bool(abs(result.packed_number - 40.25) <= 1e-05)
    True

    (digits of the two fractions)
    """
    return _new(PackTwoFractions, _pack_two_fractions(packing, packed_number, fraction_1, fraction_2, out, where))


def pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3, *, out=None, where=True):
    """Packs three fractions of two decimals into one real, or unpacks them.

    Parameters
    ----------
    packing : Packing, or array_like of its names or numbers
        Direction: 1 pack, 2 unpack, as any other value.
    packed_number : array_like of float
        Packed number; valid 0 to 9999.99.
    fraction_1 : array_like of float
        Fraction behind the point; valid 0 to 0.99.
    fraction_2 : array_like of float
        Fraction held as units and tens; valid 0 to 0.99.
    fraction_3 : array_like of float
        Fraction held as hundreds and thousands; valid 0 to 0.99.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PackThreeFractions
        A named tuple of:

    packed_number : float32
        Packed number; 1e20 where there is none; as given when unpacking.
    fraction_1 : float32
        Fraction behind the point; 1e20 where there is none; as given when packing.
    fraction_2 : float32
        Fraction held as units and tens; 1e20 where there is none; as given when packing.
    fraction_3 : float32
        Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.

    Notes
    -----
    0.25, 0.40, 0.07 are packed as 740.25.

    Fractions that add up to more than 1e10, and a packed number above 1e10, are undefined and give
    1e20.

    Fractions 2 and 3 are cut to two decimals, with a tenth of a hundredth to spare; fraction 1 is
    added as it stands and cut when unpacked.

    All triples from 0.00 to 0.99 come back, as hundredths times the float 0.01: for 29 of the
    hundred fractions, 0.40 among them, that is the float next to the nearest.

    A fraction of 1.00 is carried into the next one, 1 into 2 and 2 into 3.

    Each element has the bits of TPCOLT in quorvel.h.

    References
    ----------
    Format of the packed property numbers of element records (`element_property`).

    Examples
    --------
    >>> from quorvel.fabric import Packing, pack_three_fractions
    >>> result = pack_three_fractions(packing=Packing.pack, packed_number=0, fraction_1=0.25,
    ...     fraction_2=0.4, fraction_3=0.07)
    >>> bool(abs(result.packed_number - 740.25) <= 0.0001)
    True

    (digits of the three fractions)
    """
    return _new(PackThreeFractions, _pack_three_fractions(packing, packed_number, fraction_1, fraction_2, fraction_3, out, where))


def pack_three_fractions_third_first(packing, packed_number, fraction_3, fraction_1, fraction_2, *, out=None, where=True):
    """`pack_three_fractions` with its arguments in another order.

    Parameters
    ----------
    packing : Packing, or array_like of its names or numbers
        Direction: 1 pack, 2 unpack, as any other value.
    packed_number : array_like of float
        Packed number; valid 0 to 9999.99.
    fraction_3 : array_like of float
        Fraction held as hundreds and thousands; valid 0 to 0.99.
    fraction_1 : array_like of float
        Fraction behind the point; valid 0 to 0.99.
    fraction_2 : array_like of float
        Fraction held as units and tens; valid 0 to 0.99.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PackThreeFractionsThirdFirst
        A named tuple of:

    packed_number : float32
        Packed number; 1e20 where there is none; as given when unpacking.
    fraction_3 : float32
        Fraction held as hundreds and thousands; 1e20 where there is none; as given when packing.
    fraction_1 : float32
        Fraction behind the point; 1e20 where there is none; as given when packing.
    fraction_2 : float32
        Fraction held as units and tens; 1e20 where there is none; as given when packing.

    Notes
    -----
    Each element has the bits of TPCOLW2 in quorvel.h.

    References
    ----------
    As `pack_three_fractions`.

    Examples
    --------
    >>> from quorvel.fabric import Packing, pack_three_fractions_third_first
    >>> result = pack_three_fractions_third_first(packing=Packing.unpack, packed_number=740.25,
    ...     fraction_3=0, fraction_1=0, fraction_2=0)
    >>> bool(abs(result.fraction_3 - 0.07) <= 1e-06)
    True
    >>> bool(abs(result.fraction_1 - 0.25) <= 1e-06)
    True
    >>> bool(abs(result.fraction_2 - 0.4) <= 1e-06)
    True

    (digits of the three fractions)
    """
    return _new(PackThreeFractionsThirdFirst, _pack_three_fractions_third_first(packing, packed_number, fraction_3, fraction_1, fraction_2, out, where))


def pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2, *, out=None, where=True):
    """Packs the solar absorptance of a pane and the reflectances of its faces into one real, as
    absorptance and transmittances, or unpacks them.

    Parameters
    ----------
    packing : Packing, or array_like of its names or numbers
        Direction: 1 pack, 2 unpack, as any other value.
    packed_number : array_like of float
        Packed number; valid 0 to 9999.99.
    absorptance : array_like of float
        Absorptance; valid 0 to 1.
    reflectance_1 : array_like of float
        Reflectance of the first face; valid 0 to 1.
    reflectance_2 : array_like of float
        Reflectance of the second face; valid 0 to 1.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    PackPane
        A named tuple of:

    packed_number : float32
        Packed number; 1e20 where there is none; as given when unpacking.
    absorptance : float32
        Absorptance; 1e20 where there is none; as given when packing.
    reflectance_1 : float32
        Reflectance of the first face; 1e20 where there is none; as given when packing.
    reflectance_2 : float32
        Reflectance of the second face; 1e20 where there is none; as given when packing.

    Notes
    -----
    Packed as `pack_three_fractions` packs the absorptance and the transmittances 1 - absorptance -
    reflectance of the two faces. Undefined values as there.

    A face that neither absorbs nor reflects transmits 1.00, which is carried into the next
    position.

    Absorptance and reflectance of a face that exceed 1 together do not come back.

    Each element has the bits of TPCOSW in quorvel.h.

    References
    ----------
    As `pack_three_fractions`.

    Examples
    --------
    >>> from quorvel.fabric import Packing, pack_pane
    >>> result = pack_pane(packing=Packing.pack, packed_number=0, absorptance=0.1,
    ...     reflectance_1=0.2, reflectance_2=0.3)
    >>> bool(abs(result.packed_number - 6070.1) <= 0.001)
    True

    (digits of 0.10, 1 - 0.1 - 0.2 and 1 - 0.1 - 0.3)
    """
    return _new(PackPane, _pack_pane(packing, packed_number, absorptance, reflectance_1, reflectance_2, out, where))


def surface_resistance(surface, tilt, exposure, *, out=None, where=True):
    """Thermal resistance of the inside or outside surface of an element, for an emissivity of 0.9.

    Parameters
    ----------
    surface : Surface, or array_like of its names or numbers
        Surface: 1 outside, 2 inside.
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    exposure : Exposure, or array_like of its names or numbers
        Exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    surface_resistance : float32
        Surface resistance [m²K/W].

    Notes
    -----
    Formula: inside 1 / (9.53 - 2.6 tilt / pi), outside 1 / (4.59 + a + 4 b (1 - tilt / pi)^2)

    Another surface type gives 0. Another exposure counts as the nearest one.

    An inside vertical surface has 1 / 8.23 = 0.12 m²K/W.

    The tilt is not tested.

    a is 4.3, 9.1 and 20.7 W/m²K by exposure, b is 1.3, 2.8 and 6.1.

    Each element has the bits of TPRSUR in quorvel.h.

    References
    ----------
    Radiation and convection side by side. The customary values of inside surfaces (0.10 up, 0.12
    horizontal, 0.14 down) and of outside ones in normal and severe exposure (walls 0.06 and 0.03,
    roofs 0.04 and 0.02) are met to two decimals; the origin of the convective coefficients is not
    recorded.

    Examples
    --------
    >>> from quorvel.fabric import Exposure, Surface, surface_resistance
    >>> result = surface_resistance(surface=Surface.inside, tilt=1.5707963,
    ...     exposure=Exposure.normal)
    >>> bool(abs(result - 0.12) <= 0.0055)
    True

    (CIBSE Guide A3, 1980, wall)
    """
    return _surface_resistance(surface, tilt, exposure, out, where)


def surface_resistance_at_emissivity(surface, tilt, exposure, emissivity, *, out=None, where=True):
    """Thermal resistance of the inside or outside surface of an element of any emissivity.

    Parameters
    ----------
    surface : Surface, or array_like of its names or numbers
        Surface: 1 outside, 2 inside.
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    exposure : Exposure, or array_like of its names or numbers
        Exposure of an outside surface to the wind: 1 sheltered, 2 normal, 3 severe.
    emissivity : array_like of float
        Long-wave emissivity of the surface; valid 0 to 1.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    surface_resistance : float32
        Surface resistance [m²K/W].

    Notes
    -----
    Formula: inside 1 / (4.4 - 2.6 tilt / pi + 5.7 emissivity), outside 1 / (5.1 emissivity + a + 4
    b (1 - tilt / pi)^2)

    Another surface type gives 0. Another exposure counts as the nearest one.

    At an emissivity of 0.9 it is `surface_resistance` to rounding.

    Tilt and emissivity are not tested.

    a and b are those of `surface_resistance`.

    Each element has the bits of TPRSU2 in quorvel.h.

    References
    ----------
    As `surface_resistance`, with black-body coefficients of 5.1 W/m²K outside and 5.7 W/m²K inside.

    Examples
    --------
    >>> from quorvel.fabric import Exposure, Surface, surface_resistance_at_emissivity
    >>> result = surface_resistance_at_emissivity(surface=Surface.inside, tilt=1.5707963,
    ...     exposure=Exposure.normal, emissivity=0.9)
    >>> bool(abs(result - 0.12) <= 0.005)
    True

    (CIBSE Guide A3, 1980: inside surface of a wall)
    """
    return _surface_resistance_at_emissivity(surface, tilt, exposure, emissivity, out, where)


def u_value(thickness, conductivity, surface_resistance_1, surface_resistance_2, *, out=None):
    """U-value of a construction of plane layers between two surface resistances.

    Parameters
    ----------
    thickness : array_like of float, shape (..., layers)
        Thickness of each layer; below 0: a layer of given resistance, 0: no layer [m].
    conductivity : array_like of float, shape (..., layers)
        Conductivity of each layer; its resistance in m²K/W where the thickness is below 0 [W/mK];
        valid from 0.
    surface_resistance_1 : array_like of float
        Resistance of one surface [m²K/W]; valid from 0.
    surface_resistance_2 : array_like of float
        Resistance of the other [m²K/W]; valid from 0.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.

    Returns
    -------
    u_value : float32
        U-value [W/m²K].

    Raises
    ------
    ValueError
        Unless the number of layers is at most 20.
        Unless all arguments have as many layers.

    Notes
    -----
    Formula: 1 / (surface_resistance_1 + surface_resistance_2 + sum of thickness / conductivity)

    Without layers the two surfaces are left.

    How far below 0 a thickness is makes no difference here; it does in `total_vapour_resistance`
    and `condensation_profile`.

    A thickness that is no number gives no number.

    Each element has the bits of TPUVAL in quorvel.h.

    References
    ----------
    Resistances in series; ISO 6946.

    Examples
    --------
    >>> from quorvel.fabric import u_value
    >>> result = u_value(thickness=[0.1, 0.1], conductivity=[0.04, 1], surface_resistance_1=0.13,
    ...     surface_resistance_2=0.04)
    >>> bool(abs(result - 0.361011) <= 1e-06)
    True

    (1 / (0.13 + 2.5 + 0.1 + 0.04))
    """
    return _u_value(thickness, conductivity, surface_resistance_1, surface_resistance_2, out, True)


def u_value_at_tilt_and_exposure(u_value, tilt, exposure, *, out=None, where=True):
    """U-value of a construction at another tilt and exposure, from its U-value as a vertical wall in
    normal exposure.

    Parameters
    ----------
    u_value : array_like of float
        U-value with the surface resistances of a vertical wall at exposure 2 [W/m²K]; valid from 0.
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    exposure : Exposure, or array_like of its names or numbers
        Wind exposure of the outside surface: 1 sheltered, 2 normal, 3 severe.
    out : ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    u_value : float32
        U-value at that tilt and exposure [W/m²K].

    Notes
    -----
    Formula: 1 / (1 / u_value - Rso - Rsi + Rso(tilt, exposure) + Rsi(tilt)), Rso and Rsi of a
    vertical surface in normal exposure where nothing else is said

    A U-value that is not above 0, or no number, comes back as it is.

    Above 5.49 W/m²K, what the two surfaces of the wall let through by themselves, the layers would
    have a negative resistance; the result is formed with it all the same.

    An exposure below 1 counts as 1, above 3 as 3. The tilt is not limited.

    Each element has the bits of TPUMOD in quorvel.h.

    References
    ----------
    Surface resistances of `surface_resistance`, exchanged.

    Examples
    --------
    >>> from quorvel.fabric import Exposure, u_value_at_tilt_and_exposure
    >>> result = u_value_at_tilt_and_exposure(u_value=0.6, tilt=0, exposure=Exposure.normal)
    >>> bool(abs(result - 0.615) <= 0.003)
    True

    (1 / (1 / 0.6 - 0.12 - 0.06 + 0.10 + 0.04), CIBSE Guide A3, 1980)
    """
    return _u_value_at_tilt_and_exposure(u_value, tilt, exposure, out, where)


def window_parameters(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, *, out=None, where=True):
    """U-value, admittance, decrement factor and surface factor of a glazing of one to three panes.

    Parameters
    ----------
    panes : array_like of int
        Number of panes, pane 1 nearest the room; valid 1 to 3.
    pane_kind_1 : PaneKind, or array_like of its names or numbers
        Kind of pane 1: 1 closes the cavities on both sides, 2 closes none.
    emissivity_1 : array_like of float
        Long-wave emissivity of pane 1; valid 0 to 1.
    pane_kind_2 : PaneKind, or array_like of its names or numbers
        Kind of pane 2: 1 closes the cavities on both sides, 2 closes none.
    emissivity_2 : array_like of float
        Long-wave emissivity of pane 2; valid 0 to 1.
    pane_kind_3 : PaneKind, or array_like of its names or numbers
        Kind of pane 3: 1 closes the cavities on both sides, 2 closes none.
    emissivity_3 : array_like of float
        Long-wave emissivity of pane 3; valid 0 to 1.
    cavity_width_1 : array_like of float
        Width of the cavity between panes 1 and 2 [m]; valid from 0.001.
    cavity_width_2 : array_like of float
        Width of the cavity between panes 2 and 3 [m]; valid from 0.001.
    outer_surface : Surface, or array_like of its names or numbers
        Surface type of the outer face, normally 1: 1 outside, 2 inside.
    exposure : Exposure, or array_like of its names or numbers
        Exposure of the outer face to the wind: 1 sheltered, 2 normal, 3 severe.
    tilt : array_like of float
        Tilt: 0 heat flowing up, pi/2 vertical, pi heat flowing down [rad]; valid 0 to 3.1416.
    out : tuple of ndarray, optional
        Where to put the results, as for any NumPy ufunc.
    where : array_like of bool, optional
        Which elements to work out, as for any NumPy ufunc.

    Returns
    -------
    WindowParameters
        A named tuple of:

    admittance : float32
        Admittance, the U-value [W/m²K].
    admittance_lead : float32
        Time lead of the admittance, 0 [h].
    decrement_factor : float32
        Decrement factor, 1.
    decrement_lag : float32
        Time lag of the decrement factor, 0 [h].
    surface_factor : float32
        Surface factor, 1 - Rsi U.
    surface_factor_lag : float32
        Time lag of the surface factor, 0 [h].
    u_value : float32
        U-value [W/m²K].

    Notes
    -----
    Formula: u_value = 1 / (Rso + Rsi + the resistances of the cavities), surface_factor = 1 - Rsi
    u_value

    The resistance of the glass is neglected and nothing is stored in it.

    Of three panes one may be open: the middle one leaves a single cavity as wide as both. With two
    open panes, and with one open pane of two, there is no cavity.

    The kinds of the panes are told by their sum: 0, 1, 2 count as three closed panes.

    Another number of panes counts as one pane, with the emissivity of pane 3 outside.

    Cavities as `air_cavity_resistance`: one that it rejects has no resistance.

    Rsi and Rso are the resistances of the inner and the outer surface.

    Each element has the bits of TPWNDO in quorvel.h.

    References
    ----------
    Surface resistances of `surface_resistance_at_emissivity` and cavities of
    `air_cavity_resistance` in series.

    Examples
    --------
    >>> from quorvel.fabric import Exposure, PaneKind, Surface, window_parameters
    >>> result = window_parameters(panes=1, pane_kind_1=PaneKind.closing, emissivity_1=0.9,
    ...     pane_kind_2=PaneKind.closing, emissivity_2=0.9, pane_kind_3=PaneKind.closing,
    ...     emissivity_3=0.9, cavity_width_1=0.012, cavity_width_2=0.012,
    ...     outer_surface=Surface.outside, exposure=Exposure.normal, tilt=1.5707963)
    >>> bool(abs(result.admittance - 5.6) <= 0.15)
    True
    >>> bool(result.admittance_lead == 0)
    True
    >>> bool(result.decrement_factor == 1)
    True
    >>> bool(result.decrement_lag == 0)
    True
    >>> bool(abs(result.u_value - 5.6) <= 0.15)
    True

    (CIBSE Guide A3, 1980: single glazing)
    """
    return _new(WindowParameters, _window_parameters(panes, pane_kind_1, emissivity_1, pane_kind_2, emissivity_2, pane_kind_3, emissivity_3, cavity_width_1, cavity_width_2, outer_surface, exposure, tilt, out, where))
