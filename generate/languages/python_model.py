"""What the Python package makes of a routine: its operands, their core dimensions, and the function's parameters.

A list tells its own length, so the counts of lists are no operands. A count that no list tells stays one: what it
counts has then room for the most, and is not a number beyond the count.
"""

from dataclasses import dataclass, replace

from array_kernels import has_kernel
from binding_model import Parameter, Result, parameters, results
from cpp_types import bounds, camel, taken_from_lists

# Functions of polygons are written by hand: quorvel/geometry/polygon.py. Of two routines there is the ufunc beside.
BY_HAND = {"clip", "overlap", "overlap_alias"}
WITHOUT_UFUNC = {"clip"}


@dataclass(frozen=True)
class Operand:
    of: Parameter | Result
    axes: tuple  # the ufunc's core dimensions, numbers or names of counts; the last one varies fastest
    filled: tuple = ()  # of an output that the ufunc has room for the most of: what is counted, by which count and more

    @property
    def extents(self):
        """The dimensions that a caller sees: as `axes`, or the name of what is filled."""
        return self.filled[:1] or self.axes

    @property
    def field(self):
        """Its name in Python."""
        return self.of.name

    @property
    def name(self):
        """In the arrays."""
        return self.of.name_in_arrays

    @property
    def arg(self):
        return self.of.arg

    @property
    def kind(self):
        return self.of.kind


def is_offered(routine):
    return has_kernel(routine) and routine.name not in WITHOUT_UFUNC


def is_documented(routine):
    return is_offered(routine) and routine.name not in BY_HAND


def given_counts(routine):
    """The counts that are operands, by name."""
    told = taken_from_lists(routine)
    return {
        extent: next(arg for arg in routine.args if arg.name == extent)
        for arg in routine.args for extent in arg.shape if not isinstance(extent, int) and extent not in told
    }


def _axes(arg, given):
    room = [bounds(given[extent])[1] if extent in given else extent for extent in arg.shape]
    return tuple(reversed(room))


def _output(result, given):
    filled = getattr(result.arg, "filled", ())
    of = replace(result, arg=replace(result.arg, filled=())) if filled else result  # a caller sees no room
    return Operand(of, _axes(result.arg, given), filled)


def operands(routine):
    """The inputs and the outputs."""
    given = given_counts(routine)
    inputs = [Operand(each, _axes(each.arg, given)) for each in parameters(routine)]
    return inputs, [_output(each, given) for each in results(routine)]


def is_filled(routine):
    """Whether an output is as long as a list says, where the ufunc has room for the most."""
    return any(operand.filled for operand in operands(routine)[1])


def _written(inputs, outputs, axes):
    if not any(map(axes, inputs + outputs)):
        return ""
    return "->".join(",".join(f"({','.join(map(str, axes(each)))})" for each in side) for side in (inputs, outputs))


def signature(routine):
    """Of the ufunc, as NumPy writes core dimensions; empty for a function of numbers."""
    return _written(*operands(routine), lambda operand: operand.axes)


def seen_signature(routine):
    """Of the function."""
    return _written(*operands(routine), lambda operand: operand.extents)


def class_name(routine):
    """Of the named tuple that a routine with several outputs returns."""
    return camel(routine.name)
