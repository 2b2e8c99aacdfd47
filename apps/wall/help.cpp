#include "wall/help.h"

namespace quorvel::wall {

const char* const help_on_input = R"(The input file
  A few commented lines of TOML; the folder examples/ has real constructions to start from. Keys in
  brackets may be left out.

  [wall]
    name                  what stands above the tables and the chart
   [heat_flow]            "horizontal" through a wall (the default), "up" through a roof, "down"
                          through a floor above the open air
   [exposure]             "sheltered", "normal" (the default) or "severe": wind at the outside
   [inside_resistance]    m²K/W, of the surfaces; unless given they follow from the direction of
   [outside_resistance]   the heat and the exposure

  [[layer]]               one such table for each layer, from the inside outwards, up to twenty
    name                  such as "Brick outer leaf"; what else is given tells the kind of layer:
    a solid layer
    thickness             mm
    conductivity          W/mK
    density               kg/m³
    specific_heat         J/kgK
    vapour_resistivity    GN s/(kg m), about 5 times the diffusion resistance factor µ
   [drawing]              how the chart hatches it: "masonry", "concrete", "insulation" (the default
                          below 0.07 W/mK), "timber", "plaster", "bitumen", "plain"
    an air gap
    thickness             mm
    and either
    resistance            m²K/W
    or
    emissivities          of its two faces, [0.9, 0.9] between ordinary building materials; the
                          resistance follows from them, the thickness and the direction of heat
    a sheet that holds back vapour only
    vapour_resistance     GN s/kg, 5 for each metre of still air that lets as little through

  [climate]               each quantity is one number, or a list of twelve, January to December; one
    inside_temperature    list is enough to have every month calculated
    inside_humidity       °C, and % of saturation
    outside_temperature
    outside_humidity

How it is calculated
  The U-value is that of the resistances in series. Admittance, decrement factor and surface
  factor, with their shifts, answer a swing of temperature in 24 hours; a gap or sheet stores no
  heat. The admittance leads the swing, the others lag behind it.
  The condensation profile is that of a steady state (Glaser's method): temperature falls in
  proportion to thermal resistance, vapour pressure to vapour resistance, held to saturation where
  it would exceed it. There vapour condenses; the rate is what arrives and does not pass on. Rain,
  sun, air leaking through joints, storage and drying are left out: a wet month says that the
  construction needs a second look, not how wet it will be. Layers marked as condensing exceed
  saturation between their faces. The chart draws the month with the most condensate, or if
  all are dry the coldest.)";

}  // namespace quorvel::wall
