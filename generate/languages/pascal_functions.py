"""quorvelunchecked.pas and quorvel.pas: the routines under their readable names, as functions of values, arrays and
enumerations that return a value or a record."""

from binding_model import Passed, camel, fixed
from languages.pascal_model import (EDIT, TYPES, comment, element, first, folded, function_name, head, is_list, length,
                                    literal, parameter_list, passed_names)
from plain_text import in_clear_names

UNCHECKED = """\
The routines without any check: the same functions as in unit Quorvel, and for whatever is given the bits that C
  gets. Of lists of unequal lengths the shortest counts; arrays of a fixed length must have it. What a routine leaves as
  it was is not a number (a LongInt: 0), or as it was given."""

CHECKED = """\
Quorvel: building-physics and building-services calculations.

  What is given must lie in the ranges that are told with each function, and be a number; where it does not,
  EQuorvelError says so. QuorvelUnchecked has the same functions without any check.

  Angles are in radians; azimuths run from north, clockwise seen from above (east pi/2, south pi); tilt and solar
  altitude are measured from the horizontal. All functions may be called from any thread, whatever exceptions of
  floating point are unmasked: they mask them, and leave them as they found them."""

DECLARED = """\

type
  EQuorvelError = QuorvelFaults.EQuorvelError;

const
  { Stands for a quantity that does not exist, where the documentation of a result says so. }
  QuorvelNone = 1.0e20;
"""

CLIMATE_CHECKS = "Whether what is asked of a climate data file lies in its ranges."

UNIT = """\
{edit}

{{ {about} }}
unit {name};

{{$mode objfpc}}{directives}

interface

uses
  {uses};
{heads}

implementation

uses
  {uses_within};

{procedures}
end.
"""


def _place(call, result):
    return f"Result.{camel(result.clear_name)}" if len(call.results) > 1 else "Result"


class Unchecked:
    """A function that calls a routine by reference and gathers its results."""

    def __init__(self, call):
        self.call = call

    def _variables(self):
        yield "State: TFloatingPointState;"
        for count in self.call.counts:
            if count.lists:
                yield f"{camel(count.name)}: LongInt;"
        if not self.call.passed and any(result.kind == "Logical" for result in self.call.results):
            yield "Truth: LongInt;"

    def _count(self, result):
        """Of the elements of a list that is returned."""
        extent = next(extent for extent in result.shape if not isinstance(extent, int))
        count = next(count for count in self.call.counts if count.name == extent)
        return camel(extent) if count.lists else f"Min(Max({camel(extent)}, 0), {count.high})"

    def _prepared(self):
        for count in self.call.counts:
            if count.lists:
                yield f"{camel(count.name)} := Shortest([{', '.join(map(length, count.lists))}]);"
        for result in self.call.results:
            yield from self._room(result, _place(self.call, result))

    def _room(self, result, place):
        arg = result.arg
        if is_list(arg):
            yield f"{place} := nil;"
            yield f"SetLength({place}, {self._count(result)});"
        if result.given and arg.shape:
            count = f"System.Length({place})" if is_list(arg) else str(fixed(arg))
            kind = element(arg) if is_list(arg) else TYPES[arg.type]
            given = first(camel(result.given), arg, len(arg.shape) > 1)
            yield f"Move({given}^, {first(place, arg, True)}^, {count} * SizeOf({kind}));"
        elif result.given:
            yield f"{place} := {camel(result.given)};"
        elif result.unwritten and arg.shape:
            count = f"System.Length({place})" if is_list(arg) else str(fixed(arg))
            yield f"SetNoNumbers({first(place, arg, True)}, {count});"
        elif result.unwritten:
            yield f"{place} := {'0' if arg.type == 'Integer' else 'NaN'};"

    def _address(self, result):
        place = _place(self.call, result)
        return first(place, result.arg, True) if result.shape else place

    def _argument(self, passed):
        if passed.role == "result":
            return self._address(passed.result)
        if passed.role == "unread":
            return "0"
        name = camel(passed.arg.name)
        if passed.arg.shape:
            return first(name, passed.arg, len(passed.arg.shape) > 1)
        return f"Ord({name})" if passed.parameter and passed.parameter.selector else name

    def _by_reference(self):
        routine = self.call.routine
        invoked = f"{routine.export}({', '.join(map(self._argument, self.call.passed))})"
        if not routine.result:
            return [f"{invoked};"]
        logical = self.call.results[0].kind == "Logical"
        return [f"{_place(self.call, self.call.results[0])} := {invoked}{' <> 0' * logical};"]

    def _by_arrays(self):
        addresses = [self._argument(Passed("parameter", each.arg, each)) for each in self.call.parameters]
        addresses += ["Truth" if each.kind == "Logical" else self._address(each) for each in self.call.results]
        strided = ", ".join(f"{address}, 0" for address in addresses)
        yield f"quorvel_{self.call.name}(1, {strided});"
        yield from (
            f"{_place(self.call, each)} := Truth <> 0;" for each in self.call.results if each.kind == "Logical")

    def text(self):
        variables = "\n".join(f"  {line}" for line in self._variables())
        invoked = self._by_reference() if self.call.passed else self._by_arrays()
        statements = [*self._prepared(), "State := MaskExceptions;", *invoked, "RestoreExceptions(State);"]
        body = "\n".join(folded(statement, 2) for statement in statements)
        return f"{head(self.call)}\nvar\n{variables}\nbegin\n{body}\nend;\n"


class Checked:
    """A function that looks at its arguments before it calls the unchecked one."""

    def __init__(self, call, names):
        self.call, self.names = call, names
        self.name = function_name(call)

    def about(self):
        parameters = [f"{camel(each.name)}: {each.sentence}" for each in self.call.parameters]
        if len(self.call.results) == 1:
            results = [f"Result: {self.call.results[0].sentence}"]
        else:
            results = [f"Result.{camel(each.clear_name)}: {each.sentence}" for each in self.call.results]
        routine = self.call.routine
        same = [f"({routine.export} of QuorvelByReference)"] * bool(routine.export)
        texts = [routine.summary, *parameters, *results, *self.call.remarks, *same]
        return comment([in_clear_names(text, self.names) for text in texts])

    def _check(self, parameter, procedure, *more):
        names = [f"'{self.name}'", f"'{camel(parameter.name)}'"]
        return f"{procedure}({', '.join([*names, *more])});"

    def _lengths(self):
        for parameter in self.call.parameters:
            if len(parameter.shape) == 1 and not is_list(parameter.arg):
                yield self._check(parameter, "ExpectLength", length(parameter), str(parameter.shape[0]))
        for count in self.call.counts:
            for parameter in count.lists[1:]:
                other = count.lists[0]
                yield self._check(parameter, "ExpectAsMany", length(parameter), f"'{camel(other.name)}'", length(other))
            if count.lists:
                counted = count.lists[0]
                yield self._check(counted, "ExpectCount", length(counted), str(count.low), str(count.high))

    def _values(self):
        for parameter in self.call.parameters:
            arg, name = parameter.arg, camel(parameter.name)
            if arg.type == "Text" or (arg.type == "Integer" and not parameter.is_limited):
                continue
            low, high = parameter.limits
            if arg.type == "Integer":
                low, high = max(low, -2**31), min(high, 2**31 - 1)
            limits = [literal(low), literal(high), f"'{parameter.valid(camel)}'"]
            if not arg.shape:
                value = f"Ord({name})" if parameter.selector else name
                yield self._check(parameter, f"Expect{TYPES[arg.type]}", value, *limits)
                continue
            count = " * ".join([str(fixed(arg))] + [length(parameter)] * is_list(arg)).removeprefix("1 * ")
            at = first(name, arg, len(arg.shape) > 1)
            yield self._check(parameter, f"Expect{TYPES[arg.type]}s", at, count, *limits)

    def check_head(self):
        listed = parameter_list(each for each in self.call.parameters if each.kind != "Text")
        return folded(f"procedure Check{self.name}{listed};")

    def check(self):
        """A procedure that only looks at them."""
        body = "\n".join(folded(statement, 2) for statement in (*self._lengths(), *self._values()))
        return f"{self.check_head()}\nbegin\n{body}\nend;\n"

    def text(self):
        statements = [*self._lengths(), *self._values()]
        names = passed_names(self.call)
        statements.append(f"Result := QuorvelUnchecked.{self.name}{f'({names})' if names else ''};")
        body = "\n".join(folded(statement, 2) for statement in statements)
        return f"{head(self.call)}\nbegin\n{body}\nend;\n"


def unchecked(calls):
    offered = [call for call in calls if call.is_offered]
    return UNIT.format(
        edit=EDIT, about=UNCHECKED, name="QuorvelUnchecked", directives="{$R-}{$Q-}{$T-}", uses="QuorvelTypes",
        heads="\n" + "\n".join(map(head, offered)), uses_within="Math, QuorvelByReference, QuorvelFloatingPoint",
        procedures="\n".join(Unchecked(call).text() for call in offered))


def checked(calls):
    names = {call.routine.export: function_name(call) for call in calls if call.routine.export}
    functions = [Checked(call, names) for call in calls if call.is_offered]
    heads = [DECLARED, *(f"{each.about()}\n{head(each.call)}\n" for each in functions)]
    return UNIT.format(
        edit=EDIT, about=CHECKED, name="Quorvel", directives="{$R-}{$Q-}{$T-}", uses="QuorvelTypes, QuorvelFaults",
        heads="\n".join(heads).rstrip("\n"), uses_within="Math, QuorvelUnchecked",
        procedures="\n".join(each.text() for each in functions))


def climate_checks(calls):
    checks = [Checked(call, {}) for call in calls if call.routine.state]
    return UNIT.format(
        edit=EDIT, about=CLIMATE_CHECKS, name="QuorvelClimateChecks", directives="{$H+}{$R-}{$T-}", uses="QuorvelTypes",
        heads="\n" + "\n".join(each.check_head() for each in checks), uses_within="Math, QuorvelFaults",
        procedures="\n".join(each.check() for each in checks))
