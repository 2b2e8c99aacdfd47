# %% [markdown]
# # When does the sun reach a window in a street?
# A first-floor window faces a terrace of houses with a gap in it. When does direct sun reach it, and how much of it?
#
# The house fronts opposite are rectangles in a vertical plane. `solar_geometry` and `direction_to` give the way of
# the light for a year, `forward_projection` the corners' shadows in the plane of the window, `surface_axes` and
# `global_to_local` turn these into plan coordinates of that plane, and `overlap_area` says how much of the window
# they cover. No loop runs over the hours; the two fronts do not hide each other, so their areas add up.
#
# **The picture** shows the sunlit share by day and solar hour, and shadows on one day. Check: at noon the south
# window is clear of a front 13 m off and 9.5 m high once the sun stands above atan((9.5 - 3.9) / 13) = 23.3° for the
# sill: from 90° - 51.5° + δ = 23.3°, δ = -15.2°, which is about 7 February.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.climate import solar_geometry
from quorvel.geometry import area, direction_to, forward_projection, global_to_local, overlap_area, surface_axes

LATITUDE, FACING = np.radians(51.5), np.radians(180)
WINDOW = np.array([(-0.6, 3.9), (-0.6, 5.5), (0.6, 5.5), (0.6, 3.9)])  # m: right of the middle, above the ground
DISTANCE = 13  # m, across the street
FRONTS = np.array([[(-2, 0), (-2, 9.5), (30, 9.5), (30, 0)], [(-30, 0), (-30, 9.5), (-8, 9.5), (-8, 0)]])  # with a gap
DAY = 33  # 2 February
day, hour = np.arange(1, 366)[:, None], np.arange(4, 20.01, 0.25)

# %% [markdown]
# Local axes of the window: x to the right seen from outside, y up, z outwards; the fronts stand at z = 13 m.

# %%
sun = solar_geometry(LATITUDE, day, hour)
axes_of_wall = surface_axes(FACING, np.pi / 2).rotation_matrix
to_sun = global_to_local(direction_to(sun.solar_altitude, sun.solar_azimuth), axes_of_wall)
shining = (sun.solar_altitude > 0.01) & (to_sun[..., 2] > 0.01)  # above the horizon and in front
corners = np.concatenate([FRONTS, np.full(FRONTS.shape[:2] + (1,), DISTANCE)], axis=-1)
shadows = forward_projection([0, 0, 0], [0, 0, 1], corners, -to_sun[shining][:, None, None])[..., :2]
covered = sum(overlap_area(shadows[:, front].astype(float), WINDOW) for front in range(len(FRONTS)))
sunlit = np.full(shining.shape, np.nan)
sunlit[shining] = 1 - covered / area(WINDOW)
noon = sunlit[:, hour == 12][:, 0]
first_clear_day = int(day[noon > 0.999][0, 0])

# %%
figure = plt.figure(figsize=(8, 5))
whole, below = figure.subfigures(2, 1, height_ratios=(2.1, 1))
axes = whole.subplots()
shown = axes.pcolormesh(day[:, 0], hour, 100 * sunlit.T, rasterized=True)
whole.colorbar(shown, ax=axes, label="sunlit share of the window [%]", pad=0.02)
style.months_along(axes)
axes.axvline(DAY, color="white", linewidth=0.8, linestyle=":")
axes.set(ylim=(5, 19), yticks=range(6, 19, 3), xlabel="month", ylabel="solar time [h]",
         title="Direct sun on a south window; dotted: 2 February, below")
for panel, clock in zip(below.subplots(1, 7, sharey=True), (9, 10.5, 11.5, 12.25, 12.5, 13, 14.25)):
    instant = (day == DAY) & (hour == clock)
    panel.fill(*WINDOW.T, facecolor="#f3cf80", edgecolor="black")
    for shadow in shadows[instant[shining]][0]:
        panel.fill(*shadow.T, color=style.BLUE, alpha=0.75, linewidth=0)
    panel.fill(*WINDOW.T, fill=False, edgecolor="black")
    panel.set(xlim=(-0.8, 0.8), ylim=(3.7, 5.7), aspect="equal", xticks=[], yticks=[],
              xlabel=f"{int(clock)}:{int(clock % 1 * 60):02d}, {100 * sunlit[instant][0]:.0f} %")
    panel.spines[:].set_visible(False)
plt.show()
