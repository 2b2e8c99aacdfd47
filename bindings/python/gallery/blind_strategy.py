# %% [markdown]
# # When is the blind down, and what does it keep out?
# An outdoor roller blind in front of a west window goes down when the sun on the glass exceeds a threshold. A low one
# keeps the room cool and the view shut; where is the balance?
#
# `surface_irradiance_and_incidence` gives the hours of a year of (synthetic) weather on the façade, `glass_direct`,
# `glass_diffuse` and `traced_layers` what a double unit of clear glass lets through, with the blind of transmittance
# 0.08 and reflectance 0.5 as a third layer in front, behind which all radiation is diffuse.
#
# **The picture** shows the year at a threshold of 200 W/m², and energy and closed hours for all thresholds. Check:
# always closed, the window transmits the share τb τ / (1 - ρb ρ) / τ = 0.08 / (1 - 0.5 × 0.26) = 9 % of what the bare
# unit does of diffuse radiation (ρ = 0.26 its diffuse reflectance).

# %%
import matplotlib.pyplot as plt
import numpy as np
import style
import weather_year

from quorvel.climate import read_epw, surface_irradiance_and_incidence
from quorvel.glazing import glass_diffuse, glass_direct, traced_layers

PANE, THRESHOLD = 0.82, 200  # normal transmittance; W/m²
weather = read_epw(weather_year.synthetic_epw())
sun = weather_year.sun(weather)
facade = surface_irradiance_and_incidence(sun.solar_altitude, sun.solar_azimuth, np.radians(270), np.radians(90),
                                          weather["direct_normal"], weather["diffuse_horizontal"], 0.2, 1, 1)
diffuse = facade.surface_diffuse + facade.ground_reflected
incident = facade.surface_beam + diffuse

# %% [markdown]
# Transmittance of the unit: for the beam at each hour, polarisation by polarisation, and for diffuse radiation.

# %%
polarised = np.reshape(glass_direct(PANE, 0, facade.incidence), (2, 3, -1))
beam_transmittance = traced_layers(*np.stack((polarised, polarised), axis=-1).swapaxes(0, 1)).transmittance.mean(axis=0)
pane = np.array([*glass_diffuse(PANE, 0), 0])
pane[2] = 1 - pane.sum()
blind = np.array([0.08, 0.42, 0.50])
bare_unit = traced_layers(*np.stack((pane, pane), axis=-1))
blind_down = traced_layers(*np.stack((blind, pane, pane), axis=-1)).transmittance
without = beam_transmittance * facade.surface_beam + bare_unit.transmittance * diffuse
with_blind = blind_down * incident

# %%
thresholds = np.arange(0, 801, 10)
closed = incident > thresholds[:, None]
light = incident > 0
energy_share = 100 * np.where(closed, with_blind, without).sum(axis=1, dtype=float) / without.sum(dtype=float)
closed_share = 100 * closed.sum(axis=1) / light.sum()
always_closed = 100 * blind_down / bare_unit.transmittance
figure, (left, right) = plt.subplots(1, 2, figsize=(8.4, 3.9), width_ratios=(1.5, 1))
days, hours = np.arange(1, 366), np.arange(24) + 0.5
carpet = incident.reshape(365, 24).T
left.pcolormesh(days, hours, np.ma.masked_equal(carpet > 0, False), cmap="Greys", vmin=0, vmax=6, rasterized=True)
shown = left.pcolormesh(days, hours, np.ma.masked_less_equal(carpet, THRESHOLD), cmap="YlOrBr", vmin=0, rasterized=True)
figure.colorbar(shown, ax=left, label="irradiance on the façade [W/m²]", pad=0.02)
style.months_along(left)
left.set(ylim=(3, 21), yticks=range(3, 22, 3), xlabel="month", ylabel="hour of the day [h]",
         title=f"In colour: blind down, above {THRESHOLD} W/m²; grey: other daylight")
for values, name, colour, height in ((energy_share, "energy transmitted,\nof that without", style.ORANGE, 67),
                                     (closed_share, "daylight hours with\nthe blind down", style.BLUE, 24)):
    right.plot(thresholds, values, color=colour)
    style.label(right, 380, height, name, colour, (0, 0))
right.axvline(THRESHOLD, color=style.RED, linewidth=0.8)
right.set(xlim=(0, 800), ylim=(0, 100), xlabel="threshold [W/m²]", ylabel="share of the year [%]", title="West window")
plt.show()
