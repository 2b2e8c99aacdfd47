// As many numbers as fill a register, with the operators and functions that base/number.h asks of
// a number type. A formula over pack::Reals gives as many results at once, each with the bits that
// the formula over Real gives.
//
//     Reals, Integers        as many Real, Integer
//     DoubleReals, Words     as many DoubleReal, and their bit patterns; in two registers
//     Mask, WideMask         what comparisons give; either serves all four
//
// Where the numbers of a pack disagree about a branch, both sides are evaluated for all of them: a
// formula must survive what it would not be asked for, above all in the index of a lookup.
#pragma once

#include <array>
#include <bit>
#include <concepts>
#include <cstring>

#include "base/number.h"
#include "pack/truth.h"

// Functions too long to be inlined wherever they are called.
#define QUORVEL_PACK_CALL [[gnu::noinline]] inline

namespace quorvel::pack {

template <class V, class T, class M>
struct Number {
    using Scalar = T;
    V v;

    Number() = default;
    QUORVEL_PACK explicit Number(V x) noexcept : v(x) {}
    QUORVEL_PACK Number(T x) noexcept : v(everywhere(x)) {}
    QUORVEL_PACK explicit Number(Real x) noexcept requires std::same_as<T, DoubleReal>
        : Number(static_cast<DoubleReal>(x)) {}

    QUORVEL_PACK friend Number operator+(Number a, Number b) noexcept { return Number(a.v + b.v); }
    QUORVEL_PACK friend Number operator-(Number a, Number b) noexcept { return Number(a.v - b.v); }
    QUORVEL_PACK friend Number operator*(Number a, Number b) noexcept { return Number(a.v * b.v); }
    QUORVEL_PACK friend Number operator/(Number a,
                                         Number b) noexcept requires std::floating_point<T> {
        return Number(a.v / b.v);
    }
    QUORVEL_PACK friend Number operator-(Number a) noexcept { return Number(-a.v); }
    QUORVEL_PACK friend Number& operator+=(Number& a, Number b) noexcept { return a = a + b; }
    QUORVEL_PACK friend Number& operator-=(Number& a, Number b) noexcept { return a = a - b; }
    QUORVEL_PACK friend Number& operator*=(Number& a, Number b) noexcept { return a = a * b; }
    QUORVEL_PACK friend Number& operator/=(Number& a,
                                           Number b) noexcept requires std::floating_point<T> {
        return a = a / b;
    }

    QUORVEL_PACK friend M operator<(Number a, Number b) noexcept { return M(less(a.v, b.v)); }
    QUORVEL_PACK friend M operator>(Number a, Number b) noexcept { return b < a; }
    QUORVEL_PACK friend M operator<=(Number a, Number b) noexcept {
        return M(less_equal(a.v, b.v));
    }
    QUORVEL_PACK friend M operator>=(Number a, Number b) noexcept { return b <= a; }
    QUORVEL_PACK friend M operator==(Number a, Number b) noexcept { return M(equal(a.v, b.v)); }
    QUORVEL_PACK friend M operator!=(Number a, Number b) noexcept { return !(a == b); }

    QUORVEL_PACK friend Number select(M m, Number a, Number b) noexcept {
        return Number(blend(m.lanes, a.v, b.v));
    }

  private:
    template <class Register>
    QUORVEL_PACK static Register filled(T x) noexcept {
        return x - Register{};  // not the sum, which is 0 for -0
    }
    QUORVEL_PACK static V everywhere(T x) noexcept {
        if constexpr (requires(V y) { y.low; })
            return {filled<decltype(V::low)>(x), filled<decltype(V::low)>(x)};
        else
            return filled<V>(x);
    }
};
using Reals = Number<Floats, Real, Mask>;
using Integers = Number<Ints, Integer, Mask>;
using DoubleReals = Number<Halves<Doubles>, DoubleReal, WideMask>;
using Words = Number<Halves<Longs>, std::uint64_t, WideMask>;

QUORVEL_PACK Words operator&(Words a, Words b) noexcept { return Words(a.v & b.v); }
QUORVEL_PACK Words operator|(Words a, Words b) noexcept { return Words(a.v | b.v); }
QUORVEL_PACK Words operator^(Words a, Words b) noexcept { return Words(a.v ^ b.v); }
QUORVEL_PACK Words operator<<(Words a, int n) noexcept {
    return Words({a.v.low << n, a.v.high << n});
}
QUORVEL_PACK Words operator>>(Words a, int n) noexcept {
    return Words({a.v.low >> n, a.v.high >> n});
}
QUORVEL_PACK Words bits(DoubleReals x) noexcept { return Words({Longs(x.v.low), Longs(x.v.high)}); }
QUORVEL_PACK DoubleReals from_bits(Words x) noexcept {
    return DoubleReals({Doubles(x.v.low), Doubles(x.v.high)});
}

QUORVEL_PACK DoubleReals to_double(Reals x) noexcept { return DoubleReals(widened(x.v)); }
QUORVEL_PACK DoubleReals to_double(Integers n) noexcept { return DoubleReals(widened(n.v)); }
QUORVEL_PACK Reals to_real(DoubleReals x) noexcept { return Reals(narrowed(x.v)); }
QUORVEL_PACK Reals to_real(Integers n) noexcept {
    return Reals(__builtin_convertvector(n.v, Floats));
}
QUORVEL_PACK Integers to_integer(Reals x) noexcept {
    return Integers(__builtin_convertvector(x.v, Ints));
}

QUORVEL_PACK Reals absolute(Reals x) noexcept { return Reals(Floats(Ints(x.v) & 0x7fffffff)); }
QUORVEL_PACK DoubleReals absolute(DoubleReals x) noexcept {
    return from_bits(bits(x) & Words(~std::uint64_t{0} >> 1));
}
QUORVEL_PACK Reals truncated(Reals x) noexcept { return Reals(truncated(x.v)); }
QUORVEL_PACK DoubleReals truncated(DoubleReals x) noexcept {
    return DoubleReals({truncated(x.v.low), truncated(x.v.high)});
}
QUORVEL_PACK Reals square_root(Reals x) noexcept { return Reals(square_root(x.v)); }
QUORVEL_PACK DoubleReals square_root(DoubleReals x) noexcept {
    return DoubleReals({square_root(x.v.low), square_root(x.v.high)});
}

// a b + c, rounded once or twice
QUORVEL_PACK DoubleReals fused(DoubleReals a, DoubleReals b, DoubleReals c) noexcept {
    return DoubleReals({fused(a.v.low, b.v.low, c.v.low), fused(a.v.high, b.v.high, c.v.high)});
}

// the second where one is not a number
QUORVEL_PACK DoubleReals smaller(DoubleReals a, DoubleReals b) noexcept {
    return DoubleReals({smaller(a.v.low, b.v.low), smaller(a.v.high, b.v.high)});
}
QUORVEL_PACK DoubleReals larger(DoubleReals a, DoubleReals b) noexcept {
    return DoubleReals({larger(a.v.low, b.v.low), larger(a.v.high, b.v.high)});
}

QUORVEL_PACK Reals lookup(const Real* table, Integers index) noexcept {
    return Reals(gathered(table, index.v));
}
QUORVEL_PACK Integers lookup(const Integer* table, Integers index) noexcept {
    return Integers(gathered(table, index.v));
}
QUORVEL_PACK DoubleReals lookup(const DoubleReal* table, Words index) noexcept {
    return DoubleReals({gathered(table, index.v.low), gathered(table, index.v.high)});
}
QUORVEL_PACK DoubleReals lookup(const DoubleReal* table, Integers index) noexcept {
    return lookup(table, bits(to_double(index) + 0x1p52) & Words(0xffffffff));
}

// Register by register: GCC copies anything longer in pieces, which stalls whoever reads it whole.
template <class N>
QUORVEL_PACK N load(const typename N::Scalar* at) noexcept {
    using V = decltype(N::v);
    if constexpr (requires(V y) { y.low; }) {
        V v;
        std::memcpy(&v.low, at, sizeof v.low);
        std::memcpy(&v.high, at + width / 2, sizeof v.high);
        return N(v);
    } else {
        V v;
        std::memcpy(&v, at, sizeof v);
        return N(v);
    }
}
template <class N>
QUORVEL_PACK void store(N x, typename N::Scalar* at) noexcept {
    if constexpr (requires { x.v.low; }) {
        std::memcpy(at, &x.v.low, sizeof x.v.low);
        std::memcpy(at + width / 2, &x.v.high, sizeof x.v.high);
    } else {
        std::memcpy(at, &x.v, sizeof x.v);
    }
}

template <class N>
std::array<typename N::Scalar, width> numbers(N x) noexcept {
    std::array<typename N::Scalar, width> each;
    store(x, each.data());
    return each;
}

template <class L, class Y, class F, class... N>
[[gnu::cold, gnu::noinline]] Y replaced_one_by_one(Truth<L> m, Y y, F f, N... x) noexcept {
    auto results = numbers(y);
    [&, lanes = Mask(m).lanes](const auto&... arguments) {
        for (std::size_t i = 0; i < width; ++i)
            if (lane(lanes, i)) results[i] = f(arguments[i]...);
    }(numbers(x)...);
    return load<Y>(results.data());
}
template <class L, class Y, class F, class... N>
QUORVEL_PACK Y replaced(Truth<L> m, Y y, F f, N... x) noexcept {
    if (any(m)) [[unlikely]]
        return replaced_one_by_one(m, y, f, x...);
    return y;
}

// Exact where the quotient, in double, is that of the whole numbers: as long as it has fewer than
// 28 bits. The sign is that of x, also of a 0.
QUORVEL_PACK Reals modulo(Reals x, Reals y) noexcept {
    const DoubleReals a = to_double(x), b = to_double(y), quotient = a / b;
    const DoubleReals rest = absolute(a - truncated(quotient) * b);
    const Reals result = to_real(from_bits(bits(rest) | (bits(a) & Words(std::uint64_t{1} << 63))));
    const Mask beyond = !(absolute(quotient) < DoubleReals(0x1p28));
    if (!any(beyond)) [[likely]]
        return result;
    return replaced(
        beyond, result, [](Real p, Real q) { return quorvel::modulo(p, q); }, x, y);
}

// Structures of N, number by number
template <class N, class S, class M>
QUORVEL_PACK S select_each(M m, const S& a, const S& b) noexcept {
    using Numbers = std::array<N, sizeof(S) / sizeof(N)>;
    const auto of_a = std::bit_cast<Numbers>(a), of_b = std::bit_cast<Numbers>(b);
    Numbers chosen;
    for (std::size_t i = 0; i < chosen.size(); ++i) chosen[i] = select(m, of_a[i], of_b[i]);
    return std::bit_cast<S>(chosen);
}
template <class L, template <class> class S, class N>
QUORVEL_PACK S<N> select(Truth<L> m, const S<N>& a, const S<N>& b) noexcept {
    return select_each<N>(m, a, b);
}
template <class L, template <class, int> class S, class N, int n>
QUORVEL_PACK S<N, n> select(Truth<L> m, const S<N, n>& a, const S<N, n>& b) noexcept {
    return select_each<N>(m, a, b);
}
template <class L>
QUORVEL_PACK Mask select(Truth<L> m, Mask a, Mask b) noexcept {
    return (m & a) | (!Mask(m) & b);
}

template <class L>
QUORVEL_PACK Truth<L> rarely(Truth<L> m) noexcept {
    return m;
}
template <class L, class F, class G>
QUORVEL_PACK auto either(Truth<L> m, F f, G g) noexcept -> decltype(f()) {
    if (all(m)) return f();
    if (!any(m)) return g();
    return select(m, f(), g());
}
template <class L, class F>
QUORVEL_PACK Truth<L> both(Truth<L> m, F f) noexcept {
    return any(m) ? Truth<L>(m & f()) : m;
}

}  // namespace quorvel::pack

namespace quorvel {

template <>
struct NumberTypes<pack::Reals> {
    using Mask = pack::Mask;
    using Integer = pack::Integers;
    using Double = pack::DoubleReals;
};
template <>
struct NumberTypes<pack::DoubleReals> {
    using Mask = pack::WideMask;
    using Integer = pack::Integers;
    using Double = pack::DoubleReals;
};

}  // namespace quorvel
