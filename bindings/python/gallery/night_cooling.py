# %% [markdown]
# # How many hours can night air cool the building?
# Before openings and grilles are designed: how often is the air outside, at night, cold enough and dry enough?
#
# A year of weather comes from an EPW file (`read_epw`), here a synthetic one. The building swings between 22 and 27
# °C, warmest at 19 h and coldest at 7 h, by `daily_temperature`. An hour between 19 h and 7 h counts where the air
# outside is at least 3 K below that and holds no more vapour than 26 °C and 50 % (`vapour_pressure`); the differences
# add up to the climatic cooling potential in kelvin hours, a measure often used for the purpose.
#
# **The picture** shows the kelvin hours of each night of the warm half-year and the days that ask for cooling. Check:
# were all twelve hours to count, a night of mean temperature t would have 12 (24.5 - t) Kh. Six air changes of a room
# 2.5 m high carry 6 × 2.5 × 1.2 × 1005 / 3600 = 5 W/m²K: 80 Kh take away 400 Wh/m², 50 W/m² for 8 hours.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style
import weather_year

from quorvel.climate import daily_temperature, read_epw
from quorvel.psychro import vapour_pressure

weather = read_epw(weather_year.synthetic_epw())
outdoor = weather["dry_bulb"]
hour = weather.hour - 0.5
building = daily_temperature(hour, 27, 22, 19, 7)
night = (hour > 19) | (hour < 7)
dry_enough = vapour_pressure(outdoor, weather["relative_humidity"]) <= vapour_pressure(26, 50)
difference = building - outdoor
usable = night & dry_enough & (difference >= 3)

# %% [markdown]
# A night runs from one noon to the next: shifted by twelve hours, each is a row.

# %%
nights = np.roll(np.where(usable, difference, 0), -12).reshape(365, 24).sum(axis=1)  # Kh, of the night after the day
hottest = outdoor.reshape(365, 24).max(axis=1)  # °C
summer = slice(120, 273)
day = np.arange(1, 366)[summer]
july_mean = float(nights[181:212].mean())
in_summer = (weather.month >= 5) & (weather.month <= 9)
share = float(100 * usable[in_summer].sum() / night[in_summer].sum())

# %%
figure, (above, below) = plt.subplots(2, 1, sharex=True, figsize=(7.5, 4.8), height_ratios=(1, 1.4))
warm = hottest[summer] >= 24
above.bar(day, hottest[summer], width=0.9, color=np.where(warm, style.RED, "#d0d0d0"))
above.set(ylim=(8, 32), ylabel="highest of the day [°C]",
          title="Red: days of 24 °C and more, and the nights that follow (synthetic weather)")
below.bar(day, nights[summer], width=0.9, color=np.where(warm, style.BLUE, "#b9d4e6"))
below.axhline(80, color=style.GREY, linewidth=0.8, linestyle=":")
style.label(below, 274, 80, "80 Kh: 400 Wh/m²\nat 6 air changes", style.GREY, (4, 0))
enough = int((nights[summer][warm] >= 80).sum())
summary = f"{enough} of {warm.sum()} warm\ndays have it;\n{share:.0f} % of all\nnight hours\nare usable"
style.label(below, 274, 160, summary)
below.set(ylabel="cooling potential [Kh a night]", xlabel="month")
style.months_along(below)
below.set_xlim(120, 274)
plt.show()
