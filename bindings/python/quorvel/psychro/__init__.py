"""Moist air: saturation, moisture content, enthalpy, wet bulb, pool evaporation."""

from .routines import *  # noqa: F403
from .routines import __all__  # noqa: F401
