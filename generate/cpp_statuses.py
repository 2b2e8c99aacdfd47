"""What the statuses of clipping tell, for the library itself (src/geometry/clipping/status.h) and for what calls it
(include/quorvel/clipping_status.hpp)."""

import textwrap

from statuses import faults, of_clipping, short_of_room

EDIT = "// Produced from the catalogue of routines (catalogue/); do not edit."

CORE = """\
{edit}
#pragma once

#include "base/contract.h"

namespace quorvel::geometry::clipping {{

// What HOHOLEDP answers. The law of the crossings, of which two statuses tell: crossings.h.
enum class Status : Integer {{
{values}
}};

}}  // namespace quorvel::geometry::clipping
"""

PUBLIC = """\
// What the status of HOHOLEDP tells of polygons: see quorvel/polygon.hpp.
{edit}
#pragma once

#include <cstdint>

namespace quorvel::geometry {{
inline namespace v0 {{

/// Why polygons could not be clipped, by the status.
constexpr const char* clipping_fault(std::int32_t status) {{
    switch (status) {{
        case 0:
            return "no fault";
{cases}
        default:
            return "unknown status";
    }}
}}

/// Whether polygons can be clipped with more room for points and pieces.
constexpr bool is_short_of_room(std::int32_t status) {{
    return {short_of_room};
}}

}}  // namespace v0
}}  // namespace quorvel::geometry
"""


def _value(status):
    comment = textwrap.wrap(status.meaning, 99, initial_indent="    // ", subsequent_indent="    // ")
    return "\n".join([*comment, f"    {status.name} = {status.status},"])


def core(families):
    return CORE.format(edit=EDIT, values="\n".join(map(_value, of_clipping(families))))


def public(families):
    found = of_clipping(families)
    cases = [line for text, numbers in faults(found)
             for line in (*(f"        case {number}:" for number in numbers), f'            return "{text}";')]
    return PUBLIC.format(edit=EDIT, cases="\n".join(cases),
                         short_of_room=" || ".join(f"status == {number}" for number in short_of_room(found)))
