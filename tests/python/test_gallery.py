"""The gallery: each script runs without a warning, draws what it says, and gets a number that is known otherwise."""

import csv
import importlib.util
import math
import runpy
from pathlib import Path

import numpy as np
import pytest

import quorvel

matplotlib = pytest.importorskip("matplotlib")
matplotlib.use("Agg")

ROOT = Path(__file__).parents[2]
GALLERY = ROOT / "bindings" / "python" / "gallery"
SHARED = {"style", "weather_year", "make"}
SCRIPTS = sorted(path.stem for path in GALLERY.glob("*.py") if path.stem not in SHARED)


def magnus(t):
    """Saturation pressure over water [Pa], by another formula than the library's."""
    return 611.2 * math.exp(17.62 * t / (243.12 + t))


def air(t, humidity):
    """Moisture content [kg/kg] and enthalpy [kJ/kg] with the constants of textbooks."""
    pressure = humidity / 100 * magnus(t)
    moisture = 0.622 * pressure / (101325 - pressure)
    return moisture, 1.006 * t + moisture * (2501 + 1.86 * t)


def coil_load():
    (_, outdoor), (_, room), (_, off) = air(32, 40), air(24, 50), air(11.5, 95)
    return 0.25 * outdoor + 0.75 * room - off


def declination(day):
    """In degrees, by J. W. Spencer's series of 1971, within 0.04 degrees."""
    angle = 2 * math.pi * (day - 1) / 365
    cosines, sines = (-0.399912, -0.006758, -0.002697), (0.070257, 0.000907, 0.00148)
    return math.degrees(0.006918 + sum(c * math.cos(k * angle) + s * math.sin(k * angle)
                                       for k, (c, s) in enumerate(zip(cosines, sines), 1)))


def pair_transmittance(pane, face=((1.52 - 1) / (1.52 + 1))**2):
    """Two alike panes of a normal transmittance: the pane's reflectance from that of a face, and the series."""
    body = pane
    for _ in range(50):
        body = pane * (1 - (face * body)**2) / (1 - face)**2
    reflectance = face * (1 + body * pane)
    return pane**2 / (1 - reflectance**2)


def january_balance():
    """Water that gathers behind the wool in January without a sheet [kg/m²]."""
    resistances = 0.12, 0.0125 / 0.21, 0.06 / 0.038, 0.015 / 0.57, 0.22 / 0.75, 0.06
    saturated = magnus(20 - 15.6 * sum(resistances[:3]) / sum(resistances))
    arrives = (0.57 * magnus(20) - saturated) / ((0.0125 * 45 + 0.06 * 6) * 1e9)
    leaves = (saturated - 0.86 * magnus(4.4)) / ((0.015 * 50 + 0.22 * 45) * 1e9)
    return (arrives - leaves) * 31 * 86400


def half_space(conductivity, density, specific_heat):
    surface = math.sqrt(conductivity * density * specific_heat) * (2j * math.pi / 86400)**0.5
    return abs(1 / (0.1215 + 1 / surface))


def rows(result):
    with open(result["weather_year"].synthetic_epw(), encoding="utf-8") as file:
        return list(csv.reader(file))[8:]


def cooling_potential(result):
    """Kelvin hours from May to September, hour by hour, the cosine of the building written out."""
    total = 0
    for row in (each for each in rows(result) if 5 <= int(each[1]) <= 9):
        hour, t, humidity = float(row[3]) - 0.5, float(row[6]), float(row[8])
        building = 24.5 + 2.5 * math.cos(math.pi * (hour - 19) / 12)
        if (hour > 19 or hour < 7) and building - t >= 3 and humidity / 100 * magnus(t) <= 0.5 * magnus(26):
            total += building - t
    return total


def pool(bathers):
    difference = magnus(28) - 0.55 * magnus(30)
    rate = 4.17e-8 * difference * bathers / 312.5 + 3.28e-5 if bathers else 2.193e-8 * difference - 1.64e-5
    return 3600 * 312.5 * rate


# What of a script's results is known otherwise, and how closely that must be met.
KNOWN = {
    "admittance_thickness": lambda r: (r["thickest"], [half_space(2.0, 2400, 1000), half_space(0.15, 600, 1000),
                                                       half_space(0.13, 500, 1600)], 0.02),
    "blind_strategy": lambda r: (r["always_closed"], 8 / (1 - 0.5 * r["bare_unit"].reflectance), 0.001),
    "condensation_year": lambda r: (r["balance"][0, 0], january_balance(), 0.03),
    "design_day": lambda r: (r["south_share"], math.cos(math.radians(49.6 + declination(202))), 0.01),
    "glazing_incidence": lambda r: (r["normal_transmittance"], pair_transmittance(0.82), 0.001),
    "glazing_study": lambda r: (r["north_share"], 0.75**2 / (1 - 0.14**2), 0.06),
    "insulation_thickness": lambda r: (
        r["wool_for_030"], 36 * (1 / 0.30 - (0.182 + 0.015 / 0.57 + 0.22 / 0.75 + 0.01)), 0.01),
    "irradiation_map": lambda r: (r["level"], sum(float(row[13]) for row in rows(r)) / 1000, 0.001),
    "night_cooling": lambda r: (r["difference"][r["usable"] & r["in_summer"]].sum(), cooling_potential(r), 0.002),
    "pool_evaporation": lambda r: (r["usual"], [pool(0), pool(60)], 0.02),
    "psychrometric_chart": lambda r: (r["coil_load"], coil_load(), 0.01),
    "site_plan": lambda r: (
        [r["in_strip"], sum(r["house_areas"])], [4 * 28 * math.hypot(0.25, 1), 15 * 12 + 8 * 4], 1e-4),
    "sun_path": lambda r: (r["noon_altitude"], [38.5 + declination(day) for day in r["DATES"].values()], 0.02),
    "window_shading": lambda r: (r["first_clear_day"], next(
        day for day in range(1, 99) if 38.5 + declination(day) > math.degrees(math.atan(5.6 / 13))), 0.03),
}


@pytest.fixture
def run(monkeypatch):
    """Runs a script as a program would, with its folder on the path and no window."""
    from matplotlib import pyplot

    monkeypatch.syspath_prepend(GALLERY)
    monkeypatch.setattr(pyplot, "show", lambda: None)
    yield lambda script: runpy.run_path(str(GALLERY / f"{script}.py"))
    pyplot.close("all")


def labelled(axes):
    """Each axis with ticks, itself or by one that shares it; the circles of a polar one go with its angles."""
    def has_label(which):
        siblings = getattr(axes, f"get_shared_{which}_axes")().get_siblings(axes)
        return any(getattr(each, f"get_{which}label")() for each in siblings)

    return all(has_label(which) for which in ("x" if axes.name == "polar" else "xy")
               if len(getattr(axes, f"get_{which}ticks")()))


def finite(axes):
    shaded = [drawn.get_array() for drawn in (*axes.images, *axes.collections) if drawn.get_array() is not None]
    return np.isfinite(axes.dataLim.bounds).all() and all(np.isfinite(np.ma.compressed(each)).any() for each in shaded)


@pytest.mark.parametrize("script", SCRIPTS)
def test_script(script, run):
    result = run(script)
    figure = result["figure"]
    figure.canvas.draw()
    assert all(labelled(axes) and axes.has_data() and finite(axes) for axes in figure.axes)
    assert any("[" in axes.get_xlabel() + axes.get_ylabel() for axes in figure.axes)  # a unit
    found, expected, tolerance = KNOWN[script](result)
    np.testing.assert_allclose(found, expected, rtol=tolerance)


@pytest.fixture(scope="module")
def make():
    spec = importlib.util.spec_from_file_location("gallery_make", GALLERY / "make.py")
    module = importlib.util.module_from_spec(spec)
    spec.loader.exec_module(module)
    return module


def test_page_is_current(make):
    assert make.page() == (ROOT / "docs" / "gallery.md").read_text(encoding="utf-8"), "run make.py pages docs"
    assert {path.stem for path in (ROOT / "docs" / "images" / "gallery").glob("*.png")} == set(SCRIPTS)


def test_notebooks(make, tmp_path, monkeypatch):
    """All are notebooks by the format's own rules, and one runs in a kernel; their code is that of the scripts."""
    nbformat = pytest.importorskip("nbformat", reason="nbformat is not installed")
    nbclient = pytest.importorskip("nbclient", reason="nbclient is not installed: notebooks cannot be run")
    pytest.importorskip("ipykernel", reason="ipykernel is not installed: notebooks cannot be run")
    monkeypatch.setenv("PYTHONPATH", str(Path(quorvel.__file__).parents[1]))  # the kernel is another process
    make.make_notebooks(tmp_path)
    books = {path.stem: nbformat.read(path, as_version=4) for path in tmp_path.glob("*.ipynb")}
    assert sorted(books) == SCRIPTS
    for book in books.values():
        nbformat.validate(book)
    here = {"metadata": {"path": str(tmp_path)}}
    book = nbclient.NotebookClient(books["sun_path"], timeout=60, resources=here).execute()
    outputs = [output for cell in book.cells if cell.cell_type == "code" for output in cell.outputs]
    assert any("image/png" in output.get("data", {}) for output in outputs)
