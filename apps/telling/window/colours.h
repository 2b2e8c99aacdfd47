// The colours of windows' pictures.
#pragma once

#include "telling/chart.h"

namespace quorvel::window {

inline constexpr const char* direct_colour = "#f5b041";
inline constexpr const char* sky_colour = "#8ec1ea";
inline constexpr const char* ground_colour = "#b5c99a";
inline constexpr const char* gain_colour = "#e2735a";
inline constexpr const char* outdoor_colour = "#3b82c4";
inline constexpr const char* room_colour = "#9aa1ad";
inline constexpr const char* inner_colour = "#b3322b";
inline constexpr const char* middle_colour = "#d9764a";
inline constexpr const char* outer_colour = "#eda63a";
inline constexpr const char* blind_colour = "#7a5ea8";
inline constexpr const char* pale_blind_colour = "#d5cce6";

using host::series_colour;

}  // namespace quorvel::window
