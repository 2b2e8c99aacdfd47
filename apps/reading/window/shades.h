// What shades a window, from an input.
#pragma once

#include "calculation/window/input.h"
#include "reading/input.h"

namespace quorvel::window {

// Whether a table has any of the keys of what shades a window.
bool has_shades(const host::InputTable& table);

// Of a window's table, or of the whole input's, where it stands before its one window. Throws
// host::InputError.
Shades read_shades(const host::InputTable& table);

}  // namespace quorvel::window
