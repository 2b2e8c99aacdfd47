"""A call of a routine by cells: for each element, what it gives or what is wrong with it; and the table of cells.

Numbers may stand in ranges, which go together as in Calc's own arithmetic: a row, a column or a cell stands for all
of them. Results stand side by side: numbers and coordinates along the row, so that those of several elements stand
one below the other; lists down a column, as far as they are written; tables as they are.
"""

from math import isnan

from quorvel_calc import climate_file, library
from quorvel_calc.arguments import read
from quorvel_calc.faults import MISSING, UNFIT, Fault, error

DOES_NOT_EXIST = 1e20


class Evaluation:
    def __init__(self, routine, cells, checked, folder=""):
        if len(cells) > len(routine.parameters):
            raise Fault(UNFIT, f"there are more than the {len(routine.parameters)} arguments of {routine.name}")
        self.routine, self.checked, self.folder = routine, checked, folder
        cells = (*cells, *[None] * (len(routine.parameters) - len(cells)))
        self.given = [read(parameter, own, checked) for parameter, own in zip(routine.parameters, cells)]
        self.rows, self.columns = self._extent("rows"), self._extent("columns")
        self._calculate()

    def _extent(self, side):
        extents = {getattr(given, side): parameter.name for given, parameter in zip(self.given, self.routine.parameters)}
        several = sorted(set(extents) - {1})
        if len(several) > 1:
            one, other = several[:2]
            raise Fault(UNFIT, f"{extents[one]} has {one} {side} and {extents[other]} {other}")
        return several[0] if several else 1

    def _calculate(self):
        """self.elements: of each the fault, or by result the numbers."""
        arguments = [[given.at(row, column) for given in self.given]
                     for row in range(self.rows) for column in range(self.columns)]
        self.elements = [next((each for each in own if isinstance(each, Fault)), None) for own in arguments]
        sound = [own for own, fault in zip(arguments, self.elements) if fault is None]
        if sound:
            calculate = climate_file.calculate if self.routine.of_file else _calculate
            results = iter(calculate(self.routine, sound, self.folder))
            self.elements = [next(results) if fault is None else fault for fault in self.elements]

    def whys(self):
        texts = [element.text if isinstance(element, Fault) else "" for element in self.elements]
        return tuple(tuple(texts[row * self.columns:(row + 1) * self.columns]) for row in range(self.rows))

    def table(self):
        results = self.routine.results
        if len(self.elements) == 1:
            element = self.elements[0]
            return ((element.cell,),) if isinstance(element, Fault) else _side_by_side(map(self._block, results, element))
        if not all(result.is_line for result in results):
            raise Fault(UNFIT, f"{self.routine.name} gives tables: it takes one value of each argument")
        lines = [self._line(element) for element in self.elements]
        if len(lines[0]) == 1:
            return tuple(tuple(line[0] for line in lines[row * self.columns:(row + 1) * self.columns])
                         for row in range(self.rows))
        if self.rows > 1 and self.columns > 1:
            raise Fault(UNFIT, f"{self.routine.name} gives several results: it takes one row or one column of values")
        return tuple(lines) if self.columns == 1 else tuple(zip(*lines))

    def _line(self, element):
        """The results of one of several elements."""
        if isinstance(element, Fault):
            return (element.cell,) * sum((result.shape or (1,))[0] for result in self.routine.results)
        return tuple(self._cell(result, number) for result, numbers in zip(self.routine.results, element) for number in numbers)

    def _block(self, result, numbers):
        cells = [self._cell(result, number) for number in numbers]
        if result.is_line:
            return [cells]
        if len(result.shape) == 1:
            written = next((k for k in range(len(numbers), 1, -1) if not isnan(numbers[k - 1])), 1)
            return [[cell] for cell in cells[:written]]
        rows = [cells[k:k + result.shape[0]] for k in range(0, len(cells), result.shape[0])]
        return list(zip(*rows)) if result.turned else rows

    def _cell(self, result, number):
        if result.kind == "Logical":
            return bool(number)
        absent = isnan(number) or self.checked and result.none and abs(number / DOES_NOT_EXIST - 1) < 1e-7
        return error(MISSING) if absent else float(number)


def _calculate(routine, elements, _folder):
    """Of elements without a fault: by result the numbers."""
    given = {parameter.name: _in_common([own[index] for own in elements])
             for index, parameter in enumerate(routine.parameters)}
    given.update(_counts(routine, given))
    returned = library.call(routine.name, len(elements), given)
    return zip(*(returned[result.name] for result in routine.results))


def _in_common(elements):
    return elements[:1] if all(element is elements[0] for element in elements) else elements


def _counts(routine, given):
    """The counts that lists tell: as many in all of them."""
    counts, told_by = {}, {}
    for parameter in routine.parameters:
        count = next((extent for extent in parameter.shape if not isinstance(extent, int)), None)
        if count is None or count in given:
            continue
        length = len(given[parameter.name][0]) // (parameter.shape[0] if len(parameter.shape) > 1 else 1)
        if counts.setdefault(count, [[length]]) != [[length]]:
            raise Fault(UNFIT, f"{told_by[count]} has {counts[count][0][0]} {count} and {parameter.name} {length}")
        told_by[count] = parameter.name
    return counts


def _side_by_side(blocks):
    blocks = list(blocks)
    height = max(map(len, blocks))
    blocks = [[*block, *[[""] * len(block[0])] * (height - len(block))] for block in blocks]
    return tuple(tuple(cell for row in rows for cell in row) for rows in zip(*blocks))
