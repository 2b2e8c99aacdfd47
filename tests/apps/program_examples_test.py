"""All commands on all examples: every output says the same, every help and man page can be read."""

import json
import shutil
import subprocess
import unittest

import host

EXAMPLES = [path for command in ("wall", "window") for path in sorted(host.examples(command).glob("*.toml"))]
OPTIONS = {"overhang_or_glass.toml": ["--months"]}  # it has no day of its own


def output(*arguments):
    process = host.run(*arguments)
    assert process.returncode == 0, process
    return process.stdout.decode()


def number(value):
    """What reads as a number is one: CSV does not tell."""
    try:
        return float(value)
    except ValueError:
        return value


def values(row):
    """What there is in it; of parts with different columns the order is another one."""
    return sorted((number(value) for name, value in row.items() if name != "part" and value not in (None, "")), key=str)


class Examples(unittest.TestCase):
    def test_outputs_say_the_same(self):
        self.assertGreater(len(EXAMPLES), 10)
        for path in EXAMPLES:
            with self.subTest(path.name):
                arguments = [path.parent.name, *OPTIONS.get(path.name, []), str(path)]
                text, answer = output(*arguments, "--tables"), json.loads(output(*arguments, "--json"))
                self.assertEqual([line for line in text.splitlines() if len(line) > 100], [])
                parts = [answer, *answer["parts"].values()]
                for key in {key: None for part in parts for key in part["tables"]}:
                    rows = [row for part in parts if key in part["tables"] for row in part["tables"][key]["rows"]]
                    lines = host.rows(output(*arguments, "--csv", "--table", key))
                    self.assertEqual([values(line) for line in lines], [values(row) for row in rows], key)


class Descriptions(unittest.TestCase):
    def test_of_every_command(self):
        process = host.run("--write-share", "share")
        pages = {
            name.split("/")[-1].removesuffix(".1"): text
            for name, text in process.written.items() if name.endswith(".1")
        }
        self.assertLess(
            {"quorvel", "quorvel-window", "quorvel-wall", "quorvel-climate-pack", "quorvel-materials", "quorvel-check"},
            set(pages))
        for name, page in pages.items():
            with self.subTest(name):
                words = [name.removeprefix("quorvel-climate-")] if "climate-" in name else []
                command = ["climate", *words] if words else name.split("-")[1:]
                self.assertEqual([line for line in output("help", *command).splitlines() if len(line) > 78], [])
                if shutil.which("groff"):
                    lint = subprocess.run(["groff", "-man", "-Tutf8", "-Kutf8", "-ww", "-z"],
                                          input=page,
                                          capture_output=True)
                    self.assertEqual(lint.stderr, b"")


if __name__ == "__main__":
    unittest.main()
