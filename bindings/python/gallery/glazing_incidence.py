# %% [markdown]
# # Glazing over the angle of incidence
# Data sheets state the properties of glass for a beam at right angles. What is left of them when the sun stands high?
#
# `glass_direct` gives a pane for both polarisations, `traced_layers` the unit of two with what is thrown to and fro
# between them. What the panes absorb warms them: `pane_temperatures`, with the same air on both sides, says how much
# of it flows into the room; added to the transmittance that makes the total solar transmittance g. Clear float of
# normal transmittance 0.82; the coated pane, outside, transmits 0.50 and reflects 0.30, the same from both sides.
#
# **The picture** follows the radiation through the double unit, and compares g of three glazings. Check: at normal
# incidence the pair transmits t² / (1 - r²), with t = 0.82 and the slab's r = 0.074: 0.676; g of a clear pair is
# usually stated as 0.75 ± 0.03, and beyond 60° all lose quickly. The angular factors of coated glass are a table,
# whose straight pieces show.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.glazing import glass_direct, pane_temperatures, traced_layers

CLEAR, COATED = (0.82, 0), (0.50, 0.30)  # normal transmittance and, of coated glass, reflectance
INCIDENCE = np.arange(0, 90)  # degrees
SUN = 1000  # W/m²
INSIDE_RESISTANCE = 0.12  # m²K/W, that of pane_temperatures


def inward(inner, outer=None):
    """The share of the beam that panes absorb and pass to the room: the inner one is warmer than its air."""
    panes = 1 if outer is None else 2
    warmed = pane_temperatures(0, 0, panes, SUN * inner, SUN * (0 if outer is None else outer), 0, 0, 0)
    return warmed.pane_temperature_1 / INSIDE_RESISTANCE / SUN


def unit(outer, inner):
    """Transmitted, absorbed flowing inwards, absorbed flowing outwards, reflected; the mean of both polarisations."""
    first, second = (np.reshape(glass_direct(*pane, np.radians(INCIDENCE)), (2, 3, -1)) for pane in (outer, inner))
    both = np.array([traced_layers(*np.stack((a, b), axis=-1)) for a, b in zip(first, second)])
    inner_absorptance = first[:, 0] * second[:, 1] / (1 - first[:, 2] * second[:, 2])
    transmitted, absorbed, reflected = both.mean(axis=0)
    into_inner = inner_absorptance.mean(axis=0)
    into_room = inward(into_inner, absorbed - into_inner)
    return transmitted, into_room, absorbed - into_room, reflected


# %%
clear, coated = unit(CLEAR, CLEAR), unit(COATED, CLEAR)
single = np.reshape(glass_direct(*CLEAR, np.radians(INCIDENCE)), (2, 3, -1)).mean(axis=0)
g = {"single, clear": single[0] + inward(single[1]), "double, clear": clear[0] + clear[1],
     "double, solar control": coated[0] + coated[1]}
normal_transmittance = float(clear[0][0])

# %%
figure, (left, right) = plt.subplots(1, 2, figsize=(8, 3.9))
left.stackplot(INCIDENCE, clear, colors=[style.ORANGE, "#f3cf80", "#d8d8d8", style.SKY], edgecolor="white")
for height, name in ((0.35, "transmitted"), (0.708, "absorbed, inwards"), (0.81, "absorbed, outwards"),
                     (0.93, "reflected")):
    left.text(4, height, name, va="center", fontsize=8)
for (name, values), colour in zip(g.items(), (style.RED, style.ORANGE, style.BLUE)):
    right.plot(INCIDENCE, values, color=colour)
    style.label(right, 3, values[0], name, colour, (0, 8))
angle = {"xlim": (0, 89), "ylim": (0, 1), "xticks": range(0, 90, 15), "xlabel": "angle of incidence [°]"}
left.set(**angle, ylabel="share of the beam [-]", title="Double unit of clear glass")
right.set(**angle, ylabel="total solar transmittance g [-]", title="Three glazings")
plt.show()
