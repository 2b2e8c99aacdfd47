#!/usr/bin/env python3
"""Produce what follows from the catalogue of routines.

    generate.py [--check]                    all files that are held in the tree
    generate.py [--check|--list] PRODUCT OUTPUT
                                             one product of the build; OUTPUT is a folder for several files
"""

import argparse
import sys
from pathlib import Path

import array_header
import array_kernels
import catalogue
import cpp_examples
import entry_points
import example_table
import exports
import host_headers
import interface
import routine_table
from languages import csharp_tests, fortran_tests, pascal_tests, python_core, r_tests, rust_tests

PRODUCTS = {
    "interface": interface.render,
    "version-script": exports.version_script,
    "module-definition": exports.module_definition,
    "array-version-script": exports.array_version_script,
    "array-module-definition": exports.array_module_definition,
    "wasm-exports": exports.wasm_exports,
    "arrays-only": routine_table.arrays_only,
    "array-functions": array_header.definitions,
    "routine-names": exports.macro_calls,
    "routine-table": routine_table.render,
    "examples": example_table.render,
    "python-core": python_core.render,
}
FOLDERS = {
    "cpp-examples": cpp_examples.files,
    "csharp-tests": csharp_tests.files,
    "entry-points": entry_points.files,
    "fortran-tests": fortran_tests.files,
    "pascal-tests": pascal_tests.files,
    "host-headers": host_headers.files,
    "pack-kernels": array_kernels.with_packs,
    "r-tests": r_tests.files,
    "rust-tests": rust_tests.files,
    "single-kernels": array_kernels.alone,
}


def texts(options, families):
    """What to write, by file."""
    if not options.product:
        import held  # needs more than the builds do

        return held.texts(families)
    if options.product in FOLDERS:
        return {options.output / name: text for name, text in FOLDERS[options.product](families).items()}
    return {options.output: PRODUCTS[options.product](families)}


def outdated(output, text):
    return not output.exists() or output.read_bytes() != text.encode()


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("product", nargs="?", choices=[*PRODUCTS, *FOLDERS])
    parser.add_argument("output", nargs="?", type=Path)
    parser.add_argument("--catalogue", type=Path, default=Path(__file__).parents[1] / "catalogue")
    parser.add_argument("--check", action="store_true", help="fail if a file differs, instead of writing it")
    parser.add_argument("--list", action="store_true", help="only name the files, as a list of CMake")
    options = parser.parse_args()
    if options.product and not options.output:
        parser.error("a product needs an OUTPUT")
    try:
        wanted = texts(options, catalogue.load(options.catalogue))
    except catalogue.CatalogueError as error:
        sys.exit(f"catalogue: {error}")
    if options.list:
        print(";".join(map(str, wanted)), end="")
        return
    stale = {output: text for output, text in wanted.items() if outdated(output, text)}
    if options.check and stale:
        sys.exit(f"not as generated, run ./dev generate: {', '.join(map(str, stale))}")
    for output, text in stale.items():
        output.parent.mkdir(parents=True, exist_ok=True)
        output.write_text(text, encoding="utf-8", newline="\n")


if __name__ == "__main__":
    main()
