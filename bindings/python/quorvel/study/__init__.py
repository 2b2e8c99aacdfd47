"""Parametric studies of a facade: every orientation with every glazing, blind and station, hour by hour.

    python -m quorvel.study facade.toml                     # on the threads of this machine
    python -m quorvel.study facade.toml --plan              # how much and how long, without running
    python -m quorvel.study facade.toml --scheduler ADDRESS # on the workers of a Dask scheduler

The result is a Zarr group, which ``xarray.open_zarr`` opens as a labelled cube. `quorvel.study.model` says what is
computed, `quorvel.study.definition` what a study may contain. A study that was stopped goes on where it was: run the
same command again.

From Python, with any executor of `concurrent.futures`:

>>> from quorvel import study
>>> facade = study.read_study("facade.toml")                # doctest: +SKIP
>>> study.run(study.open_result(facade, "facade.zarr"))     # doctest: +SKIP
"""

import importlib

from .definition import Study, StudyError, read_study

__all__ = ["Result", "Study", "StudyError", "open_result", "read_study", "run"]

_WITH_EXTRA = {"Result": "store", "open_result": "store", "run": "execution"}


def __getattr__(name):
    # Those need what the extra brings, which is said when they are asked for.
    if name in _WITH_EXTRA:
        return getattr(importlib.import_module(f".{_WITH_EXTRA[name]}", __name__), name)
    raise AttributeError(f"module {__name__!r} has no attribute {name!r}")
