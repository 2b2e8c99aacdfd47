// Units of glass and blinds, from an input and from tables of things by name.
#pragma once

#include "calculation/window/input.h"
#include "reading/library.h"

namespace quorvel::window {

// Of a window's table; notes are what was taken for granted. All throw host::InputError.
Glazing read_glazing(const host::InputTable& window, const host::Library& library,
                     std::vector<std::string>& notes);
Blind read_blind(const host::InputTable& blind, const Glazing& glazing,
                 const host::Library& library);
Gas read_gas(const host::Library& library, const host::InputTable& place, std::string_view key,
             const std::string& name);

}  // namespace quorvel::window
