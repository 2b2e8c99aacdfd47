"""Climate: sun, sky, radiation on surfaces, design days, band climate, climate data files, weather files."""

from . import climate_file, epw, routines
from .climate_file import *  # noqa: F403
from .epw import *  # noqa: F403
from .routines import *  # noqa: F403

__all__ = sorted({*climate_file.__all__, *epw.__all__, *routines.__all__})
