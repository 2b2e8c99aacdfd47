"""What a C# method looks at before it calls: the values, by the valid ranges; and, also where values are not looked
at, what the memory needs."""

from binding_model import lower_camel
from languages.csharp_model import literal, qualified


def _value(call, parameter):
    name = lower_camel(parameter.name)
    what = f'"{qualified(call)}", "{name}", {name}'
    if parameter.selector:
        low, high = parameter.limits
        return f"Check.Selector({what}, {low}, {high});"
    if not parameter.is_limited and parameter.kind == "Integer":
        return ""
    low, high = (literal(limit, parameter.kind) for limit in parameter.limits)
    unit = f" {parameter.unit}".rstrip()
    return f'Check.Range({what}, {low}, {high}, "{unit}");'


def _count(call, count):
    """Of lists that must not be of any length, or of a parameter that counts results."""
    if not count.lists:
        return f'Check.Range("{qualified(call)}", "{lower_camel(count.name)}", {lower_camel(count.name)}, {count.low}, {count.high}, "");'
    if (count.low, count.high) == (0, 2**31 - 1):
        return ""
    name = lower_camel(count.lists[0].name)
    return f'Check.Length("{qualified(call)}", "{name}", {name}, {count.low}, {count.high});'


def values(call):
    """Of what is called with checks."""
    counting = {count.name for count in call.counts}
    lines = [_count(call, count) for count in call.counts]
    lines += [_value(call, parameter) for parameter in call.parameters
              if parameter.kind != "Text" and parameter.name not in counting]
    return list(filter(None, lines))


def memory(call):
    """Counts told by lists, equally long lists, room for results, and what has a fixed number of numbers: whatever the
    values are."""
    for count in call.counts:
        for index, listed in enumerate(count.lists):
            name = lower_camel(listed.name)
            known = f', "{lower_camel(count.lists[0].name)}", {lower_camel(count.name)}' if index else ""
            assign = "" if index else f"int {lower_camel(count.name)} = "
            yield f'{assign}Check.Count("{qualified(call)}", "{name}", {name}{known});'
        if not count.lists:
            yield f'Check.Room("{qualified(call)}", "{lower_camel(count.name)}", {lower_camel(count.name)});'
    for parameter in call.parameters:
        extents = [str(extent) if isinstance(extent, int) else "-1" for extent in reversed(parameter.shape)]
        if any(extent != "-1" for extent in extents):
            name = lower_camel(parameter.name)
            yield f'Check.Shape("{qualified(call)}", "{name}", {name}, {", ".join(extents)});'
