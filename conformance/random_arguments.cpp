#include "conformance/random_arguments.h"

#include <bit>
#include <cmath>
#include <cstring>
#include <limits>
#include <string>

namespace quorvel::conformance {
namespace {

// Integers that are no counts go this far beyond their range, unless they are wild.
constexpr int slightly = 2;

double edge(const Argument& argument, Random& random) {
    const double width = argument.high - argument.low;
    const double edges[] = {argument.low,
                            argument.high,
                            0.0,
                            -0.0,
                            1.0,
                            -1.0,
                            argument.low - 0.01 * width,
                            argument.high + 0.01 * width,
                            argument.low + 0.5 * width,
                            1e-3,
                            1e-30,
                            1e20,
                            -1e20,
                            std::numeric_limits<double>::infinity(),
                            -std::numeric_limits<double>::infinity(),
                            std::numeric_limits<double>::quiet_NaN()};
    return edges[random.below(std::size(edges))];
}

double within(const Argument& argument, Random& random) {
    return argument.low + (argument.high - argument.low) * random.unit();
}

std::int32_t integer_within(const Argument& argument, int margin, Random& random) {
    const auto low = static_cast<std::int32_t>(argument.low) - margin;
    const auto high = static_cast<std::int32_t>(argument.high) + margin;
    return low + random.below(high - low + 1);
}

// A value within the range, a whole one, one on an edge, or any bits.
template <class Float, class Bits>
Bits any_real(const Argument& argument, Random& random) {
    const int kind = random.below(100);
    if (kind >= 94) return static_cast<Bits>(random.bits());
    double value = kind >= 82 ? edge(argument, random) : within(argument, random);
    if (kind >= 75 && kind < 82) value = std::round(value);
    return std::bit_cast<Bits>(static_cast<Float>(value));
}

template <class Float>
Float extreme(Random& random) {
    using Limits = std::numeric_limits<Float>;
    constexpr Float values[] = {
        Float{0},           Limits::denorm_min(), Limits::min() / 2,      Limits::min(),
        Limits::epsilon(),  Float{0x1p31},        Float{0x1p63},          Limits::max(),
        Limits::infinity(), Limits::quiet_NaN(),  Limits::signaling_NaN()};
    const Float value = values[random.below(std::size(values))];
    return random.below(2) ? value : -value;
}

// The name of the example file or of no file at all: bytes of any kind in a folder that is missing.
std::string any_text(Random& random) {
    switch (random.below(16)) {
        case 0:
            return "";
        case 1:
            return "no such file";
        case 2: {
            std::string name = "no such folder/";
            for (int n = random.below(40); n > 0; --n)
                name += static_cast<char>(1 + random.below(255));
            return name;
        }
        default:
            return std::string(example_file);
    }
}

// Blanks fill the room, so that it ends with the NUL, or bytes that are no business of a reader.
void store_text(const std::string& text, bool padded, std::vector<std::uint32_t>& room) {
    auto* const characters = reinterpret_cast<char*>(room.data());
    const std::size_t size = 4 * room.size();
    std::memset(characters, padded ? ' ' : 'x', size - 1);
    characters[size - 1] = '\0';
    std::memcpy(characters, text.c_str(), text.size() + (padded ? 0 : 1));
}

}  // namespace

int ArgumentSet::largest_extent(const Extent& extent) const {
    if (extent.argument < 0) return extent.fixed;
    return static_cast<int>(routine_.arguments[static_cast<std::size_t>(extent.argument)].high) +
           beyond_;
}

bool ArgumentSet::is_extent(std::size_t argument) const {
    for (const Argument& other : routine_.arguments)
        for (const Extent& extent : other.shape)
            if (extent.argument == static_cast<int>(argument)) return true;
    return false;
}

ArgumentSet::ArgumentSet(const Routine& routine, int beyond) : routine_(routine), beyond_(beyond) {
    for (const Argument& argument : routine.arguments) {
        std::size_t words = size_of(argument.type) / 4;
        for (const Extent& extent : argument.shape)
            words *= static_cast<std::size_t>(largest_extent(extent));
        words_.emplace_back(words);
    }
    for (auto& block : words_) addresses_.push_back(block.data());
}

std::uint32_t ArgumentSet::any_integer(std::size_t argument, Random& random) const {
    constexpr std::int32_t wild[] = {std::numeric_limits<std::int32_t>::min(),
                                     std::numeric_limits<std::int32_t>::max(), -1, 0};
    const Argument& description = routine_.arguments[argument];
    const int kind = random.below(100);
    if (kind < 80) return static_cast<std::uint32_t>(integer_within(description, 0, random));
    const bool extent = is_extent(argument);
    if (kind < 95 || extent)
        return static_cast<std::uint32_t>(
            integer_within(description, extent ? beyond_ : slightly, random));
    const int choice = random.below(8);
    return choice < 4 ? static_cast<std::uint32_t>(wild[choice])
                      : static_cast<std::uint32_t>(random.bits());
}

std::uint32_t ArgumentSet::extreme_integer(std::size_t argument, Random& random) const {
    using Limits = std::numeric_limits<std::int32_t>;
    constexpr std::int32_t values[] = {Limits::min(), Limits::min() + 1, -0x10000,     -1, 0,
                                       0x10000,       Limits::max() - 1, Limits::max()};
    // Counts beyond the storage are the caller's own fault.
    const int choices = is_extent(argument) ? 5 : static_cast<int>(std::size(values));
    return static_cast<std::uint32_t>(values[random.below(choices)]);
}

template <class SingleWord, class DoubleWord, class IntegerWord, class Text>
void ArgumentSet::draw(SingleWord single, DoubleWord pair, IntegerWord integer, Text text) {
    for (std::size_t i = 0; i < words_.size(); ++i) {
        const Argument& argument = routine_.arguments[i];
        auto& block = words_[i];
        if (argument.type == Type::Text) {
            text(block);
            continue;
        }
        for (std::size_t j = 0; j < block.size(); ++j) {
            if (argument.direction == Direction::Out) {
                block[j] = untouched;
            } else if (argument.type == Type::Integer) {
                block[j] = integer(i);
            } else if (argument.type == Type::Real) {
                block[j] = single(argument);
            } else {
                const std::uint64_t bits = pair(argument);
                std::memcpy(&block[j++], &bits, sizeof bits);
            }
        }
    }
}

void ArgumentSet::draw_valid(Random& random) {
    draw(
        [&](const Argument& a) {
            return std::bit_cast<std::uint32_t>(static_cast<float>(within(a, random)));
        },
        [&](const Argument& a) { return std::bit_cast<std::uint64_t>(within(a, random)); },
        [&](std::size_t i) {
            return static_cast<std::uint32_t>(integer_within(routine_.arguments[i], 0, random));
        },
        [](auto& room) { store_text(std::string(example_file), false, room); });
}

void ArgumentSet::draw_any(Random& random) {
    draw([&](const Argument& a) { return any_real<float, std::uint32_t>(a, random); },
         [&](const Argument& a) { return any_real<double, std::uint64_t>(a, random); },
         [&](std::size_t i) { return any_integer(i, random); },
         [&](auto& room) {
             // One draw a statement: in which order arguments are evaluated is the compiler's
             // choice.
             const bool padded = random.below(2) == 0;
             store_text(any_text(random), padded, room);
         });
}

void ArgumentSet::spoil(Random& random) {
    for (std::size_t i = 0; i < words_.size(); ++i) {
        const Argument& argument = routine_.arguments[i];
        auto& block = words_[i];
        if (argument.direction == Direction::Out || argument.type == Type::Text) continue;
        if (random.below(4)) continue;
        const std::size_t words = size_of(argument.type) / 4;
        for (std::size_t j = 0; j < block.size(); j += words) {
            if (block.size() > words && random.below(2)) continue;
            if (argument.type == Type::Integer) {
                block[j] = extreme_integer(i, random);
            } else if (argument.type == Type::Real) {
                block[j] = std::bit_cast<std::uint32_t>(extreme<float>(random));
            } else {
                const double value = extreme<double>(random);
                std::memcpy(&block[j], &value, sizeof value);
            }
        }
    }
}

}  // namespace quorvel::conformance
