"""Climate data files and weather files: made by this project's programs, read by the package, and held against
what the library reads by reference."""

import ctypes
import subprocess
import sys
import tomllib

import numpy as np
import pytest
from conftest import ROOT
from quorvel import climate, psychro

EXAMPLES = ROOT / "apps/examples/climate"
REAL, INTEGER = ctypes.c_float, ctypes.c_int32


@pytest.fixture(scope="module")
def stations(build, tmp_path_factory):
    path = tmp_path_factory.mktemp("stations") / "two.climate"
    subprocess.run([build / "quorvel", "climate", "pack", path, *sorted(EXAMPLES.glob("*.toml"))], check=True)
    return path


@pytest.fixture(scope="module")
def epw(tmp_path_factory):
    path = tmp_path_factory.mktemp("weather") / "maritime.epw"
    subprocess.run([sys.executable, ROOT / "tools/climate/make_weather_year.py", "maritime", path], check=True)
    return path


def by_reference(library, name, *given, outputs):
    """The values that a call leaves in its outputs."""
    left = [(kind * count)() for kind, count in outputs]
    getattr(library, name)(*map(ctypes.byref, given), *left)
    return [np.ctypeslib.as_array(each).copy() for each in left]


def test_bits_of_the_routines(stations, build):
    library = ctypes.CDLL(str(build / "libquorvel.so"))
    for station in (1, 2):
        records = np.zeros((12, 11), np.float32)
        records[:, 9:] = 1, 60
        name = ctypes.create_string_buffer(str(stations).encode())
        library.CLBNF0(name, ctypes.byref(INTEGER(station)), ctypes.byref(INTEGER(0)), records.ctypes)
        with climate.ClimateFile(stations) as file:
            read = file[station]
            for row in (1, 2, 12, 82, 171):
                expected, = by_reference(library, "CLBNF3", INTEGER(row), outputs=[(REAL, 12)])
                np.testing.assert_array_equal(read.row(row), expected)
            for month in (1, 7):
                of_month = read.climate(month, percentage=60)
                np.testing.assert_array_equal(records[month - 1, [3, 4, 6, 7, 8]],
                                              np.float32([of_month.q3, of_month.q5, of_month.q1, of_month.q2, of_month.q7]))
                *bands, weight = by_reference(library, "CLBNF1", REAL(0.6), INTEGER(month),
                                              outputs=[(INTEGER, 1), (INTEGER, 1), (REAL, 1)])
                located = read.locate_band(0.6, month)
                assert located == (*(int(band[0]) for band in bands), float(weight[0]))
                value, = by_reference(library, "CLBNF2", INTEGER(12), *(INTEGER(band) for band in located[:2]),
                                      INTEGER(month), REAL(located.band_weight), outputs=[(REAL, 1)])
                assert np.float32(read.interpolate_rows(12, located, month)) == value[0]


def test_what_was_packed_is_read(stations):
    packed = tomllib.loads((EXAMPLES / "synthetic_highland.toml").read_text(encoding="utf-8"))
    with climate.ClimateFile(stations) as file:
        station = file[packed["station"]]
        np.testing.assert_array_equal(station.row(1), np.float32(packed["set1"]["time_A"]))
        np.testing.assert_array_equal(station.frequencies(2).T, np.float32(list(packed["set2"]["F"].values())))


def test_faults_of_climate_files(stations, tmp_path):
    with pytest.raises(FileNotFoundError, match="no.climate"):
        climate.ClimateFile(tmp_path / "no.climate")
    with pytest.raises(FileNotFoundError, match="no regular file"):
        climate.ClimateFile(tmp_path)
    with pytest.raises((ValueError, TypeError)):
        climate.ClimateFile("a\0b")
    file = climate.ClimateFile(stations)
    with pytest.raises(OSError, match="station 99 cannot be read"):
        file[99].climate(1)
    with pytest.raises(OverflowError):
        file[2**40].climate(1)
    file.close()
    with pytest.raises(ValueError, match="closed"):
        file[1].climate(1)


def test_weather(epw):
    weather = climate.read_epw(epw)
    assert len(weather) == 8760 and weather.day_of_year[[0, 24, -1]].tolist() == [1, 2, 365]
    lines = epw.read_text().splitlines()[8:]
    for name, place in (("dry_bulb", 6), ("pressure", 9), ("diffuse_horizontal", 15)):
        np.testing.assert_array_equal(weather[name][::97], np.float32([line.split(",")[place] for line in lines[::97]]))
    with pytest.raises(KeyError, match="dry_bulb"):
        weather["drybulb"]
    pytest.importorskip("pandas")
    table = weather.to_pandas()
    pressure = psychro.vapour_pressure(table["dry_bulb"], table["relative_humidity"])
    assert pressure.index.equals(table.index) and table.index.is_monotonic_increasing and str(table.index[0])[:13] == "2005-01-01 00"
    assert weather.to_pandas("end").index[-1].year == 2006 and len(table.resample("MS").mean()) == 12
    assert "dry_bulb" in weather and list(weather)[0] == "dry_bulb"
    pytest.importorskip("xarray")
    assert weather.to_xarray().dry_bulb.attrs["units"] == "°C"


@pytest.mark.parametrize("change, words", [
    (lambda lines: lines[:8], "no hours of weather"),
    (lambda lines: lines[1:], "line 1: LOCATION"),
    (lambda lines: [*lines[:10], lines[10].rsplit(",", 20)[0], *lines[11:]], "line 11: 26 fields"),
    (lambda lines: [*lines[:9], lines[9].replace(",", ",x", 6), *lines[10:]], "line 10: a field is no number"),
    (lambda lines: [*lines[:9], "2005,13" + lines[9][lines[9].index(",", 5):], *lines[10:]], "line 10: month 13"),
    (lambda lines: [], "line 1"),
    (lambda lines: lines[:7] + lines[8:], "line 8: DATA PERIODS"),
    (lambda lines: [*lines[:9], "nan,1" + lines[9][lines[9].index(",", 5):], *lines[10:]], "line 10: year nan"),
    (lambda lines: [*lines[:9], "2005,2,30" + lines[9][lines[9].index(",", 7):], *lines[10:]], "line 10: day 30 is not from 1 to 29"),
    (lambda lines: [lines[0].replace(lines[0].split(",")[6], "100"), *lines[1:]], "line 1: latitude 100"),
    (lambda lines: ["\0" + lines[0], *lines[1:], '"' + "x" * 140000], "line 1|no table"),
])
def test_faults_of_weather_files(epw, tmp_path, change, words):
    path = tmp_path / "bad.epw"
    path.write_text("\n".join(change(epw.read_text().splitlines()[:40])))
    with pytest.raises(ValueError, match=words):
        climate.read_epw(path)
