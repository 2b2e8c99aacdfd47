"""Tables, labelled arrays and arrays in chunks keep their kind, and get the bits of plain arrays."""

import subprocess
import sys

import numpy as np
import pytest
import quorvel
from quorvel import climate, fabric, geometry, glazing, psychro

pandas = pytest.importorskip("pandas")
xarray = pytest.importorskip("xarray")
dask = pytest.importorskip("dask.array")

T = np.linspace(-20, 40, 12)
LAYERS = np.linspace(0.01, 0.3, 12).reshape(4, 3)


def same(labelled, plain):
    np.testing.assert_array_equal(np.asarray(labelled), plain)


def test_pandas():
    index = pandas.date_range("2005-01-01", periods=12, freq="h")
    table = pandas.DataFrame({"t": T, "rh": 50.0}, index=index)
    pressure = psychro.vapour_pressure(table["t"], table["rh"])
    assert isinstance(pressure, pandas.Series) and pressure.index.equals(index)
    assert pressure.name == "vapour_pressure" and pressure.dtype == np.float32
    same(pressure, psychro.vapour_pressure(T, 50.0))
    shuffled = table["rh"].sample(frac=1, random_state=1)  # Series go together by their index
    same(psychro.vapour_pressure(table["t"], shuffled), pressure)
    assert psychro.vapour_pressure(table, 50).columns.tolist() == ["t", "rh"]
    several = glazing.unit_direct_shares(0.5, 0.1, table["rh"] / 100, 2)
    assert all(isinstance(each, (pandas.Series, pandas.DataFrame)) for each in several)
    walls = pandas.DataFrame(LAYERS, index=list("abcd"))
    same(fabric.u_value(walls, [0.1, 0.2, 0.3], 0.13, 0.04), fabric.u_value(LAYERS, [0.1, 0.2, 0.3], 0.13, 0.04))
    assert fabric.u_value(walls, [0.1, 0.2, 0.3], 0.13, 0.04).index.tolist() == list("abcd")


def test_names_of_selectors_keep_their_labels():
    kinds, numbers = ["sling", "screen"], psychro.vapour_pressure_from_psychrometer(25, 20, 101325, [1, 2])
    series = pandas.Series(kinds, index=["a", "b"]).astype("category")
    labelled = xarray.DataArray(kinds, dims="kind", coords={"kind": kinds})
    for given in (kinds, np.array(kinds), series, labelled):
        result = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, given)
        same(result, numbers)
        assert isinstance(result, np.ndarray if given is kinds else type(given))
    assert result.coords["kind"].values.tolist() == kinds
    table = pandas.DataFrame([["sling", 2]], columns=["x", "y"])
    assert psychro.vapour_pressure_from_psychrometer(25, 20, 101325, table).columns.tolist() == ["x", "y"]


def test_names_of_selectors_in_any_array():
    def pressure(kind):
        return psychro.vapour_pressure_from_psychrometer(25, 20, 101325, kind)

    kinds, numbers = ["sling", "screen"], pressure([1, 2])
    for given in (np.array(kinds, object), ["sling", psychro.Psychrometer.screen], np.array(["sling", 2], object),
                  pandas.Categorical(kinds), pandas.CategoricalIndex(kinds), pandas.array(kinds, dtype="string"),
                  pandas.Series([1, 2], dtype="Int64"), xarray.Dataset({"kind": ("k", kinds)}).kind):
        same(pressure(given), numbers)
    same(pressure([["sling"], ["screen"]]), numbers[:, None])
    assert pressure([]).shape == (0,)
    lazy = dask.from_array(np.array(kinds), chunks=1)
    assert pressure(xarray.DataArray(lazy, dims="k")).chunks and not isinstance(pressure(lazy), np.ndarray)
    same(pressure(lazy).compute(scheduler="threads"), numbers)
    same(pressure(xarray.Dataset({"a": ("k", kinds)})).a, numbers)
    for missing in (pandas.Series(["sling", None], dtype="category"), pandas.Series(["sling", None], dtype="string")):
        with pytest.raises(ValueError, match="psychrometer: (nan|<NA>) is none of 'sling', 'screen'"):
            pressure(missing)


def test_pandas_lists_go_together_by_their_labels():
    walls = pandas.DataFrame(LAYERS, index=list("abcd"), columns=["out", "mid", "in"])
    conductivity = pandas.Series([0.1, 0.2, 0.3], index=walls.columns)
    outside = pandas.Series([0.04, 0.05, 0.06, 0.07], index=walls.index)
    u = fabric.u_value(walls, conductivity, 0.13, outside)
    for shuffled in (walls.iloc[::-1], walls[["in", "out", "mid"]]):
        again = fabric.u_value(shuffled, conductivity, 0.13, outside)
        same(again[u.index], u)
    same(fabric.u_value(walls, conductivity.iloc[::-1], 0.13, outside.iloc[::-1]), u)
    one_wall = fabric.u_value(walls.loc["a"], conductivity, [0.13, 0.10, 0.17], 0.04)
    assert isinstance(one_wall, np.ndarray)  # three surfaces, not three layers
    with pytest.raises(ValueError, match="conductivity: its labels"):
        fabric.u_value(walls, conductivity.rename({"mid": "wool"}), 0.13, 0.04)


def test_pandas_kinds_of_numbers():
    missing = pandas.Series([20, None], dtype="Float64")
    assert np.isnan(psychro.vapour_pressure(missing, 50)).tolist() == [False, True]
    same(psychro.vapour_pressure([20, 30], pandas.Index([40, 50])), psychro.vapour_pressure([20, 30], [40, 50]))
    days = pandas.date_range("2005-06-01", periods=3, freq="D")
    assert climate.solar_geometry(0.9, days.day_of_year, 12).solar_altitude.shape == (3,)
    for texts in (pandas.Series(["20", "30"]), pandas.Series(["20"], dtype="category")):
        with pytest.raises(TypeError, match="relative_humidity: numbers are needed|dry_bulb: numbers are needed"):
            psychro.vapour_pressure(texts, 50)


@pytest.mark.parametrize("chunks", [None, {"time": 5}])
def test_xarray(chunks):
    t = xarray.DataArray(T, dims="time", coords={"time": pandas.date_range("2005-01-01", periods=12, freq="h")})
    rh = xarray.DataArray([30.0, 60.0], dims="case", coords={"case": ["dry", "moist"]})
    t = t.chunk(chunks) if chunks else t
    pressure = psychro.vapour_pressure(t, rh)
    assert pressure.dims == ("time", "case") and (pressure.chunks is not None) == bool(chunks)
    assert pressure.name == "vapour_pressure" and pressure.attrs == {"units": "Pa", "long_name": "vapour pressure"}
    assert pressure.sel(case="moist").case == "moist"
    same(pressure, psychro.vapour_pressure(T[:, None], [30, 60]))
    several = geometry.surface_axes(t / 40, 0.5)
    same(several.rotation_matrix, geometry.surface_axes(T / 40, 0.5).rotation_matrix)
    assert several.rotation_matrix.dims[0] == "time"


@pytest.mark.parametrize("chunks", [None, {"layer": 1, "wall": 3}])
def test_xarray_of_layers(chunks):
    thickness = xarray.DataArray(LAYERS, dims=("wall", "layer"), coords={"wall": list("abcd")})
    thickness = thickness.chunk(chunks) if chunks else thickness
    u = fabric.u_value(thickness, [0.1, 0.2, 0.3], 0.13, xarray.DataArray([0.04, 0.13], dims="side"))
    assert set(u.dims) == {"wall", "side"} and u.attrs["units"] == "W/m²K"
    same(u.transpose("wall", "side"), fabric.u_value(LAYERS[:, None], [0.1, 0.2, 0.3], 0.13, [0.04, 0.13]))


def test_what_goes_with_xarray():
    t = xarray.DataArray(T, dims="time")
    rh = pandas.Series(np.linspace(40, 60, 12), index=pandas.RangeIndex(12, name="time"))
    same(psychro.vapour_pressure(t, rh), psychro.vapour_pressure(T, rh.to_numpy()))
    with pytest.raises(TypeError, match="relative_humidity: a table of pandas goes with arrays of xarray only if"):
        psychro.vapour_pressure(t, rh.rename_axis(None))
    same(psychro.vapour_pressure(t.variable, 50), psychro.vapour_pressure(T, 50))
    layers = xarray.DataArray(LAYERS, dims=("wall", "layer"))
    with pytest.raises(ValueError, match="conductivity: its last dimension is 'l' where that of thickness is 'layer'"):
        fabric.u_value(layers, xarray.DataArray([1.0, 1, 1], dims="l"), 0.13, 0.04)
    with pytest.raises(ValueError, match=r"thickness: an array of shape \(..., layers\) is needed"):
        fabric.u_value(xarray.DataArray(0.1), [1.0], 0.13, 0.04)


def test_outputs_as_long_as_lists_say():
    def profile(thickness, outside):
        return fabric.condensation_profile(thickness, [0.77, 0.04], [50, 5], 0.13, 0.04, 20, outside, 50, 80)

    plain, index = profile([0.1, 0.1], T).interface_temperature, pandas.Index(T, name="time")
    assert plain.shape == (12, 3) and np.isfinite(plain).all()
    series = profile([0.1, 0.1], pandas.Series(T, index=index)).interface_temperature
    assert isinstance(series, pandas.DataFrame) and series.index.equals(index)
    lazy = profile(dask.from_array([0.1, 0.1], chunks=1), dask.from_array(T, chunks=5)).interface_temperature
    assert lazy.shape == (12, 3)  # before anything is worked out
    labelled = xarray.DataArray(T, dims="time")
    chunked = profile([0.1, 0.1], labelled.chunk(time=5)).interface_temperature
    assert chunked.dims == ("time", "interfaces") and chunked.sizes["interfaces"] == 3
    for each in (series, lazy.compute(), profile([0.1, 0.1], labelled).interface_temperature, chunked):
        same(each, plain)


def test_data_set():
    data = xarray.Dataset({"roof": ("time", T), "wall": ("time", T + 1)})
    pressure = psychro.saturation_pressure(data)
    assert isinstance(pressure, xarray.Dataset) and pressure.wall.attrs["units"] == "Pa"
    same(pressure.wall, psychro.saturation_pressure(T + 1))


def test_dask():
    t = dask.from_array(T, chunks=5)
    pressure = psychro.vapour_pressure(t, 50)
    assert isinstance(pressure, dask.Array) and pressure.chunks == ((5, 5, 2),) and pressure.dtype == np.float32
    same(pressure.compute(scheduler="threads"), psychro.vapour_pressure(T, 50))
    several = glazing.unit_direct_shares(0.5, 0.1, t / 100, 2)
    same(several.pane_shares.compute(), glazing.unit_direct_shares(0.5, 0.1, T / 100, 2).pane_shares)
    some = t[t > 0]  # of unknown size
    same(psychro.vapour_pressure(some, some + 40).compute(), psychro.vapour_pressure(T[T > 0], T[T > 0] + 40))
    with pytest.raises(TypeError, match="arrays of Dask do not go with those of xarray"):
        psychro.vapour_pressure(t, xarray.DataArray(T))
    walls = dask.from_array(LAYERS, chunks=(2, 1))
    same(fabric.u_value(walls, walls, 0.13, 0.04).compute(), fabric.u_value(LAYERS, LAYERS, 0.13, 0.04))


def test_policy_of_the_caller_holds_where_chunks_are_computed():
    with quorvel.errstate(range="nan"):
        lazy = psychro.vapour_pressure(dask.from_array(T, chunks=5), 101)
    assert np.isnan(lazy.compute(scheduler="threads")).all()
    lazy = psychro.vapour_pressure(dask.from_array(T, chunks=5), 101)
    with quorvel.errstate(range="nan"):
        assert np.isfinite(lazy.compute(scheduler="threads")).all()


def test_worker_processes_give_the_same_bits():
    distributed = pytest.importorskip("distributed")
    with distributed.LocalCluster(n_workers=2, threads_per_worker=1, processes=True, dashboard_address=None) as cluster:
        with distributed.Client(cluster):
            same(psychro.vapour_pressure(dask.from_array(T, chunks=3), 50).compute(), psychro.vapour_pressure(T, 50))


def test_options_are_refused():
    with pytest.raises(TypeError, match="out and where do not go with arrays of xarray"):
        psychro.vapour_pressure(xarray.DataArray(T), 50, out=np.empty(12, np.float32))


def test_nothing_is_imported_that_is_not_used():
    known = "import sys, quorvel; quorvel.psychro.vapour_pressure(20, [50]); "
    code = known + "print([name for name in ('pandas', 'xarray', 'dask', 'scipy') if name in sys.modules])"
    assert subprocess.run([sys.executable, "-c", code], capture_output=True, text=True, check=True).stdout.strip() == "[]"
