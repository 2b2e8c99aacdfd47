"""Where a fault stands: the tables of a TOML file with their lines, which tomllib does not tell."""

import re
import tomllib


class CatalogueError(Exception):
    """A fault in the catalogue, with file and line."""


class Place:
    """The lines of one table. Texts to look for narrow a complaint down to one of them."""

    def __init__(self, path, first, lines):
        self.path, self.first, self.lines = path, first, lines

    def entry(self, key, index):
        """The place of the entry with this number among the inline tables that begin with a key."""
        found = [n for n, line in enumerate(self.lines) for _ in re.finditer(rf"\{{ *{key} *=", line)]
        if index >= len(found):
            return self
        return Place(self.path, self.first + found[index], self.lines[found[index]:found[index] + 1])

    def require(self, condition, complaint, text=""):
        if condition:
            return
        line = next((n for n, line in enumerate(self.lines) if text in line), 0)
        raise CatalogueError(f"{self.path}:{self.first + line}: {complaint}")


def read(path):
    """The content of a file, and the places of its tables in their order."""
    text = path.read_text(encoding="utf-8")
    try:
        content = tomllib.loads(text)
    except tomllib.TOMLDecodeError as error:
        raise CatalogueError(f"{path}: {error}") from None
    lines = text.splitlines()
    starts = [n for n, line in enumerate(lines) if line.startswith("[")]
    return content, [Place(path, start + 1, lines[start:end]) for start, end in zip(starts, starts[1:] + [len(lines)])]
