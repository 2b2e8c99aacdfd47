"""The small changes to a source line that a test ought to notice."""

import re
import struct
from dataclasses import dataclass
from pathlib import Path

# One decimal or hexadecimal number with its mantissa's last digit; no part of a name.
NUMBER = re.compile(r"(?<![\w.])(\d+\.?\d*|\.\d+)(?=(?:[eE][-+]?\d+)?f?\b)(?![xX])")
SWAPS = {
    "comparison": {" < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ", " == ": " != ", " != ": " == "},
    "sign": {" + ": " - ", " - ": " + ", " += ": " -= ", " -= ": " += ", "(-": "(", "{-": "{", " = -": " = "},
    "factor": {" * ": " / ", " / ": " * "},
    "logic": {" && ": " || ", " || ": " && ", " & ": " | ", " | ": " & ", "(!": "("},
}
CLAMPS = ("limited(", "lesser(", "greater(", "absolute(", "std::max(", "std::min(", "std::clamp(", "table_row(", "std::fabs(")
TABLE_ROW = re.compile(r"^\s*\{?[-\d.,\seEf]+\}?,\s*(//.*)?$")
NO_CODE = re.compile(r"^\s*(//|#|static_assert|using |template|namespace)")


@dataclass(frozen=True)
class Mutation:
    file: Path
    line: int  # from 0
    kind: str
    before: str
    after: str

    def apply(self, lines):
        changed = list(lines)
        changed[self.line : self.line + self.before.count("\n") + 1] = self.after.split("\n")
        return changed

    def key(self):
        """What tells it from all others, wherever in the file the line stands."""
        return (str(self.file), *(" / ".join(part.strip() for part in text.split("\n")) for text in (self.before, self.after)))

    def __str__(self):
        _, before, after = self.key()
        return f"{self.file}:{self.line + 1}  {self.kind}\n    {before}\n    {after}"


def _code(line):
    """The part of a line before its comment."""
    return line.split("//")[0]


def _other_digit(number):
    digit = number.rstrip(".")[-1]
    return number[: len(number.rstrip(".")) - 1] + str((int(digit) + 1) % 10) + ("." if number.endswith(".") else "")


def _value(number, code_after):
    """What the compiler makes of it: many a decimal more gives the same single-precision number."""
    exponent, single = re.match(r"([eE][-+]?\d+)?(f?)", code_after).groups(default="")
    value = float(number + exponent)
    return struct.pack("f", value) if single else value


def _digits(code):
    for match in NUMBER.finditer(code):
        other, after = _other_digit(match[0]), code[match.end() :]
        if _value(other, after) != _value(match[0], after):
            yield "digit", code[: match.start()] + other + after


def _swaps(code):
    for kind, swaps in SWAPS.items():
        for old, new in swaps.items():
            for match in re.finditer(re.escape(old), code):
                yield kind, code[: match.start()] + new + code[match.end() :]


def _first_argument(code, start):
    """The first argument of the call whose arguments begin at `start`, and where the call ends."""
    depth, first = 0, None
    for i in range(start, len(code)):
        if code[i] in "([{":
            depth += 1
        elif code[i] in ")]}":
            if depth == 0:
                return code[start : first or i], i + 1
            depth -= 1
        elif code[i] == "," and depth == 0 and first is None:
            first = i
    return None


def _clamps(code):
    for clamp in CLAMPS:
        for match in re.finditer(re.escape(clamp), code):
            if call := _first_argument(code, match.end()):
                yield "clamp", code[: match.start()] + f"({call[0]})" + code[call[1] :]


def _compiled(lines):
    """Lines of this platform, with their numbers."""
    elsewhere = False
    for number, line in enumerate(lines):
        if line.startswith("#ifdef _WIN32"):
            elsewhere = True
        elif line.startswith(("#else", "#endif")):
            elsewhere = False
        if not elsewhere:
            yield number, line


def mutations_of(file, lines):
    for number, line in _compiled(lines):
        code = _code(line)
        if NO_CODE.match(line) or not code.strip():
            continue
        for find in (_digits, _swaps, _clamps):
            for kind, changed in find(code):
                yield Mutation(file, number, kind, line, changed + line[len(code) :])
        following = lines[number + 1] if number + 1 < len(lines) else ""
        if TABLE_ROW.match(line) and TABLE_ROW.match(following) and line.strip() != following.strip():
            yield Mutation(file, number, "rows", f"{line}\n{following}", f"{following}\n{line}")
