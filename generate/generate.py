#!/usr/bin/env python3
"""Produce the files that follow from the catalogue of routines: those in the tree, or one of the build."""

import argparse
import sys
from pathlib import Path

import catalogue
import example_table
import exports
import header
import routine_table

ROOT = Path(__file__).parents[1]
IN_TREE = {
    "include/quorvel.h": header.render,
}
OF_THE_BUILD = {
    "version-script": exports.version_script,
    "module-definition": exports.module_definition,
    "routine-names": exports.macro_calls,
    "routine-table": routine_table.render,
    "examples": example_table.render,
}


def write(path, text, check):
    """Leaves a file alone that has the text already: what is made from it need not be made anew."""
    current = path.read_text(encoding="utf-8") if path.exists() else None
    if current == text:
        return
    if check:
        sys.exit(f"{path} does not follow from the catalogue; run ./dev generate")
    path.write_text(text, encoding="utf-8", newline="\n")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("product", nargs="?", choices=OF_THE_BUILD, help="of the build; without it all in the tree")
    parser.add_argument("output", nargs="?", type=Path, help="where to write the product")
    parser.add_argument("--catalogue", type=Path, default=ROOT / "catalogue")
    parser.add_argument("--check", action="store_true", help="fail if a file differs, instead of writing it")
    options = parser.parse_args()
    try:
        families = catalogue.load(options.catalogue)
    except catalogue.CatalogueError as error:
        sys.exit(f"catalogue: {error}")
    if options.product:
        write(options.output, OF_THE_BUILD[options.product](families), options.check)
    else:
        for path, render in IN_TREE.items():
            write(ROOT / path, render(families), options.check)


if __name__ == "__main__":
    main()
