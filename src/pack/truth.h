// What a pack of doubles, in the halves of two registers, has of the operators of one; and truth by
// number.
#pragma once

#include <concepts>

#include "pack/registers.h"

namespace quorvel::pack {

#define QUORVEL_BY_HALF(op)                                                 \
    template <class V>                                                      \
    QUORVEL_PACK Halves<V> operator op(Halves<V> a, Halves<V> b) noexcept { \
        return {V(a.low op b.low), V(a.high op b.high)};                    \
    }
QUORVEL_BY_HALF(+)
QUORVEL_BY_HALF(-)
QUORVEL_BY_HALF(*)
QUORVEL_BY_HALF(/)
QUORVEL_BY_HALF(&)
QUORVEL_BY_HALF(|)
QUORVEL_BY_HALF(^)
#undef QUORVEL_BY_HALF
template <class V>
QUORVEL_PACK Halves<V> operator-(Halves<V> a) noexcept {
    return {-a.low, -a.high};
}
template <class V>
QUORVEL_PACK Halves<V> operator~(Halves<V> a) noexcept {
    return {V(~a.low), V(~a.high)};
}
template <class V>
QUORVEL_PACK Halves<WideLanes> less(Halves<V> a, Halves<V> b) noexcept {
    return {less(a.low, b.low), less(a.high, b.high)};
}
template <class V>
QUORVEL_PACK Halves<WideLanes> less_equal(Halves<V> a, Halves<V> b) noexcept {
    return {less_equal(a.low, b.low), less_equal(a.high, b.high)};
}
template <class V>
QUORVEL_PACK Halves<WideLanes> equal(Halves<V> a, Halves<V> b) noexcept {
    return {equal(a.low, b.low), equal(a.high, b.high)};
}
template <class V>
QUORVEL_PACK Halves<V> blend(Halves<WideLanes> m, Halves<V> a, Halves<V> b) noexcept {
    return {blend(m.low, a.low, b.low), blend(m.high, a.high, b.high)};
}

QUORVEL_PACK bool any(WideLanes a) noexcept { return any(Halves<WideLanes>{a, a}); }

// Truth by number. The two kinds of masks convert into one another.
template <class L>
struct Truth {
    L lanes;

    Truth() = default;
    QUORVEL_PACK explicit Truth(L m) noexcept : lanes(m) {}
    QUORVEL_PACK Truth(bool b) noexcept : lanes(of(b)) {}
    template <class Other>
    QUORVEL_PACK Truth(Truth<Other> m) noexcept : lanes(of(m.lanes)) {}

    QUORVEL_PACK friend Truth operator&(Truth a, Truth b) noexcept {
        return Truth(L(a.lanes & b.lanes));
    }
    QUORVEL_PACK friend Truth operator|(Truth a, Truth b) noexcept {
        return Truth(L(a.lanes | b.lanes));
    }
    QUORVEL_PACK friend Truth operator!(Truth a) noexcept { return Truth(L(~a.lanes)); }
    QUORVEL_PACK friend bool any(Truth a) noexcept { return any(a.lanes); }
    QUORVEL_PACK friend bool all(Truth a) noexcept { return !any(!a); }

  private:
    static constexpr bool wide = std::same_as<L, Halves<WideLanes>>;
    QUORVEL_PACK static L of(bool b) noexcept {
        if constexpr (wide)
            return {all_wide_lanes(b), all_wide_lanes(b)};
        else if constexpr (std::same_as<L, WideLanes>)
            return all_wide_lanes(b);
        else
            return all_lanes(b);
    }
    QUORVEL_PACK static L of(Lanes m) noexcept requires wide { return widened_lanes(m); }
    QUORVEL_PACK static L of(Halves<WideLanes> m) noexcept requires(!wide) { return narrowed(m); }
};
using Mask = Truth<Lanes>;
using WideMask = Truth<Halves<WideLanes>>;

}  // namespace quorvel::pack
