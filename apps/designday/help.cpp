#include "designday/help.h"

namespace quorvel::designday {

const char* const help_on_input = R"(The input file
  A few commented lines of TOML; the folder examples/ has real places to start from. Keys in
  brackets may be left out.

  [site]
    name           what stands above the tables and the chart
    latitude       degrees, north positive
    longitude      degrees, east positive
    height         m above sea level; from 300 m the thinner air lets more sun through
    class          1 to 6, how clear the air is and how bright the ground:
                     class  direct sun          diffuse sky         ground reflectance
                       1    0.72 to 0.97        0.66 to 1.29        0.2   by month
                       2    0.58                0.92                0.2
                       3    0.50                1.10                0.2
                       4    1.10                0.90                0.5   as over snow
                       5    1.00                1.00                0.2   the clear-sky model itself
                       6    1.00                1.00                0.2
   [sky]           "clear": deep blue, about 100 W/m² diffuse under a high sun (the default);
                   "bright": thin white haze, up to three times as much diffuse
   [sky_model]     how the diffuse radiation from the sky falls on a tilted plane:
                     "design"        evenly, less towards the north (the default)
                     "perez"         brighter around the sun and near the horizon, after Perez
                     "muneer"        brighter around the sun, after Muneer, by the kind of sky;
                     "muneer-north"  his fits for northern and
                     "muneer-south"  for southern Europe
   [utc_offset]    h, how far the clock is ahead of universal time, summer time included; given,
                   the clock time of the solar hours is told as well

  [day]
    month          "January" to "December", or 1 to 12; its design day is used (21 June, say)
    room           room temperature, °C
    outdoor_min    the day's lowest and
    outdoor_max    highest outdoor temperature, °C
   [hour_of_max]   hour of the highest, 13 to 18; 15 unless given
    or, in place of these three,
    climate        { file = "stations.dat", station = 3, percentage = 5 }: the temperatures at the
                   two hours that a climate data file has for the month, at a percentage 0 to 100
                   of its days in the order of its bands; also set = 1 (unless given) or 2, the
                   set of bands. The file is looked for from the folder of the input file.

  [[window]]       one such table for each window, up to six
    name           such as "South"
    orientation    the direction it faces: degrees clockwise from north (90 east, 180 south)
   [tilt]          degrees from the horizontal: 90 vertical (the default), 0 facing the sky
    area           of the glass, m²
    and either
    panes          a list of up to five, the outermost first:
                     { transmittance = 0.80 }                      plain glass
                     { transmittance = 0.40, reflectance = 0.30 }  coated glass
                   for solar radiation at normal incidence
    or
    shading        { short_wave = 0.45, long_wave = 0.08, panes = 2 }, the shading coefficients of a
                   whole glazing unit: its direct and its secondary gain in terms of a clear
                   single pane
   [blind]         lowered all day; beside panes only:
                     { kind = "slatted", side = "outside", spacing = 70, width = 80, angle = 30,
                       absorptance = 0.4 }
                   level slats inside or outside of the glass: spacing 5 to 500 and width 10 to
                   500 mm; angle -90 to 90 degrees from the window's normal, positive with
                   the outer edge lowered; absorptance of both faces, or [upper, lower]
                     { kind = "roller", side = "inside", transmittance = 0.1, reflectance = 0.6 }

How it is calculated
  Every full hour of solar time from 1 to 24: the sun's position; clear-sky direct and diffuse
  irradiance for the height, scaled by the site class; from these the irradiance on the window's
  plane, direct, from the sky and reflected by the ground. Direct sun meets the panes at its angle
  of incidence, in both polarisations, the rest comes from all sides; between the panes all
  reflections to and fro are counted. A blind is one more layer, for direct sun at its angle in
  the plane across the slats, for the sky and the ground from above and from below. Shares are of
  all that falls on the window; what is absorbed includes the blind's part. Pane temperatures
  are those of a steady state between room, outdoor air and the sun absorbed by the panes; the
  heat of a blind is taken to stay on its side of the glass.
  The outdoor temperature rises by half a cosine from its minimum, at the full hour next to
  sunrise, to its maximum, and falls back by another. Totals of the day are sums over the hours.)";

}  // namespace quorvel::designday
