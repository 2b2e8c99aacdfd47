#!/usr/bin/env python3
"""The reader of the catalogue rejects what it does not know, and names the file and the line."""

import shutil
import sys
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).parents[1]
sys.path.insert(0, str(ROOT / "generate"))
import catalogue  # noqa: E402

QUANTITIES, TOPIC = "quantities.toml", "psychro/saturation.toml"
CLIPPING, PROFILE = "geometry/clipping.toml", "fabric/condensation.toml"

GLOSS = "[gloss]\nunit = '1'\nmeaning = 'gloss'\n"
DONE = "statuses = [{ status = 0, name = 'done', meaning = 'success' }]\n"
ROOM = 'name = "interface_temperature", dir = "out", shape = [21], filled = { interfaces = "layers + 1" }'
CHOICE, PRESSURE = '{ is = "psychrometer" }', '{ is = "pressure" }'

# File, a text that stands there once, what stands in its place, and the complaint about that line.
FAULTS = [
    (QUANTITIES, 'unit = "Pa s"', 'units = "Pa s"', "unknown key units"),
    (QUANTITIES, 'unit = "Pa s"', "unit = 3", "unit must not be 3"),
    (QUANTITIES, "[viscosity]", "[type]", "type is a reserved word of Python"),
    (QUANTITIES, "[viscosity]", GLOSS + "[viscosity]", "no routine has the quantity gloss"),
    (QUANTITIES, "sling = [1,", "sling = [2,", "two values of the selector have one number"),
    (QUANTITIES, "range = [50000, 110000]", "range = [110000, 50000]", "range must not be [110000, 50000]"),
    (TOPIC, 'export = "PSVAP"', 'export = "PSVP"', "PSVP is described twice"),
    (TOPIC, 'export = "PSVAP"', 'export = "psvap"', "not an exported name"),
    (TOPIC, 'export = "PSVAP"', 'state = "an open file"', "without an exported name a routine is a formula for each element"),
    (TOPIC, CHOICE, '{ is = "hygrometer" }', "there is no quantity hygrometer"),
    (TOPIC, CHOICE, '{ is = "psychrometer", name = "unit" }', "unit is a reserved word of Pascal"),
    (TOPIC, CHOICE, '{ is = "psychrometer", name = "pressure" }', "pressure stands twice"),
    (TOPIC, CHOICE, '{ is = "psychrometer", shape = ["count"] }', "extent count is no Integer that is given"),
    (TOPIC, 'export = "PSVAP"', 'by_reference = ["A count below 1 is none."]', "there is no call by reference"),
    (PROFILE, ROOM, ROOM.replace("21", "22"), "an output with room for the most interfaces is needed"),
    (PROFILE, ROOM, ROOM.replace("layers", "panes"), "panes is no count with a highest value"),
    (TOPIC, CHOICE, '{ is = "psychrometer", draw = [0.5, 2] }', "an Integer is drawn from whole ends"),
    (TOPIC, PRESSURE, '{ is = "pressure", range = [1, inf] }', "an input without upper or lower limit needs a draw"),
    (TOPIC, 'psychrometer = "sling" }', 'psychrometer = "hair" }', "hair is no value of the selector"),
    (TOPIC, "pressure = 101325,", "humidity = 101325,", "humidity is not given to PSVAP"),
    (TOPIC, "pressure = 101325,", "", "pressure is not given"),
    (TOPIC, "gives = { result = 2002 }", "gives = { wet_bulb = 2002 }", "wet_bulb is not returned by PSVAP"),
    (CLIPPING, '3, name = "ring_a_crosses_itself"', '2, name = "ring_a_crosses_itself"', "status 2 stands twice"),
    (CLIPPING, 'fault = "a has no area"', 'warning = "a has no area"', "unknown key warning"),
    (CLIPPING, 'success" }', 'success", fault = "none" }', "a status has a fault, 0 has none"),
    (TOPIC, 'export = "PSVAP"', DONE + 'export = "PSVAP"', "an output status goes with statuses"),
    (TOPIC, "within = 9,", "within = { wet_bulb = 9 },", "within needs a tolerance for each result"),
]


class Reader(unittest.TestCase):
    def test_faults(self):
        for file, text, fault, complaint in FAULTS:
            with self.subTest(fault), tempfile.TemporaryDirectory() as folder:
                copy = Path(shutil.copytree(ROOT / "catalogue", Path(folder, "catalogue")))
                content = (copy / file).read_text(encoding="utf-8")
                self.assertEqual(content.count(text), 1)
                line = content[:content.index(text)].count("\n") + 1
                (copy / file).write_text(content.replace(text, fault), encoding="utf-8")
                with self.assertRaises(catalogue.CatalogueError) as caught:
                    catalogue.load(copy)
                self.assertEqual(str(caught.exception), f"{copy / file}:{line}: {complaint}")


if __name__ == "__main__":
    unittest.main()
