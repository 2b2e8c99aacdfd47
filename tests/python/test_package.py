"""The package as a whole: examples, documentation, types, and that it can be imported and sent to others."""

import ast
import copy
import doctest
import importlib
import inspect
import pickle
import pkgutil
import re
import subprocess
import sys
from types import SimpleNamespace

import numpy as np
import pytest
import quorvel
from conftest import DOCUMENTED, ROOT, function
from languages.python_model import operands

MODULES = ["quorvel", *(
    name for _, name, _ in pkgutil.walk_packages(quorvel.__path__, "quorvel.")
    if not name.startswith(("quorvel._core", "quorvel.study")))]


def shaped(values, operand, counts):
    if not operand.axes:
        return values
    shape = [counts.get(extent, extent) for extent in operand.axes]
    return np.reshape(values[:np.prod(shape)], shape)


@pytest.mark.parametrize("name", DOCUMENTED)
def test_examples_of_the_catalogue(name):
    _, routine = DOCUMENTED[name]
    inputs, outputs = operands(routine)
    for example in routine.examples:
        given = {o.field: shaped(example.given[o.arg.name], o, example.given) for o in inputs}
        results = function(name)(**given)
        for operand, result in zip(outputs, results if len(outputs) > 1 else [results]):
            wanted = example.gives.get(getattr(operand.arg, "name", "result"))
            if wanted is not None:
                tolerance = example.within[getattr(operand.arg, "name", "result")]
                got = np.ravel(result)[:np.size(wanted)].astype(float)
                wanted = np.not_equal(wanted, 0) if operand.kind == "Logical" else wanted
                np.testing.assert_allclose(got, np.ravel(wanted), rtol=1e-6, atol=tolerance, err_msg=str(example))


@pytest.mark.parametrize("name", MODULES)
def test_doctests(name):
    if name == "quorvel.psychro.moist_air":  # with tables and labelled arrays
        pytest.importorskip("pandas"), pytest.importorskip("xarray")
    failed, tried = doctest.testmod(importlib.import_module(name), optionflags=doctest.NORMALIZE_WHITESPACE)
    assert failed == 0
    assert tried or not name.endswith(".routines")


@pytest.mark.parametrize("name", DOCUMENTED)
def test_documentation(name):
    documented = function(name)
    text = inspect.getdoc(documented)
    for parameter in inspect.signature(documented).parameters:
        assert f"\n{parameter} : " in text
    for section in ("Parameters", "Returns", "References"):
        assert f"\n{section}\n{'-' * len(section)}\n" in text
    assert max(map(len, text.splitlines())) <= 100


# What is seen of the call by reference only: counts that lists tell, outputs let be, numbers from 1, other names.
UNSEEN = re.compile(r"\b(a count|counts? (below|above|outside)|fewer than (0|one)|is written|is read|left as|no array|"
                    r"(vertex|corner|point|element) \d\b|from 1 on|caller's variable|-1 if)|"
                    r"\b(PS|TP|CL|ICL|WN|GE|IGE)[A-Z0-9]{2,6}\b(?! in quorvel.h)")


@pytest.mark.parametrize("family", dict.fromkeys(family for family, _ in DOCUMENTED.values()))
def test_documentation_is_of_what_is_seen(family):
    module = importlib.import_module(f"quorvel.{family}.routines")
    for name in module.__all__:  # functions, what they return, and enumerations
        text = " ".join(inspect.getdoc(getattr(module, name)).split())
        assert not UNSEEN.search(text), (name, UNSEEN.search(text)[0])


def test_pickling_and_copying():
    for each in (quorvel.psychro.vapour_pressure, quorvel.psychro.Psychrometer.sling,
                 quorvel.geometry.facing(np.eye(3), 1.0)):
        assert pickle.loads(pickle.dumps(each)) == each
    assert copy.deepcopy(quorvel.psychro.vapour_pressure) is quorvel.psychro.vapour_pressure


def test_types(tmp_path):
    """Stubs agree with what they describe, and a program that uses them is accepted, a wrong one not."""
    pytest.importorskip("mypy")
    program = tmp_path / "program.py"
    good = """
import numpy as np
from numpy.typing import NDArray
import quorvel
from quorvel import climate, fabric, geometry, psychro
one: np.float32 = psychro.vapour_pressure(20.0, 50)
many: NDArray[np.float32] = psychro.vapour_pressure(np.linspace(0, 1), [40, 50])
u = fabric.u_value([0.1, 0.2], [0.3, 0.4], 0.13, 0.04)
kind: np.float32 = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, psychro.Psychrometer.sling)
kind = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, "screen")
kinds: NDArray[np.float32] = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, ["sling", "screen"])
tilt = geometry.facing(np.eye(3), 1.0).tilt
with quorvel.errstate(range="warn"):
    enthalpy = psychro.mixed(psychro.state(t=20, rh=50), psychro.state(t=10, rh=50)).enthalpy
weather = climate.read_epw("here.epw")
hours: NDArray[np.float32] = weather["dry_bulb"]
area = geometry.overlap_area([(0, 0), (0, 1), (1, 1)], [(0, 0), (0, 1), (1, 1)])
"""
    families = [f"quorvel.{family}.routines" for family, _ in DOCUMENTED.values()]
    checked = subprocess.run([sys.executable, "-m", "mypy.stubtest", *dict.fromkeys(families), "--ignore-missing-stub"],
                             capture_output=True, text=True)
    assert checked.returncode == 0, checked.stdout + checked.stderr
    for text, accepted in ((good, True), (good + "text: str = psychro.vapour_pressure(20.0, 50)\n", False),
                           (good + "psychro.vapour_pressure(20.0)\n", False),
                           (good + "kind = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, 'slung')\n", False)):
        program.write_text(text)
        checked = subprocess.run([sys.executable, "-m", "mypy", "--strict", program], capture_output=True, text=True)
        assert (checked.returncode == 0) == accepted, checked.stdout + checked.stderr


def test_readme(monkeypatch):
    """What the README shows runs, and gives what its comments say; a weather file is not at hand."""
    pandas = pytest.importorskip("pandas")
    pytest.importorskip("matplotlib").use("Agg")
    text = (ROOT / "bindings/python/README.md").read_text(encoding="utf-8")
    code = ast.parse(text.split("```python\n")[1].split("```")[0])
    square = [(0, 0), (0, 2), (2, 2), (2, 0)]
    names = {"table": pandas.DataFrame({"t": [20.0, 25.0], "rh": [50.0, 60.0]}), "roofs": [square], "shadow": square}
    monkeypatch.setattr(quorvel.climate, "read_epw", lambda path: SimpleNamespace(to_pandas=list))
    for statement in code.body:
        part = compile(ast.Module([statement], []), "README.md", "exec")
        if isinstance(statement, ast.With):
            with pytest.raises(quorvel.RangeError, match="relative_humidity = 150 is outside .* 0 to 100 %"):
                exec(part, names)
        else:
            exec(part, names)
    shown = re.search(r"array\(\[([^]]*)", text)[1]
    np.testing.assert_allclose(names["psychro"].vapour_pressure(20, [40, 50, 60]), np.fromstring(shown, sep=","), atol=0.05)
