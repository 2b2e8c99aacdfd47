"""The catalogue of routines, read and checked."""

import re
import tomllib
from dataclasses import dataclass, field
from pathlib import Path

NUMBERS = {"Real": "float", "DoubleReal": "double", "Integer": "int32_t"}
C_TYPES = {**NUMBERS, "Text": "char"}


class CatalogueError(Exception):
    """A fault in a catalogue file, with the file, routine and argument named."""


@dataclass(frozen=True)
class Argument:
    name: str
    dir: str
    type: str
    meaning: str
    unit: str = ""
    range: tuple = ()
    values: dict = field(default_factory=dict)
    shape: tuple = ()
    ignored: bool = False

    @property
    def bounds(self):
        """Lowest and highest valid value, or None."""
        if self.values:
            keys = [int(key) for key in self.values]
            return min(keys), max(keys)
        return tuple(self.range) or None


@dataclass(frozen=True)
class Result:
    type: str
    meaning: str
    unit: str = ""


@dataclass(frozen=True)
class Routine:
    export: str
    name: str
    summary: str
    source: str
    args: tuple = ()
    result: Result | None = None
    notes: tuple = ()


@dataclass(frozen=True)
class Family:
    family: str
    title: str
    routines: tuple


def _check(condition, where, complaint):
    if not condition:
        raise CatalogueError(f"{where}: {complaint}")


def _build(kind, table, where):
    try:
        return kind(**table)
    except TypeError as error:
        raise CatalogueError(f"{where}: {str(error).split('__init__() ')[-1]}") from None


def _argument(table, names, where):
    arg = _build(Argument, table, where)
    where = f"{where}, argument {arg.name}"
    _check(re.fullmatch(r"[a-z]\w*", arg.name), where, "the name must be a lower-case identifier")
    _check(arg.name not in names, where, "the name stands twice")
    _check(arg.dir in ("in", "out", "inout"), where, "dir must be in, out or inout")
    _check(arg.type in C_TYPES, where, f"type must be one of {', '.join(C_TYPES)}")
    if arg.type == "Text":
        _check(arg.dir == "in" and not arg.shape, where, "a text is one input")
        return arg
    _check(arg.unit or arg.type == "Integer", where, "a real needs a unit (1 for a pure number)")
    if arg.dir != "out" and not arg.ignored:
        _check(arg.bounds, where, "an input needs a range or values")
        _check(arg.values or arg.bounds[0] < arg.bounds[1], where, "the range is empty")
    return arg


def _routine(table, where):
    where = f"{where}, {table.get('export', 'a routine without export')}"
    args, names = [], set()
    for entry in table.get("args", []):
        arg = _argument({**entry, "shape": tuple(entry.get("shape", ()))}, names, where)
        args.append(arg)
        names.add(arg.name)
    for extent in (extent for arg in args for extent in arg.shape):
        _check(isinstance(extent, int) or extent in names, where, f"extent {extent} is no argument")
    result = _build(Result, table["result"], where) if "result" in table else None
    routine = _build(Routine, {**table, "args": tuple(args), "result": result}, where)
    _check(re.fullmatch(r"[A-Z][A-Z0-9]{3,8}", routine.export), where, "not an exported name")
    _check(not result or result.type in NUMBERS, where, "the result has an unknown type")
    return routine


def load(folder):
    """All families of the catalogue, in the order of their file names."""
    families, seen = [], set()
    for path in sorted(Path(folder).glob("*.toml")):
        try:
            table = tomllib.loads(path.read_text(encoding="utf-8"))
        except tomllib.TOMLDecodeError as error:
            raise CatalogueError(f"{path}: {error}") from None
        routines = tuple(_routine(entry, path.name) for entry in table["routine"])
        for routine in routines:
            _check(routine.export not in seen, path.name, f"{routine.export} is described twice")
            seen.add(routine.export)
        families.append(Family(table["family"], table["title"], routines))
    _check(families, folder, "no catalogue files here")
    return families
