// A formula, element by element of arrays.
#pragma once

#include <algorithm>
#include <type_traits>
#include <utility>

#include "arrays/argument.h"
#include "arrays/kernel.h"

namespace quorvel::arrays {

template <class Values, template <class> class Argument>
struct Arguments;
template <class... Value, template <class> class Argument>
struct Arguments<std::tuple<Value...>, Argument> {
    std::tuple<Argument<Value>...> each;

    Arguments(char* const* at, const std::ptrdiff_t* step) noexcept
        : Arguments(at, step, std::index_sequence_for<Value...>()) {}

  private:
    template <std::size_t... k>
    Arguments(char* const* at, const std::ptrdiff_t* step, std::index_sequence<k...>) noexcept
        : each(Place{at[k], step[k]}...) {}
};

// What `formula` returns as outputs(...), for `count` elements; it takes values of types In.
template <class... In, class F>
void each(std::size_t count, char* const* at, const std::ptrdiff_t* step, F formula) noexcept {
    using Results = std::invoke_result_t<F, In...>;
    constexpr std::size_t inputs = sizeof...(In);
    Arguments<std::tuple<In...>, Input> in(at, step);
    Arguments<Results, Output> out(at + inputs, step + inputs);

    for (std::size_t first = 0; first < count; first += block) {
        const std::size_t n = std::min(block, count - first);
        const auto open = [&](auto&... argument) { (argument.open(first, n), ...); };
        std::apply(open, in.each);
        std::apply(open, out.each);
        for (std::size_t i = 0; i < n; i += width) {
            const auto read = [](auto&... argument) {
                return std::tuple<In...>{argument.next()...};  // in braces, hence in order
            };
            const Results results = std::apply(formula, std::apply(read, in.each));
            const auto write = [&](auto&... argument) {
                std::apply([&](const auto&... value) { (argument.put(value), ...); }, results);
            };
            std::apply(write, out.each);
        }
        std::apply([&](auto&... argument) { (argument.close(first, n), ...); }, out.each);
    }
}

}  // namespace quorvel::arrays
