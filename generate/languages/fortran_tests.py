"""Tests of the Fortran modules: bits.f90 holds them to calls of the corpus, examples.f90 to the catalogue's examples."""

import binding_model
import corpus_layout
from languages.fortran_model import KINDS, folded, is_function, literal, own, procedure_name

PROGRAM = """\
program {name}
   use, intrinsic :: iso_fortran_env, only: sp => real32, dp => real64, i4 => int32
   use, intrinsic :: iso_c_binding, only: c_char, c_null_char
   use quorvel_by_reference
{modules}   use testing
   implicit none
{calls}   call finish({least})

contains

{procedures}end program {name}
"""

TEXT = 64  # characters in the corpus
UNTOUCHED = {"Real": "untouched", "DoubleReal": "untouched_pair", "Integer": "untouched_integer"}


def _kind(arg):
    return "character(kind=c_char)" if arg.type == "Text" else KINDS[arg.type]


def _call(routine, names):
    passed = ", ".join(names)
    return f"{routine.export}({passed})" if routine.result else f"call {routine.export}({passed})"


class Bits(corpus_layout.Layout):
    """Reads the cases of a routine, calls it by reference, then its wrapper where the counts are in order."""

    def __init__(self, call):
        super().__init__(call.routine)
        self.call = call

    def _room(self, arg):
        return [TEXT] if arg.type == "Text" else self.room(arg)

    def _declarations(self):
        for arg, prefix in [(arg, "") for arg in self.given] + [
                (arg, prefix) for arg in self.changed for prefix in ("got_", "left_")]:
            room = self._room(arg)
            yield f"{_kind(arg)} :: {prefix}{arg.name}" + (f"({', '.join(map(str, room))})" if room else "")
        if self.routine.result:
            yield f"{_kind(self.routine.result)} :: left_result"
        if not is_function(self.call) and any(result.kind == "Logical" for result in self.call.results):
            yield "logical :: got_truth"

    def _prepare(self):
        for arg in self.changed:
            yield f"got_{arg.name} = " + (arg.name if arg.dir == "inout" else UNTOUCHED[arg.type])

    def _by_reference(self):
        names = [arg.name if arg.dir == "in" else f"got_{arg.name}" for arg in self.routine.args]
        result = [f"agrees({self.routine.export}({', '.join(names)}), left_result)"] if self.routine.result else []
        if not result:
            yield _call(self.routine, names)
        agreed = result + [f"all([agrees(got_{arg.name}, left_{arg.name})])" for arg in self.changed]
        yield f"call expect({' .and. '.join(agreed)}, '{self.routine.export}')"

    def _sliced(self, name, arg):
        if all(isinstance(extent, int) for extent in arg.shape):
            return name
        return f"{name}({', '.join(':' if isinstance(extent, int) else f':{extent}' for extent in arg.shape)})"

    def _by_wrapper(self):
        call, name = self.call, procedure_name(self.call)
        results = {result.name: result for result in call.results}
        given = [self._sliced(("got_" if not is_function(call) and parameter.name in results else "") + parameter.name,
                              parameter.arg) for parameter in call.parameters]
        if is_function(call):
            result = call.results[0]
            value = f"{name}({', '.join(given)})"
            left = self._left(result)
            yield f"call expect(all([{self._agrees(result, value, left)}]), '{name}')"
            return
        outputs = [result for result in call.results if not result.given]
        passed = given + [self._sliced(self._got(result), result.arg) for result in outputs]
        yield f"call {name}({', '.join(passed)})"
        agreed = [f"all([{self._agrees(result, self._sliced(self._got(result), result.arg), self._left(result))}])"
                  for result in call.results]
        yield f"call expect({' .and. '.join(agreed)}, '{name}')"

    def _got(self, result):
        return "got_truth" if result.kind == "Logical" else f"got_{result.name}"

    def _left(self, result):
        return self._sliced(f"left_{result.name}", result.arg)

    def _agrees(self, result, got, left):
        if result.kind == "Logical":
            return f"({got} .eqv. {left} /= 0)"
        return f"agrees({got}, {left})" + f" .or. is_untouched({left})" * bool(result.unwritten)

    def _read(self):
        yield f"read (unit) {', '.join(arg.name for arg in self.given)}"
        yield f"read (unit) {', '.join(f'left_{name}' for name in self.left)}"

    def _wrapper_where_counts_allow(self):
        if not self.call.is_offered:
            return []
        lines = [*self._prepare(), *self._by_wrapper()]
        order = " .and. ".join(f"{name} >= {low} .and. {name} <= {high}" for name, low, high in self.orders())
        return [f"if (in_order({order})) then", *(f"   {line}" for line in lines), "end if"] if order else lines

    def text(self):
        statements = [*self._declarations(), f"call open_corpus('{self.routine.export}', {corpus_layout.CASES})"]
        statements += ["call open_example()"] * bool(self.routine.state)
        case = [*self._read(), *self._prepare(), *self._by_reference(), *self._wrapper_where_counts_allow()]
        statements += ["do while (more_cases())", *(f"   {line}" for line in case), "end do"]
        return f"   subroutine bits_of_{self.routine.export}()\n{_body(statements)}\n   end subroutine\n\n"


def _body(statements):
    """Statements that begin with the blanks by which they are set in."""
    return "\n".join(folded(line.lstrip(), 6 + len(line) - len(line.lstrip())) for line in statements)


def _values(arg, value):
    """A constant, or an array of the shape; a text with its end."""
    if arg.type == "Text":
        return f"'{value}'//c_null_char"
    if not arg.shape:
        return literal(arg.type, value)
    listed = f"[{KINDS[arg.type]} :: {', '.join(literal(arg.type, number) for number in value)}]"
    if len(arg.shape) == 1:
        return listed
    rows = arg.shape[0]
    columns = arg.shape[1] if isinstance(arg.shape[1], int) else len(value) // rows
    return f"reshape({listed}, [{rows}, {columns}])"


def _extents(arg, example):
    extents = [extent if isinstance(extent, int) else example.given[extent] for extent in arg.shape]
    return f"({', '.join(map(str, extents))})" if extents else ""


def _all(value):
    return value if isinstance(value, list) else [value]


class Example:
    """A call of the wrapper, of the unchecked one where the example leaves a range; or by reference, without one."""

    def __init__(self, call, example, number):
        self.call, self.example, self.name = call, example, f"example_of_{call.name}"[:60] + f"_{number}"
        self.is_valid = call.allows(example)

    def _expect(self, name, got):
        if name in self.example.gives:
            numbers = [literal("DoubleReal", number) for number in _all(self.example.gives[name])]
            within = literal("DoubleReal", self.example.within[name])
            yield f"call expect_near('{self.call.name}: {name}', [{got}], [{', '.join(numbers)}], {within})"

    def _expect_result(self, result, got):
        number = f"merge(-1.0_dp, 0.0_dp, {got})" if result.kind == "Logical" else f"real({got}, dp)"
        return self._expect(result.name, number)

    def _expect_fault(self, passed):
        yield f"use quorvel_checks, only: check_{self.call.name}"
        yield "type(quorvel_fault) :: fault"
        yield f"call check_{self.call.name}({', '.join([*passed, 'fault=fault'])})"
        yield f"call expect(fault%found, 'fault of {self.call.name}')"

    def _function(self, passed):
        result = self.call.results[0]
        yield from self._expect_result(result, f"{procedure_name(self.call)}({', '.join(passed)})")

    def _subroutine(self, passed):
        """In a block of its own, with a variable for each result."""
        results = self.call.results
        outputs = [f"{result.clear_name}={own(result)}" for result in results if not result.given]
        yield "block"
        for result in results:
            yield f"   {KINDS[result.kind]} :: {own(result)}{_extents(result.arg, self.example)}"
        for result in results:
            if result.given:
                yield f"   {own(result)} = {_values(result.arg, self.example.given[result.given])}"
        yield f"   call {procedure_name(self.call)}({', '.join([*passed, *outputs])})"
        for result in results:
            yield from (f"   {line}" for line in self._expect_result(result, own(result)))
        yield "end block"

    def _by_wrapper(self):
        call, given = self.call, self.example.given
        changed = {} if is_function(call) else {result.given: own(result) for result in call.results}
        constants = {each.name: _values(each.arg, given[each.name]) for each in call.parameters}
        passed = [f"{name}={changed.get(name, value)}" for name, value in constants.items()]
        yield f"use quorvel{'' if self.is_valid else '_unchecked'}, only: {procedure_name(call)}"
        if not self.is_valid:
            yield from self._expect_fault([f"{name}={value}" for name, value in constants.items()])
        yield from self._function(passed) if is_function(call) else self._subroutine(passed)

    def _by_reference(self):
        routine, given = self.call.routine, self.example.given
        changed = [arg for arg in routine.args if arg.dir != "in"]
        for arg in changed:
            yield f"{KINDS[arg.type]} :: {arg.name}{_extents(arg, self.example)}"
        for arg in changed:
            yield f"{arg.name} = {_values(arg, given[arg.name]) if arg.dir == 'inout' else 0}"
        yield _call(routine, [_values(arg, given[arg.name]) if arg.dir == "in" else arg.name for arg in routine.args])
        for arg in changed:
            yield from self._expect(arg.name, f"real({arg.name}, dp)")

    def text(self):
        statements = self._by_wrapper() if self.call.is_offered else self._by_reference()
        return f"   subroutine {self.name}()\n{_body(statements)}\n   end subroutine\n\n"


def _program(name, modules, calls, procedures, least):
    return PROGRAM.format(
        name=name, modules="".join(f"   use {module}\n" for module in modules),
        calls="".join(f"   call {call}()\n" for call in calls), procedures="".join(procedures), least=least)


def files(families):
    calls = binding_model.calls(families)
    bits = [Bits(call) for call in calls if call.routine.export]
    examples = [Example(*each) for each in binding_model.examples(families)]
    return {
        "bits.f90": _program("bits", ["quorvel_unchecked"], [f"bits_of_{each.routine.export}" for each in bits],
                             [each.text() for each in bits], len(bits) * corpus_layout.CASES),
        "examples.f90": _program("examples", ["quorvel_faults, only: quorvel_fault"],
                                 [each.name for each in examples], [each.text() for each in examples], len(examples)),
    }
