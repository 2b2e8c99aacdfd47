"""Moist air: saturation, moisture content, enthalpy, wet bulb, pool evaporation; the state from any two quantities,
processes of air conditioning, and the psychrometric chart."""

from . import moist_air, psychrometric_chart, routines
from .moist_air import *  # noqa: F403
from .psychrometric_chart import *  # noqa: F403
from .routines import *  # noqa: F403

__all__ = sorted({*moist_air.__all__, *psychrometric_chart.__all__, *routines.__all__})
