"""Tables of a study file that are read with checks: what is wrong is named by file, key and allowed range."""

import math

__all__ = ["StudyError", "Table"]


class StudyError(ValueError):
    """A study, or a file that it names, is not as it must be."""


class Table:
    """A table of the file; `place` is where it stands, as in ``glazings[2]``."""

    def __init__(self, values, file, place=""):
        self.values, self.file, self.place = values, file, place
        if not isinstance(values, dict):
            raise StudyError(f"{file}: {place} must be a table, not {values!r}")

    def error(self, key, text):
        return StudyError(f"{self.file}: {'.'.join(filter(None, (self.place, key)))} {text}")

    def expect(self, *keys):
        """These keys and no others may stand here."""
        for key in self.values:
            if key not in keys:
                raise self.error(key, f"is not known here; known are {', '.join(keys)}")

    def get(self, key, default=None):
        value = self.values.get(key, default)
        if value is None:
            raise self.error(key, "is missing")
        return value

    def number(self, key, low, high, unit="", default=None):
        return self._within(key, self.get(key, default), low, high, unit)

    def numbers(self, key, low, high, unit="", default=None):
        """One number or a list of different ones."""
        values = self.get(key, default)
        values = values if isinstance(values, list) else [values]
        values = [self._within(key, value, low, high, unit) for value in values]
        if not values:
            raise self.error(key, "must not be empty")
        if len(set(values)) < len(values):
            raise self.error(key, "has a number twice")
        return values

    def count(self, key, low, high, default=None):
        value = self.get(key, default)
        if type(value) is not int or not low <= value <= high:
            raise self.error(key, f"= {value!r} must be a whole number from {low} to {high}")
        return value

    def text(self, key, default=None):
        value = self.get(key, default)
        if not isinstance(value, str) or not value:
            raise self.error(key, f"= {value!r} must be a text")
        return value

    def choice(self, key, choices, default=None):
        value = self.get(key, default)
        if value not in choices:
            raise self.error(key, f"= {value!r} must be one of {', '.join(choices)}")
        return value

    def tables(self, key):
        """A list of tables, at least one."""
        values = self.get(key)
        if not isinstance(values, list) or not values:
            raise self.error(key, "must be a list of tables, at least one")
        place = ".".join(filter(None, (self.place, key)))
        return [Table(value, self.file, f"{place}[{n}]") for n, value in enumerate(values, 1)]

    def _within(self, key, value, low, high, unit):
        if isinstance(value, bool) or not isinstance(value, (int, float)) or not math.isfinite(value) \
                or not low <= value <= high:
            raise self.error(key, f"= {value!r} must be a number from {low:g} to {high:g}{' ' * bool(unit)}{unit}")
        return float(value)
