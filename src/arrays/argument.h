// An argument of every element, by blocks of elements in which its numbers lie as packs are read
// and written: each number of one element beside that of the next. An array of single numbers that
// has them so already is used where it is.
//
// A last block that does not end with a pack is filled up with its last element: what stands there
// is calculated and thrown away.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

#include "arrays/number.h"
#include "arrays/numbers_in.h"

namespace quorvel::arrays {

inline constexpr std::size_t block = 256;  // elements

// No arithmetic of pointers, since a step beyond the last element may lead out of all memory.
inline char* moved(char* at, std::ptrdiff_t by) noexcept {
    return reinterpret_cast<char*>(reinterpret_cast<std::uintptr_t>(at) +
                                   static_cast<std::uintptr_t>(by));
}

// Where the elements are that a caller passes: at a distance in bytes, which is 0 where one serves
// all.
struct Place {
    char* at;
    std::ptrdiff_t step;

    Place from(std::size_t element) const noexcept {
        return {moved(at, static_cast<std::ptrdiff_t>(element) * step), step};
    }
};

// The numbers of `count` elements, n in each, between a caller's arrays and rows of their own.
template <class T, std::size_t n>
using Rows = std::array<std::array<T, block>, n>;

template <class T, std::size_t n>
[[gnu::noinline]] void gather(Place from, std::size_t count, Rows<T, n>& rows) noexcept {
    for (std::size_t i = 0; i < count; ++i, from = from.from(1))
        for (std::size_t k = 0; k < n; ++k)
            std::memcpy(&rows[k][i], from.at + k * sizeof(T), sizeof(T));
    for (std::size_t i = count; i % width != 0; ++i)
        for (std::size_t k = 0; k < n; ++k) rows[k][i] = rows[k][count - 1];
}

template <class T, std::size_t n>
[[gnu::noinline]] void scatter(const Rows<T, n>& rows, std::size_t count, Place to) noexcept {
    for (std::size_t i = 0; i < count; ++i, to = to.from(1))
        for (std::size_t k = 0; k < n; ++k)
            std::memcpy(to.at + k * sizeof(T), &rows[k][i], sizeof(T));
}

template <class Value>
class Argument {
  protected:
    using N = NumberOf<Value>;
    using T = Stored<N>;
    static constexpr std::size_t numbers = NumbersIn<Value>::count;
    static constexpr std::ptrdiff_t pack = sizeof(T) * width;

    explicit Argument(Place place) noexcept : place_(place) {}

    // Whether packs can be read and written where the caller has them.
    bool dense(std::size_t count) const noexcept {
        return numbers == 1 && count % width == 0 && place_.step == sizeof(T);
    }
    void use_place(std::size_t first) noexcept {
        next_ = place_.from(first).at;
        to_next_number_ = sizeof(T);
        to_next_pack_ = width == 1 ? place_.step : pack;
    }
    void use_rows(bool one_for_all) noexcept {
        next_ = reinterpret_cast<char*>(rows_.data());
        to_next_number_ = sizeof(rows_[0]);
        to_next_pack_ = one_for_all ? 0 : pack;
    }

    T* number(std::size_t k) const noexcept {
        return reinterpret_cast<T*>(next_ + k * to_next_number_);
    }
    void advance() noexcept { next_ = moved(next_, to_next_pack_); }

    Place place_;
    char* next_ = nullptr;
    std::size_t to_next_number_ = 0;
    std::ptrdiff_t to_next_pack_ = 0;
    Rows<T, width == 1 ? 0 : numbers> rows_;
};

template <class Value>
class Input : Argument<Value> {
    using Base = Argument<Value>;

  public:
    Input(Place place) noexcept : Base(place) {}

    // Turns to `count` elements from `first` on.
    void open(std::size_t first, std::size_t count) noexcept {
        if constexpr (width == 1) {
            Base::use_place(first);
        } else if (this->place_.step == 0) {
            if (first == 0) gather(this->place_, width, this->rows_);
            Base::use_rows(true);
        } else if (Base::dense(count)) {
            Base::use_place(first);
        } else {
            gather(this->place_.from(first), count, this->rows_);
            Base::use_rows(false);
        }
    }

    Value next() noexcept {
        NumbersOf<Value> numbers;
        for (std::size_t k = 0; k < numbers.size(); ++k)
            numbers[k] = load<typename Base::N>(Base::number(k));
        Base::advance();
        return std::bit_cast<Value>(numbers);
    }
};

template <class Value>
class Output : Argument<Value> {
    using Base = Argument<Value>;

  public:
    Output(Place place) noexcept : Base(place) {}

    void open(std::size_t first, std::size_t count) noexcept {
        in_place_ = width == 1 || Base::dense(count);
        if (in_place_)
            Base::use_place(first);
        else
            Base::use_rows(false);
    }

    void put(const Value& value) noexcept {
        const auto numbers = std::bit_cast<NumbersOf<Value>>(value);
        for (std::size_t k = 0; k < numbers.size(); ++k) store(numbers[k], Base::number(k));
        Base::advance();
    }

    void close(std::size_t first, std::size_t count) noexcept {
        if constexpr (width != 1)
            if (!in_place_) scatter(this->rows_, count, this->place_.from(first));
    }

  private:
    bool in_place_ = false;
};

}  // namespace quorvel::arrays
