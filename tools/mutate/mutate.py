#!/usr/bin/env python3
"""Change the library in many places, one at a time, and see whether the tests notice.

Each change (a constant in its last digit, < to <=, a swapped sign, a dropped clamp, two exchanged
rows of a table) is built and tested in a copy of the tree. It is killed by a test, or only by the
corpus hashes, or it survives; those that do not compile do not count. Survivors are listed: each is
either equivalent, that is without influence on any result, and explained in equivalent.toml, or asks
for a better test.
"""

import argparse
import concurrent.futures
import os
import queue
import random
import shutil
import subprocess
import sys
import tomllib
from collections import Counter
from pathlib import Path

from mutations import mutations_of

ROOT = Path(__file__).resolve().parents[2]
# Elementary functions have their own exhaustive check, ./dev verify-math.
LEFT_OUT = ("src/math", "src/entry/dll_main.cpp", "src/entry/version.cpp")
TARGETS = ("quorvel", "quorvel_tests", "quorvel_corpus")
LONGEST_TEST = 90  # s; a change that makes a search endless is killed too


def git(*arguments):
    return subprocess.run(["git", *arguments], cwd=ROOT, capture_output=True, check=True).stdout


def explained():
    """Changes that are known to change no result."""
    entries = tomllib.loads(Path(__file__).with_name("equivalent.toml").read_text())["equivalent"]
    return {(entry["file"], entry["before"], entry["after"]) for entry in entries}


def sources():
    """The library's committed files and their texts."""
    for name in git("ls-tree", "-r", "--name-only", "HEAD", "src").decode().split():
        if name.endswith((".h", ".cpp")) and not name.startswith(LEFT_OUT):
            yield Path(name), git("show", f"HEAD:{name}").decode()


class Tree:
    """A copy of the sources with a build of its own."""

    def __init__(self, folder):
        self.source, self.build = folder / "source", folder / "build"
        shutil.rmtree(folder, ignore_errors=True)  # a change may still be in what an earlier run has built
        self.source.mkdir(parents=True)
        subprocess.run(["tar", "x", "-C", self.source], input=git("archive", "HEAD"), check=True)
        # Optimisation changes no result, and takes time.
        options = ["-DCMAKE_BUILD_TYPE=Release", "-DCMAKE_CXX_FLAGS_RELEASE=-O1", "-DQUORVEL_TESTS=ON"]
        self._run("cmake", "-S", self.source, "-B", self.build, *options, check=True)
        self._run("cmake", "--build", self.build, "-j", str(os.cpu_count()), "--target", *TARGETS, check=True)
        if not self._passes_tests():
            sys.exit("The tests fail without any change.")
        self.hashes = self._run(self.build / "quorvel_corpus").stdout

    def _run(self, *command, check=False):
        return subprocess.run(command, capture_output=True, text=True, check=check, timeout=LONGEST_TEST if not check else None)

    def _passes(self, *command):
        try:
            return self._run(*command).returncode == 0
        except subprocess.TimeoutExpired:
            return False

    def _passes_tests(self, family=""):
        """The tests of all families, those of one first."""
        programs = sorted(self.build.glob("test_*"), key=lambda program: program.name != f"test_{family}")
        return all(self._passes(program, "--gtest_brief=1", "--gtest_fail_fast") for program in programs)

    def _same_hashes(self):
        try:
            return self._run(self.build / "quorvel_corpus").stdout == self.hashes
        except subprocess.TimeoutExpired:
            return False

    def fate(self, mutation):
        path = self.source / mutation.file
        original = path.read_text()
        try:
            path.write_text("\n".join(mutation.apply(original.split("\n"))))
            if not self._passes("cmake", "--build", self.build, "--target", "quorvel"):
                return "does not compile"
            if not self._passes_tests(mutation.file.parts[1]):
                return "killed by a test"
            return "survives" if self._same_hashes() else "killed by the hashes only"
        finally:
            path.write_text(original)


def chosen(options):
    everything = [
        mutation
        for file, text in sources()
        if options.under in str(file)
        for mutation in mutations_of(file, text.split("\n"))
    ]
    random.Random(options.seed).shuffle(everything)
    return everything


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--count", type=int, default=500, help="changes that compile (500)")
    parser.add_argument("--seed", type=int, default=1, help="which of the possible changes are made (1)")
    parser.add_argument("--under", default="src/", help="only in files whose name has this in it")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="changes tried at a time (one per core)")
    parser.add_argument("--list", action="store_true", help="only list the changes")
    options = parser.parse_args()
    mutations = chosen(options)
    if options.list:
        print(*mutations[: options.count], sep="\n")
        return

    trees = queue.Queue()
    for number in range(options.jobs):
        print(f"Preparing tree {number + 1}", file=sys.stderr)
        trees.put(Tree(ROOT / "build" / "mutate" / str(number)))
    fates, equivalent = Counter(), explained()

    def judge(mutation):
        tree = trees.get()
        try:
            return mutation, tree.fate(mutation)
        finally:
            trees.put(tree)

    with concurrent.futures.ThreadPoolExecutor(trees.qsize()) as pool:
        waiting = iter(mutations)
        running = {pool.submit(judge, next(waiting)) for _ in range(trees.qsize())}
        while running:
            done, running = concurrent.futures.wait(running, return_when=concurrent.futures.FIRST_COMPLETED)
            for future in done:
                mutation, fate = future.result()
                if fate == "survives" and mutation.key() in equivalent:
                    fate = "equivalent"
                fates[fate] += 1
                if fate in ("survives", "killed by the hashes only"):
                    print(f"{fate}: {mutation}", flush=True)
                judged = sum(fates.values()) - fates["does not compile"]
                print(f"\r{judged} of {options.count}, {fates['survives']} survive ", end="", file=sys.stderr, flush=True)
                if judged + len(running) < options.count and (following := next(waiting, None)):
                    running.add(pool.submit(judge, following))

    print(file=sys.stderr)
    for fate, count in fates.most_common():
        print(f"{count:5d}  {fate}")
    changing = sum(fates.values()) - fates["does not compile"] - fates["equivalent"]
    print(f"{100 * (changing - fates['survives']) / max(changing, 1):.1f} % of {changing} changes of a result are noticed")


if __name__ == "__main__":
    main()
