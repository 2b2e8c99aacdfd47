# %% [markdown]
# # How much water does a swimming pool put into the air?
# The evaporation sizes the ventilation of the hall. How does it depend on the air that is kept there, and on bathers?
#
# `psychrometer_wet_bulb` turns relative humidity into a wet bulb, `pool_evaporation_from_wet_bulb` gives rate and
# heat for the water's surface: 25 m by 12.5 m at 28 °C, 60 bathers or none. The regressions behind it hold for
# ordinary halls with little air movement, without slides or wave machines; calm water close to equilibrium with the
# air falls below 0 by them, and is not drawn.
#
# **The picture** shows the water evaporated in an hour, by temperature and relative humidity of the air; the dot is
# the usual 30 °C and 55 %. Check: by the formula in the routine's notes, with 0.55 × 4247 Pa in the air and 3783 Pa
# at the water, 2.193e-8 × 1447 - 1.64e-5 = 1.53e-5 kg/m²s, 17 kg/h; with bathers 4.17e-8 × 1447 × 60 / 312.5 +
# 3.28e-5 = 4.44e-5 kg/m²s, 50 kg/h.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.psychro import pool_evaporation_from_wet_bulb, psychrometer_wet_bulb

WATER, AREA, PRESSURE = 28, 312.5, 101325  # °C, m², Pa
air = np.linspace(26, 34, 81)  # °C
humidity = np.array([40, 50, 60, 70])  # %
BATHERS = 0, 60


def evaporation(temperature, relative_humidity, bathers):
    """Water in kg/h, and the heat that it takes along in kW."""
    wet_bulb = psychrometer_wet_bulb(temperature, relative_humidity, PRESSURE, "sling")
    pool = pool_evaporation_from_wet_bulb(AREA, 0, WATER, temperature, wet_bulb, WATER, bathers, 0, PRESSURE)
    return 3600 * AREA * pool.evaporation_rate, pool.latent_load / 1000


# %% [markdown]
# Bathers, humidities and temperatures along three axes. The wet bulb is searched in steps of 0.1 K, which shows as a
# small unevenness of the lines.

# %%
water, heat = evaporation(air, humidity[:, None], np.array(BATHERS)[:, None, None])
usual, usual_heat = (each.tolist() for each in evaporation(30, 55, np.array(BATHERS)))

# %%
figure, panels = plt.subplots(1, 2, figsize=(8, 3.9), sharey=True)
shades = plt.get_cmap("viridis")(np.linspace(0.75, 0.1, len(humidity)))
for axes, curves, people, point, load in zip(panels, water, BATHERS, usual, usual_heat):
    for curve, rh, colour in zip(curves, humidity, shades):
        axes.plot(air, curve, color=colour)
        style.label(axes, 26.8, np.interp(26.8, air, curve), f"{rh} %", colour, (0, 0), ha="center")
    axes.plot(30, point, "o", color="black", markersize=4)
    axes.set(xlim=(26, 34), ylim=(0, 70), xlabel="air temperature [°C]",
             title=f"{people or 'No'} bathers: at the dot {point:.0f} kg/h, {load:.0f} kW")
panels[0].set(ylabel="evaporation [kg/h]")
plt.show()
