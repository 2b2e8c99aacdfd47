// Fuzz input as text that is taken apart, so that seeds can be read and written by hand. Nothing is
// wrong with any bytes: what is no number counts as 0, as does all that follows the end.
#pragma once

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <string_view>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace quorvel::fuzz {

// Ends the run, which is a finding, unless the promise holds.
inline void require(bool holds, const char* promise) {
    if (holds) return;
    std::fprintf(stderr, "Broken: %s\n", promise);
    std::abort();
}

class Bytes {
  public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : rest_(reinterpret_cast<const char*>(data), size) {}
    explicit Bytes(std::string_view text) : rest_(text) {}

    bool empty() {
        skip_blanks();
        return rest_.empty();
    }
    std::string_view rest() const { return rest_; }

    std::string_view line() {
        const std::string_view line = rest_.substr(0, rest_.find('\n'));
        rest_.remove_prefix(std::min(line.size() + 1, rest_.size()));
        return line;
    }

    char letter() {
        if (empty()) return '0';
        const char first = rest_[0];
        rest_.remove_prefix(1);
        return first;
    }
    // A digit, or with other characters what lies as far from '0'.
    int digit() { return letter() - '0'; }

    double real() {
        if (empty()) return 0;
        double value = 0;
        const char* const end = rest_.data() + rest_.size();
        const auto [after, fault] = std::from_chars(rest_.data(), end, value);
        const auto taken = static_cast<std::size_t>(after - rest_.data());
        rest_.remove_prefix(taken ? taken : 1);
        return fault == std::errc() ? value : 0;
    }
    // The nearest one.
    std::int32_t integer() {
        using Limits = std::numeric_limits<std::int32_t>;
        const double value = real();
        if (std::isnan(value)) return 0;
        return static_cast<std::int32_t>(std::fmax(Limits::min(), std::fmin(value, Limits::max())));
    }
    int integer(int low, int high) { return std::clamp(integer(), low, high); }

  private:
    void skip_blanks() {
        while (!rest_.empty() && (rest_[0] == ' ' || rest_[0] == '\n')) rest_.remove_prefix(1);
    }

    std::string_view rest_;
};

}  // namespace quorvel::fuzz
