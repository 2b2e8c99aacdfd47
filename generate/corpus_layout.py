"""How `quorvel_corpus --words NAME` writes the calls of a routine, for the tests of bindings: for each call the
arguments before it, then the value of a function and the arguments after it; of either those that are in use then.
Lists have room for more than any count that is drawn."""

import math

WORDS = {"Real": 1, "DoubleReal": 2, "Integer": 1, "Text": 16}
BEYOND = 2  # of room


class Layout:
    def __init__(self, call):
        self.call, self.routine = call, call.routine
        self.given = [arg for arg in self.routine.args if arg.dir != "out"]
        self.changed = [arg for arg in self.routine.args if arg.dir != "in"]
        self.highest = {arg.name: int(arg.draw[1]) + BEYOND for arg in self.given if arg.draw}

    def room(self, arg):
        """The extents, the one that varies fastest first; of a text its characters."""
        if arg.type == "Text":
            return [4 * WORDS["Text"]]
        return [extent if isinstance(extent, int) else self.highest[extent] for extent in arg.shape]

    def _words(self, arg):
        return WORDS[arg.type] * (1 if arg.type == "Text" else math.prod(self.room(arg)))

    def bytes(self, cases):
        results = [self.routine.result] if self.routine.result else []
        return 4 * cases * sum(map(self._words, (*self.given, *self.changed, *results)))

    def orders(self):
        """What holds of the counts where a modern call can say the same: name, lowest and highest."""
        return [(count.name, count.low, min(count.high, self.highest[count.name])) for count in self.call.counts]


def sizes(calls, cases):
    """How many bytes so many cases of each exported routine are, a line each."""
    return "".join(f"{call.routine.export} {Layout(call).bytes(cases)}\n" for call in calls if call.routine.export)
