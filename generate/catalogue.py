"""The catalogue of routines, read and checked."""

import math
import re
from dataclasses import dataclass, field, replace
from pathlib import Path

import checks
import quantities as quantity_file
from checks import C_TYPES
from examples import example
from place import CatalogueError, read
from statuses import statuses

__all__ = ["C_TYPES", "CatalogueError", "Argument", "Family", "Result", "Routine", "by_reference", "load"]

DESCRIBED = {"is": checks.is_text, **quantity_file.KINDS}
ARGUMENT = {
    **DESCRIBED,
    "name": checks.is_text,
    "dir": checks.is_direction,
    "shape": checks.is_list_of(checks.is_extent),
    "draw": checks.is_interval,
    "ignored": checks.is_flag,
    "unwritten": checks.is_text,
    "uncounted": checks.is_text,
    "filled": checks.is_named_sum,
    "none": checks.is_flag,
}
RESULT = {**DESCRIBED, "logical": checks.is_flag, "none": checks.is_flag}
ROUTINE = {
    **dict.fromkeys(("export", "name", "core", "summary", "formula", "source", "state", "entry", "alone", "packs_from"), checks.is_text),
    "args": checks.is_list_of(checks.is_table),
    "result": checks.is_table,
    "notes": checks.is_list_of(checks.is_text),
    "by_reference": checks.is_list_of(checks.is_text),
    "statuses": checks.is_list_of(checks.is_table),
    "examples": checks.is_list_of(checks.is_table),
}


@dataclass(frozen=True)
class Argument:
    quantity: str
    name: str
    type: str
    meaning: str
    unit: str = ""
    dir: str = "in"
    range: tuple = ()  # valid values, ends included; none without limit
    values: dict = field(default_factory=dict)  # of a selector: number and meaning by identifier
    shape: tuple = ()
    draw: tuple = ()  # what random arguments are drawn from
    ignored: bool = False
    unwritten: str = ""  # when a call leaves the output as it was
    uncounted: str = ""  # the same of counts out of range, which only a call by reference takes
    filled: tuple = ()  # of an output with room for the most: what is written, a count, and how many more these are
    none: bool = False  # 1e20 stands for "does not exist"

    @property
    def left_in_range(self):
        """When a call with valid counts leaves the output as it was, in words."""
        _, count, more = self.filled or ("", "", 0)
        beyond = f"beyond element {count}" + f" + {more}" * bool(more)
        return ", and ".join(filter(None, (self.unwritten, beyond if count else "")))

    @property
    def left(self):
        """The same of any call by reference."""
        return ", and ".join(filter(None, (self.uncounted, self.left_in_range)))


@dataclass(frozen=True)
class Result:
    quantity: str
    type: str
    meaning: str
    unit: str = ""
    range: tuple = ()
    values: dict = field(default_factory=dict)
    shape: tuple = ()
    logical: bool = False
    none: bool = False


@dataclass(frozen=True)
class Routine:
    name: str
    summary: str
    source: str
    topic: str
    export: str = ""  # none where there is no call by reference
    args: tuple = ()
    result: Result | None = None
    notes: tuple = ()
    by_reference: tuple = ()  # notes about what only a call by reference can say
    statuses: tuple = ()  # what the numbers of its output `status` tell
    formula: str = ""
    examples: tuple = ()
    state: str = ""
    core: str = ""  # the core function, where it has another name: another form of one routine
    entry: str = ""  # the file of src/entry/ where the entry point is written by hand
    alone: str = ""  # why arrays take the formula's numbers one by one, not in packs
    packs_from: str = ""  # the lowest level of instructions at which packs are quicker than single numbers


@dataclass(frozen=True)
class Family:
    family: str
    title: str
    routines: tuple


def by_reference(families):
    """What the interface by reference has: the routines with an exported name."""
    return [replace(family, routines=tuple(filter(lambda routine: routine.export, family.routines))) for family in families]


def _described(kind, table, quantities, place, **defaults):
    """An argument or a result: its quantity, and what it overrides of it."""
    name = table["is"]
    place.require(name in quantities, f"there is no quantity {name}", name)
    quantity = quantities[name]
    inherited = {key: getattr(quantity, key) for key in quantity_file.KINDS}
    own = {key: value for key, value in table.items() if key != "is"}
    thing = kind(**{"quantity": name, **defaults, **inherited, **own})
    checks.check_described(thing, place)
    return thing


def _drawn(arg):
    if arg.draw:
        return arg.draw
    if arg.values:
        numbers = [number for number, _ in arg.values.values()]
        return min(numbers), max(numbers)
    return tuple(arg.range)


def _argument(table, quantities, place):
    checks.check_keys(table, ARGUMENT, ["is"], place)
    arg = _described(Argument, table, quantities, place, name=table["is"])
    checks.check_name(arg.name, place)
    if arg.type == "Text":
        place.require(arg.dir == "in" and not arg.shape, "a text is one input")
        return arg
    if arg.dir == "out":
        place.require("draw" not in table, "nothing is drawn for an output", "draw =")
        return arg
    arg = replace(arg, draw=_drawn(arg))
    place.require(arg.ignored or arg.draw, "an input without range or values needs a draw")
    place.require(all(map(math.isfinite, arg.draw)), "an input without upper or lower limit needs a draw")
    whole = all(isinstance(end, int) and end in checks.INT32 for end in arg.draw)
    place.require(arg.type != "Integer" or whole, "an Integer is drawn from whole ends", "draw =")
    return arg


def _arguments(tables, quantities, place):
    args = []
    for index, table in enumerate(tables):
        where = place.entry("is", index)
        args.append(_argument(table, quantities, where))
        where.require(args[-1].name not in (arg.name for arg in args[:-1]), f"{args[-1].name} stands twice")
    counts = [arg.name for arg in args if arg.type == "Integer" and not arg.shape and arg.dir != "out"]
    for index, arg in enumerate(args):
        for extent in arg.shape:
            known = isinstance(extent, int) or extent in counts
            place.entry("is", index).require(known, f"extent {extent} is no Integer that is given")
    return tuple(_filled(arg, args, place.entry("is", index)) if arg.filled else arg for index, arg in enumerate(args))


def _filled(arg, args, place):
    """An output with its `filled` read: a count, or one and a whole number."""
    (name, text), = arg.filled.items()
    count, more = text.split(" + ")
    most = {each.name: each.range[1] for each in args if each.type == "Integer" and each.range and each.dir == "in"}
    place.require(count in most, f"{count} is no count with a highest value", "filled =")
    same = arg.dir == "out" and list(arg.shape) == [most[count] + int(more)]
    place.require(same, f"an output with room for the most {name} is needed", "filled =")
    return replace(arg, filled=(name, count, int(more)))


def _result(table, quantities, place):
    checks.check_keys(table, RESULT, ["is"], place)
    result = _described(Result, table, quantities, place)
    place.require(result.type != "Text", "a function cannot return a text", "result =")
    return result


def _routine(table, quantities, topic, place):
    checks.check_keys(table, ROUTINE, ["name", "summary", "source"], place)
    exported = table.get("export")
    place.require(not exported or re.fullmatch(r"[A-Z][A-Z0-9]{3,8}", exported), "not an exported name", "export =")
    place.require(re.fullmatch(r"[a-z][a-z0-9_]*", table["name"]), "not a lower-case identifier", "name =")
    args = _arguments(table.get("args", []), quantities, place)
    result = _result(table["result"], quantities, place) if "result" in table else None
    by_hand = next((f"{key} =" for key in ("state", "entry") if key in table), "")
    elementwise = not by_hand and all(arg.type != "Text" for arg in args)
    place.require(exported or elementwise, "without an exported name a routine is a formula for each element", by_hand)
    told = statuses(table.get("statuses", []), args, place)
    plain = {**table, "args": args, "result": result, "statuses": told, "examples": (), "topic": topic}
    notes = {key: tuple(table.get(key, ())) for key in ("notes", "by_reference")}
    place.require(exported or not notes["by_reference"], "there is no call by reference", "by_reference =")
    routine = Routine(**{**plain, **notes})
    entries = enumerate(table.get("examples", []))
    return replace(routine, examples=tuple(example(routine, entry, place.entry("given", n)) for n, entry in entries))


def _topic(path, quantities):
    content, places = read(path)
    if list(content) != ["routine"]:
        raise CatalogueError(f"{path}: a file of a topic holds routines and nothing else")
    for table, place in zip(content["routine"], places, strict=True):
        yield _routine(table, quantities, path.stem, place), place


def load(folder):
    """All families of the catalogue in the order of families.toml, their topics by name."""
    folder = Path(folder)
    quantities, quantity_places = quantity_file.load(folder / "quantities.toml")
    families, seen, used = [], set(), set()
    titles, places = read(folder / "families.toml")
    for (name, table), place in zip(titles.items(), places):
        checks.check_keys(table, {"title": checks.is_text}, ["title"], place)
        routines = []
        for path in sorted((folder / name).glob("*.toml")):
            for routine, where in _topic(path, quantities):
                for own in filter(None, (routine.export, f"{name}::{routine.name}")):
                    where.require(own not in seen, f"{own} is described twice", own.split(":")[-1])
                    seen.add(own)
                used.update(arg.quantity for arg in routine.args)
                used.update([routine.result.quantity] if routine.result else [])
                routines.append(routine)
        families.append(Family(name, table["title"], tuple(routines)))
    for name, place in quantity_places.items():
        place.require(name in used, f"no routine has the quantity {name}")
    return families
