"""How the C++ interface (include/quorvel/*.hpp) says the arguments of a routine: their types in both of its forms."""

from array_header import name_of
from array_kernels import has_kernel, inputs, outputs

__all__ = [
    "NUMBERS", "bounds", "camel", "count_of", "counts", "element", "field", "inputs", "is_offered", "name_of",
    "outputs", "taken_from_lists",
]

NUMBERS = {"Real": "float", "DoubleReal": "double", "Integer": "std::int32_t"}

# Replaced by a class that is written by hand: include/quorvel/polygon.hpp
BY_HAND = {"clip"}


def is_offered(routine):
    """Not those of the climate data file, for which there is include/quorvel/climate_file.hpp."""
    return has_kernel(routine) and routine.name not in BY_HAND


def camel(name):
    return "".join(word.capitalize() for word in name.split("_"))


def count_of(arg):
    """The argument that says how many there are; none where the catalogue does."""
    return next((extent for extent in arg.shape if not isinstance(extent, int)), None)


def element(arg):
    """A number or, of an array, all that is not counted: the extent that varies fastest innermost."""
    text = NUMBERS[arg.type]
    for extent in arg.shape:
        if isinstance(extent, int):
            text = f"std::array<{text}, {extent}>"
    return text


def counts(routine):
    """The arguments that count others, with the given lists that they count."""
    names = dict.fromkeys(filter(None, map(count_of, routine.args)))
    lists = [arg for arg in inputs(routine) if count_of(arg)]
    return {
        arg.name: (arg, [listed for listed in lists if count_of(listed) == arg.name])
        for arg in routine.args if arg.name in names
    }


def bounds(count):
    """Of an argument that counts."""
    most = 2**31 - 1
    return max(count.range[0], 0), min(count.range[1], most)


def taken_from_lists(routine):
    """The counts that the lists tell when a routine is called for one element."""
    return {name for name, (_, lists) in counts(routine).items() if lists}


def field(arg):
    """Type of an output for one element."""
    if getattr(arg, "logical", False):
        return "bool"
    return f"std::vector<{element(arg)}>" if count_of(arg) else element(arg)
