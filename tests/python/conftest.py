"""What the tests of the Python package share. They run against the package that can be imported and, where they
hold it against the library, against the programs in the folder that QUORVEL_BUILD names."""

import os
import sys
from pathlib import Path

import pytest

ROOT = Path(__file__).parents[2]
sys.path.insert(0, str(ROOT / "generate"))

import catalogue  # noqa: E402
from languages import python_model  # noqa: E402

FAMILIES = catalogue.load(ROOT / "catalogue")
ROUTINES = {
    routine.name: (family.family, routine)
    for family in FAMILIES for routine in family.routines if python_model.is_offered(routine)
}


DOCUMENTED = {name: each for name, each in ROUTINES.items() if python_model.is_documented(each[1])}


def function(name):
    """A documented function by the name of its routine, from its own family."""
    import importlib

    return getattr(importlib.import_module(f"quorvel.{ROUTINES[name][0]}.routines"), name)


@pytest.fixture(scope="session")
def build():
    folder = os.environ.get("QUORVEL_BUILD")
    if not folder:
        pytest.skip("QUORVEL_BUILD names no build folder")
    return Path(folder)
