"""What the functions take: any shape, stride and type that becomes a number, and clear words for all else."""

import contextvars
import threading

import hypothesis.extra.numpy as arrays
import numpy as np
import pytest
import quorvel
from hypothesis import given, settings
from hypothesis import strategies as st
from quorvel import fabric, geometry, glazing, psychro, ufuncs
from quorvel.catalogue import ROUTINES

DTYPES = [np.dtype(kind) for kind in ("f4", "f8", "f2", ">f4", ">f8", "i4", "i8", "u1", "u4", ">i2", "?")]


@st.composite
def views(draw, shape):
    """Numbers from -20 to 100 as a view with any steps, of any type."""
    dtype = draw(st.sampled_from(DTYPES))
    steps = draw(st.tuples(*[st.sampled_from([1, 2, -1, -3]) for _ in shape]))
    room = tuple(max(1, n) * abs(step) for n, step in zip(shape, steps))
    low = 0 if dtype.kind in "ub" else -20
    numbers = draw(arrays.arrays(np.int8, room, elements=st.integers(low, 100))).astype(dtype)
    view = numbers[tuple(slice(None, None, step) for step in steps)]
    return view[tuple(slice(n) for n in shape)]


@st.composite
def broadcast(draw, count):
    shapes = draw(arrays.mutually_broadcastable_shapes(num_shapes=count, max_dims=3, min_side=0, max_side=4)).input_shapes
    return [draw(views(shape)) for shape in shapes]


@settings(deadline=None, max_examples=200)
@given(broadcast(3))
def test_arrays_of_any_kind_give_what_numbers_give(given):
    result = psychro.percentage_saturation(*given)
    flat = np.broadcast_arrays(*given)
    one_by_one = [psychro.percentage_saturation(*(float(each) for each in values)) for values in zip(*(a.flat for a in flat))]
    expected = np.array(one_by_one, np.float32).reshape(flat[0].shape)
    assert result.dtype == np.float32 and np.shape(result) == flat[0].shape
    np.testing.assert_array_equal(result, expected)


@settings(deadline=None, max_examples=100)
@given(st.data())
def test_lists_of_any_kind_give_what_single_ones_give(data):
    walls, layers = data.draw(st.integers(0, 3)), data.draw(st.integers(1, 5))
    thickness, conductivity = (data.draw(views((walls, layers))) for _ in range(2))
    outside = data.draw(views((walls,)))
    together = fabric.u_value(thickness, conductivity, 0.13, outside)
    for k in range(walls):
        np.testing.assert_array_equal(together[k], fabric.u_value(thickness[k], conductivity[k], 0.13, outside[k]))


def test_options_of_ufuncs():
    t, out = np.linspace(0, 40, 5), np.full(5, -1, np.float32)
    assert psychro.saturation_pressure(t, out=out, where=t > 15) is out
    np.testing.assert_array_equal(out, np.where(t > 15, psychro.saturation_pressure(t), -1))
    wide = psychro.saturation_pressure(t, out=np.empty(5))  # cast as NumPy does
    np.testing.assert_array_equal(wide, psychro.saturation_pressure(t))
    in_place = t.astype(np.float32)
    np.testing.assert_array_equal(psychro.saturation_pressure(in_place, out=in_place), psychro.saturation_pressure(t))
    shifted = np.arange(6, dtype=np.float32)  # input and output overlap
    expected = psychro.saturation_pressure(shifted[:-1].copy())
    np.testing.assert_array_equal(psychro.saturation_pressure(shifted[:-1], out=shifted[1:]), expected)
    first = np.ones((3, 4))
    np.testing.assert_array_equal(ufuncs.dot_product(first, first, axes=[0, 0, ()]), [3, 3, 3, 3])
    assert ufuncs.vapour_pressure.outer([10, 20], [40, 50, 60]).shape == (2, 3)


def test_results():
    load = psychro.pool_evaporation(*[20] * len(ROUTINES["pool_evaporation"].inputs))
    assert isinstance(load, psychro.PoolEvaporation) and isinstance(load.latent_load, np.float32)
    parallel = geometry.parallel_planes(np.eye(3), [np.eye(3), np.eye(3) * 2])
    assert parallel.dtype == bool and parallel.all()
    assert geometry.length_in_double([3, 4, 0]) == 5 and geometry.length_in_double([3, 4, 0]).dtype == np.float64
    shares = glazing.unit_shares("direct", 0.5, 0.1, 0.3, [1, 3]).pane_shares
    assert shares.shape == (2, 5)
    np.testing.assert_array_equal(np.isnan(shares).sum(axis=1), [4, 2])


def test_outputs_as_long_as_lists_say():
    for layers in (0, 1, 20):
        given = [[0.1] * layers] * 3, 0.13, 0.04, [[20], [22]], [0, 5, 10], 50, 80
        profile = fabric.condensation_profile(*given[0], *given[1:])
        room = (np.empty((2, 3, layers + 1)), None, None)
        again = fabric.condensation_profile(*given[0], *given[1:], out=room)
        assert again.interface_temperature is room[0]
        for kept, other, full in zip(profile, again, ufuncs.condensation_profile(*given[0], *given[1:])):
            assert kept.shape == (2, 3, layers + 1) and kept.dtype == np.float32
            np.testing.assert_array_equal(kept, other)
            np.testing.assert_array_equal(kept, full[..., :layers + 1])
            assert np.isnan(full[..., layers + 1:]).all() and not np.isnan(kept).any()


@pytest.mark.parametrize("call, error, words", [
    (lambda: psychro.vapour_pressure("warm", 50), TypeError, "dry_bulb: a number is needed"),
    (lambda: psychro.vapour_pressure(20, None), TypeError, "relative_humidity: numbers are needed, not object"),
    (lambda: psychro.vapour_pressure(20, 1j), TypeError, "relative_humidity: numbers are needed, not complex128"),
    (lambda: psychro.vapour_pressure(20, np.array(["a"])), TypeError, "relative_humidity: numbers are needed"),
    (lambda: psychro.vapour_pressure(20), TypeError, "relative_humidity"),
    (lambda: psychro.vapour_pressure([1, 2], [1, 2, 3]), ValueError, "broadcast"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, 1.5), TypeError, "psychrometer: integers are needed"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, "slung"), ValueError, "psychrometer: 'slung' is none of 'sling', 'screen'"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, ["sling", "slung"]), ValueError, "psychrometer: 'slung' is none of 'sling'"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, ["sling", None]), ValueError, "psychrometer: None is none of 'sling', 'screen'"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, [2**70, 1]), ValueError, "psychrometer"),
    (lambda: psychro.vapour_pressure_from_psychrometer(25, 20, 101325, 2**70), ValueError, "psychrometer"),
    (lambda: fabric.u_value([1, 2], [1, 2, 3], 0.1, 0.1), ValueError, "conductivity has 3 layers where thickness has 2"),
    (lambda: fabric.condensation_profile([1, 2], [1], [1, 2], 0.1, 0, 20, 0, 50, 80), ValueError, "conductivity has 1 layers where"),
    (lambda: fabric.condensation_profile([1] * 2, [1] * 2, [1] * 2, 0, 0, 20, 0, 50, 80, out=(np.empty(21),) * 3), ValueError, "shape"),
    (lambda: fabric.u_value(1, [1], 0.1, 0.1), ValueError, r"thickness: an array of shape \(..., layers\) is needed"),
    (lambda: fabric.u_value([1] * 21, [1] * 21, 0.1, 0.1), ValueError, "layers must be from 0 to 20"),
    (lambda: geometry.plan_area([0, 1], [0, 1]), ValueError, "vertices must be at least 3"),
    (lambda: geometry.dot_product([1, 2], [1, 2]), ValueError, "vector_a: 3 numbers are needed along an axis, not 2"),
    (lambda: glazing.unit_shares(1, 0.5, 0.1, 0.3, [1, 9]), ValueError, "panes must be from 1 to 5"),
    (lambda: psychro.vapour_pressure(20, 50, out=np.empty(1, int)), TypeError, "vapour_pressure"),
    (lambda: quorvel.errstate(range="loud"), ValueError, "'ignore', 'nan', 'warn', 'raise'"),
    (lambda: quorvel.choose_level("v9"), ValueError, "v9"),
    (lambda: quorvel.weather, AttributeError, "weather"),
])
def test_errors_name_the_argument(call, error, words):
    with pytest.raises(error, match=words):
        call()


def test_integers_beyond_32_bits_stay_beyond():
    month = np.array([2**40, -2**40, 1])
    with quorvel.errstate(range="nan"):
        inside = psychro.vapour_pressure_from_psychrometer(25, 20, 101325, month)
    np.testing.assert_array_equal(np.isnan(inside), [True, True, False])


class TestErrstate:
    def test_nan(self):
        with quorvel.errstate(range="nan"):
            result = psychro.vapour_pressure([20, 500, np.nan, 20], [50, 50, 50, 101])
            shares = glazing.unit_shares(1, [0.5, 7], 0.1, 0.3, 2)
            assert np.isnan(psychro.vapour_pressure(500, 50))
        np.testing.assert_array_equal(np.isnan(result), [False, True, True, True])
        assert np.isnan(shares.pane_shares[1]).all() and not np.isnan(shares.pane_shares[0, :2]).any()
        assert not np.isnan(psychro.vapour_pressure(20, 101))

    def test_raise_names_argument_value_and_range(self):
        with quorvel.errstate(range="raise"):
            with pytest.raises(quorvel.RangeError, match="relative_humidity = 101 is outside its valid range, 0 to 100 %"):
                psychro.vapour_pressure(20, np.linspace(0, 101, 5))
            with pytest.raises(quorvel.RangeError, match="2 elements"):
                psychro.vapour_pressure([20, 20, 20.0], [101.0, 50, 102])
            psychro.vapour_pressure(20, np.linspace(0, 100, 5))

    def test_warn_points_at_the_caller(self):
        with quorvel.errstate(range="warn"), pytest.warns(quorvel.RangeWarning, match="dry_bulb = 500") as caught:
            assert np.isfinite(psychro.vapour_pressure(500.0, 50.0))
        assert caught[0].filename == __file__

    def test_nests_and_keeps_to_its_context(self):
        elsewhere = []
        with quorvel.errstate(range="nan"):
            with quorvel.errstate(range="ignore"):
                assert np.isfinite(psychro.vapour_pressure(20, 101))
            thread = threading.Thread(target=lambda: elsewhere.append(psychro.vapour_pressure(20, 101)))
            thread.start()
            thread.join()
            assert np.isnan(psychro.vapour_pressure(20, 101))
            assert np.isfinite(contextvars.Context().run(psychro.vapour_pressure, 20, 101))
        assert np.isfinite(elsewhere[0])

    def test_goes_along_with_its_context(self):
        with quorvel.errstate(range="nan"):
            context = contextvars.copy_context()
        assert np.isnan(context.run(psychro.vapour_pressure, 20, 101)) and np.isfinite(psychro.vapour_pressure(20, 101))

    def test_exit_without_enter_changes_nothing(self):
        with pytest.raises(RuntimeError, match="exit without enter"):
            quorvel.errstate(range="nan").__exit__(None, None, None)
        with quorvel.errstate(range="nan"):
            assert np.isnan(psychro.vapour_pressure(20, 101))

    def test_decorates(self):
        assert np.isnan(quorvel.errstate(range="nan")(psychro.vapour_pressure)(20, 101))

        def one_by_one():
            yield psychro.vapour_pressure(20, 101)

        with pytest.raises(TypeError, match="generator"):
            quorvel.errstate(range="nan")(one_by_one)


def test_no_floating_point_warnings():
    """Both sides of a branch are tried in a pack; overflow there says nothing. Warnings are errors here."""
    with np.errstate(all="raise"):
        for values in ([1e30, -1e30, np.inf, 0], np.linspace(-300, 3000, 64)):
            psychro.saturation_pressure(values)
            psychro.saturation_pressure(np.asarray(values, np.float32))


def test_levels_give_the_same_bits():
    t, given = np.linspace(-50, 100, 1001), []
    try:
        for level in ("scalar", "v2", quorvel.level()):
            quorvel.choose_level(level)
            given.append(psychro.saturation_pressure(t))
    finally:
        quorvel.choose_level()
    np.testing.assert_array_equal(given[0], given[1])
    np.testing.assert_array_equal(given[0], given[2])


def test_threads_run_at_once():
    """The interpreter's lock is free while arrays are worked out, or the second thread would end last."""
    t, ended = np.linspace(0, 40, 4_000_000), []
    long = threading.Thread(target=lambda: (psychro.saturation_pressure(np.tile(t, 4)), ended.append("long")))
    long.start()
    psychro.saturation_pressure(t[:10])
    ended.append("short")
    long.join()
    assert ended == ["short", "long"]
