# %% [markdown]
# # Which glass for which façade?
# A study as it is made before the façade is fixed: summer gains for every orientation and glazing, as one table.
#
# `weather.to_xarray()` gives the hours their names, orientation and glazing come with theirs, and the routines carry
# them along: `surface_irradiance_and_incidence` makes hours × orientations, `glass_direct` a pane for each of them,
# `traced_layers` the unit of two panes along the dimension "layer". Behind a double window, May to September,
# synthetic weather; only transmitted radiation counts, not what the panes give off.
#
# **The picture** shows the summer's gains of four glazings on eight façades. Check: the share that comes through is
# nowhere above that at normal incidence, 0.676 for the clear pair, and on the north side near that for diffuse
# radiation, where published panes of 0.75 and a reflectance of 0.14 make 0.75² / (1 - 0.14²) = 0.57. East and west
# come out alike since a synthetic day is as cloudy in the morning as in the afternoon.

# %%
import matplotlib.pyplot as plt
import numpy as np
import style  # noqa: F401  sets the look
import weather_year
import xarray

from quorvel.climate import read_epw, surface_irradiance_and_incidence
from quorvel.glazing import glass_diffuse, glass_direct, traced_layers

PANES = {  # normal transmittance and reflectance (0: uncoated) of the outer and the inner pane
    "clear": ((0.82, 0), (0.82, 0)), "low-emissivity": ((0.82, 0), (0.60, 0.28)),
    "solar control, light": ((0.55, 0.25), (0.82, 0)), "solar control, dark": ((0.30, 0.35), (0.82, 0))}
glass = xarray.DataArray(np.array(list(PANES.values())), dims=("glazing", "layer", "property"),
                         coords={"glazing": list(PANES)})
facing = xarray.DataArray(np.arange(0, 360, 45), dims="orientation",
                          coords={"orientation": ["N", "NE", "E", "SE", "S", "SW", "W", "NW"]})

weather = read_epw(weather_year.synthetic_epw())
hours = weather.to_xarray()
sun = weather_year.sun(weather)
hours["altitude"], hours["azimuth"] = (("time", angle) for angle in (sun.solar_altitude, sun.solar_azimuth))
summer = hours.isel(time=(weather.month >= 5) & (weather.month <= 9) & (sun.solar_altitude > 0))

# %% [markdown]
# Each pane for the sun's angle and for diffuse radiation; the unit from its layers, for both polarisations in turn.

# %%
facade = surface_irradiance_and_incidence(summer.altitude, summer.azimuth, np.radians(facing), np.pi / 2,
                                          summer.direct_normal, summer.diffuse_horizontal, 0.2, 1, 1)
of_pane = glass[..., 0], glass[..., 1]
beam = [each.transpose(..., "layer") for each in glass_direct(*of_pane, facade.incidence)]
through = 0.5 * (traced_layers(*beam[:3]).transmittance + traced_layers(*beam[3:]).transmittance)
diffuse = glass_diffuse(*of_pane)
through_diffuse = traced_layers(*diffuse, 1 - diffuse.transmittance - diffuse.absorptance).transmittance
from_sky_and_ground = facade.surface_diffuse + facade.ground_reflected
gains = (through * facade.surface_beam + through_diffuse * from_sky_and_ground).sum("time") / 1000  # kWh/m²
incident = (facade.surface_beam + from_sky_and_ground).sum("time") / 1000
share = gains / incident
table = gains.transpose("glazing", "orientation")
north_share, largest_share = float(share.sel(glazing="clear", orientation="N")), float(share.max())

# %%
figure, axes = plt.subplots(figsize=(7.4, 3.2))
shown = axes.imshow(table, aspect="auto", cmap="YlOrBr", vmin=0)
for (row, column), value in np.ndenumerate(table.values):
    colour = "white" if value > 0.7 * table.max() else "black"
    axes.text(column, row, f"{value:.0f}", ha="center", va="center", color=colour)
figure.colorbar(shown, label="solar gain [kWh/m² of glass]", pad=0.02)
names = [f"{name}\n{total:.0f}" for name, total in zip(facing.orientation.values, incident.values)]
axes.set_xticks(range(len(names)), names)
axes.set_yticks(range(len(PANES)), PANES)
axes.spines[:].set_visible(False)
axes.tick_params(length=0)
axes.set(xlabel="orientation, and what falls on it [kWh/m²]", ylabel="double glazing",
         title="Solar gain from May to September (synthetic weather)")
plt.show()
