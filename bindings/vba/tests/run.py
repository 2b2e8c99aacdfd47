"""run.py BUILD: the module in the Basic of LibreOffice, in a folder for what it makes: each example of the catalogue,
polygons, names of files and faults. Debian's Python has what talks to LibreOffice."""

import ctypes
import math
import shutil
import subprocess
import sys
from pathlib import Path

from office import Declarations, module

ROOT = Path(__file__).resolve().parents[3]
sys.path.insert(0, str(ROOT / "generate"))
import catalogue  # noqa: E402
from languages import vba_binding  # noqa: E402
from binding_model import calls  # noqa: E402

VALUE, NA = "#2015", "#2042"  # the errors #VALUE! and #N/A

failures = []
held = 0


def hold(what, holds):
    global held
    held += 1
    if not holds:
        failures.append(what)


def of_results(call, returned):
    """The numbers of each result, row by row, from the value, row or table that the function returned."""
    if len(call.results) == 1 and not call.results[0].shape:
        return {call.results[0].name: [returned]}
    if not any(result.shape for result in call.results):
        return {result.name: [value] for result, value in zip(call.results, returned)}
    found, first = {}, 0
    for result in call.results:
        columns = vba_binding._columns(result) if result.shape else 1
        found[result.name] = [value for row in returned for value in row[first:first + columns] if value != ""]
        first += columns
    return found


def check_example(basic, call, example):
    name = vba_binding.function_name(call)
    given = [tuple(value) if isinstance(value, list) else value
             for value in (example.given[parameter.name] for parameter in call.parameters)]
    if not call.allows(example):
        hold(f"{name} is an error", basic(name, *given) in (NA, VALUE))
        basic("UseUnchecked", True)
    results = of_results(call, basic(name, *given))
    basic("UseUnchecked", False)
    for of, expected in example.gives.items():
        for got, wanted in zip(results[of], expected if isinstance(expected, list) else [expected], strict=False):
            got = -float(got) if isinstance(got, bool) else got
            near = not isinstance(got, str) and abs(got - wanted) <= example.within[of]
            hold(f"{name}, {of}: {got} and not {wanted}", near)


def check_by_hand(basic):
    square, shifted = (0.0, 0.0, 0.0, 2.0, 2.0, 2.0, 2.0, 0.0), (1.0, 1.0, 1.0, 3.0, 3.0, 3.0, 3.0, 1.0)
    for of in "GeometryOverlapArea", "OverlapOfTables":
        hold(of, math.isclose(basic(of, square, shifted), 1, abs_tol=1e-3))
    pieces = basic("GeometryClip", square, shifted)
    hold("an L and a square", [row[0] for row in pieces] == [1] * 6 + [2] * 4)
    hold("no polygon", basic("GeometryOverlapArea", square, (1.0, 2.0)) == VALUE)
    name = "Klimadaten \u00e9\u6c17\U0001d11e.climate"
    shutil.copy("example.climate", name)
    records = basic("ClimateStationRecords", name, 1, 1, (0.0,) * 9 + (1.0, 100.0) + (0.0,) * 121)
    hold("a name of two, three and four bytes", math.isclose(records[0][0], 11.293557, abs_tol=2e-5))
    hold("by name", basic("PsychroVapourPressureFromPsychrometer", 25.0, 20.0, 101325.0, "Sling") ==
         basic("PsychroVapourPressureFromPsychrometer", 25.0, 20.0, 101325.0, 1))
    hold("unequal lists", basic("FabricUValue", (0.1, 0.1), (1.0,), 0.13, 0.04) == VALUE)
    hold("too many", basic("FabricUValue", (0.1,) * 21, (1.0,) * 21, 0.13, 0.04) == NA)
    basic("UseUnchecked", True)
    hold("not written", basic("FabricUValue", (0.1,) * 21, (1.0,) * 21, 0.13, 0.04) == NA)
    hold("unchecked", basic("PsychroVapourPressure", 20.0, 150.0) == basic("PsychroVapourPressure", 20.0, 100.0))
    basic("UseUnchecked", False)
    low, high = (basic("PsychroVapourPressure", temperature, 50.0) for temperature in (20.0, 22.0))
    hold("a row", basic("PsychroVapourPressure", (20.0, 21.0, 22.0), (50.0, 150.0, 50.0)) == ((low, NA, high),))
    hold("a table", basic("PressuresOfTable", (20.0, 22.0, "x", 20.0)) == ((low, high), (VALUE, low)))
    suns = basic("ClimateSolarGeometry", 0.9, 172, (12.0, 25.0))
    hold("a row for each", suns == (basic("ClimateSolarGeometry", 0.9, 172, 12.0), (NA,) * 5))
    hold("arrays of two lengths", basic("PsychroVapourPressure", (20.0, 20.0), (50.0, 50.0, 50.0))[0][2] == VALUE)
    for humidity, shown in ((101.0, NA), (1e39, NA), ("50", VALUE), (None, VALUE), (True, VALUE)):
        hold(f"fault of {humidity}", basic("PsychroVapourPressure", 20.0, humidity) == shown)
    hold("a fraction of a day", basic("ClimateDesignDay", 2.5) == VALUE)
    hold("no such name", basic("PsychroVapourPressureFromPsychrometer", 25.0, 20.0, 101325.0, "swing") == NA)


def main():
    build = Path(sys.argv[1]).resolve()
    subprocess.run([build / "quorvel_corpus", "--climate-file", "example.climate"], check=True)
    text = (ROOT / "bindings/vba/quorvel.bas").read_text(encoding="ascii")
    libraries = {name: ctypes.CDLL(build / f"lib{name}.so") for name in ("quorvel", "quorvel_arrays")}
    declarations = Declarations(text, libraries)
    found = calls(catalogue.load(ROOT / "catalogue"))
    with module(declarations.instead(text), Path("profile")) as basic:
        basic("UseBridge", declarations)
        for call in found:
            for example in call.routine.examples if not call.is_by_hand else ():
                check_example(basic, call, example)
        check_by_hand(basic)
    hold("all declarations were called", declarations.called == set(declarations.known))
    print("\n".join(failures))
    print(f"{held} held, {len(failures)} failed")
    sys.exit(bool(failures) or held < 400)


if __name__ == "__main__":
    main()
