"""examples.inc: every example of the catalogue as C++ data, in the types of conformance/examples.h."""

from catalogue import by_reference


def _text(text):
    return '"' + text.replace("\\", "\\\\").replace('"', '\\"') + '"'


def _values(value):
    values = value if isinstance(value, list) else [value]
    return f"{{{', '.join(repr(float(number)) for number in values)}}}"


def _given(index, value):
    return f"{{{index}, {{}}, {_text(value)}}}" if isinstance(value, str) else f"{{{index}, {_values(value)}, nullptr}}"


def _example(routine, example):
    names = [arg.name for arg in routine.args]
    given = ", ".join(_given(names.index(name), value) for name, value in example.given.items())
    expected = ", ".join(
        f"{{{names.index(name) if name in names else -1}, {_values(value)}, {float(example.within[name])!r}}}"
        for name, value in example.gives.items()
    )
    return f'{{"{routine.export}",\n    {{{given}}},\n    {{{expected}}},\n    {_text(example.source)}}},\n'


def render(families):
    return "".join(
        _example(routine, example)
        for family in by_reference(families) for routine in family.routines for example in routine.examples
    )
