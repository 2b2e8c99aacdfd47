"""Tests of the Pascal units: bits.pas holds them to calls of the corpus, examples.pas to the catalogue's examples."""

import math

import binding_model
import corpus_layout
from binding_model import camel, fixed
from languages.pascal_model import TYPES, element, folded, function_name, function_type, is_list, pointer

PROGRAM = """\
program {name};

{{$mode objfpc}}{{$H+}}{{$J+}}{{$R-}}

uses
  {units};

{procedures}
begin
{calls}  Finish({least});
end.
"""


def _procedure(name, declarations, statements):
    declared = "".join(f"{folded(line, 2)}\n" for line in declarations)
    body = "\n".join(folded(line.lstrip(), 2 + len(line) - len(line.lstrip())) for line in statements)
    return f"procedure {name};\n{declared}begin\n{body}\nend;\n"


def _by_reference(routine, name_of):
    """A call whose arguments are variables."""
    def passed(arg):
        if arg.type == "Text":
            return f"PAnsiChar(@{name_of(arg)})"
        return f"{pointer(arg)}(@{name_of(arg)})" if arg.shape else name_of(arg)

    listed = ", ".join(map(passed, routine.args))
    return f"{routine.export}({listed})" if listed else routine.export


def _count(arg):
    """Of the numbers of a result, as far as a call says how many there are."""
    counted = [camel(extent) for extent in arg.shape if not isinstance(extent, int)] if arg.shape else []
    return " * ".join([str(fixed(arg)), *counted])


class Bits(corpus_layout.Layout):
    """Reads the cases of a routine, calls it by reference, then its function where the counts are in order."""

    def __init__(self, call):
        super().__init__(call.routine)
        self.call = call

    def _type(self, arg):
        if arg.type == "Text":
            return "array[0..63] of AnsiChar"
        if not is_list(arg):
            return element(arg)
        return f"array[0..{self.room(arg)[-1] - 1}] of {element(arg)}"

    def _declarations(self):
        yield "var"
        for arg in self.given:
            yield f"  {camel(arg.name)}: {self._type(arg)};"
        for arg in self.changed:
            yield f"  Got{camel(arg.name)}, Left{camel(arg.name)}: {self._type(arg)};"
        if self.routine.result:
            yield f"  GotResult, LeftResult: {TYPES[self.routine.result.type]};"
        if self.call.is_offered:
            yield f"  Own: {function_type(self.call)};"

    def _read(self):
        for arg in self.given:
            yield f"Take({camel(arg.name)}, SizeOf({camel(arg.name)}));"
        for name in self.left:
            yield f"Take(Left{camel(name)}, SizeOf(Left{camel(name)}));"

    def _call(self):
        for arg in self.changed:
            name = camel(arg.name)
            blank = f"FillChar(Got{name}, SizeOf(Got{name}), Untouched);"
            yield f"Got{name} := {name};" if arg.dir == "inout" else blank
        call = _by_reference(self.routine, lambda arg: ("Got" if arg.dir != "in" else "") + camel(arg.name))
        yield "State := MaskExceptions;"
        yield f"{'GotResult := ' * bool(self.routine.result)}{call};"
        yield "RestoreExceptions(State);"
        for name, arg in self.left.items():
            name = camel(name)
            yield (f"Expect(Same{TYPES[arg.type]}s(@Got{name}, @Left{name}, "
                   f"SizeOf(Left{name}) div SizeOf({TYPES[arg.type]}), False), '{self.routine.export}');")

    def _argument(self, parameter):
        name = camel(parameter.name)
        if parameter.selector and not parameter.shape:
            return f"T{parameter.selector}({name})"
        count = next((extent for extent in parameter.shape if not isinstance(extent, int)), None)
        return f"Slice({name}, {camel(count)})" if count else name

    def _function(self):
        name = function_name(self.call)
        yield f"Own := {name}({', '.join(map(self._argument, self.call.parameters))});"
        for result in self.call.results:
            place = f"Own.{camel(result.clear_name)}" if len(self.call.results) > 1 else "Own"
            left = f"Left{camel(result.name)}"
            if result.kind == "Logical":
                yield f"Expect({place} = ({left} <> 0), '{name}');"
                continue
            at = f"Pointer({place})" if is_list(result.arg) else f"@{place}"
            loose = "True" if result.unwritten else "False"
            yield f"Expect(Same{TYPES[result.arg.type]}s({at}, @{left}, {_count(result.arg)}, {loose}), '{name}');"

    def text(self):
        case = [*self._read(), *self._call()]
        if self.call.is_offered:
            order = " and ".join(
                f"({camel(name)} >= {low}) and ({camel(name)} <= {high})" for name, low, high in self.orders())
            lines = list(self._function())
            case += [f"if InOrder({order}) then", "begin", *(f"  {line}" for line in lines), "end;"] if order else lines
        statements = [f"OpenCorpus('{self.routine.export}', {corpus_layout.CASES});", *["OpenExample;"] * bool(self.routine.state)]
        statements += ["while MoreCases do", "begin", *(f"  {line}" for line in case), "end;"]
        declarations = [*self._declarations(), "  State: TFloatingPointState;"]
        return _procedure(f"BitsOf{self.routine.export}", declarations, statements)


def _all(value):
    return value if isinstance(value, list) else [value]


def _number(arg, value):
    return repr(float(value)) if arg.type != "Integer" else str(value)


def _nested(arg, numbers):
    """A constant of an array of several dimensions."""
    rows = [_number(arg, number) for number in numbers]
    for extent in arg.shape[:-1]:
        rows = [f"({', '.join(rows[k:k + extent])})" for k in range(0, len(rows), extent)]
    return f"({', '.join(rows)})"


class Example:
    """A call of the function, of the unchecked one where the example leaves a range; or by reference, without one."""

    def __init__(self, call, example, number):
        self.call, self.example, self.name = call, example, f"{camel(call.name)}{number}"
        self.is_valid = call.allows(example)

    def _variable(self, arg, value):
        """With what is given in it."""
        name = camel(arg.name)
        if arg.type == "Text":
            return f"  {name}: array[0..{len(value)}] of AnsiChar = '{value}'#0;"
        if not arg.shape:
            return f"  {name}: {TYPES[arg.type]} = {_number(arg, value)};"
        last = arg.shape[-1] if isinstance(arg.shape[-1], int) else self.example.given[arg.shape[-1]]
        kind = f"array[0..{last - 1}] of {element(arg)}" if is_list(arg) else element(arg)
        return f"  {name}: {kind} = {_nested(arg, value)};"

    def _is_constant(self, parameter):
        return len(parameter.shape) > 1

    def _argument(self, parameter):
        arg, value = parameter.arg, self.example.given[parameter.name]
        if self._is_constant(parameter):
            return camel(parameter.name)
        if parameter.selector and not arg.shape:
            identifier = next(name for name, (number, _) in arg.values.items() if number == value)
            return f"T{parameter.selector}.{camel(identifier)}"
        return f"[{', '.join(_number(arg, number) for number in value)}]" if arg.shape else _number(arg, value)

    def _near(self, name, place, arg, is_dynamic=False):
        if name not in self.example.gives:
            return
        numbers = ", ".join(repr(float(number)) for number in _all(self.example.gives[name]))
        within = repr(float(self.example.within[name]))
        at = f"Pointer({place})" if is_dynamic else f"@{place}"
        yield f"specialize ExpectNear<{TYPES[arg.type]}>('{self.call.name}: {name}', {at}, [{numbers}], {within});"

    def _function(self):
        call = self.call
        unit = "Quorvel" if self.is_valid else "QuorvelUnchecked"
        invoked = f"{function_name(call)}({', '.join(map(self._argument, call.parameters))})"
        if not self.is_valid:
            yield f"try Quorvel.{invoked}; Expect(False, 'fault of {call.name}'); except on EQuorvelError do; end;"
        yield f"Own := {unit}.{invoked};"
        for result in call.results:
            place = f"Own.{camel(result.clear_name)}" if len(call.results) > 1 else "Own"
            if result.kind == "Logical" and result.name in self.example.gives:
                yield f"Expect({place} = {bool(self.example.gives[result.name])}, '{call.name}');"
            elif result.kind != "Logical":
                yield from self._near(result.name, place, result.arg, is_list(result.arg))

    def text(self):
        call, given = self.call, self.example.given
        if call.is_offered:
            tables = filter(self._is_constant, call.parameters)
            constants = [self._variable(each.arg, given[each.name]) for each in tables]
            declarations = [*["const"] * bool(constants), *constants, "var", f"  Own: {function_type(call)};"]
            return _procedure(self.name, declarations, self._function())
        declarations = [self._variable(arg, given.get(arg.name, [0] * self._room(arg) if arg.shape else 0))
                        for arg in call.routine.args]
        statements = [f"{_by_reference(call.routine, lambda arg: camel(arg.name))};"]
        for arg in call.routine.args:
            statements += self._near(arg.name, camel(arg.name), arg)
        return _procedure(self.name, ["const", *declarations], statements)

    def _room(self, arg):
        return math.prod(extent if isinstance(extent, int) else self.example.given[extent] for extent in arg.shape)


def _program(name, units, calls, procedures, least):
    return PROGRAM.format(name=name, units=", ".join(units), calls="".join(f"  {call};\n" for call in calls),
                          procedures="\n".join(procedures), least=least)


def files(families):
    calls = binding_model.calls(families)
    bits = [Bits(call) for call in calls if call.routine.export]
    examples = [Example(*each) for each in binding_model.examples(families)]
    return {
        "bits.pas": _program(
            "bits", ["QuorvelTypes", "QuorvelByReference", "QuorvelUnchecked", "QuorvelFloatingPoint", "Testing"],
            [f"BitsOf{each.routine.export}" for each in bits], [each.text() for each in bits],
            len(bits) * corpus_layout.CASES),
        "examples.pas": _program(
            "examples", ["QuorvelTypes", "QuorvelByReference", "QuorvelUnchecked", "Quorvel", "Testing"],
            [each.name for each in examples], [each.text() for each in examples],
            len(examples)),
    }
