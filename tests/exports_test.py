#!/usr/bin/env python3
"""The library exports exactly the routines of the catalogue, needs no library beyond the system's
own, and the generated files in the tree follow from the catalogue.

    exports_test.py LIBRARY
"""

import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).parents[1]
sys.path.insert(0, str(ROOT / "tools" / "catalogue"))
import catalogue  # noqa: E402

LIBRARY = Path(sys.argv.pop())
WINDOWS = LIBRARY.suffix == ".dll"
SYSTEM = {"KERNEL32.dll", "msvcrt.dll"} if WINDOWS else {"libc.so.6", "libm.so.6", "libgcc_s.so.1", "ld-linux-x86-64.so.2"}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def windows_exports():
    table = output_of("objdump", "-p", LIBRARY).split("[Ordinal/Name Pointer] Table")[1]
    return {line.split()[-1] for line in table.splitlines() if line.strip().startswith("[")}


def elf_exports():
    return {line.split()[-1] for line in output_of("nm", "-D", "--defined-only", LIBRARY).splitlines()}


def needed():
    marker = "DLL Name:" if WINDOWS else "NEEDED"
    return {line.split()[-1] for line in output_of("objdump", "-p", LIBRARY).splitlines() if marker in line}


class Exports(unittest.TestCase):
    def test_exactly_the_catalogue(self):
        described = {routine.export for family in catalogue.load(ROOT / "catalogue") for routine in family.routines}
        self.assertEqual(windows_exports() if WINDOWS else elf_exports(), described)

    def test_no_library_beyond_the_systems(self):
        self.assertLessEqual(needed(), SYSTEM)

    def test_no_transcendental_function_of_the_platform(self):
        if WINDOWS:
            imported = set(output_of("objdump", "-p", LIBRARY).split())
        else:
            imported = {line.split()[-1].split("@")[0] for line in output_of("nm", "-D", "--undefined-only", LIBRARY).splitlines()}
        names = "sin cos tan asin acos atan atan2 sincos exp exp2 exp10 log log2 log10 log1p pow sinh cosh tanh".split()
        self.assertFalse(imported & {name + suffix for name in names for suffix in ("", "f", "l")})

    def test_header_follows_from_the_catalogue(self):
        generate = ROOT / "tools" / "catalogue" / "generate.py"
        done = subprocess.run([sys.executable, generate, "header", ROOT / "include" / "quorvel.h", "--check"])
        self.assertEqual(done.returncode, 0)


if __name__ == "__main__":
    unittest.main()
