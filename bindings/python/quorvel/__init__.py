"""Building physics and building services: moist air, fabric, glazing, climate and geometry.

Every function takes single numbers, arrays of any shape, and tables and labelled arrays of pandas, xarray and
Dask; it returns the same kind, in single precision, and the same bits on every processor.

>>> import quorvel
>>> round(float(quorvel.psychro.vapour_pressure(20, [40, 50, 60])[1]), 1)
1167.8

Modules
-------
psychro : moist air, wet bulb, pool evaporation; `psychro.state` gives all of it from any two quantities
fabric : surface and cavity resistances, U-values, admittance, condensation
glazing : panes, glazing units, blinds, temperatures of panes
climate : sun, sky, radiation on tilted surfaces, design days, band climate; `ClimateFile`, `read_epw`
geometry : vectors, planes, polygons; `clip`, `overlap`, `area` and `orientation` of polygons
study : parametric studies of a facade, also on a Dask cluster: `python -m quorvel.study`
ufuncs : the NumPy ufuncs behind the functions, for `axes=`, `casting=` and the like
"""

import importlib
from typing import TYPE_CHECKING, Any

from . import _core
from ._dispatch import dispatch as _dispatch
from .errors import policy as _policy
from .errors import report as _report
from .errors import RangeError, RangeWarning, errstate

__all__ = ["RangeError", "RangeWarning", "choose_level", "climate", "errstate", "fabric", "geometry", "glazing",
           "level", "psychro", "selectors", "study", "ufuncs"]

if TYPE_CHECKING:
    from . import climate, fabric, geometry, glazing, psychro, selectors, study, ufuncs

__version__: str = _core.version()

_core.connect(_policy, _report, _dispatch)


def level() -> str:
    """The level of instructions in use: "v2", "v3" or "v4" of x86-64, or "scalar"."""
    return _core.level()


def choose_level(name: str | None = None) -> None:
    """Take another level of instructions from now on, the best one for None. Results do not depend on it.

    Raises
    ------
    ValueError
        Where the processor does not support that level.
    """
    if not _core.choose_level(name):
        raise ValueError(f"level {name!r} is not supported by this processor; in use is {level()!r}")


def __getattr__(name: str) -> Any:
    # A family is loaded when it is first asked for.
    if name in __all__:
        return importlib.import_module(f".{name}", __name__)
    raise AttributeError(f"module {__name__!r} has no attribute {name!r}")


def __dir__() -> list[str]:
    return sorted({*globals(), *__all__})
