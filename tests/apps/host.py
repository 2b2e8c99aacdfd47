"""Runs the program on input that a test writes for it."""

import collections
import csv
import io
import os
import shutil
import subprocess
import tempfile
import unittest
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
    if isinstance(value, bool):
        return str(value).lower()
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


def examples(command):
    """The folder of the shipped ones."""
    return Path(__file__).parents[2] / "apps" / "examples" / command


def assert_refused(case, arguments, files, line, status=2):
    """One line, nothing said to be done, and every file as it was."""
    process = run(*arguments, files=files)
    case.assertEqual((process.returncode, process.stdout, process.written), (status, b"", {}), process.stderr)
    case.assertRegex(process.stderr.decode(), rf"^{line}[^\n]*\n$")


needs_gnuplot = unittest.skipIf(EMULATOR or not shutil.which("gnuplot"), "no gnuplot for this program")
