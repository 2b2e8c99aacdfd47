# %% [markdown]
# # Annual irradiation by orientation and tilt
# Which way should a collector or a photovoltaic roof face, and how much does a compromise cost?
#
# A year of hourly weather is read with `read_epw`; `solar_time_correction` and `solar_geometry` give the sun at the
# middle of each hour. `surface_irradiance_and_incidence` gives beam and ground-reflected radiation on 37 by 19 planes
# at once, `perez_diffuse` that from the sky. Ground reflectance 0.2, no shading. The weather is synthetic: put a file
# of your own in its place.
#
# **The picture** shows the year's irradiation and the best plane. Check: on the level plane the sum is that of the
# file's own column of global radiation; in mild maritime climates at 50° north the best tilt is known to be 35 to
# 40°, some 15 % above level, and an upright south wall gets about 0.7 of the best.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style  # noqa: F401  sets the look
import weather_year

from quorvel.climate import eccentricity_factor, perez_diffuse, read_epw, surface_irradiance_and_incidence

weather = read_epw(weather_year.synthetic_epw())
sun = weather_year.sun(weather)
light = (sun.solar_altitude > 0) & (weather["diffuse_horizontal"] > 0)
altitude, azimuth = sun.solar_altitude[light], sun.solar_azimuth[light]
direct, diffuse = weather["direct_normal"][light], weather["diffuse_horizontal"][light]

# %% [markdown]
# Planes along the first two axes, hours along the third; east of south and west of south each get their own sun.

# %%
orientation, tilt = np.arange(0, 361, 10), np.arange(0, 91, 5)
facing, slope = np.radians(orientation)[:, None, None], np.radians(tilt)[:, None]
on_plane = surface_irradiance_and_incidence(altitude, azimuth, facing, slope, direct, diffuse, 0.2, 1, 1)
sky = perez_diffuse(altitude, slope, direct * np.sin(altitude), diffuse, on_plane.incidence,
                    1367 * eccentricity_factor(weather.day_of_year[light]))
annual = (on_plane.surface_beam + on_plane.ground_reflected + sky).sum(axis=-1, dtype=float) / 1000  # kWh/m²
level, measured = annual[0, 0], float(weather["global_horizontal"].sum(dtype=float) / 1000)
best_facing, best_tilt = np.unravel_index(annual.argmax(), annual.shape)

# %%
figure, axes = plt.subplots()
filled = axes.contourf(orientation, tilt, annual.T, levels=np.arange(200, 1301, 50))
lines = axes.contour(orientation, tilt, annual.T / annual.max(), levels=[0.5, 0.6, 0.7, 0.8, 0.9, 0.95], colors="white",
                     linewidths=0.7)
axes.clabel(lines, fmt=lambda share: f"{100 * share:.0f} %", fontsize=8)
axes.plot(orientation[best_facing], tilt[best_tilt], "o", color="black", markersize=4)
text = f"{annual.max():.0f} kWh/m²\nat {tilt[best_tilt]}°:\n{100 * (annual.max() / level - 1):.0f} % above level"
axes.annotate(text, (orientation[best_facing], tilt[best_tilt]), xytext=(0, -8), textcoords="offset points",
              ha="center", va="top")
figure.colorbar(filled, label="irradiation [kWh/m² a]", pad=0.02)
axes.set(xticks=range(0, 361, 45), yticks=range(0, 91, 15),
         xlabel="orientation [° clockwise from north]", ylabel="tilt from the horizontal [°]",
         title="Irradiation of a plane in a year, and as a share of the best (synthetic weather)")
plt.show()
