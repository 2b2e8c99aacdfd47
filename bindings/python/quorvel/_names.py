"""Names of selectors in place of their numbers: one, or any array of them, which keeps its kind and labels."""

from functools import partial
from numbers import Integral

import numpy as np

from . import _labelled


def number_of(name, argument):
    """Of a name, or a number as it is."""
    from . import selectors

    values = getattr(selectors, argument.selector).__members__
    if isinstance(name, str) and name in values:
        return int(values[name])
    if isinstance(name, Integral) and not isinstance(name, bool) and -2**63 <= name < 2**63:
        return int(name)
    raise ValueError(f"{argument.name}: {name!r} is none of {', '.join(map(repr, values))}")


def numbers_of(values, argument):
    """Values with numbers for the names in them; as they are where they are numbers already."""
    if hasattr(values, "data_vars"):
        return values.map(numbers_of, args=(argument,))
    if hasattr(values, "dims"):
        return values.copy(data=numbers_of(values.data, argument)) if _may_be_names(values.dtype) else values
    if hasattr(values, "chunks"):  # Dask knows its names only on the workers
        numbers = partial(numbers_of, argument=argument)
        return values.map_blocks(numbers, dtype=np.int64) if _may_be_names(values.dtype) else values
    plain = np.asarray(values)
    if plain.size and not _may_be_names(plain.dtype):
        return values
    names = np.asarray(values, object)
    numbers = np.array([number_of(name, argument) for name in names.flat], np.int64).reshape(names.shape)
    return _labelled.like(values, numbers) if _labelled.is_table(values) else numbers


def _may_be_names(dtype):
    return dtype.kind in "OUST"
