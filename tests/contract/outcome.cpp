#include "contract/outcome.h"

#include <algorithm>
#include <cstring>
#include <string_view>

#include "conformance/canonical.h"

namespace quorvel::test {
namespace {

std::size_t value_of(const Extent& extent, const Words& words) {
    if (extent.argument < 0) return static_cast<std::size_t>(extent.fixed);
    const auto count =
        static_cast<std::int32_t>(words[static_cast<std::size_t>(extent.argument)][0]);
    return static_cast<std::size_t>(std::max(count, 0));
}

std::vector<std::uint32_t> canonical(Type type, const std::vector<std::uint32_t>& words) {
    std::vector<std::uint32_t> result;
    for (std::size_t i = 0; i < words.size(); ++i)
        result.push_back(canonical(type, words.data(), i));
    return result;
}

}  // namespace

std::size_t named_bytes(const Routine& routine, std::size_t argument, const Words& words) {
    const Argument& description = routine.arguments[argument];
    const auto& block = words[argument];
    if (description.type == Type::Text)
        return std::strlen(reinterpret_cast<const char*>(block.data())) + 1;
    std::size_t bytes = size_of(description.type);
    for (const Extent& extent : description.shape) bytes *= value_of(extent, words);
    return std::min(bytes, 4 * block.size());
}

Outcome call(const Routine& routine, Address function, const Words& words,
             std::span<void* const> addresses) {
    std::uint32_t result[2] = {};
    routine.call(function, addresses.data(), result);
    Outcome outcome;
    outcome.push_back(canonical(routine.result, {result, result + 2}));
    for (std::size_t i = 0; i < addresses.size(); ++i) {
        const std::size_t bytes = named_bytes(routine, i, words);
        std::vector<std::uint32_t> left((bytes + 3) / 4);
        if (bytes) std::memcpy(left.data(), addresses[i], bytes);
        outcome.push_back(canonical(routine.arguments[i].type, left));
    }
    return outcome;
}

Outcome plain_call(const Routine& routine, Address function, const ArgumentSet& arguments) {
    Words storage = arguments.words();
    std::vector<void*> addresses;
    for (auto& block : storage) addresses.push_back(block.data());
    return call(routine, function, arguments.words(), addresses);
}

bool carries_state(const Routine& routine) {
    return std::string_view(routine.name).starts_with("CLBNF");
}

}  // namespace quorvel::test
