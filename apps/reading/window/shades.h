// What shades a window, from an input.
#pragma once

#include "calculation/window/input.h"
#include "reading/input.h"

namespace quorvel::window {

// Whether a table has any of the keys of what shades a window.
bool has_shades(const host::InputTable& table);

// Each in a window's table, or in that of the whole input, which has a single window then. Throws
// host::InputError.
Shades read_shades(const host::InputTable& window, const host::InputTable& root);

}  // namespace quorvel::window
