"""Arrays with labels or in chunks: each keeps its kind, by the means of its own library."""

import sys

import numpy as np

from . import _core
from ._filled import Filled, extents, is_filled
from .errors import current, errstate


class Applied:
    """A ufunc by its name, with the policy of the context that it was applied in; it can be sent to a worker."""

    def __init__(self, name, routine):
        self.name, self.policy = name, current()
        self.filled = any(map(is_filled, (axis for output in routine.outputs for axis in output.axes)))
        self.__name__ = name

    def __call__(self, *args):
        ufunc = Filled(self.name) if self.filled else _core.ufuncs[self.name]
        with errstate(range=self.policy):
            return ufunc(*args)

    def __dask_tokenize__(self):
        return ("quorvel", _core.version(), self.name, self.policy)


def _signature(routine):
    """With a pair of brackets for each operand, also of functions of numbers."""
    return "->".join(",".join(f"({','.join(_names(operand, {}))})" for operand in side)
                     for side in (routine.inputs, routine.outputs))


def _dtypes(routine):
    return [np.dtype(output.dtype) for output in routine.outputs]


def _returned(results, routine):
    return results if len(routine.outputs) > 1 or not isinstance(results, tuple) else results[0]


def of_dask(name, routine, args):
    from dask.array import apply_gufunc
    from dask.array.core import elemwise

    dtypes = _dtypes(routine)
    if not routine.signature and len(dtypes) == 1:  # goes with chunks of unknown size too
        return elemwise(Applied(name, routine), *args, dtype=dtypes[0])
    results = apply_gufunc(Applied(name, routine), _signature(routine), *args, allow_rechunk=True,
                           output_sizes=_sizes(routine, {}, args),
                           output_dtypes=dtypes if len(dtypes) > 1 else dtypes[0])
    return _returned(results, routine)


def of_pandas(ufunc, routine, args, options):
    """Series and tables. In a function of lists a table's rows are elements and its columns layers, vertices or the
    like, as are the rows of a Series; what goes together is found by its labels."""
    args = [_plain_numbers(value) for value in args]
    if not routine.signature:
        return _named(ufunc(*args, **options), routine)
    if options:
        raise TypeError("out does not go with tables in a function of lists")
    labels = {}  # of the first that has them
    for value, argument in zip(args, routine.inputs):
        for place, index in _labels(value, argument):
            labels.setdefault(place, index)
    results = ufunc(*(_in_order(value, argument, labels) for value, argument in zip(args, routine.inputs)))
    index = labels.get("row")

    def labelled(result):
        if index is None or np.shape(result)[:1] != (len(index),) or np.ndim(result) > 2:
            return result
        pandas = sys.modules["pandas"]
        return (pandas.Series if np.ndim(result) == 1 else pandas.DataFrame)(result, index=index)

    return _named(tuple(map(labelled, results)) if isinstance(results, tuple) else labelled(results), routine)


def is_table(value):
    """Of pandas; subclasses as well."""
    return hasattr(value, "index") and hasattr(value, "reindex") and hasattr(value, "to_numpy")


def like(table, values):
    """A Series or table of those values with the labels of another."""
    rest = {"columns": table.columns} if hasattr(table, "columns") else {"name": table.name}
    return type(table)(values, index=table.index, **rest)


def _plain_numbers(value):
    """Without the types of pandas' own that stand for numbers or nothing; missing is not a number."""
    if is_table(value) and hasattr(value, "dtype") and not isinstance(value.dtype, np.dtype):
        if value.dtype.kind in "iufb":
            if value.dtype.kind in "iu" and not value.hasnans:
                return like(value, value.to_numpy(dtype=np.int64))
            return like(value, value.to_numpy(dtype=float, na_value=np.nan))
    return value


def _labels(value, argument):
    """Pairs of what a dimension is and its labels, of a Series or table as an argument of a function of lists."""
    if not is_table(value):
        return
    dimensions = value.axes
    yield from zip(("row", *argument.axes)[-len(dimensions):], dimensions)


def _in_order(value, argument, labels):
    """As an array, with rows and columns in the order of the first that has them."""
    ordered = value
    for dimension, (place, index) in enumerate(_labels(value, argument)):
        if not index.equals(labels[place]):
            if index.has_duplicates or set(index) != set(labels[place]):
                raise ValueError(f"{argument.name}: its labels {list(index)} are not those of the other "
                                 f"{place if place != 'row' else 'table'}s, {list(labels[place])}")
            ordered = ordered.reindex(labels[place], axis=dimension)
    return np.asarray(ordered) if is_table(value) else value


def _named(results, routine):
    """Series with the names of what they are."""
    several = results if isinstance(results, tuple) else (results,)
    for result, output in zip(several, routine.outputs):
        if getattr(result, "ndim", 0) == 1 and hasattr(result, "index"):
            result.name = output.name
    return results


def of_xarray(name, routine, args):
    import xarray

    args = [_for_xarray(value, args, argument, xarray) for value, argument in zip(args, routine.inputs)]
    lists = _core_dimensions(routine, args)
    chunked = any(hasattr(getattr(value, "data", None), "dask") or isinstance(value, xarray.Dataset) for value in args)
    results = xarray.apply_ufunc(
        Applied(name, routine), *args,
        input_core_dims=[_names(argument, lists) for argument in routine.inputs],
        output_core_dims=[_names(output, lists) for output in routine.outputs],
        dask="parallelized" if chunked else "forbidden", output_dtypes=_dtypes(routine),
        dask_gufunc_kwargs={"allow_rechunk": True, "output_sizes": _sizes(routine, lists, args)} if chunked else None,
    )
    several = results if isinstance(results, tuple) else (results,)
    for result, output in zip(several, routine.outputs):
        describe(result, output)
    return _returned(several, routine)


def _for_xarray(value, args, argument, xarray):
    """Lists as arrays; a Series of pandas as an array with the dimension that its index is named after."""
    if isinstance(value, xarray.Variable):
        return xarray.DataArray(value)
    if isinstance(value, (list, tuple)):
        return np.asarray(value)
    if not is_table(value):
        return value
    dimensions = {dimension for each in args for dimension in getattr(each, "dims", ())}
    if value.ndim != 1 or value.index.name not in dimensions:
        raise TypeError(f"{argument.name}: a table of pandas goes with arrays of xarray only if it is a Series whose index "
                        f"has the name of one of their dimensions, {', '.join(map(str, sorted(dimensions, key=str)))}")
    return value.to_xarray()


def describe(result, output):
    attributes = {"units": output.unit} if output.unit else {}
    attributes["long_name"] = output.meaning
    if hasattr(result, "data_vars"):
        for name in result.data_vars:
            result.variables[name].attrs.update(attributes)
    elif hasattr(result, "attrs"):
        result.attrs.update(attributes)
        result.name = output.name


def _axes(operand):
    """Core dimensions, numbered where two are as long as one another."""
    return [(axis, operand.axes[:k].count(axis)) for k, axis in enumerate(operand.axes)]


def _core_dimensions(routine, args):
    """The labelled dimension that stands for each core dimension: the last ones of the first labelled argument."""
    found, first = {}, {}
    for argument, value in zip(routine.inputs, args):
        axes, dimensions = _axes(argument), getattr(value, "dims", None)
        if not axes or dimensions is None:
            continue
        for axis, dimension in zip(axes, dimensions[-len(axes):]):
            if found.setdefault(axis, dimension) != dimension:
                raise ValueError(f"{argument.name}: its last dimension is {dimension!r} where that of {first[axis]} is {found[axis]!r}")
            first.setdefault(axis, argument.name)
    return found


def _name(axis, found):
    extent, again = axis
    if axis in found:
        return found[axis]
    if isinstance(extent, int):
        return f"numbers_{extent}" + f"_{again}" * bool(again)
    return extent.name if is_filled(extent) else extent


def _names(operand, found):
    return [_name(axis, found) for axis in _axes(operand)]


def _sizes(routine, found, args):
    """Of the dimensions of outputs that no input has."""
    given = {_name(axis, found) for argument in routine.inputs for axis in _axes(argument)}
    filled = extents(routine, args)
    return {_name(axis, found): filled.get(axis[0], axis[0]) for output in routine.outputs for axis in _axes(output)
            if _name(axis, found) not in given}
