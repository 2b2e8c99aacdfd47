#!/usr/bin/env python3
"""Produce one of the files that follow from the catalogue of routines."""

import argparse
import sys
from pathlib import Path

import catalogue
import entry_points
import exports
import header
import interface
import routine_table

PRODUCTS = {
    "header": header.render,
    "interface": interface.render,
    "version-script": exports.version_script,
    "module-definition": exports.module_definition,
    "routine-names": exports.macro_calls,
    "routine-table": routine_table.render,
}
# Products of several files: OUTPUT is their folder
FOLDERS = {"entry-points": entry_points.files}


def outdated(output, text):
    return not output.exists() or output.read_text(encoding="utf-8") != text


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("product", choices=[*PRODUCTS, *FOLDERS])
    parser.add_argument("output", type=Path)
    parser.add_argument("--catalogue", type=Path, default=Path(__file__).parents[1] / "catalogue")
    parser.add_argument("--check", action="store_true", help="fail if OUTPUT differs, instead of writing it")
    parser.add_argument("--list", action="store_true", help="only name the files, as a list of CMake")
    options = parser.parse_args()
    try:
        families = catalogue.load(options.catalogue)
    except catalogue.CatalogueError as error:
        sys.exit(f"catalogue: {error}")
    if options.product in FOLDERS:
        texts = {options.output / name: text for name, text in FOLDERS[options.product](families).items()}
    else:
        texts = {options.output: PRODUCTS[options.product](families)}
    if options.list:
        print(";".join(map(str, texts)), end="")
        return
    for output, text in texts.items():
        if not outdated(output, text):
            continue
        if options.check:
            sys.exit(f"{output} does not follow from the catalogue; run ./dev generate")
        output.parent.mkdir(parents=True, exist_ok=True)
        output.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
