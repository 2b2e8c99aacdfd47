#!/usr/bin/env python3
"""Hold the corpus hashes of one or more builds of the library against the committed ones.

    check_hashes.py [--write] [--family NAME | --arrays] [--apart] HASHES PROGRAM [LIBRARY ...]

PROGRAM is the corpus program (with its emulator in front, if any). Without LIBRARY it runs on the
library it finds itself; with libraries, on each in turn. A build that differs from the committed
hashes is compared case by case with the first one, and the first differing case is shown.
"""

import argparse
import os
import shlex
import struct
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

CPU_FLAGS = {"x86-64-v3": {"avx2", "bmi2", "fma"}, "x86-64-v4": {"avx512f", "avx512bw", "avx512cd", "avx512dq", "avx512vl"}}


def run(program, library, *arguments):
    environment = dict(os.environ, **({"QUORVEL_LIBRARY": library} if library else {}))
    done = subprocess.run([*program, *arguments], env=environment, capture_output=True, text=True)
    if done.returncode:
        sys.exit(f"{' '.join(program)} on {library or 'its library'}: {done.stderr.strip()}")
    return done.stdout.replace("\r", "").splitlines()


def run_apart(program, library, routines):
    """Each in a process of its own, as many at once as there are processors."""
    with ThreadPoolExecutor(os.cpu_count()) as pool:
        return [line for lines in pool.map(lambda routine: run(program, library, routine), routines) for line in lines]


def runs_here(library):
    """Whether this CPU has the instruction set that the file's name asks for."""
    for level, flags in CPU_FLAGS.items():
        if library and level in library:
            return flags <= set(Path("/proc/cpuinfo").read_text().split())
    return True


def readable(words):
    def number(word):
        real = struct.unpack(">f", bytes.fromhex(word))[0]
        return f"{word} ({real:.9g} or {struct.unpack('>i', bytes.fromhex(word))[0]})"

    return ", ".join(number(word) for word in words.split())


def first_difference(program, routine, reference, library):
    for ours, theirs in zip(run(program, reference, "--cases", routine), run(program, library, "--cases", routine)):
        if ours != theirs:
            given, _, result = ours.partition(" : ")
            return (
                f"    arguments   {readable(given)}\n"
                f"    {reference}  {readable(result)}\n"
                f"    {library}  {readable(theirs.partition(' : ')[2])}"
            )
    return "    both give the same results: the committed hash is another one"


def compare_part(lines, committed):
    """What some of the routines gave; whether any of it differs."""
    known = {line.split()[0] for line in committed}
    differing = [line.split()[0] for line in lines if line not in committed]
    for label, names in {
        "the same": [line.split()[0] for line in lines if line in committed],
        "DIFFERS": [name for name in differing if name in known],
        "new, record with ./dev hashes": [name for name in differing if name not in known],
    }.items():
        if names:
            print(f"{label}:", *names)
    return bool(differing) or not lines


def differing_routines(found, committed):
    return dict.fromkeys(line.split()[0] for line in sorted(set(found) ^ set(committed)))


def compare_all(program, libraries, committed, apart):
    """Every routine of every library; whether any differs."""
    failed = False
    for library in libraries:
        label = library or " ".join(program)
        if not runs_here(library):
            print(f"skipped   {label}: this CPU lacks its instruction set")
            continue
        names = [line.split()[0] for line in committed]
        found = run_apart(program, library, names) if apart else run(program, library)
        differing = differing_routines(found, committed)
        print(f"{'DIFFERS' if differing else 'the same'}  {len(set(found) & set(committed))} of {len(committed)}  {label}")
        for routine in differing:
            print(f"  {routine}")
            if len(libraries) > 1:
                print(first_difference(program, routine, libraries[0], library))
        failed = failed or bool(differing)
    return failed


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--write", action="store_true", help="write HASHES anew (say why in the changelog)")
    parser.add_argument("--family", help="only the routines of one family, in their own order")
    parser.add_argument("--arrays", action="store_true", help="only the routines that PROGRAM has, in its order")
    parser.add_argument("--apart", action="store_true", help="run the routines side by side and in one order only")
    parser.add_argument("hashes", type=Path)
    parser.add_argument("program", type=shlex.split)
    parser.add_argument("libraries", nargs="*")
    options = parser.parse_args()
    program, libraries = options.program, options.libraries or [""]

    if options.write:
        options.hashes.write_text("".join(f"{line}\n" for line in sorted(run(program, libraries[0]))))
        return
    committed = options.hashes.read_text().splitlines()
    if options.family or options.arrays:
        lines = run(program, libraries[0], *([options.family] if options.family else []))
        sys.exit(compare_part(lines, committed))
    failed = compare_all(program, libraries, committed, options.apart)
    if not options.apart and not failed:
        shuffled = differing_routines(run(program, libraries[0], "--shuffled"), committed)
        if shuffled:
            print("DIFFERS  when the routines run in another order:", *shuffled)
        failed = bool(shuffled)
    sys.exit(failed)


if __name__ == "__main__":
    main()
