#!/usr/bin/env python3
"""Hold the exported interface of the library against that of the last release.

    check_abi.py [--write] BASELINE LIBRARY

LIBRARY has debugging information. What a release exports may be neither removed nor changed; what
is new is shown and allowed. With --write, BASELINE becomes a description of LIBRARY.
"""

import argparse
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree
from pathlib import Path

BASELINE = Path(__file__).with_name("quorvel.abi")
# Nothing in the description depends on the machine, nor on where it was built.
DESCRIBE = ("abidw --exported-interfaces-only --no-comp-dir-path --no-corpus-path --no-show-locs --no-elf-needed "
            f"--type-id-style hash --suppressions {Path(__file__).with_name('internal_types.ini')}").split()
REMEDY = """\
Host programs call what the last release exports. Put it back; or, if it has to go, raise SOVERSION in
src/CMakeLists.txt, say so in CHANGELOG.md and run ./dev abi."""


def describe(library, description):
    subprocess.run([*DESCRIBE, library, "--out-file", description], check=True)


def parameters(description):
    """The names of the parameters of every exported routine, in order; "" where the definition names none."""
    functions = ElementTree.parse(description).iter("function-decl")
    return {function.get("elf-symbol-id"): [parameter.get("name", "") for parameter in function.iter("parameter")]
            for function in functions}


def reordered(before, after):
    """Parameters mostly have one and the same type: that they changed places shows in their names only."""
    return [f"  {name}: ({', '.join(names)}) became ({', '.join(after[name])})" for name, names in before.items()
            if name in after and names != after[name] and sorted(names) == sorted(after[name])]


def compare(baseline, description):
    """Whether hosts of the baseline are served by the library described, and a report."""
    # Harmless for a linker is, among others, an input that becomes an output.
    diff = ["abidiff", "--harmless", "--no-show-locs", baseline, description]
    everything = subprocess.run(diff, capture_output=True, text=True)
    if everything.returncode & 3:
        raise RuntimeError(everything.stderr)
    broken = subprocess.run([*diff, "--no-added-syms"], capture_output=True).returncode
    order = reordered(parameters(baseline), parameters(description))
    lines = [everything.stdout.strip(), "Parameters in another order:" if order else "", *order]
    return not broken and not order, "\n".join(line for line in lines if line)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--write", action="store_true", help="write BASELINE anew (at a release)")
    parser.add_argument("baseline", type=Path)
    parser.add_argument("library", type=Path)
    options = parser.parse_args()
    if options.write:
        return describe(options.library, options.baseline)
    with tempfile.TemporaryDirectory() as folder:
        description = Path(folder, "library.abi")
        describe(options.library, description)
        same, report = compare(options.baseline, description)
    print(report or f"The interface of {options.baseline.name}, {len(parameters(options.baseline))} routines.")
    return None if same else REMEDY


if __name__ == "__main__":
    sys.exit(main())
