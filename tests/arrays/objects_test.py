"""Objects of one level of instructions hold nothing that the linker may take for another level: no symbol outside
their namespace that it may share, and no instruction above their level.

    objects_test.py OBJDUMP LEVEL OBJECT...
"""

import re
import subprocess
import sys

# Registers and operands that the level does not have: 256 bits and VEX from v3 on, 512 bits and masks from v4 on.
ABOVE = {
    "scalar": re.compile(r"%[yz]mm|%k[0-7]|\tv[a-z]"),
    "v2": re.compile(r"%[yz]mm|%k[0-7]|\tv[a-z]"),
    "v3": re.compile(r"%zmm|%k[0-7]|%[xy]mm(1[6-9]|2\d|3[01])"),
    "v4": re.compile(r"%tmm|fp16|\tv[a-z]+ph\b"),
}


def lines(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout.splitlines()


def faults(objdump, level, file):
    for line in lines(objdump, "-d", "--no-show-raw-insn", file):
        if ABOVE[level].search(line):
            yield f"above {level}: {line.strip()}"
            break
    for line in lines(objdump, "-t", file):
        symbol = re.match(r"[0-9a-f]+ (.{7}) .*\s(\S+)$", line)
        if symbol and level != "scalar" and set(symbol[1]) & set("wu") and f"quorvel_{level}" not in symbol[2]:
            yield f"shared with other objects: {symbol[2]}"


def main():
    objdump, level, *files = sys.argv[1:]
    found = [f"{file}: {fault}" for file in files for fault in faults(objdump, level, file)]
    print("\n".join(found) or f"{len(files)} objects of {level}: nothing above, nothing shared")
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
