// A formula, element by element of arrays.
#pragma once

#include <algorithm>
#include <type_traits>
#include <utility>

#include "arrays/column.h"
#include "arrays/kernel.h"
#include "arrays/numbers_in.h"

namespace quorvel::arrays {

// The columns of one argument: as many as it consists of numbers.
template <class T, template <class> class Column>
struct ColumnsOf {
    std::array<Column<NumberOf<T>>, NumbersIn<T>::count> columns;

    // Implicit, so that a tuple of columns is made where it stands.
    ColumnsOf(Place place) noexcept
        : ColumnsOf(place, std::make_index_sequence<NumbersIn<T>::count>()) {}

    void open(std::size_t first, std::size_t count) noexcept {
        for (auto& column : columns) column.open(first, count);
    }
    T next() noexcept {
        NumbersOf<T> numbers;
        for (std::size_t k = 0; k < numbers.size(); ++k) numbers[k] = columns[k].next();
        return std::bit_cast<T>(numbers);
    }
    void put(const T& value) noexcept {
        const auto numbers = std::bit_cast<NumbersOf<T>>(value);
        for (std::size_t k = 0; k < numbers.size(); ++k) columns[k].put(numbers[k]);
    }
    void close(std::size_t first, std::size_t count) noexcept {
        for (auto& column : columns) column.close(first, count);
    }

  private:
    template <std::size_t... k>
    ColumnsOf(Place place, std::index_sequence<k...>) noexcept
        : columns{Column<NumberOf<T>>(
              Place{place.at + k * sizeof(Stored<NumberOf<T>>), place.step})...} {}
};

template <class Values, template <class> class Column>
struct Table;
template <class... T, template <class> class Column>
struct Table<std::tuple<T...>, Column> {
    std::tuple<ColumnsOf<T, Column>...> arguments;

    Table(char* const* at, const std::ptrdiff_t* step) noexcept
        : Table(at, step, std::index_sequence_for<T...>()) {}

  private:
    template <std::size_t... k>
    Table(char* const* at, const std::ptrdiff_t* step, std::index_sequence<k...>) noexcept
        : arguments(Place{at[k], step[k]}...) {}
};

// outputs(...) of `count` elements, whose inputs the formula takes as values of types In.
template <class... In, class F>
void each(std::size_t count, char* const* at, const std::ptrdiff_t* step, F formula) noexcept {
    using Outputs = std::invoke_result_t<F, In...>;
    constexpr std::size_t inputs_count = sizeof...(In);
    Table<std::tuple<In...>, InputColumn> in(at, step);
    Table<Outputs, OutputColumn> out(at + inputs_count, step + inputs_count);

    for (std::size_t first = 0; first < count; first += block) {
        const std::size_t n = std::min(block, count - first);
        const auto open = [&](auto&... argument) { (argument.open(first, n), ...); };
        std::apply(open, in.arguments);
        std::apply(open, out.arguments);
        for (std::size_t i = 0; i < n; i += width) {
            // in braces, which are evaluated in order
            const std::tuple<In...> values =
                std::apply([](auto&... argument) { return std::tuple<In...>{argument.next()...}; },
                           in.arguments);
            const Outputs results = std::apply(formula, values);
            std::apply(
                [&](auto&... argument) {
                    std::apply([&](const auto&... value) { (argument.put(value), ...); }, results);
                },
                out.arguments);
        }
        std::apply([&](auto&... argument) { (argument.close(first, n), ...); }, out.arguments);
    }
}

}  // namespace quorvel::arrays
