#!/usr/bin/env python3
"""What the comparison of interfaces has to notice, by baselines that differ from the committed one."""

import copy
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

from check_abi import BASELINE, compare, parameters


class Comparison(unittest.TestCase):
    def setUp(self):
        self.baseline = ElementTree.parse(BASELINE)
        self.symbols = self.baseline.find("elf-function-symbols")

    def function(self, name):
        """The routine's entry, and the element that it is in."""
        for parent in self.baseline.iter("abi-instr"):
            for function in parent.findall("function-decl"):
                if function.get("elf-symbol-id") == name:
                    return parent, function
        self.fail(f"no {name} in the baseline")

    def compared(self):
        with tempfile.TemporaryDirectory() as folder:
            altered = Path(folder, "altered.abi")
            self.baseline.write(altered)
            return compare(altered, BASELINE)

    def assert_broken(self, *words):
        same, report = self.compared()
        self.assertFalse(same, report)
        for word in words:
            self.assertIn(word, report)

    def test_the_same_and_new_routines_pass(self):
        self.assertEqual(self.compared(), (True, ""))
        parent, function = self.function("PSSVP")
        parent.remove(function)
        self.symbols.remove(self.symbols.find("elf-symbol[@name='PSSVP']"))
        same, report = self.compared()
        self.assertTrue(same)
        self.assertIn("[A] 'function quorvel::Real PSSVP(", report)

    def test_a_routine_that_went(self):
        parent, function = self.function("PSSVP")
        for place, entry in ((parent, function), (self.symbols, self.symbols.find("elf-symbol[@name='PSSVP']"))):
            gone = copy.deepcopy(entry)
            for key in gone.attrib.keys() & {"name", "mangled-name", "elf-symbol-id"}:
                gone.set(key, "GONE")
            place.append(gone)
        self.assert_broken("1 Removed function", "{GONE}")

    def test_other_types_of_arguments_and_results(self):
        """Another type, another number of arguments, an input for an output, another result."""
        types = [parameter.get("type-id") for parameter in self.function("CLBAN1")[1].findall("parameter")]
        real, integer, output = types[0], types[1], types[3]
        self.assertEqual(len({real, integer, output}), 3)
        for routine, before, after in [("PSSVP", real, integer), ("CLDAY", output, integer), ("CLDAY", integer, output)]:
            with self.subTest(routine=routine, before=before):
                self.setUp()
                self.function(routine)[1].find(f"parameter[@type-id='{before}']").set("type-id", after)
                self.assert_broken(f" {routine}(", "parameter ")
        self.setUp()
        self.function("PSVP")[1].remove(self.function("PSVP")[1].find("parameter"))
        self.assert_broken(" PSVP(", "parameter ")
        self.setUp()
        self.function("PSVP")[1].find("return").set("type-id", self.function("ICLDAY")[1].find("return").get("type-id"))
        self.assert_broken(" PSVP(", "return type changed")

    def test_arguments_that_changed_places(self):
        first, second = self.function("PSVP")[1].findall("parameter")
        first.attrib, second.attrib = second.attrib, first.attrib
        self.assert_broken("PSVP: (rh, t) became (t, rh)")

    def test_the_soname_goes_with_the_interface(self):
        self.baseline.getroot().set("soname", "libquorvel.so.77")
        self.assert_broken("SONAME changed from 'libquorvel.so.77'")

    def test_baseline_names_every_argument_it_can(self):
        names = [name for routine in parameters(BASELINE).values() for name in routine]
        self.assertLess(names.count(""), len(names) / 20)


if __name__ == "__main__":
    unittest.main()
