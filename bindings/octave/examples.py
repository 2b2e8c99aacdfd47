#!/usr/bin/env python3
"""Writes the examples of the catalogue as a script of Octave."""

import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "generate"))
import binding_model  # noqa: E402
import catalogue  # noqa: E402


def shown(value):
    return f"[{' '.join(map(repr, value))}]" if isinstance(value, list) else repr(value)


def script(call, example):
    given = "".join(f", {shown(example.given[parameter.name])}" for parameter in call.parameters)
    results = [result.clear_name for result in call.results]
    yield f"[{', '.join(results)}] = quorvel('{call.name}'{given});"
    for result, variable in zip(call.results, results):
        if result.name in example.gives:
            value = example.gives[result.name]
            count = len(value) if isinstance(value, list) else 1
            yield (f"compare('{call.name}', {variable}(1:{count}), {shown(value)}, {example.within[result.name]!r}, "
                   f"{str(result.kind == 'Logical').lower()});")


COMPARE = """\
1;
global compared = 0;
function compare(name, got, want, within, logical)
  global compared;
  compared += 1;
  if (logical), got = (got != 0); want = (want != 0); end
  if (! all(abs(got(:) - want(:)) <= within)), error("%s: %s", name, num2str(got(:)', 9)); end
end"""


def main():
    examples = [(call, example) for call, example, _ in binding_model.examples(catalogue.load(ROOT / "catalogue"))
                if not call.routine.state]
    print(COMPARE)
    for call, example in examples:
        print("\n".join(script(call, example)))
    print(f"assert(compared, {sum(len(example.gives) for _, example in examples)});")
    print(f'printf("%d examples\\n", {len(examples)})')


main()
