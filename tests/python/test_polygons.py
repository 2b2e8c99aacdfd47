"""Polygons: areas that add up, by formulas of their own, one and many at once."""

import numpy as np
import pytest
from hypothesis import given, settings
from hypothesis import strategies as st
from quorvel import geometry

SQUARE = np.array([(0, 0), (0, 2), (2, 2), (2, 0)], float)


@st.composite
def stars(draw):
    """A polygon that is seen whole from its middle, so that it does not cross itself."""
    count = draw(st.integers(3, 12))
    random = np.random.default_rng(draw(st.integers(0, 2**32)))
    angle = np.sort((np.arange(count) + random.uniform(0.1, 0.9, count)) * 2 * np.pi / count)
    radius = random.uniform(1, 5, count)
    middle = random.uniform(-4, 4, 2)
    return middle + radius[:, None] * np.stack([np.cos(angle), np.sin(angle)], axis=1)


@settings(deadline=None, max_examples=150)
@given(stars(), stars())
def test_areas_add_up(a, b):
    pieces = geometry.clip(a, b)
    tolerance = 1e-3 * (geometry.area(a) + geometry.area(b)) ** 0.5 * 10
    assert sum(geometry.area(pieces.difference)) + sum(geometry.area(pieces.overlap)) == pytest.approx(geometry.area(a), rel=1e-9)
    assert geometry.overlap_area(a, b) == pytest.approx(geometry.overlap_area(b, a), abs=tolerance)
    assert geometry.overlap_area(a, b) == pytest.approx(sum(geometry.area(pieces.overlap)), abs=1e-12)


def test_collections():
    shifts = np.array([0.0, 0.5, 1.0, 3.0])
    many = SQUARE + shifts[:, None, None]
    np.testing.assert_allclose(geometry.overlap_area(many, SQUARE), (2 - np.minimum(shifts, 2)) ** 2, atol=1e-3)
    np.testing.assert_allclose(geometry.overlap_area(many, many), 4, atol=1e-3)
    ragged = [SQUARE, SQUARE[:3], [(0, 0), (4, 0), (4, 1), (2, 3), (0, 1)]]
    np.testing.assert_allclose(geometry.area(ragged), [4, 2, 8])
    clipped = geometry.clip(ragged, SQUARE + 1)
    assert [len(each.overlap) for each in clipped] == [len(each) for each in geometry.overlap(ragged, SQUARE + 1)]
    assert geometry.overlap_area([], SQUARE).shape == (0,) and geometry.clip([], SQUARE) == []


@settings(deadline=None, max_examples=100)
@given(stars(), st.floats(-3, 3), st.floats(0.1, 3), st.lists(st.floats(-50, 50), min_size=3, max_size=3))
def test_polygons_in_space(plan, azimuth, tilt, middle):
    """An orthonormal frame keeps the area, and its last axis is the normal."""
    axes = geometry.surface_axes(azimuth, tilt).rotation_matrix.astype(float)
    space = np.column_stack([plan, np.zeros(len(plan))]) @ axes + middle
    assert geometry.area(space) == pytest.approx(geometry.area(plan), rel=1e-5)
    together, alone = geometry.orientation([space, space[:3], space]), geometry.orientation(space)
    np.testing.assert_array_equal([each[0] for each in together], alone)
    np.testing.assert_array_equal([each[2] for each in together], alone)


@pytest.mark.parametrize("call, words", [
    (lambda: geometry.clip(SQUARE[:2], SQUARE), "a has fewer than 3 vertices"),
    (lambda: geometry.clip(SQUARE, SQUARE[[0, 2, 1, 3]]), "b crosses itself"),
    (lambda: geometry.clip(SQUARE, np.full((4, 2), np.nan)), "b has coordinates that are not numbers"),
    (lambda: geometry.clip(SQUARE[:, :1], SQUARE), r"a: a polygon has the shape \(n, 2\), not \(4, 1\)"),
    (lambda: geometry.clip([SQUARE] * 2, [SQUARE] * 3), "a has 2 polygons and b 3"),
    (lambda: geometry.orientation(SQUARE), r"polygon: a polygon has the shape \(n, 3\)"),
    (lambda: geometry.area("square"), "polygon: a polygon is of numbers, not of <U6"),
    (lambda: geometry.area(None), "polygon: a polygon is of numbers, not of object"),
    (lambda: geometry.clip([SQUARE, SQUARE[:2]], SQUARE), "pair 1: a has fewer than 3 vertices"),
    (lambda: geometry.area(np.ma.masked_less(SQUARE, 1)), "masked"),
])
def test_errors(call, words):
    with pytest.raises(ValueError, match=words):
        call()


def test_pairs_that_fail_are_not_numbers():
    areas = geometry.overlap_area([SQUARE, SQUARE[[0, 2, 1, 3]], SQUARE * np.nan], SQUARE)
    assert areas[0] == pytest.approx(4, abs=1e-3) and np.isnan(areas[1:]).all()
