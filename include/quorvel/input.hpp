// What a routine is given for many elements: one value for all of them, or an array.
#pragma once

#include <cstddef>
#include <memory>
#include <ranges>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

namespace quorvel {
inline namespace v0 {
namespace detail {

template <class Values>
concept Array = std::ranges::contiguous_range<Values> && std::ranges::sized_range<Values>;

template <class Values, class T>
concept ArrayOf = Array<Values> && std::is_same_v<std::ranges::range_value_t<Values>, T>;

template <class Values>
using Pointer = decltype(std::ranges::data(std::declval<Values&>()));

template <class Values, class T>
concept RoomFor = Array<Values> && std::is_convertible_v<Pointer<Values>, T*>;

}  // namespace detail

/// Values of an argument, an element each; a single value serves all elements. An array is not
/// copied and has to outlive the call.
template <class T>
class Input {
  public:
    Input(const T& value) : value_(value) {}

    /// A std::vector, std::array, std::span, or C array of values.
    template <detail::ArrayOf<T> Values>
    Input(const Values& values)
        : Input(std::ranges::data(values), static_cast<std::size_t>(std::ranges::size(values))) {}

    /// `count` values, each `stride` bytes behind the one before.
    Input(const T* first, std::size_t count, std::ptrdiff_t stride = sizeof(T))
        : single_(false), first_(first), count_(count), stride_(stride) {}

    const T* data() const { return single_ ? std::addressof(value_) : first_; }
    std::size_t size() const { return count_; }
    std::ptrdiff_t stride() const { return count_ == 1 ? 0 : stride_; }

    const T& operator[](std::size_t element) const { return *at(element); }

    /// So many elements from `first` on; a single value stays what it is.
    Input part(std::size_t first, std::size_t count) const {
        return count_ == 1 ? *this : Input(at(first), count, stride_);
    }

  private:
    const T* at(std::size_t element) const {
        const auto bytes = static_cast<std::ptrdiff_t>(element) * stride();
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(data()) + bytes);
    }

    T value_{};
    bool single_ = true;
    const T* first_ = nullptr;
    std::size_t count_ = 1;
    std::ptrdiff_t stride_ = sizeof(T);
};

/// A list for each element, such as the layers of a construction, in a row of its own. How much of
/// a row counts, another argument tells. A table of one row serves all elements.
template <class T>
class Table {
  public:
    Table(T* first, std::size_t rows, std::size_t columns)
        : first_(first), rows_(rows), columns_(columns) {}

    /// All rows, one after the other.
    template <detail::RoomFor<T> Values>
    Table(Values&& values, std::size_t rows, std::size_t columns)
        : Table(std::ranges::data(values), rows, columns) {
        const auto size = static_cast<std::size_t>(std::ranges::size(values));
        if (size != rows * columns)
            throw std::invalid_argument("a table of " + std::to_string(rows) + " rows and " +
                                        std::to_string(columns) + " columns cannot have " +
                                        std::to_string(size) + " values");
    }

    operator Table<const T>() const requires(!std::is_const_v<T>) {
        return {first_, rows_, columns_};
    }

    T* data() const { return first_; }
    std::size_t rows() const { return rows_; }
    std::size_t columns() const { return columns_; }
    T* row(std::size_t element) const { return first_ + element * columns_; }

    /// So many rows from `first` on; a single row stays what it is.
    Table part(std::size_t first, std::size_t count) const {
        return rows_ == 1 ? *this : Table(row(first), count, columns_);
    }

  private:
    T* first_;
    std::size_t rows_, columns_;
};

template <detail::Array Values>
Table(Values&&, std::size_t, std::size_t) -> Table<std::remove_pointer_t<detail::Pointer<Values>>>;

}  // namespace v0
}  // namespace quorvel
