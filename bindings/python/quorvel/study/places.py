"""Where a result is: a folder, or objects in a store that has a URL.

Of either it must be certain that what is there is whole. A folder's files appear by renaming. The stores known here
put an object whole or not at all; of other file systems behind a URL that cannot be said, and they are refused.
"""

import os
import shutil
import tempfile
from contextlib import contextmanager
from pathlib import Path
from urllib.parse import unquote

from ._extra import needed
from .table import StudyError

__all__ = ["Folder", "Objects", "place_of"]

WHOLE_OBJECTS = ("s3", "gs", "gcs", "az", "abfs", "memory")
OF_THIS_PROCESS = "memory://"


def place_of(path):
    """Of a path, or of a URL as fsspec understands it."""
    path = os.fspath(path)
    scheme, separator, rest = path.partition("://")
    if not separator:
        return Folder(path)
    if scheme == "file":
        return Folder(unquote(rest))
    if scheme not in WHOLE_OBJECTS:
        known = ", ".join(f"{each}://" for each in WHOLE_OBJECTS)
        raise StudyError(f"{path}: a result is a folder, or in one of the stores {known}")
    return Objects(path)


class Folder:
    def __init__(self, path):
        self.path = os.path.abspath(path)

    def expect_shared(self):
        """That another process may see it."""

    def exists(self):
        return os.path.lexists(self.path)

    def names(self, folder):
        return {entry.name for entry in os.scandir(os.path.join(self.path, folder))}

    def has(self, folder, name):
        return os.path.exists(os.path.join(self.path, folder, name))

    @contextmanager
    def made(self):
        """A folder of another name to fill, which is renamed when it is full."""
        parent, name = os.path.split(self.path)
        Path(parent).mkdir(parents=True, exist_ok=True)
        unfinished = tempfile.mkdtemp(prefix=f".{name}.", dir=parent)
        try:
            yield unfinished
            os.chmod(unfinished, 0o755)
            os.rename(unfinished, self.path)
        finally:
            shutil.rmtree(unfinished, ignore_errors=True)


class Objects:
    def __init__(self, url):
        self.path = url.rstrip("/")
        try:
            self.files, self.root = needed("fsspec").core.url_to_fs(self.path, use_listings_cache=False)
        except (ImportError, ValueError) as error:  # a library of that store is missing, or it knows no such URL
            raise StudyError(f"{url}: {error}") from None

    def expect_shared(self):
        if self.path.startswith(OF_THIS_PROCESS):
            raise StudyError(f"{self.path} is in the memory of this process, which workers elsewhere do not see")

    def exists(self):
        return self.files.exists(self.root)

    def names(self, folder):
        return {name.rsplit("/", 1)[-1] for name in self.files.ls(f"{self.root}/{folder}", detail=False)}

    def has(self, folder, name):
        return self.files.exists(f"{self.root}/{folder}/{name}")

    @contextmanager
    def made(self):
        yield self.path
