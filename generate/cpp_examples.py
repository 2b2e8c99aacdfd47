"""FAMILY.cpp: every example of the catalogue as calls of the C++ interface, in both of its forms. What they call
beside it is in tests/cpp/example_calls.h."""

import cpp_scalar
from array_header import columns
from cpp_arrays import structure_name
from cpp_types import count_of, element, is_offered, name_of, outputs

FILE = """\
#include <gtest/gtest.h>

#include "cpp/example_calls.h"
#include "quorvel/{family}.hpp"

using namespace quorvel;
using namespace quorvel::test;

TEST(CppExamples, {family}) {{
{blocks}}}
"""


def _numbers(value):
    values = value if isinstance(value, list) else [value]
    return f"{{{', '.join(repr(float(number)) for number in values)}}}"


def _text(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _value(arg, example):
    return f"{'list' if count_of(arg) else 'value'}<{element(arg)}>({_numbers(example.given[arg.name])})"


def _variables(routine, example):
    """Outputs with room for the elements."""
    for name, arg in columns(routine)[1]:
        size = f" * {example.given[count_of(arg)]}" if count_of(arg) else ""
        yield f"std::vector<{element(arg)}> {name}_array(elements{size});"


def _input(index, arg, example):
    """By turns an array and a single value or row."""
    if not count_of(arg):
        return f"repeated({arg.name}_given)" if index % 2 == 0 else f"{arg.name}_given"
    rows = "elements" if index % 2 == 0 else "1"
    name = f"{arg.name}_rows"
    return f"Table<const {element(arg)}>({name}, {rows}, {example.given[count_of(arg)]})"


def _output(name, arg, example):
    if not count_of(arg):
        return f"{name}_array"
    return f"Table<{element(arg)}>({name}_array, elements, {example.given[count_of(arg)]})"


def _array_call(family, routine, example):
    given, returned = columns(routine)
    for index, (_, arg) in enumerate(given):
        if count_of(arg):
            times = "elements" if index % 2 == 0 else "1"
            yield f"const auto {arg.name}_rows = repeated_list({arg.name}_given, {times});"
    passed = [_input(index, arg, example) for index, (_, arg) in enumerate(given)]
    results = [_output(name, arg, example) for name, arg in returned]
    if len(results) > 1:
        passed.append(f"{family}::{structure_name(routine)}{{{', '.join(results)}}}")
    else:
        passed += results
    yield f"{family}::{routine.name}({', '.join(passed)});"


def _statements(family, routine, example):
    several = len(outputs(routine)) > 1
    for _, arg in columns(routine)[0]:
        yield f"const auto {arg.name}_given = {_value(arg, example)};"
    passed = ", ".join(f"{arg.name}_given" for arg in cpp_scalar.given(routine))
    yield f"const auto one = {family}::{routine.name}({passed});"
    yield from _variables(routine, example)
    yield from _array_call(family, routine, example)
    for name, arg in columns(routine)[1]:
        one = f"one.{name_of(arg)}" if several else "one"
        yield f'expect_same("{name}", {one}, {name}_array);'
        if name_of(arg) in example.gives:
            expected = example.gives[name_of(arg)]
            yield f'expect_near("{name}", {one}, {_numbers(expected)}, {float(example.within[name_of(arg)])!r});'


def _block(family, routine, example):
    trace = f"SCOPED_TRACE({_text(f'{routine.name}: {example.source}')});"
    statements = [trace, *_statements(family, routine, example)]
    return "    {\n" + "".join(f"        {statement}\n" for statement in statements) + "    }\n"


def files(families):
    texts = {}
    for family in families:
        blocks = "".join(
            _block(family.family, routine, example)
            for routine in family.routines if is_offered(routine) for example in routine.examples)
        texts[f"{family.family}.cpp"] = FILE.format(family=family.family, blocks=blocks)
    return texts
