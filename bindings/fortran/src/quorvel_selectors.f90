!> The values of the selectors by name: psychrometer_sling.
! Produced from the catalogue of routines (catalogue/); do not edit.
module quorvel_selectors
   use, intrinsic :: iso_fortran_env, only: i4 => int32
   implicit none
   private :: i4

   ! psychrometer type
   integer(i4), parameter :: psychrometer_sling = 1 !! sling (aspirated)
   integer(i4), parameter :: psychrometer_screen = 2 !! screen (naturally ventilated)

   ! kind of element
   integer(i4), parameter :: element_kind_between = 1 !! element between two environments
   integer(i4), parameter :: element_kind_partition = 2 !! internal partition, the same swing on both sides

   ! direction of the heat flow
   integer(i4), parameter :: heat_flow_direction_upward = 1 !! heat flow upwards
   integer(i4), parameter :: heat_flow_direction_horizontal = 2 !! vertical surface
   integer(i4), parameter :: heat_flow_direction_downward = 3 !! heat flow downwards

   ! direction
   integer(i4), parameter :: packing_pack = 1 !! pack
   integer(i4), parameter :: packing_unpack = 2 !! unpack, as any other value

   ! surface type of the outer face, normally 1
   integer(i4), parameter :: surface_outside = 1 !! outside
   integer(i4), parameter :: surface_inside = 2 !! inside

   ! exposure of the outer face to the wind
   integer(i4), parameter :: exposure_sheltered = 1 !! sheltered
   integer(i4), parameter :: exposure_normal = 2 !! normal
   integer(i4), parameter :: exposure_severe = 3 !! severe

   ! kind of pane 3
   integer(i4), parameter :: pane_kind_closing = 1 !! closes the cavities on both sides
   integer(i4), parameter :: pane_kind_vented = 2 !! closes none

   ! kind of radiation
   integer(i4), parameter :: radiation_direct = 1 !! direct radiation (WNDRSM)
   integer(i4), parameter :: radiation_diffuse = 2 !! diffuse radiation (WNDFSM), as any other value

   ! set of bands
   integer(i4), parameter :: band_set_first = 1 !! set 1
   integer(i4), parameter :: band_set_second = 2 !! set 2

   ! how the day is counted
   integer(i4), parameter :: day_kind_of_month = 1 !! day of the month
   integer(i4), parameter :: day_kind_of_year = 2 !! day of the year

   ! unit
   integer(i4), parameter :: file_unit_opened_last = 31 !! the file that CLBNF0 opened last

   ! kind of sky
   integer(i4), parameter :: sky_kind_clear = 0 !! clear
   integer(i4), parameter :: sky_kind_cloudy = 1 !! cloudy: the larger diffuse irradiance

   ! model of the sky
   integer(i4), parameter :: sky_model_radiance_index = 0 !! radiance index by the kind of sky
   integer(i4), parameter :: sky_model_northern_europe = 1 !! clearness, northern Europe
   integer(i4), parameter :: sky_model_southern_europe = 2 !! clearness, southern Europe, as any other value

   ! what the time is
   integer(i4), parameter :: time_kind_solar = 1 !! solar time; longitude and zone meridian are set to 0
   integer(i4), parameter :: time_kind_zone = 2 !! clock of the zone, at the longitude
   integer(i4), parameter :: time_kind_dated_solar = 3 !! solar time; the zone meridian only dates the declination

   ! 1 for points that are enclosed
   integer(i4), parameter :: enclosed_outside = 0 !! not enclosed
   integer(i4), parameter :: enclosed_inside = 1 !! enclosed

end module quorvel_selectors
