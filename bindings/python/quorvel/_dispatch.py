"""Where the functions go with what is neither number nor plain array, and what they say of what fits nothing.

No library of tables or labelled arrays is imported: one whose objects are given has been.
"""

import sys

import numpy as np

from . import _labelled
from .errors import RangeError


def dispatch(name, ufunc, args, out, where):
    """The result of the ufunc for any kind of arguments."""
    from .catalogue import ROUTINES

    routine = ROUTINES[name]
    args = [_number_of(value, argument) for value, argument in zip(args, routine.inputs)]
    kinds = {_kind(value) for value in args} - {None}
    if "xarray" in kinds:
        return _labelled.of_xarray(name, routine, args, _no_options(name, out, where, "xarray"))
    if "dask" in kinds:
        return _labelled.of_dask(name, routine, args, _no_options(name, out, where, "Dask"))
    if "pandas" in kinds and routine.signature:
        return _labelled.of_pandas(ufunc, routine, args, _no_options(name, out, where, "pandas"))
    options = {} if where is True else {"where": where}
    if out is not None:
        options["out"] = out
    try:
        result = ufunc(*args, **options)
    except RangeError:
        raise
    except (TypeError, ValueError, OverflowError) as error:
        raise _explained(name, routine, args, error) from None
    return _labelled.named(result, routine) if "pandas" in kinds else result


def _kind(value):
    """The library of labelled arrays or tables that the value belongs to."""
    root = type(value).__module__.partition(".")[0]
    marks = {"xarray": "dims", "dask": "chunks", "pandas": "index"}  # of arrays and tables, not of other things there
    return root if root in marks and hasattr(value, marks[root]) else None


def _no_options(name, out, where, kind):
    if out is not None or where is not True:
        raise TypeError(f"{name}: out and where do not go with arrays of {kind}")


def _number_of(value, argument):
    """A selector by its name, as its number; all else as it is."""
    if not isinstance(value, str):
        return value
    if not argument.selector:
        raise TypeError(f"{argument.name}: a number is needed, not the text {value!r}")
    values = getattr(sys.modules[f"{__package__}.selectors"], argument.selector)
    if value not in values.__members__:
        raise ValueError(f"{argument.name}: {value!r} is none of {', '.join(map(repr, values.__members__))}")
    return int(values[value])


def _explained(name, routine, args, error):
    """The error with the argument that it is about, as far as that can be told."""
    for value, argument in zip(args, routine.inputs):
        if isinstance(value, int) and not -2**63 <= value < 2**63:
            return ValueError(f"{name}: {argument.name}: {value} is beyond all that is valid")
        dtype = np.asarray(value).dtype if not hasattr(value, "dtype") else value.dtype
        wide = "int64" if argument.dtype == "int32" else "float64"
        if not np.can_cast(dtype, wide, "safe"):
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
