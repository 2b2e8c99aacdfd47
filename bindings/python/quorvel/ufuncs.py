"""The NumPy ufunc behind each function, by its name: `quorvel.ufuncs.vapour_pressure`.

They take what any ufunc takes (`axes=`, `order=`, `dtype=`, …) and give plain tuples; those of layers, vertices
and vectors are generalised ufuncs.
"""

from ._core import ufuncs as _all

globals().update(_all)
__all__ = list(_all)
