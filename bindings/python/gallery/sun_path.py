# %% [markdown]
# # Sun path of a place
# Where does the sun stand, and when? The question comes with every shading device, rooflight and courtyard.
#
# `solar_geometry` gives altitude and azimuth for whole arrays of days and solar hours. The dome of the sky is drawn
# in stereographic projection, in which a direction lies tan(zenith angle / 2) from the centre, so that angles are
# true; the rim is the horizon. Hours are solar time; no refraction.
#
# **The picture** has a line for about the 21st of each month and one for each hour. Check: at noon of the longest day
# the sun stands 90° - latitude + 23.4° high, of the shortest 90° - latitude - 23.4°: 61.9° and 15.1° in London.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.climate import solar_geometry

LATITUDE = 51.5  # degrees north
DATES = {"21 Jun": 172, "21 May, 23 Jul": 141, "20 Apr, 23 Aug": 110, "21 Mar, 23 Sep": 80,
         "20 Feb, 23 Oct": 51, "20 Jan, 22 Nov": 20, "21 Dec": 355}


def radius(altitude):
    return np.tan((np.pi / 2 - altitude) / 2)


def sky(day, hour):
    """Azimuth and distance from the centre; below the horizon not a number."""
    sun = solar_geometry(np.radians(LATITUDE), day, hour)
    up = sun.solar_altitude > 0
    return np.where(up, sun.solar_azimuth, np.nan), np.where(up, radius(sun.solar_altitude), np.nan)


# %%
figure, axes = plt.subplots(figsize=(6.4, 6.2), subplot_kw={"projection": "polar"})
axes.set(theta_zero_location="N", theta_direction=-1, ylim=(0, 1))
hours, days = np.arange(4, 21), np.arange(1, 366)
axes.plot(*(each.T for each in sky(days[:182] + 171, hours[:, None])), color=style.GREY, linewidth=0.7)
midyear = sky(172, hours)
for hour, angle, distance in zip(hours, *midyear):
    axes.text(angle, distance - 0.055, f"{hour}", ha="center", va="center", fontsize=8, color="#505050")
quarter_hours = np.linspace(0, 24, 24 * 12 + 1)
for (name, day), colour in zip(DATES.items(), plt.get_cmap("plasma")(np.linspace(0.75, 0.05, len(DATES)))):
    azimuth, distance = sky(day, quarter_hours)
    axes.plot(azimuth, distance, color=colour)
    sunset = np.nanmax(np.where(np.isnan(azimuth), np.nan, quarter_hours))
    outwards = 1.12 if "Mar" in name else 1.03  # past the letter of the west
    axes.text(sky(day, sunset)[0], outwards, name, color=colour, ha="right", va="center", fontsize=8)
noon_altitude = np.degrees(solar_geometry(np.radians(LATITUDE), np.array(list(DATES.values())), 12).solar_altitude)
figure.text(0.02, 0.02, "noon, 21 Jun: {:.1f}° high\nnoon, 21 Dec: {:.1f}°".format(*noon_altitude[[0, -1]]), fontsize=8)
axes.set_yticks(radius(np.radians(range(10, 80, 10))), [f"{circle}°" for circle in range(10, 80, 10)])
axes.set_rlabel_position(0)
axes.set_xticks(np.radians(range(0, 360, 30)),
                ["N", "30°", "60°", "E", "120°", "150°", "S", "210°", "", "W", "", "330°"])
axes.tick_params(labelsize=8, labelcolor="#505050")
axes.grid(True, color="#dcdcdc")
axes.set_xlabel("azimuth, and altitude on the circles [°]; solar time [h]")
axes.set_title(f"The sun over {LATITUDE}° north", pad=14)
plt.show()
