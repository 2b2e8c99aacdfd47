"""Arguments out of cells: numbers, ranges, words, and what is left out."""

from ctypes import c_float
from typing import NamedTuple

from quorvel_calc.faults import MISSING, NOT_A_NUMBER, OUTSIDE, UNFIT, Fault

LARGEST = c_float(3.4028234663852886e38).value


class Given(NamedTuple):
    """An argument: its elements by rows and columns, each the list of its numbers or the fault that it has."""

    rows: int
    columns: int
    elements: list

    def at(self, row, column):
        """A row, a column or a cell stands for all of them."""
        return self.elements[row % self.rows * self.columns + column % self.columns]


def read(parameter, cells, checked):
    if cells is None:
        cells = parameter.otherwise
    if cells is None:
        raise Fault(UNFIT, f"{parameter.name} is not given")
    if not isinstance(cells, tuple):
        cells = ((cells,),)
    if not parameter.shape:
        flat = [cell for row in cells for cell in row]
        return Given(len(cells), len(cells[0]), [_tried(parameter, [cell], checked) for cell in flat])
    elements = [_tried(parameter, element, checked) for element in _arrays(parameter, cells)]
    return Given(len(elements), 1, elements)


def _tried(parameter, cells, checked):
    try:
        return [_value(parameter, cell, checked) for cell in cells]
    except Fault as fault:
        return fault


# ---- Arrays


def _arrays(parameter, cells):
    """The elements of an array: one, unless coordinates stand row by row."""
    shape, rows, columns = parameter.shape, len(cells), len(cells[0])
    flat = [cell for row in cells for cell in row]
    if len(shape) == 1:
        if not isinstance(shape[0], int):
            return [_filled(flat, 1)]
        if rows * columns == shape[0]:
            return [flat]
        if columns == shape[0]:
            return cells
        raise Fault(UNFIT, f"{parameter.name} needs {shape[0]} cells, in a row for each of several")
    if columns != shape[0] or isinstance(shape[1], int) and rows != shape[1]:
        rows_needed = f"{shape[1]} rows and " if isinstance(shape[1], int) else ""
        raise Fault(UNFIT, f"{parameter.name} needs a range of {rows_needed}{shape[0]} columns")
    if parameter.turned:
        return [[cell for column in zip(*cells) for cell in column]]
    return [flat if isinstance(shape[1], int) else _filled(flat, columns)]


def _filled(cells, columns):
    """Without the blank rows at the end of the range."""
    end = len(cells)
    while end and all(_is_blank(cell) for cell in cells[end - columns:end]):
        end -= columns
    return cells[:end]


# ---- Single values


def _is_blank(cell):
    return isinstance(cell, str) and not cell.strip()


def _value(parameter, cell, checked):
    if _is_blank(cell):
        raise Fault(MISSING, f"{parameter.name} is blank")
    if parameter.kind == "Text":
        return cell if isinstance(cell, str) else f"{cell:.15g}"
    if isinstance(cell, str):
        cell = _number_of_word(parameter, cell)
    number = _whole(parameter, cell) if parameter.kind == "Integer" else _rounded(parameter, cell)
    if checked and not _is_valid(parameter, number):
        raise Fault(OUTSIDE, f"{parameter.name} is {_shown(parameter, cell)}; {valid(parameter)}")
    return number


def _number_of_word(parameter, word):
    number = parameter.words.get(word.strip().lower().replace(" ", "_"))
    if number is None:
        wanted = f"; {valid(parameter)}" if parameter.words else ""
        raise Fault(NOT_A_NUMBER, f'{parameter.name} is the text "{word}"{wanted}')
    return number


def _whole(parameter, cell):
    if not (-2**31 <= cell < 2**31 and cell == int(cell)):
        raise Fault(OUTSIDE, f"{parameter.name} is {cell:.15g}, which is no whole number of 32 bits")
    return int(cell)


def _rounded(parameter, number):
    """As the routine takes it, so that a limit means the same number."""
    return c_float(number).value if parameter.kind == "Real" else number


def _is_valid(parameter, number):
    if parameter.words:
        return number in parameter.words.values()
    low, high = (_rounded(parameter, limit) for limit in parameter.limits)
    return max(low, -LARGEST) <= number <= min(high, LARGEST) if parameter.kind == "Real" else low <= number <= high


def _shown(parameter, cell):
    return f"{cell:.9g} {parameter.unit}".rstrip()


def valid(parameter):
    """What is valid, in words."""
    if parameter.words:
        return "valid " + ", ".join(f'{number} or "{word}"' for word, number in parameter.words.items())
    low, high = parameter.limits
    if low == -high:
        return "valid are numbers of single precision"
    return f"valid from {low:.9g}" + (f" to {high:.9g}" if high < 1e300 else "")
