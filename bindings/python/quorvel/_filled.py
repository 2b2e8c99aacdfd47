"""Outputs that are as long as a list says and some more, such as the interfaces of layers: layers + 1.

NumPy knows no such dimension, so that their ufuncs have room for the most.
"""

import numpy as np

from . import _core


class Filled:
    """The ufunc of that name, with what is filled of its outputs."""

    def __init__(self, name):
        self.name = self.__name__ = name

    def __call__(self, *args, out=None):
        from .catalogue import ROUTINES

        routine = ROUTINES[self.name]
        results = _core.ufuncs[self.name](*args)
        several = results if isinstance(results, tuple) else (results,)
        sizes = extents(routine, args)
        given = out if isinstance(out, tuple) else (out,) * len(several)
        kept = tuple(_kept(*each, sizes) for each in zip(several, routine.outputs, given))
        return kept if isinstance(results, tuple) else kept[0]


def _kept(result, output, room, sizes):
    size = sizes.get(output.axes[-1]) if output.axes else None
    result = result if size is None else result[..., :size].copy()
    if room is None:
        return result
    np.copyto(room, result)
    return room


def extents(routine, args):
    """How long outputs are that are filled, by their axes."""
    counts = {}
    for argument, value in zip(routine.inputs, args):
        if argument.axes:
            counts.update(zip(argument.axes[::-1], np.shape(value)[::-1]))
    return {axis: counts[axis.count] + axis.more
            for output in routine.outputs for axis in output.axes if is_filled(axis)}


def is_filled(axis):
    return hasattr(axis, "more")
