// The values of the selectors: quorvel::psychrometer::sling.
// Produced from the catalogue of routines (catalogue/); do not edit.
#pragma once

#include <cstdint>

namespace quorvel {

namespace psychrometer {
/// sling (aspirated)
inline constexpr std::int32_t sling = 1;
/// screen (naturally ventilated)
inline constexpr std::int32_t screen = 2;
}  // namespace psychrometer

namespace element_kind {
/// element between two environments
inline constexpr std::int32_t between = 1;
/// internal partition, the same swing on both sides
inline constexpr std::int32_t partition = 2;
}  // namespace element_kind

namespace heat_flow_direction {
/// heat flow upwards
inline constexpr std::int32_t upward = 1;
/// vertical surface
inline constexpr std::int32_t horizontal = 2;
/// heat flow downwards
inline constexpr std::int32_t downward = 3;
}  // namespace heat_flow_direction

namespace packing {
/// pack
inline constexpr std::int32_t pack = 1;
/// unpack, as any other value
inline constexpr std::int32_t unpack = 2;
}  // namespace packing

namespace surface {
/// outside
inline constexpr std::int32_t outside = 1;
/// inside
inline constexpr std::int32_t inside = 2;
}  // namespace surface

namespace exposure {
/// sheltered
inline constexpr std::int32_t sheltered = 1;
/// normal
inline constexpr std::int32_t normal = 2;
/// severe
inline constexpr std::int32_t severe = 3;
}  // namespace exposure

namespace pane_kind {
/// closes the cavities on both sides
inline constexpr std::int32_t closing = 1;
/// closes none
inline constexpr std::int32_t vented = 2;
}  // namespace pane_kind

namespace radiation {
/// direct radiation (WNDRSM)
inline constexpr std::int32_t direct = 1;
/// diffuse radiation (WNDFSM), as any other value
inline constexpr std::int32_t diffuse = 2;
}  // namespace radiation

namespace band_set {
/// bands from the warmest to the coldest days
inline constexpr std::int32_t first = 1;
/// bands from the highest to the lowest Q1
inline constexpr std::int32_t second = 2;
}  // namespace band_set

namespace day_kind {
/// day of the month
inline constexpr std::int32_t of_month = 1;
/// day of the year
inline constexpr std::int32_t of_year = 2;
}  // namespace day_kind

namespace sky_kind {
/// clear
inline constexpr std::int32_t clear = 0;
/// cloudy: the larger diffuse irradiance
inline constexpr std::int32_t cloudy = 1;
}  // namespace sky_kind

namespace sky_model {
/// radiance index by the kind of sky
inline constexpr std::int32_t radiance_index = 0;
/// clearness, northern Europe
inline constexpr std::int32_t northern_europe = 1;
/// clearness, southern Europe, as any other value
inline constexpr std::int32_t southern_europe = 2;
}  // namespace sky_model

namespace time_kind {
/// solar time; longitude and zone meridian are set to 0
inline constexpr std::int32_t solar = 1;
/// clock of the zone, at the longitude
inline constexpr std::int32_t zone = 2;
/// solar time; the zone meridian only dates the declination
inline constexpr std::int32_t dated_solar = 3;
}  // namespace time_kind

namespace enclosed {
/// not enclosed
inline constexpr std::int32_t outside = 0;
/// enclosed
inline constexpr std::int32_t inside = 1;
}  // namespace enclosed

}  // namespace quorvel
