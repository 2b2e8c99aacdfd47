"""The add-in of LibreOffice Calc, bindings/calc: its interface (XFunctions.idl), what the function wizard shows of it
(CalcAddIns.xcu), and the routines as its Python calls them (routines.py)."""

import math
from dataclasses import dataclass, replace
from xml.sax.saxutils import escape, quoteattr

import binding_model
from binding_model import Parameter, lower_camel
from plain_text import in_clear_names

SERVICE = "org.quorvel.Functions"
CATEGORY = "Quorvel"
IN_CELLS, OPTIONAL, ANY_NUMBER, DOCUMENT = (
    "sequence<sequence<any> >", "any", "sequence<any>", "com::sun::star::beans::XPropertySet")

# What may be left out at the end of a call, and is then this.
UNLESS_GIVEN = {"pressure": 101325, "psychrometer": "sling"}


@dataclass(frozen=True)
class Explained:
    """A parameter as the wizard shows it."""

    name: str
    text: str
    type: str = IN_CELLS


@dataclass(frozen=True)
class Function:
    name: str
    text: str
    parameters: tuple


RANGE_OF_POLYGON = "a range of two columns, x and y, a row for each vertex [m]; it must not cross itself"
NAMED = Explained("name", 'name of the function, in quotes, as in "saturation_pressure"', "string")
ITS_ARGUMENTS = Explained("arguments", "its arguments", ANY_NUMBER)
HIDDEN = Explained("document", "", DOCUMENT)
BY_HAND = (
    Function("clip", "Difference or overlap of two simple polygons in plan. Gives a row for each vertex: number of "
             "its piece, x and y; #N/A where there is no piece.",
             (Explained("a", f"polygon A: {RANGE_OF_POLYGON}"), Explained("b", f"polygon B: {RANGE_OF_POLYGON}"),
              Explained("part", 'what is left of A without B, "difference", or what A and B have in common, "overlap"'))),
    Function("quorvel_why", "Why a function of Quorvel gives an error: the same call with its name as first argument. "
             "Gives a text for each element, which is empty where there is nothing wrong.",
             (HIDDEN, NAMED, ITS_ARGUMENTS)),
    Function("quorvel_unchecked", "A function of Quorvel for any numbers, those outside the valid ranges too: the same "
             "call with its name as first argument. Gives what the library gives for them, 1e20 included.",
             (HIDDEN, NAMED, ITS_ARGUMENTS)),
)


def is_by_hand(call):
    return call.name in {function.name for function in BY_HAND}


def needs_file(call):
    return bool(call.routine.state)


def calls(families):
    """All that are not by hand. Those of the climate data file begin with its name, the station and, where the file
    has to be told, the set: a cell keeps nothing for another one."""
    every = [call for call in binding_model.calls(families) if not is_by_hand(call)]
    of_file = {parameter.name: parameter for call in every if needs_file(call) for parameter in call.parameters}
    for call in every:
        if not needs_file(call):
            yield call
            continue
        first = ["file_name", "station"] + ["band_set"] * (call.name == "locate_station_band")
        rest = [parameter for parameter in call.parameters if parameter.name not in (*first, "file_unit")]
        yield replace(call, parameters=(*(of_file[name] for name in first), *rest))


def defaults(call):
    """By parameter, what stands for those that may be left out."""
    left_out = {}
    for parameter in reversed(call.parameters):
        if parameter.arg.quantity not in UNLESS_GIVEN:
            break
        left_out[parameter.name] = UNLESS_GIVEN[parameter.arg.quantity]
    return left_out


# ---- The wizard


def _room(arg):
    """How an array stands in cells."""
    counted = [extent for extent in arg.shape if not isinstance(extent, int)]
    if len(arg.shape) == 1:
        return f"a range of {arg.shape[0]} cells" if not counted else "a row or a column of cells"
    rows, columns = arg.shape[1], arg.shape[0]
    return f"a range of {columns} columns" + (f" and {rows} rows" if not counted else "")


def _explained(parameter, left_out):
    text = parameter.sentence
    if parameter.arg.values:
        words = "; ".join(f'{number} or "{word}"' + (f", {meaning}" if meaning != word else "")
                          for word, (number, meaning) in parameter.arg.values.items())
        text = f"{parameter.arg.meaning}: {words}"
    if parameter.shape:
        text += f"; {_room(parameter.arg)}"
    if parameter.name in left_out:
        text += f"; {left_out[parameter.name]} unless given"
    return Explained(parameter.name, text, OPTIONAL if parameter.name in left_out else IN_CELLS)


def _gives(call):
    if not call.structure:
        return ""
    return " Gives, side by side: " + ", ".join(result.clear_name.replace("_", " ") for result in call.results) + "."


def _unit(call):
    unit = call.results[0].unit
    return f" [{unit}]" if unit and not call.structure else ""


def functions(families):
    names = {call.routine.export: call.name.upper() for call in binding_model.calls(families) if call.routine.export}
    for call in calls(families):
        left_out = defaults(call)
        hidden = (HIDDEN,) if needs_file(call) else ()
        text = call.routine.summary.rstrip(".") + _unit(call) + "." + _gives(call)
        parameters = (_explained(parameter, left_out) for parameter in call.parameters)
        yield Function(call.name, in_clear_names(text, names),
                       (*hidden, *(replace(each, text=in_clear_names(each.text, names)) for each in parameters)))
    yield from BY_HAND


def interface(families):
    lines = []
    for function in functions(families):
        parameters = ", ".join(f"[in] {each.type} {lower_camel(each.name)}" for each in function.parameters)
        lines.append(f"    {IN_CELLS} {lower_camel(function.name)}({parameters});\n")
    return ("// Produced from the catalogue of routines (catalogue/); do not edit.\n"
            "module org { module quorvel {\n"
            f"interface XFunctions {{\n{''.join(lines)}}};\n"
            "service Functions { interface XFunctions; };\n"
            "}; };\n")


def _property(name, text, language=' xml:lang="en"'):
    return f"<prop oor:name={quoteattr(name)}><value{language}>{escape(text)}</value></prop>"


def _node(name, content):
    return f"<node oor:name={quoteattr(name)} oor:op=\"replace\">{content}</node>\n"


def _described(function):
    shown = function.name.upper()
    parameters = "".join(
        _node(lower_camel(each.name), _property("DisplayName", each.name.replace("_", " ")) + _property("Description", each.text))
        for each in function.parameters)
    return _node(lower_camel(function.name), "\n".join([
        _property("DisplayName", shown), _property("CompatibilityName", shown), _property("Description", function.text),
        _property("Category", CATEGORY, ""), f'<node oor:name="Parameters">\n{parameters}</node>']))


def wizard(families):
    described = "".join(map(_described, functions(families)))
    return ('<?xml version="1.0" encoding="UTF-8"?>\n'
            "<!-- Produced from the catalogue of routines (catalogue/); do not edit. -->\n"
            '<oor:component-data xmlns:oor="http://openoffice.org/2001/registry" xmlns:xs="http://www.w3.org/2001/XMLSchema"'
            ' oor:name="CalcAddIns" oor:package="org.openoffice.Office">\n'
            f'<node oor:name="AddInInfo"><node oor:name="{SERVICE}" oor:op="replace"><node oor:name="AddInFunctions">\n'
            f"{described}</node></node></node></oor:component-data>\n")


# ---- The Python of the add-in


def _number(value):
    return ("inf" if value > 0 else "-inf") if math.isinf(value) else repr(value)


def _parameter(parameter: Parameter, left_out):
    words = {word: number for word, (number, _) in parameter.arg.values.items()}
    parts = [repr(parameter.name), repr(parameter.kind)]
    parts += [f"unit={parameter.unit!r}"] * bool(parameter.unit)
    parts += [f"limits=({', '.join(map(_number, parameter.limits))})"] * parameter.is_limited
    parts += [f"words={words!r}"] * bool(words)
    parts += _shape(parameter)
    parts += [f"otherwise={left_out.get(parameter.name)!r}"] * (parameter.name in left_out)
    return f"Parameter({', '.join(parts)})"


def _result(result):
    parts = [repr(result.name_in_arrays), repr(result.kind), *_shape(result)]
    parts += ["none=True"] * result.arg.none
    return f"Result({', '.join(parts)})"


def _shape(described):
    # Matrices have their rows in the rows of the sheet, whatever their order in memory.
    turned = described.arg.quantity == "rotation_matrix"
    return [f"shape={tuple(described.shape)!r}"] * bool(described.shape) + ["turned=True"] * turned


def _tuple(items):
    return "(\n" + "".join(f"            {item},\n" for item in items) + "        )" if items else "()"


def _routine(call):
    left_out = defaults(call)
    parameters = _tuple([_parameter(parameter, left_out) for parameter in call.parameters])
    results = _tuple([_result(result) for result in call.results])
    return (f"    Routine(\n        {call.name!r}, {lower_camel(call.name)!r},{' of_file=True,' * needs_file(call)}\n"
            f"        parameters={parameters},\n        results={results},\n    ),\n")


def routines(families):
    listed = "".join(map(_routine, calls(families)))
    return ('"""What the add-in knows of each routine. Produced from the catalogue of routines (catalogue/); do not edit."""\n\n'
            "from math import inf\n\n"
            "from quorvel_calc.model import Parameter, Result, Routine\n\n"
            f"ROUTINES = {{routine.name: routine for routine in (\n{listed})}}\n")


def files(families):
    return {"XFunctions.idl": interface(families), "CalcAddIns.xcu": wizard(families),
            "pythonpath/quorvel_calc/routines.py": routines(families)}
