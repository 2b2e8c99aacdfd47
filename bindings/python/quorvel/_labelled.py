"""Arrays with labels or in chunks: each keeps its kind, by the means of its own library."""

import sys

import numpy as np

from . import _core
from .errors import current, errstate


class Applied:
    """A ufunc by its name, with the policy of the context that it was applied in; it can be sent to a worker."""

    def __init__(self, name):
        self.name, self.policy = name, current()
        self.__name__ = name

    def __call__(self, *args):
        with errstate(range=self.policy):
            return _core.ufuncs[self.name](*args)

    def __dask_tokenize__(self):
        return ("quorvel", _core.version(), self.name, self.policy)


def _signature(routine):
    """With a pair of brackets for each operand, also of functions of numbers."""
    return routine.signature or "->".join(",".join(["()"] * len(side)) for side in (routine.inputs, routine.outputs))


def _dtypes(routine):
    return [np.dtype(output.dtype) for output in routine.outputs]


def _returned(results, routine):
    return results if len(routine.outputs) > 1 else results[0] if isinstance(results, tuple) else results


def of_dask(name, routine, args, _=None):
    from dask.array import apply_gufunc

    dtypes = _dtypes(routine)
    fixed = {str(axis): axis for output in routine.outputs for axis in output.axes if isinstance(axis, int)}
    given = {str(axis) for argument in routine.inputs for axis in argument.axes}
    results = apply_gufunc(Applied(name), _signature(routine), *args, allow_rechunk=True,
                           output_sizes={axis: extent for axis, extent in fixed.items() if axis not in given},
                           output_dtypes=dtypes if len(dtypes) > 1 else dtypes[0])
    return _returned(results, routine)


def named(results, routine):
    """Series of pandas with the names of what they are."""
    several = results if isinstance(results, tuple) else (results,)
    for result, output in zip(several, routine.outputs):
        if getattr(result, "ndim", 0) == 1 and hasattr(result, "index"):
            result.name = output.name
    return results


def of_pandas(ufunc, routine, args, _=None):
    """A function of lists: the tables' rows are elements, their columns layers, vertices or the like."""
    pandas = sys.modules["pandas"]
    labels = [value.index for value in args if isinstance(value, (pandas.Series, pandas.DataFrame))]
    results = ufunc(*(np.asarray(value) if hasattr(value, "index") else value for value in args))

    def labelled(result):
        fits = next((index for index in labels if np.shape(result)[:1] == (len(index),)), None)
        if fits is None or np.ndim(result) > 2:
            return result
        return (pandas.Series if np.ndim(result) == 1 else pandas.DataFrame)(result, index=fits)

    return named(tuple(map(labelled, results)) if isinstance(results, tuple) else labelled(results), routine)


def of_xarray(name, routine, args, _=None):
    import xarray

    lists = _core_dimensions(routine, args)
    chunked = any(hasattr(getattr(value, "data", None), "dask") for value in args) or \
        any(isinstance(value, xarray.Dataset) for value in args)
    results = xarray.apply_ufunc(
        Applied(name), *args,
        input_core_dims=[_names(argument, value, lists) for argument, value in zip(routine.inputs, args)],
        output_core_dims=[[_name(axis, lists) for axis in _axes(output)] for output in routine.outputs],
        dask="parallelized" if chunked else "forbidden", output_dtypes=_dtypes(routine),
        dask_gufunc_kwargs={"allow_rechunk": True, "output_sizes": _sizes(routine, lists)} if chunked else None,
    )
    several = results if isinstance(results, tuple) else (results,)
    for result, output in zip(several, routine.outputs):
        _describe(result, output)
    return _returned(several, routine)


def _describe(result, output):
    attributes = {"units": output.unit} if output.unit else {}
    attributes["long_name"] = output.meaning
    if hasattr(result, "data_vars"):
        for name in result.data_vars:
            result.variables[name].attrs.update(attributes)
    else:
        result.attrs.update(attributes)
        result.name = output.name


def _axes(operand):
    """Core dimensions, numbered where two are as long as one another."""
    return [(axis, operand.axes[:k].count(axis)) for k, axis in enumerate(operand.axes)]


def _core_dimensions(routine, args):
    """The labelled dimension that stands for each core dimension: the last ones of the first labelled argument."""
    found = {}
    for argument, value in zip(routine.inputs, args):
        axes = _axes(argument)
        for axis, dimension in zip(axes, getattr(value, "dims", ())[-len(axes):] if axes else ()):
            found.setdefault(axis, dimension)
    return found


def _name(axis, found):
    extent, again = axis
    return found.get(axis, f"{extent}" if isinstance(extent, str) else f"numbers_{extent}" + f"_{again}" * bool(again))


def _names(argument, value, found):
    return [_name(axis, found) for axis in _axes(argument)]


def _sizes(routine, found):
    given = {_name(axis, found) for argument in routine.inputs for axis in _axes(argument)}
    return {_name(axis, found): axis[0] for output in routine.outputs for axis in _axes(output)
            if _name(axis, found) not in given}
