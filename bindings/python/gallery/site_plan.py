# %% [markdown]
# # What may be built on, and does the house fit?
# A plot has a building line, an old tree whose roots are protected, and a sewer with a strip that stays free. What
# remains, and how much of the house as drawn lies outside it?
#
# `clip` takes one polygon from another and gives the pieces of the difference and of the overlap; `area` adds them
# up. The tree's circle is a polygon of 96 corners. What is left falls into pieces, from each of which the next
# polygon is taken in turn; lists of pieces are clipped in one call.
#
# **The picture** is the site plan with what may be built on and the part of the house that must move. Check: no area
# is lost, difference and overlap add up; the strip takes 4 m × 28 / cos 14.0° = 115.4 m² from between the building
# lines, which are 28 m apart.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.geometry import area, clip

PLOT = np.array([(0, 0), (-2, 34), (44, 34), (46, 6), (38, 0)])  # m
BUILDING_LINE = np.array([(4, 3), (4, 31), (41, 31), (41, 7), (36, 3)])
turn = np.linspace(0, 2 * np.pi, 96, endpoint=False)
TREE = np.column_stack([36 + 7 * np.cos(turn), 26 + 7 * np.sin(turn)])
SLOPE = np.array([0.25, 1]) / np.hypot(0.25, 1)  # along the sewer
ACROSS = 2 * np.array([SLOPE[1], -SLOPE[0]])  # half of the strip's 4 m
ENDS = np.array([(9, -5), (9, -5) + 45 * SLOPE])
STRIP = np.array([ENDS[0] - ACROSS, ENDS[1] - ACROSS, ENDS[1] + ACROSS, ENDS[0] + ACROSS])
HOUSE = np.array([(18, 8), (18, 20), (25, 20), (25, 24), (33, 24), (33, 8)])


def without(pieces, taken):
    """What is left of some polygons where another is taken away."""
    return [left for clipped in clip(pieces, taken) for left in clipped.difference]


# %%
open_ground = without(without([BUILDING_LINE], TREE), STRIP)
house_inside = [part for clipped in clip(HOUSE, open_ground) for part in clipped.overlap]
house_outside = [HOUSE]
for piece in open_ground:
    house_outside = without(house_outside, piece)
in_strip = float(area(clip(BUILDING_LINE, STRIP).overlap).sum())
house_areas = float(area(house_inside).sum()), float(area(house_outside).sum())

# %%
figure, axes = plt.subplots(figsize=(7, 5))
axes.fill(*PLOT.T, facecolor="#f4f1ea", edgecolor="black", linewidth=1.5)
for piece in open_ground:
    axes.fill(*piece.T, color="#cfe6da", linewidth=0)
axes.fill(*BUILDING_LINE.T, fill=False, edgecolor=style.GREEN, linestyle="--")
axes.fill(*TREE.T, fill=False, edgecolor=style.GREEN)
axes.fill(*STRIP.T, fill=False, edgecolor=style.BLUE, clip_path=(axes.patches[0].get_path(), axes.transData))
for pieces, colour in ((house_inside, "#9a9a9a"), (house_outside, style.RED)):
    for piece in pieces:
        axes.fill(*piece.T, color=colour, linewidth=0)
axes.fill(*HOUSE.T, fill=False, edgecolor="black")
for x, y, text, colour, turned in ((25, 13, f"house\n{house_areas[0]:.0f} m² fit", "black", 0),
                                   (36, 29, "roots", style.GREEN, 0), (14, 20, "sewer", style.BLUE, 76),
                                   (28, 4.4, "building line", style.GREEN, 0)):
    axes.text(x, y, text, color=colour, ha="center", va="center", rotation=turned)
style.label(axes, 31.5, 22.6, f"{house_areas[1]:.1f} m² do not", style.RED, (20, 0))
axes.set(xlim=(-3, 48), ylim=(-1, 35), aspect="equal", xlabel="east [m]", ylabel="north [m]",
         title=f"May be built on: {area(open_ground).sum():.0f} of {area(PLOT):.0f} m²")
plt.show()
