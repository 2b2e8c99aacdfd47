#include "conformance/array_argument.h"

#include <string_view>

#include "conformance/random_arguments.h"

namespace quorvel::conformance {

int reference_of(const Routine& routine, const quorvel_argument& argument) {
    const std::string_view name = argument.name;
    const auto given = name.starts_with("new_") ? name.substr(4) : name;
    for (std::size_t i = 0; i < routine.arguments.size(); ++i)
        if (routine.arguments[i].name == given || routine.arguments[i].name == name)
            return static_cast<int>(i);
    return -1;
}

bool is_left(Type type, std::size_t word, std::uint32_t by_reference, std::uint32_t of_array) {
    std::uint32_t none = 0;
    if (type == Type::Real) none = 0x7fc00000u;
    if (type == Type::DoubleReal && word & 1) none = 0x7ff80000u;
    return by_reference == untouched && of_array == none;
}

}  // namespace quorvel::conformance
