"""catalogue/quantities.toml: each physical quantity once."""

from dataclasses import dataclass, field

import checks
from place import read

KINDS = {
    "meaning": checks.is_text,
    "range": checks.is_interval,
    "type": checks.is_type,
    "unit": checks.is_text,
    "values": checks.is_selector,
}


@dataclass(frozen=True)
class Quantity:
    id: str
    meaning: str
    unit: str = ""
    type: str = "Real"
    range: tuple = ()
    values: dict = field(default_factory=dict)


def load(path):
    """The quantities by their ids, and where each stands."""
    quantities, places = {}, {}
    tables, found = read(path)
    for (name, table), place in zip(tables.items(), found):
        checks.check_keys(table, KINDS, ["meaning"], place)
        checks.check_name(name, place)
        quantities[name], places[name] = Quantity(name, **table), place
        checks.check_described(quantities[name], place)
    return quantities, places
