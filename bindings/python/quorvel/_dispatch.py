"""Where the functions go with what is neither number nor plain array, and what they say of what fits nothing.

No library of tables or labelled arrays is imported: one whose objects are given has been.
"""

import numpy as np

from . import _labelled, _names
from ._filled import Filled
from .errors import RangeError


def dispatch(name, ufunc, args, out, where):
    """The result of the ufunc for any kind of arguments."""
    from .catalogue import ROUTINES

    routine = ROUTINES[name]
    args = [_number_of(value, argument) for value, argument in zip(args, routine.inputs)]
    kinds = {_kind(value) for value in args} - {None}
    if kinds & {"xarray", "dask"} and (out is not None or where is not True):
        raise TypeError(f"{name}: out and where do not go with arrays of xarray and Dask")
    if "dask" in kinds and len(kinds) > 1:
        raise TypeError(f"{name}: arrays of Dask do not go with those of {' and '.join(kinds - {'dask'})}; an array of "
                        "xarray may have a Dask array inside")
    try:
        if "xarray" in kinds:
            return _labelled.of_xarray(name, routine, args)
        if "dask" in kinds:
            return _labelled.of_dask(name, routine, args)
        if "pandas" in kinds:
            return _labelled.of_pandas(ufunc, routine, args, _options(out, where))
        return ufunc(*args, **_options(out, where))
    except RangeError:
        raise
    except (TypeError, ValueError, OverflowError) as error:
        raise _explained(name, routine, args, error) from None


def filled(name):
    """The function whose outputs are as long as a list says; as those of `_core.functions` it takes the inputs, `out`
    and `where`."""
    ufunc = Filled(name)

    def call(*given):
        *args, out, where = given
        return dispatch(name, ufunc, args, out, where)

    return call


def _options(out, where):
    return {**({} if out is None else {"out": out}), **({} if where is True else {"where": where})}


def _kind(value):
    """The library of labelled arrays or tables that the value belongs to."""
    root = _root(value)
    marks = {"xarray": "dims", "dask": "chunks", "pandas": "index"}  # of arrays and tables, not of other things there
    return root if root in marks and hasattr(value, marks[root]) else None


def _root(value):
    return type(value).__module__.partition(".")[0]


def _number_of(value, argument):
    """Names of a selector as their numbers; an index of pandas as an array; all else as it is."""
    if isinstance(value, str) and not argument.selector:
        raise TypeError(f"{argument.name}: a number is needed, not the text {value!r}")
    is_index = _root(value) == "pandas" and hasattr(value, "to_numpy") and not hasattr(value, "index")
    value = value.to_numpy() if is_index else value
    if not argument.selector:
        return value
    return _names.number_of(value, argument) if isinstance(value, str) else _names.numbers_of(value, argument)


def _explained(name, routine, args, error):
    """The error with the argument that it is about, as far as that can be told."""
    for value, argument in zip(args, routine.inputs):
        if isinstance(value, int) and not -2**63 <= value < 2**63:
            return ValueError(f"{name}: {argument.name}: an integer of {value.bit_length()} bits is beyond all that is valid")
        dtype = value.dtype if hasattr(value, "dtype") else getattr(np.asanyarray(value), "dtype")
        wide = "int64" if argument.dtype == "int32" else "float64"
        if not isinstance(dtype, np.dtype) or not np.can_cast(dtype, wide, "safe"):
            needed = "integers are" if argument.dtype == "int32" else "numbers are"
            return TypeError(f"{name}: {argument.name}: {needed} needed, not {dtype}")
        if len(argument.axes) > np.ndim(value):
            shape = ", ".join(map(str, argument.axes))
            return ValueError(f"{name}: {argument.name}: an array of shape (..., {shape}) is needed, not {np.shape(value)}")
    return _different_lengths(name, routine, args) or error


def _different_lengths(name, routine, args):
    """Two arguments that have not as many layers, vertices, ... or not the numbers that they must."""
    seen = {}
    for value, argument in zip(args, routine.inputs):
        extents = np.shape(value)[np.ndim(value) - len(argument.axes):]
        for axis, extent in zip(argument.axes, extents):
            if isinstance(axis, int) and axis != extent:
                return ValueError(f"{name}: {argument.name}: {axis} numbers are needed along an axis, not {extent}")
            other, known = seen.setdefault(axis, (argument.name, extent))
            if not isinstance(axis, int) and known != extent:
                return ValueError(f"{name}: {argument.name} has {extent} {axis} where {other} has {known}")
    return None
