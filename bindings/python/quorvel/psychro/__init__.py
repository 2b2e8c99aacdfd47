"""Moist air: saturation, moisture content, enthalpy, wet bulb, pool evaporation; the state from any two quantities."""

from . import routines
from . import state as _state
from .routines import *  # noqa: F403
from .state import *  # noqa: F403

__all__ = sorted({*routines.__all__, *_state.__all__})
