#!/usr/bin/env python3
"""The library exports exactly the routines of the catalogue and all those of the last release, says
its version, needs no library beyond the system's own, and nothing of the folder or the libraries
that it meets in a process.

    exports_test.py VERSION LIBRARY
"""

import re
import struct
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).parents[1]
sys.path.insert(0, str(ROOT / "generate"))
import catalogue  # noqa: E402
import interface  # noqa: E402

LIBRARY, VERSION = Path(sys.argv.pop()), sys.argv.pop()
WINDOWS = LIBRARY.suffix == ".dll"
SYSTEM = {"KERNEL32.dll", "msvcrt.dll"} if WINDOWS else {"libc.so.6", "libm.so.6", "libgcc_s.so.1", "ld-linux-x86-64.so.2"}


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def is_elf(path):
    return path.is_file() and path.read_bytes()[:4] == b"\x7fELF"


def described():
    return {routine.export for family in catalogue.load(ROOT / "catalogue") for routine in family.routines}


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
        exported = windows_exports() if WINDOWS else elf_exports()
        self.assertEqual(exported, described())

    def test_hosts_find_what_the_last_release_exports(self):
        """A routine may come, but none go or change how it is called, unless SOVERSION rises: ./dev interface."""
        recorded = (ROOT / "conformance" / "interface.txt").read_text(encoding="utf-8").splitlines()
        current = interface.render(catalogue.load(ROOT / "catalogue")).splitlines()
        self.assertLessEqual(set(recorded), set(current))

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

    @unittest.skipIf(WINDOWS, "binds no names of its own")
    def test_no_routine_is_called_by_its_exported_name(self):
        relocated = set(re.findall(r"(\w+)\S* \+ ", output_of("readelf", "-rW", LIBRARY)))
        self.assertTrue(relocated)
        self.assertFalse(relocated & described())

    @unittest.skipIf(WINDOWS, "has no run paths")
    def test_run_paths_start_at_the_file(self):
        # An empty element is the folder in which a program is started.
        with tempfile.TemporaryDirectory() as prefix:
            output_of("cmake", "--install", LIBRARY.parent, "--prefix", prefix)
            for path in filter(is_elf, (*LIBRARY.parent.iterdir(), *Path(prefix).rglob("*"))):
                for run_path in re.findall(r"R(?:UN)?PATH +(.*)", output_of("objdump", "-p", path)):
                    for element in run_path.split(":"):
                        self.assertRegex(element, r"^\$ORIGIN(/|$)", f"{path}: {run_path}")

    @unittest.skipUnless(WINDOWS, "has no such notifications")
    def test_thread_notifications_can_be_switched_off(self):
        headers = output_of("objdump", "-p", LIBRARY)
        # Windows refuses it to libraries with thread-local storage.
        self.assertTrue("DisableThreadLibraryCalls" in headers)
        self.assertEqual(re.search(r"Entry 9 (\w+) (\w+) Thread Storage", headers).groups(), ("0" * 16, "0" * 8))

    @unittest.skipUnless(WINDOWS, "has start files")
    def test_nothing_is_left_to_start_files(self):
        lines = map(str.split, output_of("nm", LIBRARY).splitlines())
        symbols = {line[2]: int(line[0], 16) for line in lines if len(line) == 3}
        entry = re.search(r"start address (\w+)", output_of("objdump", "-f", LIBRARY)).group(1)
        self.assertEqual(symbols["DllMain"], int(entry, 16))
        # Next to each other: no constructors between the two ends of their list, no relocations in theirs.
        self.assertEqual(symbols["__DTOR_LIST__"] - symbols["__CTOR_LIST__"], 16)
        self.assertEqual(symbols["__RUNTIME_PSEUDO_RELOC_LIST__"], symbols["__RUNTIME_PSEUDO_RELOC_LIST_END__"])

    def test_no_transcendental_function_of_the_platform(self):
        if WINDOWS:
            imported = set(output_of("objdump", "-p", LIBRARY).split())
        else:
            imported = {line.split()[-1].split("@")[0] for line in output_of("nm", "-D", "--undefined-only", LIBRARY).splitlines()}
        names = "sin cos tan asin acos atan atan2 sincos exp exp2 exp10 log log2 log10 log1p pow sinh cosh tanh".split()
        self.assertFalse(imported & {name + suffix for name in names for suffix in ("", "f", "l")})


if __name__ == "__main__":
    unittest.main()
