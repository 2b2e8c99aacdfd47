# %% [markdown]
# # A design day on three façades
# When does the sun load each side of the building on the day that cooling is designed for, and how hot do its walls
# get?
#
# `solar_geometry` and `design_irradiance` give a clear July day in Madrid, `surface_irradiance` beam, diffuse and
# ground-reflected radiation on three façades, `daily_temperature` the air from 20 to 35 °C, and `sol_air_temperature`
# with `long_wave_loss` what a dark wall (absorptance 0.8) feels at a surface coefficient of 16 W/m²K. Solar time.
#
# **The picture** stacks the radiation on each façade over its sol-air temperature. Check: at noon of 21 July the sun
# stands 90° - 40.4° + 20.6° = 70.2° high, so that the beam on the south façade is cos 70.2° = 0.34 of that normal to
# the sun; the east façade has none from noon on.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.climate import (daily_temperature, design_irradiance, long_wave_loss, sol_air_temperature, solar_geometry,
                             surface_irradiance)

LATITUDE, HEIGHT, DAY = 40.4, 667, 202  # degrees north, m above sea level, 21 July
FACADES = {"East": 90, "South": 180, "West": 270}
ABSORPTANCE, COEFFICIENT = 0.8, 16  # of a dark wall; W/m²K

hour = np.arange(0, 24.01, 0.25)
sun = solar_geometry(np.radians(LATITUDE), DAY, hour)
sky = design_irradiance(sun.solar_altitude, HEIGHT, "clear")
facing = np.radians(list(FACADES.values()))[:, None]
parts = surface_irradiance(sun.solar_altitude, sun.solar_azimuth, facing, np.pi / 2, *sky, 0.2, 1, 1)  # façades, hours
total = sum(parts)
air = daily_temperature(hour, 35, 20, 15, 5)
sol_air = sol_air_temperature(air, COEFFICIENT, ABSORPTANCE, total, long_wave_loss(np.pi / 2, 0))
noon = np.searchsorted(hour, 12)
south_share = float(parts.surface_beam[1, noon] / sky.direct_normal[noon])

# %%
figure, panels = plt.subplots(2, 3, figsize=(8.4, 4.8), sharex=True, sharey="row", height_ratios=(1.5, 1))
for column, name in enumerate(FACADES):
    above, below = panels[:, column]
    above.stackplot(hour, [part[column] for part in parts], colors=[style.ORANGE, style.SKY, "#b8a888"])
    peak = total[column].argmax()
    style.label(above, hour[peak], total[column, peak], f"{total[column, peak]:.0f} W/m²", shift=(0, 8), ha="center")
    below.plot(hour, air, color=style.GREY)
    below.plot(hour, sol_air[column], color=style.RED)
    hottest = sol_air[column].argmax()
    text = f"{sol_air[column, hottest]:.0f} °C"
    style.label(below, hour[hottest], sol_air[column, hottest], text, style.RED, (0, 8), ha="center")
    above.set(title=name, ylim=(0, 900))
    below.set(xlim=(0, 24), ylim=(10, 82), xticks=range(0, 25, 6), xlabel="solar time [h]")
for height, text, colour in ((800, "beam", style.ORANGE), (720, "sky", style.SKY), (640, "ground", "#8f7f5f")):
    panels[0, 1].text(1, height, text, color=colour, weight="bold")
style.label(panels[1, 1], 9.5, 21, "air", style.GREY, (0, 0))
style.label(panels[1, 1], 3, 24, "sol-air", style.RED, (-4, 14), ha="center")
panels[0, 0].set(ylabel="irradiance [W/m²]")
panels[1, 0].set(ylabel="temperature [°C]")
plt.show()
