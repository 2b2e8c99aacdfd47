# %% [markdown]
# # Summer air conditioning in the psychrometric chart
# What does the coil have to do on a hot day, and how much of it is drying? Room air and outdoor air are mixed, cooled
# along a straight line to nearly saturated, warmed by the fan, and take up the heat and moisture of the room.
#
# `state` gives all quantities of moist air from any two, `mixed` and `heated` what becomes of it, and `chart` draws
# the lines of relative humidity and wet bulb. Air pressure 101 325 Pa; the off-coil state is given.
#
# **The picture** shows the states on the chart and the cooling of the coil per kilogram of dry air. Check: with the
# constants that everyone remembers, 1.006 t + g (2501 + 1.86 t) kJ/kg, the coil's load agrees within 1 %.

# %%
import matplotlib.pyplot as plt
import style

from quorvel.psychro import chart, draw_process, heated, mixed, state

# %% [markdown]
# Three parts of room air to one part of outdoor air; the fan and the ducts warm the air by 1.5 K.

# %%
outdoor, room, off_coil = state(t=32, rh=40), state(t=24, rh=50), state(t=11.5, rh=95)
mixture = mixed(outdoor, room, 1, 3)
supply = heated(off_coil, off_coil.dry_bulb + 1.5)
coil_load = float(mixture.enthalpy - off_coil.enthalpy)  # kJ/kg, with the small heat of the water drained
condensate = 1000 * float(mixture.moisture_content - off_coil.moisture_content)  # g/kg

# %%
figure, axes = plt.subplots(figsize=(7, 4.8))
chart(axes, g=(0, 0.026))
for states, colour in (((outdoor, room), style.GREEN), ((mixture, off_coil), style.BLUE),
                       ((off_coil, supply), style.RED), ((supply, room), style.ORANGE)):
    draw_process(axes, *states, color=colour)
for air, name, shift in ((outdoor, "outdoors", (6, 6)), (room, "room", (-4, 9)), (mixture, "mixed", (4, -9)),
                         (off_coil, "off coil", (-6, 4)), (supply, "supply", (2, -9))):
    style.label(axes, air.dry_bulb, 1000 * air.moisture_content, name, shift=shift, weight="bold")
axes.text(1, 24.5, f"coil: {coil_load:.1f} kJ per kg of dry air\ncondensate: {condensate:.1f} g per kg", va="top")
axes.set_title("Mixing, cooling and drying, fan, room", pad=16)
plt.show()
