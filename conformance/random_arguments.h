// Argument sets for any routine, reproducible on every platform.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "conformance/routine_table.h"

namespace quorvel::conformance {

// SplitMix64 (Steele, Lea, Flood 2014): small, and the same everywhere, unlike the distributions of
// the standard library.
class Random {
  public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    std::uint64_t bits() {
        std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
        z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
        z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
        return z ^ (z >> 31);
    }
    int below(int n) { return static_cast<int>(bits() % static_cast<unsigned>(n)); }
    double unit() { return static_cast<double>(bits() >> 11) * 0x1p-53; }
    double between(double low, double high) { return low + (high - low) * unit(); }
    float real(double low, double high) { return static_cast<float>(between(low, high)); }

  private:
    std::uint64_t state_;
};

// The file that texts name, unless they are meant to name none; see climate_file.h.
inline constexpr std::string_view example_file = "example.climate";

// Each word of an output before the call.
inline constexpr std::uint32_t untouched = 0xC5C5C5C5u;

// The storage of one call: one block of bytes per argument, large enough for any count that is
// drawn: as many beyond either end of what it is drawn from as `beyond`.
class ArgumentSet {
  public:
    explicit ArgumentSet(const Routine& routine, int beyond = 2);
    ArgumentSet(ArgumentSet&&) = default;
    ArgumentSet(const ArgumentSet&) = delete;

    // Draws new arguments: all within their bounds, or some of them also on edges and wild bit
    // patterns. Outputs are `untouched`, which shows what a call has left alone.
    void draw_valid(Random& random);
    void draw_any(Random& random);
    // Puts extreme values in place of those of some arguments: not a number, infinite, subnormal,
    // the ends of what the type holds, and counts from the least Integer on.
    void spoil(Random& random);

    void* const* addresses() { return addresses_.data(); }
    const std::vector<std::vector<std::uint32_t>>& words() const { return words_; }

  private:
    int largest_extent(const Extent& extent) const;
    bool is_extent(std::size_t argument) const;
    std::uint32_t any_integer(std::size_t argument, Random& random) const;
    std::uint32_t extreme_integer(std::size_t argument, Random& random) const;
    template <class SingleWord, class DoubleWord, class IntegerWord, class Text>
    void draw(SingleWord single, DoubleWord pair, IntegerWord integer, Text text);

    const Routine& routine_;
    int beyond_;
    std::vector<std::vector<std::uint32_t>> words_;
    std::vector<void*> addresses_;
};

}  // namespace quorvel::conformance
