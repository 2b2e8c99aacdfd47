"""quorvel check on the right library, on none, on wrong ones, and in processes whose arithmetic is another one."""

import json
import os
import unittest
from pathlib import Path

import host

LIBRARY, VERSION = Path(os.environ["LIBRARY"]), os.environ["VERSION"]
ROUTINES = len((Path(__file__).parents[2] / "conformance" / "hashes.txt").read_text().splitlines())
STATE = {"QUORVEL_LIBRARY": os.environ["UNFIT_STATE_LIBRARY"]}
RESULTS = {"QUORVEL_LIBRARY": os.environ["UNFIT_RESULTS_LIBRARY"]}
STANDARD, FLUSH, SUBNORMALS_ARE_ZERO = 0x1F80, 0x8000, 0x0040
DOWN, UP, TOWARDS_ZERO = 0x2000, 0x4000, 0x6000


class Check(unittest.TestCase):
    def report(self, status, *arguments, **settings):
        """The findings by what they are about, those that are wrong marked as the text marks them."""
        process = host.run("check", "--json", *arguments, **settings)
        self.assertEqual((process.returncode, process.stderr, process.written), (status, b"", {}), process.stdout)
        answer = json.loads(process.stdout)
        self.assertEqual(answer["subtitle"], "Do not rely on its results here." if status else "All is right.")
        findings = {}
        for row in answer["tables"]["findings"]["rows"]:
            mark = "WRONG: " if row["verdict"] == "WRONG" else ""
            findings.setdefault(row["item"], []).append(mark + row["finding"])
        return {name: "\n".join(found) for name, found in findings.items()}

    def faults(self, *arguments, **settings):
        findings = self.report(1, *arguments, **settings)
        return {name: finding for name, finding in findings.items() if finding.startswith("WRONG: ")}

    def altered(self, before, after):
        """A copy of the library with a text in it replaced by one of the same length."""
        content = LIBRARY.read_bytes()
        self.assertIn(before, content)
        self.assertEqual(len(before), len(after))
        return {"files": {"altered.dll": content.replace(before, after)}, "environment": {"QUORVEL_LIBRARY": "./altered.dll"}}

    def test_right_library(self):
        findings = self.report(0, "--quick")
        self.assertEqual(findings["library"].replace("\\", "/").split("/")[-1], LIBRARY.name)
        self.assertEqual(findings["version"], VERSION)
        self.assertEqual(findings["routines"], f"{ROUTINES} are there")
        self.assertRegex(findings["values"], r"^\d\d+ published examples are met$")

    def test_array_library(self):
        def finding(**settings):
            return self.report(0, "--quick", **settings)["arrays"]

        beside = r"\w+\.(dll|so\.\d+) beside the library, instructions: "
        self.assertRegex(finding(), beside + r"(scalar|v[234])$")
        self.assertRegex(finding(environment={"QUORVEL_LEVEL": "scalar"}), beside + "scalar$")
        name = finding().split()[0]
        alone = self.altered(b"", b"")  # a copy elsewhere
        self.assertEqual(finding(**alone), f"no {name} beside the library")
        content = (LIBRARY.parent / name).read_bytes()
        mark = b"@(#) Quorvel " + VERSION.encode()
        other = content.replace(mark, mark[:-len(VERSION)] + b"9" * len(VERSION))
        for arrays, fault in [(b"no library", f"{name} cannot be loaded"),
                              (other, f"{'9' * len(VERSION)}, and this program checks {VERSION}")]:
            files = alone["files"] | {name: arrays}
            self.assertEqual(self.faults("--quick", **(alone | {"files": files})), {"arrays": "WRONG: " + fault})

    @unittest.skipIf(os.environ["SANITIZED"], "takes minutes under the sanitizers")
    def test_bits(self):
        bits = f"{ROUTINES} routines give the bits they must, in {ROUTINES * 100000} calls"
        self.assertEqual(self.report(0), self.report(0, "--quick") | {"bits": bits})
        if host.EMULATOR:
            return  # each comparison takes a minute there
        self.assertEqual(self.faults(environment=RESULTS), {"bits": "WRONG: other results from PSHDRY"})
        upwards = self.faults(environment=STATE | {"UNFIT_STATE": hex(STANDARD | UP)})
        self.assertRegex(upwards["bits"], r"^WRONG: other results from (\w+, ){4}\d+ more$")

    def test_library_that_is_none(self):
        files = {"text.so": "no library", "empty.so": ""}
        system = "kernel32.dll" if host.EMULATOR else "libc.so.6"
        for name, fault in [("none.so", "cannot load none.so"), ("./text.so", "cannot load ./text.so"),
                            ("./empty.so", "cannot load ./empty.so"), (system, "the library does not export PSSVP")]:
            with self.subTest(name):
                process = host.run("check", files=files, environment={"QUORVEL_LIBRARY": name})
                self.assertEqual((process.returncode, process.stdout), (1, b""))
                self.assertRegex(process.stderr.decode(), rf"^quorvel: {fault}.*\n$")

    def test_library_of_another_version(self):
        mark = b"@(#) Quorvel "
        altered = self.altered(mark + VERSION.encode(), mark + b"9" * len(VERSION))
        fault = f"WRONG: {'9' * len(VERSION)}, and this program checks {VERSION}"
        self.assertEqual(self.faults("--quick", **altered), {"version": fault})
        altered = self.altered(mark, b"x" * len(mark))
        self.assertEqual(self.faults("--quick", **altered), {"version": f"WRONG: unknown, and this program checks {VERSION}"})

    def test_library_without_a_routine(self):
        altered = self.altered(b"\0CLBAN1\0", b"\0CLBAN0\0")
        self.assertEqual(self.faults("--quick", **altered), {"routines": "WRONG: without CLBAN1"})

    def test_other_values(self):
        self.report(0, "--quick", environment=RESULTS)
        faults = self.faults("--quick", environment=RESULTS | {"UNFIT_OFFSET": "1"})
        self.assertEqual(faults.keys(), {"values"})
        self.assertRegex(faults["values"], r"^WRONG: PSHDRY: result is 21.12\d* and not 20.12 ± 0.05 \(1.006 kJ/kgK\)$")

    def test_other_arithmetic(self):
        self.report(0, "--quick", environment=STATE)
        for state, fault in [(STANDARD | FLUSH, "subnormal numbers are flushed to zero"),
                             (STANDARD | SUBNORMALS_ARE_ZERO, "subnormal numbers are taken for zero"),
                             (STANDARD | FLUSH | SUBNORMALS_ARE_ZERO, "subnormal numbers are flushed to zero"),
                             *((STANDARD | mode, "results are not rounded to the nearest number") for mode in (DOWN, UP, TOWARDS_ZERO)),
                             (STANDARD & ~0x0080, "floating-point exceptions end the process"), (0, "floating-point exceptions end the process")]:
            with self.subTest(hex(state)):
                faults = self.faults("--quick", environment=STATE | {"UNFIT_STATE": hex(state)})
                self.assertEqual(faults["arithmetic"], "WRONG: " + fault)

    def test_text_stays_on_one_screen(self):
        process = host.run("check", "--quick", environment=RESULTS | {"UNFIT_OFFSET": "1"})
        lines = process.stdout.decode().splitlines()
        self.assertEqual((process.returncode, lines[1]), (1, "Do not rely on its results here."))
        self.assertLessEqual(len(lines), 24)
        self.assertLessEqual(max(len(line) for line in lines if not line.startswith("  library ")), 100)
        self.assertRegex(process.stdout.decode(), r"\n  values      WRONG    PSHDRY: result")

    def test_command_line(self):
        for arguments in (["--wrong"], ["more"], ["--quick", "--svg", "x.svg"]):
            host.assert_refused(self, ["check", *arguments], {}, "quorvel check: ")
        text = host.run("help", "check").stdout.decode()
        for word in ("--quick", "QUORVEL_LIBRARY", "Exit status"):
            self.assertIn(word, text)


if __name__ == "__main__":
    unittest.main()
