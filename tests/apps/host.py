"""Runs a host program on input that a test writes for it."""

import collections
import csv
import io
import os
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from pathlib import Path

EMULATOR = os.environ.get("QUORVEL_EMULATOR")  # unset or empty where the program runs by itself
PROGRAM = [EMULATOR] * bool(EMULATOR) + [os.environ["QUORVEL_HOST"]]


Finished = collections.namedtuple("Finished", "returncode stdout stderr written")


def run(*arguments, files=None, environment=None):
    """Runs the program in a folder of its own that holds `files` (name: text or bytes).

    `written` are the files that it left there new or changed, by name. Its output goes to files too: an emulator's
    background processes keep pipes open long after the program has ended."""
    with tempfile.TemporaryDirectory() as folder, tempfile.TemporaryFile() as out, tempfile.TemporaryFile() as err:
        given = {name: text if isinstance(text, bytes) else text.encode() for name, text in (files or {}).items()}
        for name, content in given.items():
            Path(folder, name).parent.mkdir(exist_ok=True)
            Path(folder, name).write_bytes(content)
        status = subprocess.run([*PROGRAM, *arguments], cwd=folder, env=os.environ | (environment or {}),
                                stdin=subprocess.DEVNULL, stdout=out, stderr=err, timeout=120).returncode
        for stream in (out, err):
            stream.seek(0)
        left = {path.relative_to(folder).as_posix(): path.read_bytes() for path in Path(folder).rglob("*") if path.is_file()}
        written = {name: content for name, content in left.items() if given.get(name) != content}
        return Finished(status, out.read(), err.read(), written)


def toml(value):
    """A value as TOML writes it."""
    if isinstance(value, dict):
        return "{ " + ", ".join(f"{key} = {toml(part)}" for key, part in value.items()) + " }"
    if isinstance(value, list):
        return "[" + ", ".join(map(toml, value)) + "]"
    return f'"{value}"' if isinstance(value, str) else str(value)


def table(heading, keys):
    return heading + "\n" + "".join(f"{key} = {toml(value)}\n" for key, value in keys.items())


def rows(text):
    """Lines of comma-separated values as dictionaries; numbers as floats, empty fields as None."""
    def value(field):
        try:
            return float(field)
        except ValueError:
            return field or None
    return [{key: value(field) for key, field in row.items()} for row in csv.DictReader(io.StringIO(text))]


def examples(program):
    """The folder of the shipped ones."""
    return Path(__file__).parents[2] / "apps" / program / "examples"


def assert_refused(case, arguments, files, line, status=2):
    """One line, nothing said to be done, and every file as it was."""
    process = run(*arguments, files=files)
    case.assertEqual((process.returncode, process.stdout, process.written), (status, b"", {}), process.stderr)
    case.assertRegex(process.stderr.decode(), rf"^{line}[^\n]*\n$")


needs_gnuplot = unittest.skipIf(EMULATOR or not shutil.which("gnuplot"), "no gnuplot for this program")


class InputCase:
    """What every host's bad input is held to; a test case adds it, with a `good` text, as `bad` texts with what the
    one line must name after "job.toml:LINE: ", and as `at_line` one of them with the line that is at fault."""

    def expect_refusal(self, arguments, line, text=None, status=2):
        assert_refused(self, arguments, {"job.toml": self.good if text is None else text}, line, status)

    def test_each_fault_gets_one_line_and_status_2(self):
        for text, message in self.bad:
            with self.subTest(message):
                line = r"(:\d+)?" if message.startswith("missing") else r":\d+"  # of a table that is not there
                self.expect_refusal(["job.toml"], rf"job\.toml{line}: {re.escape(message)}", text)

    def test_the_line_is_that_of_the_value(self):
        text, line, message = self.at_line
        number = text.splitlines().index(line) + 1
        self.expect_refusal(["job.toml"], rf"job\.toml:{number}: {re.escape(message)}", text)

    def test_arguments_and_files(self):
        for arguments, line in [(["none.toml"], "none.toml: cannot be read"), (["."], r"\.: cannot be read"),
                                ([], ".*FILE is required"), (["job.toml", "more"], ".*more"), (["job.toml", "--svg"], ".*--svg")]:
            with self.subTest(arguments):
                self.expect_refusal(arguments, line)

    def test_missing_library(self):
        process = run("job.toml", files={"job.toml": self.good}, environment={"QUORVEL_LIBRARY": "none.so"})
        self.assertEqual((process.returncode, process.stdout), (1, b""))
        self.assertRegex(process.stderr.decode(), r"^\w+: cannot load none.so[^\n]*\n$")


class ReportCase:
    """What every host's printed report and help are held to; a test case adds it and names its `examples` and the
    `keys` of its input."""

    def report(self, text):
        process = run("job.toml", files={"job.toml": text})
        self.assertEqual((process.returncode, process.stderr), (0, b""))
        self.assertNotIn(b"\r", process.stdout)
        return process.stdout.decode()

    def test_examples_run_and_say_the_same_twice(self):
        examples = sorted(self.examples.glob("*.toml"))
        self.assertGreaterEqual(len(examples), 3)
        for example in examples:
            first, second = (self.report(example.read_bytes()) for _ in range(2))
            self.assertEqual(first, second)
            self.assertNotRegex(first, r"\b(nan|inf)\b|-0\.0\b| \n")

    def test_help_names_every_key(self):
        text = run("--help").stdout.decode()
        self.assertEqual([key for key in self.keys if key not in text], [])
        self.assertLessEqual(max(map(len, text.splitlines())), 100)


@needs_gnuplot
class ChartCase:
    def draw(self, text, *options):
        """The picture, which is the same twice and leaves nothing behind; and the words in it."""
        one, other = (run("--svg", "chart.svg", *options, "job.toml", files={"job.toml": text}) for _ in range(2))
        self.assertEqual((one.returncode, one.stderr, list(one.written)), (0, b"", ["chart.svg"]))
        self.assertEqual(one.written, other.written)
        picture = one.written["chart.svg"].decode()
        return picture, " ".join(ElementTree.fromstring(picture).itertext())
