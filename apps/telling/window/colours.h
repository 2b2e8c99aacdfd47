// The colours of windows' pictures.
#pragma once

#include "calculation/window/input.h"

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

// Of windows and of variants, in turn.
inline constexpr const char* series_colours[] = {
    "#3f72af", "#e08e45", "#6aa07a", "#9a6fb0", "#c9a93a", "#6f7d8c", "#c0504d",
    "#4bacc6", "#8c6d46", "#7f9f3f", "#d184a8", "#455a8c", "#a0a0a0"};

inline const char* series_colour(std::size_t i) {
    return series_colours[i % (sizeof series_colours / sizeof *series_colours)];
}

}  // namespace quorvel::window
