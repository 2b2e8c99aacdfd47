#include "arrays/fault.h"

#include <algorithm>
#include <cstring>
#include <utility>

#include "base/contract.h"

namespace quorvel::arrays {
namespace {

constexpr std::int32_t status(std::int32_t code, int argument) noexcept {
    return code + 256 * argument;
}

std::int64_t size_of(std::int32_t type) noexcept {
    return type == QUORVEL_DOUBLE_REAL ? sizeof(DoubleReal) : sizeof(Real);
}

// The elements of one argument in memory: each `bytes` from at + i step. A single one has no step.
struct Span {
    std::int64_t at, step, bytes, count;

    std::int64_t row() const noexcept { return step < 0 ? -step : step; }
    std::int64_t reach() const noexcept { return step * (count - 1); }
    std::int64_t begin() const noexcept { return at + std::min<std::int64_t>(reach(), 0); }
    std::int64_t end() const noexcept { return at + std::max<std::int64_t>(reach(), 0) + bytes; }
};

// Whether elements are so many, or so far apart, that they would go round all addresses.
bool wraps(std::int64_t step, std::uint64_t count) noexcept {
    constexpr std::int64_t most = INT64_MAX / 2;
    std::int64_t reach = 0;
    return count > static_cast<std::uint64_t>(most) ||
           __builtin_mul_overflow(step, static_cast<std::int64_t>(count - 1), &reach) ||
           reach > most || reach < -most;
}

bool far_apart(const Span& a, const Span& b) noexcept {
    return a.end() <= b.begin() || b.end() <= a.begin();
}

// Columns of one table: elements side by side, at the same distance from one another.
bool side_by_side(const Span& a, const Span& b) noexcept {
    const std::int64_t row = a.row();
    if (row == 0 || (b.step != a.step && b.step != 0)) return false;
    const std::int64_t off = ((b.at - a.at) % row + row) % row;
    return off >= a.bytes && off + b.bytes <= row;
}

// Each element of `out` within the same element of `in`.
bool in_place(const Span& out, const Span& in) noexcept {
    return out.step == in.step && in.at <= out.at && out.at + out.bytes <= in.at + in.bytes;
}

class Call {
  public:
    Call(const quorvel_routine& routine, std::size_t count, void* const* at,
         const std::ptrdiff_t* step) noexcept
        : routine_(routine), count_(static_cast<std::int64_t>(count)), at_(at), step_(step) {}

    std::int32_t fault() const noexcept {
        for (int k = 0; k < arguments(); ++k)
            if (at_[k] == nullptr) return status(QUORVEL_NO_ARRAY, k);
        for (int k = 0; k < arguments(); ++k)
            if (wraps(step_[k], static_cast<std::uint64_t>(count_)))
                return status(QUORVEL_OVERLAP, k);
        for (int k = 0; k < routine_.inputs; ++k)
            if (counts_outside(k)) return status(QUORVEL_OUTSIDE_RANGE, k);
        for (int k = routine_.inputs; k < arguments(); ++k)
            if (overlaps(k)) return status(QUORVEL_OVERLAP, k);
        return QUORVEL_OK;
    }

  private:
    int arguments() const noexcept { return routine_.inputs + routine_.outputs; }
    const quorvel_argument& argument(int k) const noexcept { return routine_.arguments[k]; }

    std::int64_t element_count(int k) const noexcept { return step_[k] == 0 ? 1 : count_; }
    Integer value(int k, std::int64_t i) const noexcept {
        Integer n;
        std::memcpy(&n, static_cast<const char*>(at_[k]) + i * step_[k], sizeof n);
        return n;
    }

    bool counts_outside(int k) const noexcept {
        const auto [low, high] = std::pair(argument(k).lowest, argument(k).highest);
        if (argument(k).type != QUORVEL_INTEGER || (low == INT32_MIN && high == INT32_MAX))
            return false;
        for (std::int64_t i = 0; i < element_count(k); ++i)
            if (value(k, i) < low || value(k, i) > high) return true;
        return false;
    }

    // Of an element that counts the most.
    std::int64_t numbers(int k) const noexcept {
        const int by = argument(k).counted_by;
        if (by < 0) return argument(k).numbers;
        Integer most = 0;
        for (std::int64_t i = 0; i < element_count(by); ++i) most = std::max(most, value(by, i));
        return std::int64_t{argument(k).numbers} * most;
    }

    Span span(int k) const noexcept {
        return {static_cast<std::int64_t>(reinterpret_cast<std::uintptr_t>(at_[k])),
                count_ == 1 ? 0 : step_[k], numbers(k) * size_of(argument(k).type), count_};
    }

    bool overlaps(int k) const noexcept {
        const Span out = span(k);
        if (count_ > 1 && out.row() < out.bytes) return true;
        for (int j = 0; j < k; ++j) {
            const Span other = span(j);
            const bool apart = far_apart(out, other) || side_by_side(out, other);
            const bool same = routine_.in_place != 0 && j < routine_.inputs && in_place(out, other);
            if (!apart && !same) return true;
        }
        return false;
    }

    const quorvel_routine& routine_;
    std::int64_t count_;
    void* const* at_;
    const std::ptrdiff_t* step_;
};

}  // namespace

std::int32_t fault_of(const quorvel_routine& routine, std::size_t count, void* const* at,
                      const std::ptrdiff_t* step) noexcept {
    return Call(routine, count, at, step).fault();
}

}  // namespace quorvel::arrays
