"""Texts of the catalogue for languages whose sources are plain ASCII: degC, m2, +-."""

import re
import textwrap

_PLAIN = {"°": "deg", "²": "2", "³": "3", "±": "+-"}


def plain(text):
    text = "".join(_PLAIN.get(character, character) for character in text).replace("deg C", "degC")
    text.encode("ascii")  # tells of a character that is missing above
    return text


def wrapped(text, width, first, rest=None):
    """Lines of at most that width, in ASCII, which begin with `first`, the others with `rest`."""
    return textwrap.wrap(plain(text), width, initial_indent=first, subsequent_indent=first if rest is None else rest,
                         break_long_words=False, break_on_hyphens=False)


def statement_lines(statement, width, first, rest):
    """The same of a statement, which is broken at blanks outside of its texts in single quotes."""
    kept = re.sub(r"'[^']*'", lambda text: text[0].replace(" ", "\0"), statement)
    return [line.replace("\0", " ") for line in wrapped(kept, width, first, rest)]


def in_clear_names(text, names):
    """A text with clear names in place of exported ones, as `names` has them."""
    return re.sub(r"\b[A-Z][A-Z0-9]{3,8}\b", lambda found: names.get(found[0], found[0]), text)
