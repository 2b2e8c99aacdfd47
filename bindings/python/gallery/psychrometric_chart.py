# %% [markdown]
# # Summer air conditioning in the psychrometric chart
# What does the coil have to do on a hot day, and how much of it is drying? Room air and outdoor air are mixed, cooled
# along a straight line to nearly saturated, warmed by the fan, and take up the heat and moisture of the room.
#
# `moisture_content_from_psychrometer` draws saturation and the lines of wet bulb; relative humidity is the ratio of
# the vapour pressures, which the saturated moisture content gives. `dry_air_enthalpy` and `water_vapour_enthalpy`
# make the enthalpy. Air pressure 101 325 Pa; the coil's line ends at the off-coil state, which is given.
#
# **The picture** shows the states on the chart and the cooling of the coil per kilogram of dry air. Check: with the
# constants that everyone remembers, 1.006 t + g (2501 + 1.86 t) kJ/kg, the coil's load agrees within 1 %.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.psychro import dry_air_enthalpy, moisture_content_from_psychrometer, water_vapour_enthalpy

PRESSURE = 101325  # Pa
RATIO = 0.62197  # molar masses of water and dry air


def saturated(temperature):
    return moisture_content_from_psychrometer(temperature, temperature, PRESSURE, "sling")


def moisture_content(temperature, relative_humidity):
    share = relative_humidity / 100 * saturated(temperature) / (RATIO + saturated(temperature))  # of the air pressure
    return RATIO * share / (1 - share)


def enthalpy(temperature, moisture):
    return dry_air_enthalpy(temperature) + moisture * water_vapour_enthalpy(temperature)


# %% [markdown]
# Three parts of room air to one part of outdoor air. Moisture and, very nearly, temperature mix by mass.

# %%
outdoor, room, off_coil = ((t, float(moisture_content(t, rh))) for t, rh in ((32, 40), (24, 50), (11.5, 95)))
mixed = tuple(0.25 * out + 0.75 * back for out, back in zip(outdoor, room))
supply = (off_coil[0] + 1.5, off_coil[1])  # K through fan and ducts
coil_load = float(enthalpy(*mixed) - enthalpy(*off_coil))  # kJ/kg, with the small heat of the water drained
condensate = 1000 * (mixed[1] - off_coil[1])  # g/kg

# %%
temperature = np.linspace(0, 40, 161, dtype=np.float32)
humidity = np.arange(10, 101, 10)
figure, axes = plt.subplots(figsize=(7, 4.8))
lines = 1000 * moisture_content(temperature, humidity[:, None])
axes.plot(temperature, lines[:-1].T, color=style.GREY, linewidth=0.6)
axes.plot(temperature, lines[-1], color="black")
for rh, t in ((20, 36), (40, 36), (60, 33), (80, 28.5), (100, 24.5)):
    style.label(axes, t, 1000 * moisture_content(t, rh), f"{rh} %", "black", (0, 0), ha="center", fontsize=8)
wet_bulb = np.arange(0, 31, 5)
along = wet_bulb[:, None] + np.linspace(0, 40, 81)
axes.plot(along.T, 1000 * moisture_content_from_psychrometer(along, wet_bulb[:, None], PRESSURE, "sling").T,
          color=style.SKY, linewidth=0.5, linestyle="--")
style.label(axes, 29.3, 18.3, "wet bulb 25 °C", style.BLUE, (0, 0), ha="center", rotation=-23, fontsize=8)
for (start, end), colour in zip(((outdoor, room), (mixed, off_coil), (off_coil, supply), (supply, room)),
                                (style.GREEN, style.BLUE, style.RED, style.ORANGE)):
    axes.plot((start[0], end[0]), (1000 * start[1], 1000 * end[1]), "o-", color=colour, linewidth=2.2, markersize=4)
for (t, g), name, shift in ((outdoor, "outdoors", (6, 6)), (room, "room", (-4, 9)), (mixed, "mixed", (4, -9)),
                            (off_coil, "off coil", (-6, 4)), (supply, "supply", (2, -9))):
    style.label(axes, t, 1000 * g, name, shift=shift, weight="bold")
axes.text(1, 24.5, f"coil: {coil_load:.1f} kJ per kg of dry air\ncondensate: {condensate:.1f} g per kg", va="top")
axes.set(xlim=(0, 40), ylim=(0, 26), xlabel="dry-bulb temperature [°C]", ylabel="moisture content [g/kg of dry air]",
         title="Mixing, cooling and drying, fan, room")
plt.show()
