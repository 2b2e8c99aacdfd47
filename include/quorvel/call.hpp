// How the headers of the families call the libraries: nothing here is for applications.
#pragma once

#include <quorvel_arrays.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>
#include <stdexcept>
#include <string>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

#include "quorvel/input.hpp"

namespace quorvel {
inline namespace v0 {
namespace detail {

// ---- Values as numbers one after the other ----

template <class T>
struct Nested {
    using Number = T;
    static constexpr T none() { return std::numeric_limits<T>::quiet_NaN(); }
};
template <class T, std::size_t n>
struct Nested<std::array<T, n>> {
    using Number = typename Nested<T>::Number;
    static constexpr std::array<T, n> none() {
        std::array<T, n> values{};
        for (T& value : values) value = Nested<T>::none();
        return values;
    }
};

template <class T>
using Number = typename Nested<T>::Number;

/// What is left where a routine leaves an output as it was: not a number, or 0.
template <class T>
inline constexpr T none = Nested<T>::none();

/// For an argument that is never read.
template <class T>
inline constexpr T unread{};

template <class T>
const Number<T>* numbers(const T* values) {
    return reinterpret_cast<const Number<T>*>(values);
}
template <class T>
Number<T>* numbers(T* values) requires(!std::is_const_v<T>) {
    return reinterpret_cast<Number<T>*>(values);
}
template <class T>
auto* numbers(std::span<const T> values) {
    return numbers(values.data());
}
template <class T>
auto* numbers(std::vector<T>& values) {
    return numbers(values.data());
}
template <class T, std::size_t n>
auto* numbers(const std::array<T, n>& values) {
    return numbers(&values);
}
template <class T, std::size_t n>
auto* numbers(std::array<T, n>& values) {
    return numbers(&values);
}

// ---- Counts ----

struct Limits {
    std::int32_t low, high;
};

[[noreturn]] inline void refuse_count(const std::string& routine, const std::string& count,
                                      Limits limits, const std::string& value) {
    const bool bounded = limits.high != std::numeric_limits<std::int32_t>::max();
    const std::string low = std::to_string(limits.low);
    throw std::out_of_range(
        routine + ": " + count + " must be " +
        (bounded ? "from " + low + " to " + std::to_string(limits.high) : "at least " + low) +
        ", not " + value);
}

inline void check_count(const char* routine, const char* count, Limits limits, std::int32_t value) {
    if (value < limits.low || value > limits.high)
        refuse_count(routine, count, limits, std::to_string(value));
}

struct Listed {
    const char* name;
    std::size_t size;
};

/// How long lists are that belong together.
inline std::int32_t counted(const char* routine, const char* count, Limits limits,
                            std::initializer_list<Listed> lists) {
    const Listed& first = *lists.begin();
    for (const Listed& list : lists)
        if (list.size != first.size)
            throw std::invalid_argument(std::string(routine) + ": " + list.name + " has " +
                                        std::to_string(list.size) + " elements and " + first.name +
                                        " " + std::to_string(first.size));
    if (first.size < static_cast<std::size_t>(limits.low) ||
        first.size > static_cast<std::size_t>(limits.high))
        refuse_count(routine, count, limits, std::to_string(first.size));
    return static_cast<std::int32_t>(first.size);
}

// ---- Arrays ----

/// An argument of a routine for whole arrays.
template <class T>
struct Column {
    const char* name;
    T* first;
    std::ptrdiff_t stride;
    std::size_t count;
    bool output;
    // Of a table: how many columns it has, and how many of them count in each element.
    std::size_t columns = 0;
    const Input<std::int32_t>* counts = nullptr;
};

template <class T>
Column<const Number<T>> given(const char* name, const Input<T>& input) {
    return {name, numbers(input.data()), input.stride(), input.size(), false};
}

template <class T>
std::ptrdiff_t row_bytes(const Table<T>& table) {
    return table.rows() == 1 ? 0 : static_cast<std::ptrdiff_t>(table.columns() * sizeof(T));
}

// Lists without elements need no address.
template <class T>
Column<const Number<T>> given(const char* name, const Table<const T>& table,
                              const Input<std::int32_t>& counts) {
    const T* const first = table.columns() == 0 ? &unread<T> : table.data();
    return {name, numbers(first), row_bytes(table), table.rows(), false, table.columns(), &counts};
}

template <class T>
Column<Number<T>> returned(const char* name, std::span<T> values) {
    return {name, numbers(values.data()), sizeof(T), values.size(), true};
}

template <class T>
Column<Number<T>> returned(const char* name, const Table<T>& table,
                           const Input<std::int32_t>& counts) {
    return {name, numbers(table.data()), row_bytes(table), table.rows(),
            true, table.columns(),       &counts};
}

[[noreturn]] inline void refuse_elements(const char* routine, std::size_t count, const char* name,
                                         std::size_t size) {
    throw std::invalid_argument(std::string(routine) + ": " + name + " has " +
                                std::to_string(size) + " elements and not " +
                                std::to_string(count));
}

/// Inputs of one element serve all elements.
inline void check_elements(const char* routine, std::size_t count, const char* name,
                           std::size_t size, bool output = false) {
    if (size != count && (output || size != 1)) refuse_elements(routine, count, name, size);
}

/// That no element counts more than a row has.
template <class T>
void check_columns(const char* routine, const Column<T>& column) {
    if (!column.counts) return;
    for (std::size_t i = 0; i < column.counts->size(); ++i) {
        const std::int32_t counted = (*column.counts)[i];
        if (counted > 0 && static_cast<std::size_t>(counted) > column.columns)
            throw std::invalid_argument(std::string(routine) + ": " + column.name + " has " +
                                        std::to_string(column.columns) + " columns, and element " +
                                        std::to_string(i) + " counts " + std::to_string(counted));
    }
}

[[noreturn]] inline void refuse(const char* routine, std::int32_t status) {
    char text[256];
    quorvel_message(quorvel_find_routine(routine), status, text, sizeof text);
    if ((status & 255) == QUORVEL_OUTSIDE_RANGE) throw std::out_of_range(text);
    throw std::invalid_argument(text);
}

/// Calls a function of quorvel_arrays.h for as many elements as the outputs have.
template <class Function, class... T>
void call_arrays(const char* routine, Function function, const Column<T>&... columns) {
    std::size_t count = 0;
    bool known = false;
    const auto count_outputs = [&](bool output, std::size_t elements) {
        if (output && !std::exchange(known, true)) count = elements;
    };
    (count_outputs(columns.output, columns.count), ...);
    (check_elements(routine, count, columns.name, columns.count, columns.output), ...);
    (check_columns(routine, columns), ...);
    const std::int32_t status = std::apply(
        function, std::tuple_cat(std::tuple(count), std::tuple(columns.first, columns.stride)...));
    if (status != QUORVEL_OK) refuse(routine, status);
}

}  // namespace detail
}  // namespace v0
}  // namespace quorvel
