#!/usr/bin/env python3
"""The library exports exactly the routines of the catalogue and all those of the last release, says
its version, and needs no library beyond the system's own.

    exports_test.py VERSION LIBRARY
"""

import re
import struct
import subprocess
import sys
import unittest
from pathlib import Path

ROOT = Path(__file__).parents[1]
sys.path[:0] = [str(ROOT / "generate"), str(ROOT / "tests" / "abi")]
import catalogue  # noqa: E402
from check_abi import BASELINE, parameters  # noqa: E402

LIBRARY, VERSION = Path(sys.argv.pop()), sys.argv.pop()
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
        exported = windows_exports() if WINDOWS else elf_exports()
        self.assertEqual(exported, described)
        self.assertLessEqual(parameters(BASELINE).keys(), exported, "the last release exports more")

    def test_no_library_beyond_the_systems(self):
        self.assertLessEqual(needed(), SYSTEM)

    @unittest.skipIf(WINDOWS, "has details instead")
    def test_soname(self):
        soname = re.search(r"SONAME +(\S+)", output_of("objdump", "-p", LIBRARY)).group(1)
        self.assertRegex(soname, r"^libquorvel\.so\.\d+$")
        self.assertEqual(LIBRARY.name, "libquorvel.so." + VERSION)
        for name in (soname, "libquorvel.so"):
            self.assertEqual(LIBRARY.with_name(name).resolve(), LIBRARY.resolve())

    @unittest.skipUnless(WINDOWS, "has a soname instead")
    def test_details_that_windows_shows(self):
        content = LIBRARY.read_bytes()
        found = content.index("VS_VERSION_INFO".encode("utf-16-le"))
        resource = content[found - 6:found - 6 + struct.unpack_from("<H", content, found - 6)[0]]
        numbers = [int(part) for part in VERSION.split(".")]
        fixed = struct.pack("<II", 0xFEEF04BD, 0x10000) + 2 * struct.pack("<HHHH", numbers[1], numbers[0], 0, numbers[2])
        self.assertEqual(resource[40:64], fixed)
        texts = resource[92:].decode("utf-16-le", "replace")
        for name, value in {"ProductName": "Quorvel", "ProductVersion": VERSION, "FileVersion": VERSION,
                            "FileDescription": "Building-physics and building-services calculations"}.items():
            self.assertRegex(texts, f"{name}\0+{re.escape(value)}\0")

    def test_no_transcendental_function_of_the_platform(self):
        if WINDOWS:
            imported = set(output_of("objdump", "-p", LIBRARY).split())
        else:
            imported = {line.split()[-1].split("@")[0] for line in output_of("nm", "-D", "--undefined-only", LIBRARY).splitlines()}
        names = "sin cos tan asin acos atan atan2 sincos exp exp2 exp10 log log2 log10 log1p pow sinh cosh tanh".split()
        self.assertFalse(imported & {name + suffix for name in names for suffix in ("", "f", "l")})


if __name__ == "__main__":
    unittest.main()
