"""The psychrometric chart, by Matplotlib."""

from typing import Any

import numpy as np

from . import routines as r
from .moist_air import State, state

__all__ = ["chart", "draw_process"]

_HUMIDITIES = range(10, 101, 10)
_FAINT, _WET = "#8a8a8a", "#56B4E9"


def chart(ax: Any = None, *, t: tuple[float, float] = (0, 40), g: tuple[float, float] = (0, 0.025),
          p: float = 101325.0) -> Any:
    """Draw a psychrometric chart: moisture content over dry bulb, relative humidity and wet bulb.

    Parameters
    ----------
    ax : matplotlib.axes.Axes, optional
        Where to draw; the current one of pyplot if not given.
    t, g : pair of float, optional
        Dry bulbs [°C] and moisture contents [kg/kg of dry air] from and to.
    p : float, optional
        Atmospheric pressure [Pa].

    Returns
    -------
    matplotlib.axes.Axes
        Its y axis is in g/kg. `draw_process` draws changes of state on it.

    Examples
    --------
    >>> from quorvel import psychro                                               # doctest: +SKIP
    >>> air = psychro.state(t=32, rh=40)                                          # doctest: +SKIP
    >>> axes = psychro.chart()                                                    # doctest: +SKIP
    >>> psychro.draw_process(axes, air, psychro.cooled(air, 14, 9), label="coil")  # doctest: +SKIP
    """
    if ax is None:
        import matplotlib.pyplot as plt

        ax = plt.gca()
    temperature = np.linspace(*t, 201)
    humidity = np.array(_HUMIDITIES)[:, None]
    moisture = 1000 * r.moisture_content(temperature, r.vapour_pressure(temperature, humidity), p)
    ax.plot(temperature, moisture[:-1].T, color=_FAINT, linewidth=0.6)
    ax.plot(temperature, moisture[-1], color="black", linewidth=1.2)
    _draw_wet_bulbs(ax, t, p)
    ax.set(xlim=t, ylim=np.multiply(1000, g), xlabel="dry-bulb temperature [°C]", ylabel="moisture content [g/kg of dry air]")
    _label_humidities(ax, t, 1000 * g[1], p)
    return ax


def draw_process(ax: Any, *states: State, label: str | None = None, **style: Any) -> Any:
    """Draw states and the straight lines from one to the next; `label` stands beside the middle of the first.

    Further options are those of `ax.plot`. Returns its lines.
    """
    points = np.array([(float(each.dry_bulb), 1000 * float(each.moisture_content)) for each in states])
    lines = ax.plot(*points.T, **{"marker": "o", "markersize": 4, "linewidth": 2} | style)
    if label:
        ax.annotate(label, points[:2].mean(axis=0), xytext=(4, 4), textcoords="offset points", color=lines[0].get_color())
    return lines


def _draw_wet_bulbs(ax, t, p):
    wet_bulbs = np.arange(np.ceil(t[0] / 5) * 5, t[1], 5)
    along = wet_bulbs[:, None] + np.linspace(0, t[1] - t[0], 101)
    pressure = r.vapour_pressure_from_psychrometer(along, wet_bulbs[:, None], p, "sling")
    ax.plot(along.T, 1000 * r.moisture_content(along, pressure, p).T, color=_WET, linewidth=0.5, linestyle="--")


def _label_humidities(ax, t, highest, p):
    """Where each line leaves the chart, at its top or on the right."""
    for humidity in (20, 40, 60, 80, 100):
        right = 1000 * float(state(t=t[1], rh=humidity, p=p).moisture_content)
        at_right = right <= highest
        x = t[1] if at_right else float(state(rh=humidity, g=highest / 1000, p=p).dry_bulb)
        ax.annotate(f"{humidity} %", (x, right if at_right else highest), xytext=(3, 0) if at_right else (0, 3),
                    textcoords="offset points", ha="left" if at_right else "center", va="center" if at_right else "bottom",
                    fontsize=8, color=_FAINT if humidity < 100 else "black", annotation_clip=False)
