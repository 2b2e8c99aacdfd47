#include "shade/help.h"

namespace quorvel::shade {

const char* const help_on_input = R"(The input file
  A few commented lines of TOML; the folder examples/ has real windows to start from. Keys in
  brackets may be left out, and so may the tables after the window. Lengths are in metres; left and
  right are those of someone who looks at the window from outside.

  [site]
    name              what stands above the table and the chart
    latitude          degrees, north positive
   [height]           m above sea level, 0 unless given; matters to the strength of the sun only

  [day]
    month             "January" to "December", or 1 to 12; its design day is used (21 June, say)
    or
    day_of_year       1 to 365

  [window]            the glass
    name              such as "South window"
    width, height     the height up the slope of the glass
    orientation       the direction it faces: degrees clockwise from north (90 east, 180 south)
   [tilt]             degrees from the horizontal: 90 vertical (the default), 0 facing the sky
   [sill]             of the lower edge above the ground; 0 unless given

  [left_fin]          a plate beside the window, perpendicular to it; in the same way [right_fin].
                      A window set back in its wall has two fins and an overhang as deep as that
    depth             how far it stands out from the plane of the glass
   [offset]           between the edge of the window and the fin
   [above], [below]   how far it goes on beyond the window

  [overhang]          a plate above the window
    depth             how far it stands out, measured along its slope
   [offset]           between the upper edge of the window and its root
   [left], [right]    how far it goes on beyond the window
   [slope]            degrees by which it falls outwards; 0, the default, is perpendicular

  [[obstruction]]     one such table for each box that stands upright, up to twenty: a building
                      opposite, a wall, a balcony's parapet
    name              such as "House opposite"
    distance          from the lower edge of the window to the middle of its front, horizontally
                      outwards
   [offset]           of the middle of its front to the right of the middle of the window; below 0
                      to the left
    width             of the front
   [depth]            behind the front; without it the obstruction is a thin screen
    top               above the ground
   [base]             of its underside above the ground; 0 unless given
   [rotation]         degrees clockwise seen from above, about the middle of the front; 0, the
                      default: the front is parallel to the window

How it is calculated
  Every full hour of solar time from 1 to 24. Each face of an obstruction, so far as it stands
  before the plane of the window, is projected on it along the rays of the sun; the shadows are
  taken out of the window one after the other, so that none counts twice where they overlap. What
  is left is sunlit. A sun within 0.1° of the plane of the window casts no shadow and gives no sun.
  The vertical angle is that of the sun above the normal of the window, seen along the sill (the
  profile angle); the horizontal one is that beside the normal, positive clockwise seen from above.
  Direct sun is that of a clear sky at that height; as shaded, it is the mean over the window.
  All shading is opaque, the sun a point; light from the sky and the ground is not looked at.)";

}  // namespace quorvel::shade
