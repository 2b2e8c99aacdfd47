"""Glazing: panes, units, blinds, and the temperatures of panes."""

from .routines import *  # noqa: F403
from .routines import __all__  # noqa: F401
