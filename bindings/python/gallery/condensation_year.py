# %% [markdown]
# # Condensation through the year in a wall insulated inside
# An old brick wall gets mineral wool and gypsum board on its inside. Does it get wet behind the wool, does it dry in
# summer, and what does a polythene sheet change?
#
# `condensation_profile` gives temperature, vapour pressure and saturation at all interfaces for twelve months and
# both walls at once; `total_vapour_resistance` of the layers on either side of the wet interface gives the flows to
# and from it, and with them the water that gathers (Glaser's method as in ISO 13788: steady months, no liquid flow).
# Maritime climate; materials are typical, not of a product; the room is at 20 °C and 55 to 58 %.
#
# **The picture** shows vapour and saturation behind the wool, and the water gathered there. Check: in January the
# interface is at 20 - 15.6 (0.12 + 0.060 + 1.579) / (0.12 + 0.060 + 1.579 + 0.026 + 0.293 + 0.06) = 7.2 °C.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.fabric import condensation_profile, surface_resistance, total_vapour_resistance
from quorvel.psychro import vapour_pressure

# From the room outwards: gypsum board, polythene sheet, mineral wool, old plaster, brick.
THICKNESS = np.array([0.0125, 0, 0.060, 0.015, 0.220])  # m, 0 a membrane
CONDUCTIVITY = np.array([0.21, 1, 0.038, 0.57, 0.75])  # W/mK
RESISTIVITY = np.array([[45, 0, 6, 50, 45], [45, 250, 6, 50, 45]])  # GN s/(kg m), of the sheet GN s/kg: without, with
COLD = 3  # the interface behind the wool: layers that lie on its warm side
OUTSIDE = np.array([4.4, 4.7, 6.7, 8.9, 12.4, 15.5, 17.8, 17.5, 14.7, 11.1, 7.2, 4.8])  # °C
OUTSIDE_HUMIDITY = np.array([86, 83, 80, 77, 75, 75, 74, 75, 79, 84, 87, 88])  # %
INSIDE_HUMIDITY = np.array([57, 57, 56, 55, 55, 56, 58, 58, 57, 57, 57, 57])  # %
SECONDS = 86400 * np.array([31, 28, 31, 30, 31, 30, 31, 31, 30, 31, 30, 31])

inside_resistance = surface_resistance("inside", np.pi / 2, "normal")
outside_resistance = surface_resistance("outside", np.pi / 2, "normal")
profile = condensation_profile(THICKNESS, CONDUCTIVITY, RESISTIVITY[:, None], inside_resistance, outside_resistance, 20,
                               OUTSIDE, INSIDE_HUMIDITY, OUTSIDE_HUMIDITY)
temperature, pressure, saturation = (each[..., COLD] for each in profile)  # walls, months
january_temperature = float(temperature[0, 0])

# %% [markdown]
# While there is water at the interface, vapour is saturated there: what arrives less what leaves gathers or dries.

# %%
to_interface = (vapour_pressure(20, INSIDE_HUMIDITY) - saturation) / total_vapour_resistance(
    THICKNESS[:COLD], RESISTIVITY[:, :COLD])[:, None]
from_interface = (saturation - vapour_pressure(OUTSIDE, OUTSIDE_HUMIDITY)) / total_vapour_resistance(
    THICKNESS[COLD:], RESISTIVITY[:, COLD:])[:, None]
balance = (to_interface - from_interface) * SECONDS  # kg/m² a month, from October on
autumn_on = np.roll(np.arange(12), -9)
water = np.zeros((2, 12))
for place, month in enumerate(autumn_on):
    water[:, place] = np.maximum((water[:, place - 1] if place else 0) + balance[:, month], 0)

# %%
figure, (above, below) = plt.subplots(2, 1, figsize=(7, 5), sharex=True, height_ratios=(1.5, 1))
months = np.arange(12)
for values, name, colour, line, at, shift in ((saturation[0], "saturation", "black", "-", 8, (-6, 6)),
                                             (pressure[0], "vapour, without a sheet", style.RED, "--", 9, (4, -12)),
                                             (pressure[1], "vapour, with the sheet", style.BLUE, "-", 5, (6, -8))):
    above.plot(months, values[autumn_on], line, color=colour)
    style.label(above, at, values[autumn_on][at], name, colour, shift)
above.set(ylabel="pressure behind the wool [Pa]", ylim=(0, None),
          title="Vapour condenses in the months in which it is saturated")
below.bar(months, water[0], color=style.RED, width=0.7)
below.set(ylabel="water gathered [kg/m²]", xlabel="month, from October", xlim=(-0.6, 11.5))
below.set_xticks(months, np.array(style.MONTHS)[autumn_on])
style.label(below, 9.2, 0.3, f"with the sheet: {water[1].max():.2f} kg/m²", style.BLUE, (0, 0))
plt.show()
