#!/usr/bin/env python3
"""The libraries export exactly the routines of the catalogue and all those of the last release, say
their version, need no library beyond the system's own, and nothing of the folder or the libraries
that they meet in a process.

    exports_test.py VERSION LIBRARY ARRAY_LIBRARY
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

ARRAYS, LIBRARY, VERSION = Path(sys.argv.pop()), Path(sys.argv.pop()), sys.argv.pop()
WINDOWS = LIBRARY.suffix == ".dll"
SYSTEM = {"KERNEL32.dll", "msvcrt.dll"} if WINDOWS else {"libc.so.6", "libm.so.6", "libgcc_s.so.1", "ld-linux-x86-64.so.2"}
FAMILIES = catalogue.load(ROOT / "catalogue")
ROUTINES = [routine for family in FAMILIES for routine in family.routines]


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def is_elf(path):
    return path.is_file() and path.read_bytes()[:4] == b"\x7fELF"


def exports(library):
    if not WINDOWS:
        return {line.split()[-1] for line in output_of("nm", "-D", "--defined-only", library).splitlines()}
    table = output_of("objdump", "-p", library).split("[Ordinal/Name Pointer] Table")[1]
    return {line.split()[-1] for line in table.splitlines() if line.strip().startswith("[")}


def imports(library):
    if WINDOWS:
        return set(output_of("objdump", "-p", library).split())
    return {line.split()[-1].split("@")[0] for line in output_of("nm", "-D", "--undefined-only", library).splitlines()}


def needed(library):
    marker = "DLL Name:" if WINDOWS else "NEEDED"
    return {line.split()[-1] for line in output_of("objdump", "-p", library).splitlines() if marker in line}


def each_library(test):
    def run(self):
        for library in (LIBRARY, ARRAYS):
            with self.subTest(library.name):
                test(self, library)

    return run


class EitherLibrary(unittest.TestCase):
    @each_library
    def test_no_library_beyond_the_systems(self, library):
        self.assertLessEqual(needed(library), SYSTEM)

    @unittest.skipIf(WINDOWS, "has details instead")
    @each_library
    def test_soname(self, library):
        stem = library.name.split(".")[0]
        soname = re.search(r"SONAME +(\S+)", output_of("objdump", "-p", library)).group(1)
        self.assertRegex(soname, rf"^{stem}\.so\.\d+$")
        self.assertEqual(library.name, f"{stem}.so.{VERSION}")
        for name in (soname, f"{stem}.so"):
            self.assertEqual(library.with_name(name).resolve(), library.resolve())

    @unittest.skipUnless(WINDOWS, "has a soname instead")
    @each_library
    def test_details_that_windows_shows(self, library):
        content = library.read_bytes()
        found = content.index("VS_VERSION_INFO".encode("utf-16-le"))
        resource = content[found - 6:found - 6 + struct.unpack_from("<H", content, found - 6)[0]]
        numbers = [int(part) for part in VERSION.split(".")]
        fixed = struct.pack("<II", 0xFEEF04BD, 0x10000) + 2 * struct.pack("<HHHH", numbers[1], numbers[0], 0, numbers[2])
        self.assertEqual(resource[40:64], fixed)
        texts = resource[92:].decode("utf-16-le", "replace")
        for name, value in {"ProductName": "Quorvel", "ProductVersion": VERSION, "FileVersion": VERSION,
                            "FileDescription": "Building-physics and building-services calculations",
                            "OriginalFilename": library.name}.items():
            self.assertRegex(texts, f"{name}\0+{re.escape(value)}\0")

    @unittest.skipIf(WINDOWS, "binds no names of its own")
    @each_library
    def test_nothing_of_its_own_is_called_by_an_exported_name(self, library):
        relocated = set(re.findall(r"(\w+)\S* \+ ", output_of("readelf", "-rW", library)))
        self.assertTrue(relocated)
        self.assertFalse(relocated & exports(library))

    @each_library
    def test_no_transcendental_function_of_the_platform(self, library):
        names = "sin cos tan asin acos atan atan2 sincos exp exp2 exp10 log log2 log10 log1p pow sinh cosh tanh".split()
        self.assertFalse(imports(library) & {name + suffix for name in names for suffix in ("", "f", "l")})


class Exports(unittest.TestCase):
    def test_exactly_the_catalogue(self):
        self.assertEqual(exports(LIBRARY), {routine.export for routine in ROUTINES if routine.export})

    def test_arrays_of_the_catalogue_and_what_their_header_declares(self):
        header = (ROOT / "include" / "quorvel_arrays.h").read_text(encoding="utf-8")
        declared = set(re.findall(r"^QUORVEL_ARRAYS_API .*?\b(quorvel_\w+)\(", header, re.MULTILINE))
        self.assertEqual(exports(ARRAYS), declared)
        elementwise = {r.name for r in ROUTINES if not r.state and all(arg.type != "Text" for arg in r.args)}
        self.assertGreater(len(elementwise), len(ROUTINES) // 2)
        self.assertLessEqual({f"quorvel_{name}" for name in elementwise}, declared)

    def test_hosts_find_what_the_last_release_exports(self):
        """A routine may come, but none go or change how it is called, unless SOVERSION rises: ./dev interface."""
        recorded = (ROOT / "conformance" / "interface.txt").read_text(encoding="utf-8").splitlines()
        self.assertLessEqual(set(recorded), set(interface.render(FAMILIES).splitlines()))

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


if __name__ == "__main__":
    unittest.main()
