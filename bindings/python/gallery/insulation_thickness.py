# %% [markdown]
# # How much insulation does a wall need?
# An old brick wall is to come under a target U-value. How thick is that with the usual materials, and does the
# exposure of the site matter?
#
# `u_value` takes all materials and thicknesses at once, with the layers along the last axis; the resistances of the
# surfaces come from `surface_resistance`. Plaster 15 mm, brick 220 mm, insulation, render 10 mm; no thermal bridges.
#
# **The picture** has a line for each material, and a band from sheltered to severe exposure which only the bare wall
# shows. Check: bare, 1 / (0.1215 + 0.015 / 0.57 + 0.22 / 0.75 + 0.01 / 1.0 + 0.0606) = 1.95 W/m²K, and each thickness
# is λ (1 / U - 1 / 1.95): 102 mm of mineral wool for 0.30 W/m²K.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.fabric import surface_resistance, u_value

INSULATION = {"polyurethane, 0.024": 0.024, "mineral wool, 0.036": 0.036, "wood fibre, 0.042": 0.042}  # W/mK
COLOURS = style.RED, style.BLUE, style.GREEN
WALL = np.array([0.015, 0.220, 0, 0.010])  # m, from the room; the insulation is still to come
WALL_CONDUCTIVITY = np.array([0.57, 0.75, 1, 1.0])  # W/mK
TARGETS = (0.30, 0.15)  # W/m²K

thickness = np.arange(0, 0.3005, 0.001)
layers = np.tile(WALL, (len(thickness), 1))
layers[:, 2] = thickness
conductivities = np.tile(WALL_CONDUCTIVITY, (len(INSULATION), 1))
conductivities[:, 2] = list(INSULATION.values())
inside = surface_resistance("inside", np.pi / 2, "normal")
outside = surface_resistance("outside", np.pi / 2, [1, 2, 3])  # sheltered, normal, severe
u = u_value(layers, conductivities[:, None], inside, outside[:, None, None])  # exposures, materials, thicknesses
bare = float(u[1, 0, 0])
needed = 1000 * thickness[(u[1, :, :, None] > np.array(TARGETS)).sum(axis=1)]  # mm: the first that is thick enough
wool_for_030 = float(needed[1, 0])

# %%
figure, axes = plt.subplots()
for row, (name, colour) in enumerate(zip(INSULATION, COLOURS)):
    axes.fill_between(1000 * thickness, u[0, row], u[2, row], color=colour, alpha=0.25, linewidth=0)
    axes.plot(1000 * thickness, u[1, row], color=colour)
for target, across in zip(TARGETS, needed.T):
    axes.axhline(target, color=style.GREY, linewidth=0.7, linestyle=":")
    axes.plot(across, np.full(len(across), target), "o", markersize=3.5, color="black")
    for place, colour, side in zip(across, COLOURS, ("center", "right", "left")):
        style.label(axes, place, target, f"{place:.0f} mm", colour, (0, -9), ha=side, fontsize=8)
for name, colour, height in zip(INSULATION, COLOURS, (0.58, 0.73, 0.88)):
    style.label(axes, 75, height, f"{name} W/mK", colour)
axes.set(xlim=(0, 300), ylim=(0, 2.2), xlabel="thickness of the insulation [mm]", ylabel="U-value [W/m²K]",
         title="Brick wall with insulation; the band runs from sheltered to severe exposure")
plt.show()
