"""What all commands share: outputs, help, completion and faults, around toy commands."""

import json
import os
import re
import shutil
import stat
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree
from html.parser import HTMLParser
from pathlib import Path

import host

GOOD, OTHER = 'name = "Toy"\n', 'name = "Other"\n'
FILES = {"a.toml": GOOD, "b.toml": OTHER}
OLD = b"an older file"
VOID = {"meta", "rect", "path", "circle", "use", "line", "polygon"}


def answered(*arguments, files=FILES, **settings):
    process = host.run(*arguments, files=files, **settings)
    assert process.returncode == 0, process
    return process.stdout.decode()


class Outputs(unittest.TestCase):
    def test_the_same_digits_everywhere(self):
        values = {"0.125": "0.12", "-0.001": "0.00", "1e-7": "0.00", "123456.789": "123456.79", "2.675": "2.67"}
        for value, digits in values.items():
            files = {"a.toml": GOOD + f"value = {value}\n"}
            figures = json.loads(answered("read", "--json", "a.toml", files=files))["figures"]
            self.assertEqual(figures["u_value"]["value"], float(digits))
            self.assertEqual(figures["given"]["value"], float(value))
            self.assertRegex(answered("read", "a.toml", files=files), rf"U-value +{digits} ")
            self.assertIn(f",{digits},", answered("read", "--csv", "--table", "figures", "a.toml", files=files))

    def test_json(self):
        one = json.loads(answered("read", "--json", "a.toml"))
        self.assertEqual([one[key] for key in ("command", "input", "title", "warnings", "wrong")],
                         ["read", "a.toml", "Toy", [], False])
        self.assertEqual(one["figures"]["unknown"], {"name": "Unknown", "unit": "°C", "value": None})
        self.assertEqual(one["figures"]["count"]["value"], 7)
        self.assertEqual(one["tables"]["wide"]["rows"][0]["q3"], 3.2)
        self.assertEqual(one["parts"]["south"]["tables"]["hours"]["rows"], [{
            "hour": 1,
            "gain": 2.0
        }, {
            "hour": 2,
            "gain": 4.1
        }, {
            "hour": 3,
            "gain": None
        }])
        self.assertEqual(one["inputs"]["figures"]["name"]["value"], "Toy")
        self.assertEqual([each["title"] for each in json.loads(answered("read", "--json", "a.toml", "b.toml"))],
                         ["Toy", "Other"])

    def test_csv(self):
        rows = host.rows(answered("read", "--csv", "a.toml", "b.toml"))  # the main table
        self.assertEqual(len(rows), 12)
        self.assertEqual(rows[4], {"input": "a.toml", "part": "south", "hour": 2, "gain_W_m2K": 4.1})
        self.assertIsNone(rows[5]["gain_W_m2K"])
        self.assertEqual(
            list(host.rows(answered("read", "--csv", "--table", "wide", "a.toml"))[0])[:2], ["month", "q0_W"])
        figures = host.rows(answered("read", "--csv", "--table", "figures", "a.toml"))
        self.assertEqual((figures[0]["kind"], figures[1]["part"]), ('a "word", and more', "north"))
        host.assert_refused(self, ["read", "--csv", "--table", "x", "a.toml"], FILES,
                            '--table: no table "x"; there are wide, hours, figures')

    def test_text(self):
        text = answered("read", "a.toml", "b.toml")
        self.assertLessEqual(max(map(len, text.splitlines())), 100)
        self.assertEqual(re.findall("^── (.*) ──$", text, re.M), ["a.toml", "b.toml"])
        self.assertEqual(text.count("  month  "), 6)  # the first column begins each part of a wide table
        self.assertIn("With --tables also: Hours north", text)
        self.assertNotIn("\nHours north\n", text)
        self.assertIn("\nHours north\n", answered("read", "--tables", "a.toml"))

    def test_standard_input(self):
        with tempfile.TemporaryFile() as given:
            given.write(GOOD.encode())
            given.seek(0)
            process = subprocess.run([*host.PROGRAM, "read", "--json", "-"],
                                     stdin=given,
                                     stdout=subprocess.PIPE,
                                     timeout=120)
        self.assertEqual(json.loads(process.stdout)["input"], "standard input")
        host.assert_refused(self, ["read", "-"], {}, "standard input:1: missing name")

    def test_faults_of_all_inputs_are_told_and_nothing_is_written(self):
        files = FILES | {"c.toml": "name = 1", "d.toml": "x = 1"}
        process = host.run("read", "a.toml", "c.toml", "d.toml", "none.toml", "-o", "out.txt", files=files)
        self.assertEqual((process.returncode, process.stdout, process.written), (2, b"", {}))
        self.assertEqual([line.split(" ")[0] for line in process.stderr.decode().splitlines()],
                         ["c.toml:1:", "d.toml:1:", "none.toml:"])

    def test_warnings_and_verdicts(self):
        files = {"a.toml": GOOD + "replaced = 1\n", "b.toml": 'name = "wrong"\n'}
        process = host.run("read", "a.toml", files=files)
        self.assertEqual((process.returncode, process.stderr), (0, b"a.toml: warning: 3 values replaced\n"))
        host.assert_refused(self, ["read", "--strict", "a.toml"], files, "a.toml: 3 values replaced")
        self.assertEqual(host.run("read", "a.toml", "b.toml", files=files).returncode, 1)


class Report(HTMLParser):
    """Elements that do not end, names used twice, and what would be fetched from elsewhere."""

    def __init__(self, text):
        super().__init__()
        self.open, self.ids, self.words, self.tags, self.fetched = [], [], [], [], []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        self.tags.append(tag)
        if tag not in VOID:
            self.open.append(tag)
        for name, value in attributes:
            if name == "id":
                self.ids.append(value)
            if name in ("src", "href", "xlink:href") and not value.startswith("#"):
                self.fetched.append(value)

    def handle_startendtag(self, tag, attributes):
        self.handle_starttag(tag, attributes)
        if tag not in VOID:
            self.open.pop()

    def handle_endtag(self, tag):
        if tag not in VOID:
            assert self.open.pop() == tag, tag

    def handle_data(self, data):
        self.words.append(data)


class Html(unittest.TestCase):
    def report(self, *arguments, **settings):
        process = host.run("read", *arguments, "--html", "r.html", files=FILES, **settings)
        self.assertEqual(process.returncode, 0, process)
        return Report(process.written["r.html"].decode()), process

    def test_report_is_whole_and_self_contained(self):
        report, _ = self.report("a.toml", "b.toml")
        self.assertEqual((report.open, report.fetched, len(report.ids)), ([], [], len(set(report.ids))))
        self.assertNotIn("script", report.tags)
        for words in ("Toy", "Other", "a toy & <more>", "What was asked", "Method", "By a toy.", "Hours north", "2.35",
                      'a "word", and more'):
            self.assertIn(words, report.words)
        self.assertEqual(report.tags.count("svg"), 4 if shutil.which("gnuplot") and not host.EMULATOR else 0)

    def test_without_charting_program(self):
        report, process = self.report("a.toml", environment={"PATH": ""} if not host.EMULATOR else None)
        self.assertIn(b"warning: a chart is left out of the report: a chart needs gnuplot", process.stderr)
        self.assertIn("Squares <and> more: this chart could not be drawn.", report.words)


@host.needs_gnuplot
class Pictures(unittest.TestCase):
    def test_kinds_and_names(self):
        arguments = ["read", "a.toml", "--svg", "p.svg", "--pdf", "p.pdf", "--png", "p.png", "--chart", "q.svg"]
        one, other = (host.run(*arguments, files=FILES) for _ in range(2))
        self.assertEqual(one.written, other.written)
        self.assertEqual(
            set(one.written), {
                "p.svg", "p.pdf", "p.png", "q.svg", "p-the-..-second.svg", "p-the-..-second.pdf", "p-the-..-second.png",
                "q-the-..-second.svg"
            })
        self.assertTrue(one.written["p.pdf"].startswith(b"%PDF") and one.written["p.png"].startswith(b"\x89PNG"))
        self.assertEqual(one.written["p.svg"], one.written["q.svg"])
        self.assertIn("Squares", "".join(ElementTree.fromstring(one.written["p.svg"]).itertext()))
        several = host.run("read", "a.toml", "x/a.toml", "--svg", "p.svg", files=FILES | {"x/a.toml": OTHER})
        self.assertEqual(set(several.written),
                         {"p-a.svg", "p-a-the-..-second.svg", "p-a-2.svg", "p-a-2-the-..-second.svg"})

    def test_other_endings_are_refused(self):
        for option, name, line in [("--svg", "z.pdf", ".*z.pdf does not end in .svg"),
                                   ("--chart", "z.jpg", "z.jpg: a picture's name must end in"),
                                   ("--pdf", "pdf", "pdf: a picture's name")]:
            host.assert_refused(self, ["read", "a.toml", option, name], FILES, line)

    def draw(self, **settings):
        """Over an existing picture."""
        files = FILES | {"p.svg": OLD, **settings.pop("files", {})}
        process = host.run("read", "a.toml", "--svg", "p.svg", files=files, **settings)
        self.assertEqual((process.returncode, process.stdout, process.written), (1, b"", {}))
        return process.stderr.decode()

    def gnuplot(self, script):
        """A folder with another program of that name, and what is needed to run it."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        program = Path(folder.name, "gnuplot")
        program.write_text("#!/bin/sh\n" + script)
        program.chmod(0o755)
        return {"PATH": folder.name + os.pathsep + os.environ["PATH"]}

    def test_whatever_fails_the_old_picture_stays(self):
        self.assertIn("needs gnuplot", self.draw(environment={"PATH": ""}))
        half = """out=$(sed -n "s/^set output '\\(..*\\)'/\\1/p" "$1"); echo '<svg>half' >"$out"; exit 0"""
        self.assertEqual(self.draw(environment=self.gnuplot(half)), "quorvel: gnuplot could not draw the picture\n")
        self.assertIn("picture: line 3: no such thing",
                      self.draw(environment=self.gnuplot("echo 'line 3: no such thing' >&2; exit 1")))
        self.assertIn("could not draw", self.draw(environment=self.gnuplot("kill -9 $$")))
        self.assertIn("no folder for temporary files", self.draw(environment={"TMPDIR": "/none"}))


@unittest.skipIf(host.EMULATOR, "the files of this system")
class WrittenFiles(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)

    def write(self, name, limit=None):
        command = " ".join(["exec", *host.PROGRAM, "group", "write", str(self.folder / name)])
        return subprocess.run(["sh", "-c", (f"ulimit -f {limit}; " if limit else "") + command],
                              capture_output=True,
                              text=True,
                              timeout=60)

    def names(self):
        return {path.name for path in self.folder.iterdir()}

    def test_a_full_disk_leaves_what_was_there(self):
        (self.folder / "x").write_bytes(OLD)
        process = self.write("x", limit=8)
        self.assertEqual(process.returncode, 1)
        self.assertRegex(process.stderr, "cannot be written: File too large")
        self.assertEqual(((self.folder / "x").read_bytes(), self.names()), (OLD, {"x"}))
        os.symlink("/dev/full", self.folder / "full")
        process = self.write("full")
        self.assertEqual(process.returncode, 1)
        self.assertRegex(process.stderr, r"^quorvel: .*: cannot be written: No space left on device\n$")

    def test_links_are_followed_and_modes_kept(self):
        (self.folder / "x").write_bytes(OLD)
        (self.folder / "x").chmod(0o640)
        os.symlink("x", self.folder / "link")
        os.symlink("new", self.folder / "dangling")
        for name, target in [("link", "x"), ("dangling", "new")]:
            self.assertEqual(self.write(name).returncode, 0)
            self.assertTrue((self.folder / name).is_symlink())
            self.assertEqual((self.folder / target).stat().st_size, 100000)
        self.assertEqual(stat.S_IMODE((self.folder / "x").stat().st_mode), 0o640)
        self.assertEqual(self.names(), {"x", "link", "dangling", "new"})
        os.symlink("round", self.folder / "round")
        self.assertRegex(self.write("round").stderr, "cannot be written: ")

    def test_devices_and_pipes_are_written_to(self):
        self.assertEqual(self.write("/dev/null").returncode, 0)
        self.assertTrue(stat.S_ISCHR(os.stat("/dev/null").st_mode))
        os.mkfifo(self.folder / "pipe")
        with subprocess.Popen(["cat", self.folder / "pipe"], stdout=subprocess.PIPE) as reader:
            self.assertEqual(self.write("pipe").returncode, 0)
            self.assertEqual(len(reader.stdout.read()), 100000)
        self.assertTrue(stat.S_ISFIFO((self.folder / "pipe").stat().st_mode))

    def test_places_that_cannot_be(self):
        for name in ("none/x", "."):
            self.assertRegex(self.write(name).stderr, "cannot be written")
        self.assertEqual(self.names(), set())

    def test_no_file_is_two_things(self):
        host.assert_refused(self, ["read", "a.toml", "-o", "./a.toml"], FILES, "./a.toml: is to be read and written")
        host.assert_refused(self, ["read", "a.toml", "-o", "x", "--html", "./x"], FILES, ".*x: is to be written twice")
        with open("/dev/full", "wb") as full:
            self.assertEqual(
                subprocess.run([*host.PROGRAM, "--help"], stdout=full, stderr=subprocess.DEVNULL).returncode, 1)


class Faults(unittest.TestCase):
    def test_of_the_input(self):
        for keys, message in [("whole = 5.0", "whole: value 5.0 is no whole number; allowed whole numbers 1 to 6"),
                              ("whole = 7", "whole: value 7; allowed whole numbers 1 to 6"),
                              ("one = 2", "one: value 2; allowed only 1"),
                              ("range = 6.0", "range: value 6.0; allowed 0 to 5 m"),
                              ("only = 3", "only: value 3; allowed only 2 m"),
                              ("list = [1, 2]", "list: value list of 2; allowed 1 number"),
                              ("[part]", "part: value table; allowed only 1 table of keys, headed [[part]]"),
                              ("choice = 1.0", "choice: value 1.0 is no whole number; allowed red, green, or 1 to 2"),
                              (f'choice = "{"ä" * 61}"', f'choice: value "{"ä" * 30}…"; allowed red'),
                              ("x = 1", "x: unknown key; known are name, whole")]:
            with self.subTest(keys):
                host.assert_refused(self, ["read", "a.toml"], {"a.toml": GOOD + keys},
                                    r"a\.toml:2: " + re.escape(message))

    def test_of_the_command_line(self):
        for arguments, line in [([], "quorvel: which command. There are read, group, help; see quorvel --help"),
                                (["reed"], 'quorvel: no command "reed"; there are read, group, help'),
                                (["group"],
                                 "quorvel group: which command. There are read, write; see quorvel group --help"),
                                (["group", "x"], 'quorvel group: no command "x"'),
                                (["help", "group", "x"], 'quorvel group: no command "x"'),
                                (["read"], "quorvel read: FILE is required"),
                                (["read", "a.toml", "--wrong"], "quorvel read: .*--wrong"),
                                (["read", "a.toml", "--json", "--csv"], "quorvel read: .*--csv"),
                                (["read", "a.toml", "--table", "x"], "quorvel read: .*--csv"),
                                (["group", "write", "--svg", "x.svg", "y"], "quorvel group write: .*--svg")]:
            with self.subTest(arguments):
                host.assert_refused(self, arguments, FILES, line)

    def test_version(self):
        self.assertRegex(answered("--version"), r"^quorvel (\d+\.\d+\.\d+)\nlibrary \1 \(.+\)\n$")
        process = host.run("--version", environment={"QUORVEL_LIBRARY": "none.so"})
        self.assertEqual(process.returncode, 1)
        self.assertRegex(process.stdout.decode() + process.stderr.decode(),
                         r"^quorvel [\d.]+\nquorvel: cannot load none.so")


class Descriptions(unittest.TestCase):
    def share(self):
        process = host.run("--write-share", "share")
        self.assertEqual(process.returncode, 0, process)
        return process.written

    def test_help(self):
        for words in ([], ["read"], ["group"], ["group", "write"]):
            text = answered(*words, "--help")
            self.assertEqual(text, answered("help", *words))
            self.assertLessEqual(max(map(len, text.splitlines())), 78)
            self.assertIn(f"Usage: {' '.join(['quorvel', *words])}", text)
            self.assertIn("Exit status", text)
        for part in ("FILE...", "-o, --output FILE", "--csv", "What it is about", "By `toy` means",
                     "    indented as it is"):
            self.assertIn(part, answered("read", "--help"))

    def test_man_pages(self):
        pages = {name: text.decode() for name, text in self.share().items() if name.endswith(".1")}
        self.assertEqual({Path(name).name
                          for name in pages}, {
                              "quorvel.1", "quorvel-help.1", "quorvel-read.1", "quorvel-group.1",
                              "quorvel-group-read.1", "quorvel-group-write.1"
                          })
        text = pages["share/man/man1/quorvel-read.1"]
        for part in (".SH NAME\nquorvel\\-read \\- Answers about files, in", "\n\\&.dots begin lines\n\\&'quotes too",
                     "\\fBtoy\\fR means, \\- and . and \\e too", ".nf\n    indented"):
            self.assertIn(part, text)
        if shutil.which("groff"):
            for text in pages.values():
                lint = subprocess.run(["groff", "-man", "-Tutf8", "-Kutf8", "-ww", "-z"],
                                      input=text,
                                      capture_output=True,
                                      text=True)
                self.assertEqual(lint.stderr, "")

    @unittest.skipUnless(shutil.which("bash"), "no bash")
    def test_bash_completion(self):
        script = self.share()["share/bash-completion/completions/quorvel"].decode()
        for line, wanted in [("quorvel ", {"read", "group", "help", "-h", "--help", "--version"}),
                             ("quorvel g", {"group"}), ("quorvel group w", {"write"}),
                             ("quorvel read a.toml --s", {"--svg", "--strict"}), ("quorvel read x", set()),
                             ("quorvel read group --cs", {"--csv"})]:
            words = line.split(" ")
            given = " ".join(f"'{word}'" for word in words)
            asked = (f"compopt() {{ :; }}\n{script}\nCOMP_WORDS=({given}) COMP_CWORD={len(words) - 1}\n"
                     "_quorvel\nprintf '%s\\n' \"${COMPREPLY[@]}\"")
            found = set(
                subprocess.run(["bash", "-c", asked], capture_output=True, text=True, check=True).stdout.split())
            self.assertEqual(found, wanted, line)

    def test_other_shells_can_read_theirs(self):
        written = self.share()
        for shell, name in [("zsh", "share/zsh/site-functions/_quorvel"),
                            ("fish", "share/fish/vendor_completions.d/quorvel.fish")]:
            self.assertIn(b"--strict" if shell == "zsh" else b"-l strict", written[name])
            if shutil.which(shell):
                subprocess.run([shell, "-n"], input=written[name], check=True)


if __name__ == "__main__":
    unittest.main()
