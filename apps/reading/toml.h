// toml++, with two faults of version 3.3 mended. It takes some bad input for impossible: headers
// such as "[[[", which fail an assertion, and characters such as « where a value ends, which are
// undefined behaviour. What follows in it reports both.
#pragma once

#define TOML_ASSERT(expression) static_assert(true)

#include <toml++/impl/forward_declarations.h>
#pragma push_macro("TOML_UNREACHABLE")
#undef TOML_UNREACHABLE
#define TOML_UNREACHABLE return false
#include <toml++/impl/unicode.h>
#pragma pop_macro("TOML_UNREACHABLE")

#include <toml++/toml.h>
