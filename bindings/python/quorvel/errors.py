"""What is done about values outside the valid ranges."""

from collections.abc import Callable
from contextvars import ContextVar, Token
from typing import Any

from . import _core

__all__ = ["RangeError", "RangeWarning", "errstate"]

POLICIES = {"ignore": 0, "nan": 1, "warn": 2, "raise": 3}


class RangeError(ValueError):
    """A value is outside its valid range."""


class RangeWarning(UserWarning):
    """A value is outside its valid range."""


class errstate:
    """Context in which values outside the valid ranges are answered; not-a-number is outside.

    Parameters
    ----------
    range : {"ignore", "nan", "warn", "raise"}
        "ignore", as without a context, gives what the routine's notes say; "nan" gives not-a-number (0 in
        integers, False in logical results) for those elements; "warn" warns with `RangeWarning`; "raise" raises
        `RangeError`, which names the argument, the value and the range.

    Notes
    -----
    It holds for this thread or task, and those that it starts with its context. Arrays of Dask are computed by the
    policy of where the function was called (those of `quorvel.ufuncs`, by that of where they are computed). Contexts
    may be nested.

    Examples
    --------
    >>> import quorvel
    >>> with quorvel.errstate(range="nan"):
    ...     print(quorvel.psychro.vapour_pressure(20, [50, 150]))
    [1167.7646       nan]
    """

    def __init__(self, *, range: str) -> None:
        if range not in POLICIES:
            raise ValueError(f"range must be one of {', '.join(map(repr, POLICIES))}, not {range!r}")
        self.range = range
        self._tokens: list[Token[int]] = []

    def __enter__(self) -> "errstate":
        _core.use_policies()
        self._tokens.append(policy.set(POLICIES[self.range]))
        return self

    def __exit__(self, *_: object) -> None:
        if not self._tokens:
            raise RuntimeError("errstate: exit without enter")
        policy.reset(self._tokens.pop())

    def __call__(self, function: Callable[..., Any]) -> Callable[..., Any]:
        """As a decorator."""
        import inspect
        from functools import wraps

        if any(is_kind(function) for is_kind in (inspect.iscoroutinefunction, inspect.isgeneratorfunction,
                                                 inspect.isasyncgenfunction)):
            raise TypeError("errstate: use it within a coroutine or generator; as a decorator it would end too soon")

        @wraps(function)
        def guarded(*args, **options):
            with type(self)(range=self.range):
                return function(*args, **options)

        return guarded


def current():
    """The name of this context's policy."""
    return list(POLICIES)[policy.get()]


def report(routine, argument, value, elements, policy):
    """Called by the inner loops; `argument` is the name in the catalogue."""
    import warnings

    from .catalogue import ROUTINES

    described = next(known for known in ROUTINES[routine].inputs if known.name == argument)
    low, high = described.range
    limits = f"{low:g} to {high:g}" if high < float("inf") else f"from {low:g}"
    unit = f" {described.unit}" if described.unit not in ("", "1") else ""
    more = f" ({elements} elements are outside)" if elements > 1 else ""
    text = f"{routine}: {argument} = {value:g} is outside its valid range, {limits}{unit}{more}"
    if policy == POLICIES["raise"]:
        raise RangeError(text)
    warnings.warn(text, RangeWarning, stacklevel=_level_of_caller())


def _level_of_caller():
    """The first place that is neither in this package nor in a library of arrays that calls it."""
    import sys

    frame, level = sys._getframe(1), 1
    while frame.f_back and frame.f_globals.get("__name__", "").partition(".")[0] in ("quorvel", "pandas", "xarray", "dask"):
        frame, level = frame.f_back, level + 1
    return level


policy = ContextVar("quorvel.errstate", default=POLICIES["ignore"])
