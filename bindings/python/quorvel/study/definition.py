"""What a study contains, and the reader of its file.

The file is TOML:

    [output]
    keep = ["annual", "peak"]    # of "hourly", "monthly", "annual", "peak"
    chunk_elements = 8000000     # values of an hour in a chunk, about; see docs/studies.md

    [orientations]
    azimuths = 8                 # that many evenly from north, or a list in degrees, clockwise from north
    tilts = [90]                 # degrees from the horizontal; 90 is a wall
    ground_reflectance = 0.2

    [[glazings]]
    name = "double, low emissivity"
    panes = [                    # the outermost first, 1 to 5
        { transmittance = 0.82 },
        { transmittance = 0.60, reflectance = 0.28 },   # at normal incidence; a reflectance says coated
    ]

    [[blinds]]                   # lowered all year, on the room side of the glass
    name = "slats at 45"
    kind = "slatted"             # or "roller" (transmittance, reflectance), or "none"
    spacing = 70                 # in the unit of the width
    width = 80
    angle = 45                   # degrees, positive with the outer edge lowered
    absorptance = 0.3

    [[stations]]
    epw = "weather/*.epw"        # a file or several, relative to this one

    [[stations]]                 # or the clear sky of every day
    name = "London"
    latitude = 51.5              # degrees, north and east positive
    longitude = -0.1
    time_zone = 0                # hours ahead of Greenwich
    height = 20                  # m above sea level
"""

import glob
import os
import tomllib
from dataclasses import asdict, dataclass
from pathlib import Path

from .table import StudyError, Table

__all__ = ["KEPT", "Study", "StudyError", "read_study"]

KEPT = ("hourly", "monthly", "annual", "peak")
HOURS = 8760
# A chunk with hours is 32 MB in memory; one without them holds about a second's work.
WITH_HOURS, WITHOUT_HOURS = 1 << 23, 1 << 26


@dataclass(frozen=True)
class Study:
    """Axes, what is kept, and the size of a chunk; all in the types of JSON."""

    azimuths: list
    tilts: list
    ground_reflectance: float
    glazings: list
    blinds: list
    stations: list
    keep: list
    chunk_elements: int

    as_dict = asdict

    @property
    def shape(self):
        """Without hours: station, tilt, azimuth, glazing, blind."""
        return tuple(map(len, (self.stations, self.tilts, self.azimuths, self.glazings, self.blinds)))


def read_study(path):
    """Read a study from a TOML file.

    Raises
    ------
    StudyError
        Where it is not as the module's documentation says; names the file, the key and the allowed range.
    """
    name = os.fspath(path)
    try:
        with open(path, "rb") as file:
            table = Table(tomllib.load(file), name)
    except (OSError, UnicodeDecodeError, tomllib.TOMLDecodeError) as error:
        raise StudyError(f"{name}: {getattr(error, 'strerror', None) or error}") from None
    table.expect("output", "orientations", "glazings", "blinds", "stations")
    output = Table(table.get("output"), name, "output")
    output.expect("keep", "chunk_elements")
    keep = _keep(output)
    orientations = Table(table.get("orientations"), name, "orientations")
    orientations.expect("azimuths", "tilts", "ground_reflectance")
    usual = WITH_HOURS if "hourly" in keep else WITHOUT_HOURS
    return Study(
        azimuths=_azimuths(orientations),
        tilts=orientations.numbers("tilts", 0, 180, "°", 90),
        ground_reflectance=orientations.number("ground_reflectance", 0, 1, default=0.2),
        glazings=_named([_glazing(entry) for entry in table.tables("glazings")], table, "glazings"),
        blinds=_named([_blind(entry) for entry in table.tables("blinds")], table, "blinds"),
        stations=_named(sum(map(_stations, table.tables("stations")), []), table, "stations"),
        keep=keep,
        chunk_elements=output.count("chunk_elements", HOURS, 1 << 32, usual),
    )


def _keep(output):
    kept = output.get("keep")
    if not isinstance(kept, list) or not kept or any(entry not in KEPT for entry in kept):
        raise output.error("keep", f"= {kept!r} must be a list of {', '.join(KEPT)}, at least one")
    return [entry for entry in KEPT if entry in kept]


def _azimuths(orientations):
    if isinstance(orientations.get("azimuths"), list):
        return orientations.numbers("azimuths", 0, 360, "°")
    count = orientations.count("azimuths", 1, 36000)
    return [360 * n / count for n in range(count)]


def _named(entries, table, key):
    names = [entry["name"] for entry in entries]
    for name in names:
        if names.count(name) > 1:
            raise table.error(key, f"has the name {name!r} twice")
    return entries


def _glazing(entry):
    entry.expect("name", "panes")
    panes = entry.tables("panes")
    if len(panes) > 5:
        raise entry.error("panes", f"are {len(panes)} where 1 to 5 are allowed")
    return {"name": entry.text("name"), "panes": [_pane(pane) for pane in panes]}


def _pane(pane):
    pane.expect("transmittance", "reflectance")
    transmittance = pane.number("transmittance", 0, 0.92)
    reflectance = pane.number("reflectance", 0, 0.99, default=0.0)
    if 0 < reflectance < 0.01:
        raise pane.error("reflectance", f"= {reflectance:g} must be 0, which says uncoated, or from 0.01 to 0.99")
    if reflectance > 1 - transmittance:
        rest = f"{1 - transmittance:g}, what is not transmitted"
        raise pane.error("reflectance", f"= {reflectance:g} must be at most {rest}")
    return {"transmittance": transmittance, "reflectance": reflectance}


def _blind(entry):
    blind = {"name": entry.text("name"), "kind": entry.choice("kind", ("slatted", "roller", "none"))}
    if blind["kind"] == "none":
        entry.expect("name", "kind")
        return {**blind, "kind": "roller", "transmittance": 1.0, "reflectance": 0.0}
    if blind["kind"] == "roller":
        entry.expect("name", "kind", "transmittance", "reflectance")
        blind["transmittance"] = entry.number("transmittance", 0, 1)
        return {**blind, "reflectance": entry.number("reflectance", 0, 1 - blind["transmittance"])}
    entry.expect("name", "kind", "spacing", "width", "angle", "absorptance")
    return {**blind, "spacing": entry.number("spacing", 0.001, 1000), "width": entry.number("width", 0.001, 1000),
            "angle": entry.number("angle", -90, 90, "°"), "absorptance": entry.number("absorptance", 0, 1)}


def _stations(entry):
    """One entry's stations; a pattern gives as many as there are files."""
    if "epw" not in entry.values:
        entry.expect("name", "latitude", "longitude", "time_zone", "height", "epw")
        return [{"name": entry.text("name"), "latitude": entry.number("latitude", -90, 90, "°"),
                 "longitude": entry.number("longitude", -180, 180, "°"),
                 "time_zone": entry.number("time_zone", -12, 14, "h"),
                 "height": entry.number("height", 0, 5000, "m", 0.0)}]
    entry.expect("name", "epw")
    pattern = Path(entry.file).parent / entry.text("epw")
    files = [os.fspath(pattern)] if pattern.is_file() else sorted(glob.glob(os.fspath(pattern)))
    if not files:
        raise entry.error("epw", f"= {entry.get('epw')!r} is no file, and as a pattern fits none")
    if len(files) > 1 and "name" in entry.values:
        raise entry.error("name", f"does not go with {len(files)} files")
    return [{"name": entry.text("name", Path(file).stem), "epw": file} for file in files]
