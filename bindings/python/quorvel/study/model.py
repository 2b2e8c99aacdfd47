"""Solar radiation that glazing with a blind behind it lets into the room, per area of glazing.

For each hour of a year of 365 days, with the sun as in the middle of the hour:

    q = E_b τ_b + E_s τ_s + E_g τ_g                                                            [W/m²]

Irradiance on the facade, from direct normal E_n and diffuse horizontal irradiance E_d [W/m²]:

    E_b = E_n cos θ                                beam, 0 with the sun behind the facade or not above the horizon
    E_s = sky of Perez, not below 0                from altitude, tilt, θ, E_n sin h, E_d and the irradiance outside
                                                   the atmosphere, 1367 W/m² times the factor of the day
    E_g = ρ (1 - cos β) / 2 (E_d + E_n sin h)      reflected by the ground of reflectance ρ

with the angle of incidence θ, the solar altitude h and the tilt β (`surface_irradiance_and_incidence`,
`perez_diffuse`, `eccentricity_factor`; `almanac_position` gives the sun). A sun below 0.01 rad counts as that high
for the sky, so that twilight keeps its diffuse irradiance.

Glazing: each pane by `glass_direct` at θ and by `glass_diffuse`; the panes together by `traced_layers`, for the beam
each polarisation on its own, and their mean. The blind hangs on the room side, so that the beam reaches it at its
own angles: `slat_direct` at the profile angle, `slat_diffuse` for the radiation from above and from below the
facade's normal, `roller_blind` and `diffuse_roller_blind`. What the blind reflects is diffuse, and the glazing throws
part of it back, again and again, which is a geometric series:

    τ = τ_glazing τ_blind / (1 - ρ_glazing ρ_blind)

with the reflectances of the glazing for diffuse radiation from the room's side and of the blind for what comes first.

Kept are q itself ("hourly"), its greatest value ("peak") and its sums ("monthly", "annual"). To the sums each hour
counts in whole 2^-20 W/m², cut off: integers have the same sum in any order, and NumPy's order depends on the
processor.

It is transmitted radiation, not the solar heat gain: what panes and blind absorb and pass on inwards, frames and
shading by surroundings are not in it. Limits: the blind is lowered all year; slats run level along the facade; on
a facade that is not a wall "above" and "below" mean up and down the slope; the diffuse transmittance of the glazing is
that for isotropic radiation. Within an hour of midnight, where there is sun, its azimuth may be mirrored at north.

Sources: those of the routines named, in their documentation. Results are in single precision; the routines have
the same bits on every processor, and so have the operations of NumPy used here.
"""

from typing import NamedTuple

import numpy as np

from .. import climate, glazing
from .sun import MONTHS, sun

__all__ = ["Blinds", "Facade", "Glazing", "Hours", "facade", "hours_of", "panes_together", "reduced",
           "slats_and_rollers", "transmitted"]

VERSION = 1  # of the model: results of different ones do not go together
SOLAR_CONSTANT = np.float32(1367)
LOWEST_SUN = np.float32(0.01)
STEPS = np.float32(1 << 20)  # in a W/m², of the sums
ONE = np.float32(1)


class Hours(NamedTuple):
    """The hours of a station that have radiation, by their number in the year, with sun and sky."""

    number: np.ndarray
    altitude: np.ndarray
    azimuth: np.ndarray
    direct_normal: np.ndarray
    beam_horizontal: np.ndarray
    diffuse_horizontal: np.ndarray
    extraterrestrial_normal: np.ndarray


class Facade(NamedTuple):
    """Irradiance and angles in those hours; the angles only of hours with beam, which `lit` tells."""

    lit: np.ndarray
    beam: np.ndarray
    sky: np.ndarray
    ground: np.ndarray
    incidence: np.ndarray
    profile: np.ndarray


class Glazing(NamedTuple):
    panes: list
    diffuse_transmittance: np.float32
    inner_reflectance: np.float32  # for diffuse radiation from the room's side


class Blinds(NamedTuple):
    """All blinds of a chunk, along the first axis."""

    blinds: list
    sky: tuple  # transmittance and reflectance for radiation from above
    ground: tuple  # and from below


def hours_of(weather):
    """The hours with radiation of a station."""
    altitude, azimuth = sun(weather.place)
    direct = np.where(altitude > 0, weather.direct_normal, np.float32(0))
    number = np.flatnonzero((direct > 0) | (weather.diffuse_horizontal > 0))
    altitude, azimuth, direct, diffuse = (of[number] for of in (altitude, azimuth, direct, weather.diffuse_horizontal))
    # A level surface gets E_n sin h: the sine of NumPy depends on the processor.
    level = climate.surface_irradiance(np.maximum(altitude, 0), azimuth, 0, 0, direct, diffuse, 0, ONE, ONE)
    outside = SOLAR_CONSTANT * climate.eccentricity_factor((number // 24 + 1).astype(np.int32))
    return Hours(number, altitude, azimuth, direct, level.surface_beam, diffuse, outside)


def facade(hours, azimuth, tilt, ground_reflectance):
    """Irradiance on a facade whose normal has that azimuth [°]."""
    azimuth, tilt = np.radians([azimuth, tilt]).astype(np.float32)
    beam, _, ground, _ = climate.surface_irradiance_and_incidence(
        np.maximum(hours.altitude, 0), hours.azimuth, azimuth, tilt, hours.direct_normal, hours.diffuse_horizontal,
        np.float32(ground_reflectance), ONE, ONE)
    angles = climate.surface_angles(hours.altitude, hours.azimuth, azimuth, tilt)
    sky = np.zeros_like(beam)
    some = hours.diffuse_horizontal > 0  # the model divides by it
    climate.perez_diffuse(np.maximum(hours.altitude, LOWEST_SUN), tilt, hours.beam_horizontal, hours.diffuse_horizontal,
                          angles.incidence, hours.extraterrestrial_normal, out=sky, where=some)
    lit = np.flatnonzero(beam > 0)
    return Facade(lit, beam[lit], np.maximum(sky, 0), ground, angles.incidence[lit], angles.vertical_shadow_angle[lit])


def panes_together(panes):
    """The glazing of panes, the outermost first."""
    layers = [[], [], []]
    for pane in panes:
        transmittance, absorptance = glazing.glass_diffuse(*_pane(pane))
        for layer, value in zip(layers, (transmittance, absorptance, ONE - transmittance - absorptance)):
            layer.append(value)
    together = glazing.traced_layers(*np.array(layers, np.float32))  # the last is met first: from the room
    return Glazing(panes, together.transmittance, together.reflectance)


def _pane(pane):
    return np.float32(pane["transmittance"]), np.float32(pane["reflectance"])


def _direct_transmittance(panes, incidence):
    """Mean of both polarisations, each through all panes on its own."""
    optics = np.array([glazing.glass_direct(*_pane(pane), incidence) for pane in panes])  # pane, optic, hour
    optics = optics.reshape(len(panes), 2, 3, -1).transpose(2, 1, 3, 0)  # optic, polarisation, hour, pane
    through = optics[0, ..., 0] if len(panes) == 1 else glazing.traced_layers(*optics).transmittance
    return (through[0] + through[1]) / np.float32(2)


def slats_and_rollers(blinds):
    sky, ground = zip(*map(_diffuse_blind, blinds))
    return Blinds(blinds, *(tuple(np.array(side, np.float32).T) for side in (sky, ground)))


def _slats(blind):
    return [np.float32(blind[key]) for key in ("spacing", "width", "angle")]


def _roller(blind):
    return np.float32(blind["transmittance"]), np.float32(blind["reflectance"])


def _diffuse_blind(blind):
    """Transmittance and reflectance for radiation from above, and from below."""
    if blind["kind"] == "roller":
        optics = glazing.diffuse_roller_blind(*_roller(blind))
        return (optics.transmittance, optics.reflectance), (optics.transmittance, optics.reflectance)
    above, below, *absorbed = glazing.slat_diffuse(*_slats(blind), np.float32(blind["absorptance"]))
    return (above, ONE - above - absorbed[0]), (below, ONE - below - absorbed[1])


def _direct_blind(blind, profile):
    if blind["kind"] == "roller":
        optics = glazing.roller_blind(*_roller(blind))
        return optics.transmittance, optics.reflectance
    optics = glazing.slat_direct(*_slats(blind), profile, np.float32(blind["absorptance"]))
    return optics.transmittance, optics.reflectance


def transmitted(surface, glazings, blinds):
    """q of each glazing in turn: arrays of blinds and of the hours with radiation."""
    shape = (len(blinds.blinds), len(surface.lit))
    transmittance, reflectance = np.empty((2, *shape), np.float32)
    for n, blind in enumerate(blinds.blinds):
        transmittance[n], reflectance[n] = _direct_blind(blind, surface.profile)
    for unit in glazings:
        arriving = surface.beam * _direct_transmittance(unit.panes, surface.incidence)
        q = surface.sky * _diffuse(unit, blinds.sky) + surface.ground * _diffuse(unit, blinds.ground)
        q[:, surface.lit] += arriving * transmittance / (ONE - unit.inner_reflectance * reflectance)
        yield q


def _diffuse(unit, side):
    """Transmittance of glazing and blinds for diffuse radiation, a row for each blind."""
    transmittance, reflectance = side
    return (unit.diffuse_transmittance * transmittance / (ONE - unit.inner_reflectance * reflectance))[:, None]


def reduced(q, number, keep):
    """What is kept of q: arrays by the names in `keep`, the sums in kWh/m²."""
    kept = {}
    if "hourly" in keep:
        kept["hourly"] = np.zeros((len(q), MONTHS[-1]), np.float32)
        kept["hourly"][:, number] = q
    if "peak" in keep:
        kept["peak"] = q.max(axis=1, initial=np.float32(0))
    if "monthly" in keep or "annual" in keep:
        steps = (q * STEPS).astype(np.int64)
        bounds = np.searchsorted(number, MONTHS)
        months = np.stack([steps[:, a:b].sum(axis=1) for a, b in zip(bounds, bounds[1:])], axis=1)
        kept["monthly"], kept["annual"] = ((sums / (1000 * float(STEPS))).astype(np.float32)
                                           for sums in (months, months.sum(axis=1)))
    return {name: kept[name] for name in keep}
