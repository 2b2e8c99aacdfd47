"""Difference and overlap of two polygons in plan."""

from quorvel_calc import library
from quorvel_calc.arguments import read
from quorvel_calc.clipping_status import FAULTS, SHORT_OF_ROOM
from quorvel_calc.faults import MISSING, OUTSIDE, UNFIT, Fault, error
from quorvel_calc.model import Parameter

PARTS = {"difference": 1, "overlap": 2}
PARAMETERS = (Parameter("a", "DoubleReal", shape=(2, "vertices")), Parameter("b", "DoubleReal", shape=(2, "vertices")),
              Parameter("part", "Integer", limits=(1, 2), words=PARTS))
FIRST_ROOM, MOST_ROOM, MOST_CROSSINGS = 64, 1 << 20, 1024


def clip(cells):
    """A row for each vertex: number of the piece, x, y."""
    if len(cells) > len(PARAMETERS):
        raise Fault(UNFIT, "there are more than the 3 arguments of clip")
    a, b, part = (_only(read(parameter, own, True)) for parameter, own in zip(PARAMETERS, (*cells, None, None, None)))
    room, status = FIRST_ROOM, SHORT_OF_ROOM[0]
    while status in SHORT_OF_ROOM and room <= MOST_ROOM:
        status, returned = _attempt(a, b, room)
        room *= 2
    if status:
        raise Fault(OUTSIDE, FAULTS[status])
    pieces = returned["difference_pieces" if part == [1] else "overlap_pieces"][0]
    rows = tuple(_rows(pieces, returned["new_x"][0], returned["new_y"][0]))
    return rows or ((error(MISSING),) * 3,)


def _only(given):
    element, = given.elements
    if isinstance(element, Fault):
        raise element
    return element


def _attempt(a, b, room):
    size = (len(a) + len(b)) // 2
    capacity, positions = size + room, list(range(1, size + 1))
    if len(a) < 6 or len(b) < 6:
        return (1 if len(a) < 6 else 2), {}
    returned = library.call("clip", 1, {
        "x": [[*a[::2], *b[::2], *[0.0] * room]], "y": [[*a[1::2], *b[1::2], *[0.0] * room]],
        "vertices_a": [[len(a) // 2]], "positions_a": [positions[:len(a) // 2]],
        "vertices_b": [[len(b) // 2]], "positions_b": [positions[len(a) // 2:]],
        "point_capacity": [[capacity]], "crossing_capacity": [[MOST_CROSSINGS]],
        "difference_capacity": [[capacity]], "overlap_capacity": [[capacity]], "used_points": [[size]]})
    return returned["status"][0][0], returned


def _rows(pieces, x, y):
    """A list of pieces has the number of vertices of each, then their positions; negative ones begin edges that are
    bridges."""
    begin, number = 0, 1
    while begin < len(pieces) and pieces[begin] > 0:
        for position in pieces[begin + 1:begin + 1 + pieces[begin]]:
            yield float(number), x[abs(position) - 1], y[abs(position) - 1]
        begin, number = begin + 1 + pieces[begin], number + 1
