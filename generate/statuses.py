"""The statuses of a routine: what the numbers of its output `status` tell."""

from dataclasses import dataclass

import checks

KINDS = {
    "status": checks.is_whole,
    "name": checks.is_text,
    "meaning": checks.is_text,
    "fault": checks.is_text,
    "more_room": checks.is_flag,
}


@dataclass(frozen=True)
class Status:
    status: int
    name: str
    meaning: str  # of the call by reference
    fault: str = ""  # of a call with polygons as lists; empty for success
    more_room: bool = False  # whether higher capacities help


def _status(table, place):
    checks.check_keys(table, KINDS, ["status", "name", "meaning"], place)
    checks.check_name(table["name"], place)
    place.require(("fault" in table) == (table["status"] != 0), "a status has a fault, 0 has none")
    return Status(**table)


def statuses(tables, args, place):
    """Of a routine with these arguments."""
    found = []
    for index, table in enumerate(tables):
        where = place.entry("status", index)
        found.append(_status(table, where))
        for key in ("status", "name"):
            earlier = [getattr(status, key) for status in found[:-1]]
            where.require(table[key] not in earlier, f"{key} {table[key]} stands twice")
    told = any(arg.name == "status" and arg.dir == "out" and arg.type == "Integer" for arg in args)
    place.require(told == bool(found), "an output status goes with statuses", "statuses =" if found else '"status"')
    return tuple(found)


def of_clipping(families):
    """Those of polygons, the only ones there are."""
    return next(routine.statuses for family in families for routine in family.routines if routine.statuses)


def faults(found):
    """Each text with the statuses that it is for."""
    texts = {}
    for each in filter(lambda each: each.fault, found):
        texts.setdefault(each.fault, []).append(each.status)
    return [(text, tuple(numbers)) for text, numbers in texts.items()]


def short_of_room(found):
    return tuple(each.status for each in found if each.more_room)
