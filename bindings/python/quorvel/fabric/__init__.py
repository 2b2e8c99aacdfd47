"""Walls and other elements: resistances, U-values, admittance, condensation."""

from .routines import *  # noqa: F403
from .routines import __all__  # noqa: F401
