// One element of every argument of a routine that is called by reference.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <limits>

#include "base/contract.h"

namespace quorvel::arrays {

class Row {
  public:
    Row(char* const* at, const std::ptrdiff_t* step, std::size_t element) noexcept
        : at_(at), step_(step), element_(static_cast<std::ptrdiff_t>(element)) {}

    template <class T>
    const T* in(int argument) const noexcept {
        return place<T>(argument);
    }

    // How many numbers an argument says that another one has.
    std::size_t count(int argument) const noexcept {
        return static_cast<std::size_t>(std::max(*in<Integer>(argument), 0));
    }

    // Room for an output of so many numbers, which are none or 0 where the routine leaves them.
    template <class T>
    T* out(int argument, std::size_t count) const noexcept {
        T* at = place<T>(argument);
        std::fill_n(at, count, std::numeric_limits<T>::quiet_NaN());
        return at;
    }

    // What goes in, where it comes out.
    template <class T>
    T* inout(int input, int output, std::size_t count) const noexcept {
        T* at = place<T>(output);
        std::memmove(at, in<T>(input), count * sizeof(T));
        return at;
    }

    // For an argument that is never read.
    template <class T>
    const T* unread() const noexcept {
        static constexpr T nothing{};
        return &nothing;
    }

  private:
    template <class T>
    T* place(int argument) const noexcept {
        return reinterpret_cast<T*>(at_[argument] + element_ * step_[argument]);
    }

    char* const* at_;
    const std::ptrdiff_t* step_;
    std::ptrdiff_t element_;
};

}  // namespace quorvel::arrays
