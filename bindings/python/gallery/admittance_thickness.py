# %% [markdown]
# # How thick does a storing wall have to be?
# Heavy walls even out the day. What does each further centimetre add: to the heat that the surface takes up when the
# room swings (the admittance), and to the damping of the swing from outside (the decrement factor)?
#
# `cyclic_response` works out three materials at 120 thicknesses in one call, for the daily cycle, between the surface
# resistances of an outer wall that `surface_resistance` gives.
#
# **The picture** shows admittance, decrement factor and how late the wave arrives, for three materials. Check: a very
# thick wall is a half-space, whose admittance is |1 / (Rsi + 1 / (b √(iω)))| with b = √(λρc): 6.1 W/m²K for dense
# concrete. Beyond some 15 cm the room notices nothing more, while the damping goes on.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style

from quorvel.fabric import cyclic_response, surface_resistance

MATERIALS = {  # conductivity [W/mK], density [kg/m³], specific heat [J/kgK]
    "dense concrete": (2.0, 2400, 1000), "aerated concrete": (0.15, 600, 1000), "solid timber": (0.13, 500, 1600)}
COLOURS = style.BLUE, style.ORANGE, style.GREEN
thickness = np.linspace(0.005, 0.6, 120)  # m
conductivity, density, specific_heat = (np.array(each)[:, None, None] for each in zip(*MATERIALS.values()))
inside, outside = (float(surface_resistance(side, np.pi / 2, "normal")) for side in ("inside", "outside"))
response = cyclic_response(thickness[:, None], conductivity, density, specific_heat, inside, outside, 1, "between")
effusivity = np.sqrt(conductivity * density * specific_heat)[:, 0, 0]  # J/m²K√s
half_space = abs(1 / (inside + 1 / (effusivity * np.sqrt(1j * 2 * np.pi / 86400))))
lag = np.unwrap(response.decrement_lag, period=24)  # the routine counts within a day
thickest = response.admittance[:, -1]

# %%
figure, panels = plt.subplots(1, 3, figsize=(9, 3.6), sharex=True)
for axes, values, name in zip(panels, (response.admittance, response.decrement_factor, lag),
                             ("admittance [W/m²K]", "decrement factor [-]", "lag of the decrement factor [h]")):
    for material, curve, colour in zip(MATERIALS, values, COLOURS):
        axes.plot(100 * thickness, curve, color=colour)
    axes.set(xlim=(0, 60), ylim=(0, None), xticks=range(0, 61, 10), xlabel="thickness [cm]", ylabel=name)
for material, curve, limit, colour, lift in zip(MATERIALS, response.admittance, half_space, COLOURS, (-9, -9, 8)):
    panels[0].axhline(limit, color=colour, linewidth=0.7, linestyle=":")
    style.label(panels[0], 59, limit, material, colour, (-2, lift))
panels[0].set_title("What the room can store")
panels[1].set_title("What comes through, of steady heat")
panels[2].set_title("When it comes")
plt.show()
