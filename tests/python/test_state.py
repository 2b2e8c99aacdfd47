"""The state of moist air: any two quantities give all others back, and processes keep what they must."""

import itertools

import numpy as np
import pytest
from quorvel import psychro

FIELDS = dict(t="dry_bulb", wb="wet_bulb", rh="relative_humidity", mu="percentage_saturation", td="dew_point",
              g="moisture_content", h="enthalpy", pv="vapour_pressure")
ALIKE = ({"td", "g", "pv"}, {"rh", "mu"})
PAIRS = [pair for pair in itertools.combinations(FIELDS, 2) if not any(set(pair) <= alike for alike in ALIKE)]
# Wet bulb and enthalpy run nearly side by side: what single precision leaves of a pair of them
TOLERANCE = {("wb", "h"): 0.02}


@pytest.fixture(scope="module")
def air():
    t, rh, p = np.meshgrid(np.linspace(-15, 45, 13), np.linspace(10, 95, 8), [80000, 101325], indexing="ij")
    return psychro.state(t=t, rh=rh, p=p)


@pytest.mark.parametrize("pair", PAIRS)
def test_any_two_give_all(pair, air):
    again = psychro.state(**{name: getattr(air, FIELDS[name]) for name in pair}, p=air.pressure)
    within = TOLERANCE.get(pair, 0.005)
    np.testing.assert_allclose(again.dry_bulb, air.dry_bulb, atol=within)
    np.testing.assert_allclose(again.relative_humidity, air.relative_humidity, atol=10 * within)
    np.testing.assert_allclose(again.moisture_content, air.moisture_content, rtol=within / 4)


def test_independent_relations(air):
    assert (air.dew_point <= air.wet_bulb + 0.02).all() and (air.wet_bulb <= air.dry_bulb + 0.001).all()
    ideal = 0.621945 * air.vapour_pressure / (air.pressure - air.vapour_pressure)  # ASHRAE Fundamentals, 2017, ch. 1
    np.testing.assert_allclose(air.moisture_content, ideal, rtol=0.008)
    gas = air.pressure / (287.042 * (air.dry_bulb + 273.15) * (1 + 1.607858 * air.moisture_content))
    np.testing.assert_allclose(air.density, gas * (1 + air.moisture_content), rtol=0.003)
    np.testing.assert_allclose(air.specific_volume * air.density, 1 + air.moisture_content, rtol=1e-3)


@pytest.mark.parametrize("given, words", [
    (dict(t=20), "two quantities are needed, not 1"),
    (dict(t=20, rh=50, g=0.01), "not 3"),
    (dict(t=20, x=5), "x is none of t \\(dry bulb\\)"),
    (dict(g=0.01, pv=1500), "moisture content and vapour pressure say the same"),
    (dict(rh=50, mu=50), "say the same"),
])
def test_what_is_no_pair(given, words):
    with pytest.raises(TypeError, match=words):
        psychro.state(**given)


def test_what_no_air_has_does_not_come_back():
    assert psychro.state(t=20, rh=150).relative_humidity == pytest.approx(100)
    assert psychro.state(t=20, wb=25).wet_bulb == pytest.approx(20, abs=0.01)
    lists = psychro.cooled(psychro.state(t=[20, 30], rh=50), [12, 14], 8)
    assert all(each.dtype == np.float32 for each in lists)
    screen = psychro.state(t=32, rh=40, psychrometer="screen")
    assert psychro.humidified(screen, 90) == psychro.humidified(psychro.state(t=32, rh=40), 90)


def test_tables_stay_tables():
    pandas = pytest.importorskip("pandas")
    table = pandas.DataFrame({"t": [20.0, 25.0], "rh": [50.0, 60.0]}, index=["a", "b"])
    air = psychro.state(t=table.t, rh=table.rh)
    assert all(each.index.tolist() == ["a", "b"] for each in air[:-1])


def test_as_a_table():
    pandas, xarray = pytest.importorskip("pandas"), pytest.importorskip("xarray")
    hours = pandas.date_range("2005-01-01", periods=3, freq="h", name="time")
    t = pandas.Series([20.0, 25.0, 30.0], index=hours)
    table = pandas.DataFrame(psychro.state(t=t, rh=50)._asdict())
    assert table.index.equals(hours) and tuple(table.columns) == psychro.State._fields and not table.isna().any(axis=None)
    for known in (dict(t=t.to_xarray(), rh=50), dict(g=t.to_xarray() / 5000, h=50), dict(pv=t.to_xarray() * 50, rh=60)):
        pressure = xarray.full_like(t.to_xarray(), 100000)
        data = xarray.Dataset(psychro.state(**known, p=pressure)._asdict())
        assert all(each.attrs["units"] and each.attrs["long_name"] for each in data.values())
        assert data.sizes == {"time": 3} and not pressure.attrs  # what was given stays as it was


def test_mixing_keeps_mass_and_energy(air):
    other, flow = psychro.state(t=18, rh=50, p=air.pressure), np.float32(3)
    mixture = psychro.mixed(air, other, flow, 1)
    np.testing.assert_allclose(mixture.moisture_content, (flow * air.moisture_content + other.moisture_content) / 4, rtol=1e-5)
    np.testing.assert_allclose(mixture.enthalpy, (flow * air.enthalpy + other.enthalpy) / 4, atol=2e-3)


def test_processes():
    air = psychro.state(t=28, rh=55)
    coil = psychro.cooled(air, 14, 9)
    surface = psychro.state(t=9, rh=100)
    share = (air.moisture_content - coil.moisture_content) / (air.moisture_content - surface.moisture_content)
    assert share == pytest.approx((28 - 14) / (28 - 9), rel=1e-5)
    assert psychro.cooled(air, 22, 20).moisture_content == air.moisture_content  # the coil stays dry
    warm = psychro.heated(coil, 20)
    assert warm.moisture_content == coil.moisture_content
    assert warm.enthalpy - coil.enthalpy == pytest.approx(1.02 * 6, rel=0.02)  # kJ/kgK of moist air
    sprayed = psychro.humidified(psychro.state(t=35, rh=20), 80)
    assert sprayed.enthalpy == pytest.approx(psychro.state(t=35, rh=20).enthalpy, rel=0.02) and sprayed.dry_bulb < 25
    assert psychro.humidified(air, 70, by="steam").dry_bulb == 28
    with pytest.raises(ValueError, match="'water' or 'steam'"):
        psychro.humidified(air, 70, by="fog")
