"""How `quorvel_corpus --words NAME` writes the calls of a routine, for the tests of bindings: for each call the
arguments before it, then the value of a function and the arguments after it; of either those that are in use then.
Lists have room for more than any count that is drawn."""

from cpp_types import bounds, counts

CASES = 2000  # of each routine, which conformance/write_corpus writes
BEYOND = 2  # of room


class Layout:
    def __init__(self, routine):
        self.routine = routine
        self.given = [arg for arg in routine.args if arg.dir != "out"]
        self.changed = [arg for arg in routine.args if arg.dir != "in"]
        self.highest = {arg.name: int(arg.draw[1]) + BEYOND for arg in self.given if arg.draw}

    @property
    def left(self):
        """The value of a function and the arguments after the call, by name."""
        value = {"result": self.routine.result} if self.routine.result else {}
        return value | {arg.name: arg for arg in self.changed}

    def room(self, arg):
        """The extents of an array, the one that varies fastest first."""
        return [extent if isinstance(extent, int) else self.highest[extent] for extent in arg.shape]

    def orders(self):
        """What holds of the counts where a modern call can say the same: name, lowest and highest."""
        limits = {name: bounds(arg) for name, (arg, _) in counts(self.routine).items()}
        return [(name, low, min(high, self.highest[name])) for name, (low, high) in limits.items()]
