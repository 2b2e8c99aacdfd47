#!/usr/bin/env python3
"""Produce one of the files that follow from the catalogue of routines."""

import argparse
import sys
from pathlib import Path

import catalogue
import exports
import header
import routine_table

PRODUCTS = {
    "header": header.render,
    "version-script": exports.version_script,
    "module-definition": exports.module_definition,
    "routine-names": exports.macro_calls,
    "routine-table": routine_table.render,
}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("product", choices=PRODUCTS)
    parser.add_argument("output", type=Path)
    parser.add_argument("--catalogue", type=Path, default=Path(__file__).parents[1] / "catalogue")
    parser.add_argument("--check", action="store_true", help="fail if OUTPUT differs, instead of writing it")
    options = parser.parse_args()
    try:
        text = PRODUCTS[options.product](catalogue.load(options.catalogue))
    except (catalogue.CatalogueError, KeyError) as error:
        sys.exit(f"catalogue: {error}")
    current = options.output.read_text(encoding="utf-8") if options.output.exists() else None
    if options.check and current != text:
        sys.exit(f"{options.output} does not follow from the catalogue; run ./dev generate")
    if current != text:
        options.output.write_text(text, encoding="utf-8")


if __name__ == "__main__":
    main()
