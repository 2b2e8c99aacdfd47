#include "arrays/message.h"

#include <cstdio>

namespace quorvel::arrays {

std::size_t message(const quorvel_routine& routine, std::int32_t status, char* text,
                    std::size_t size) noexcept {
    const std::int32_t code = status & 255, number = status >> 8;
    const bool known = number >= 0 && number < routine.inputs + routine.outputs;
    const quorvel_argument none = {"", 0, 0, 0, 0, 0};
    const quorvel_argument& argument = known ? routine.arguments[number] : none;
    const char *name = routine.name, *of = argument.name;

    const auto written = [&](auto... parts) { return std::snprintf(text, size, parts...); };
    int length = 0;
    switch (code) {
        case QUORVEL_OK:
            length = written("%s: no fault", name);
            break;
        case QUORVEL_NO_ARRAY:
            length = written("%s: %s has no address", name, of);
            break;
        case QUORVEL_OUTSIDE_RANGE:
            length = argument.highest == INT32_MAX
                         ? written("%s: %s must be at least %d", name, of, argument.lowest)
                         : written("%s: %s must be from %d to %d", name, of, argument.lowest,
                                   argument.highest);
            break;
        case QUORVEL_OVERLAP:
            length = written("%s: %s overlaps another argument or itself", name, of);
            break;
        case QUORVEL_NOT_ELEMENTWISE:
            length =
                written("%s: keeps a state or takes a text; call %s", name, routine.exported_name);
            break;
        case QUORVEL_NO_FILE:
            length = written("%s: no regular file that may be read", name);
            break;
        case QUORVEL_NO_MEMORY:
            length = written("%s: no memory", name);
            break;
        case QUORVEL_UNREADABLE:
            length = written("%s: the climate data file cannot be read there", name);
            break;
        default:
            length = written("%s: unknown status %d", name, status);
    }
    return static_cast<std::size_t>(length);
}

}  // namespace quorvel::arrays
