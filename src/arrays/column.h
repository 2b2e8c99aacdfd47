// The numbers of one argument, element by element, by blocks in which they lie one after the other
// as packs are read and written. An array that has them so already is used where it is.
//
// A last block that does not end with a pack is filled up with its last element: what stands there
// is calculated and thrown away.
#pragma once

#include <array>

#include "arrays/number.h"

namespace quorvel::arrays {

inline constexpr std::size_t block = 256;  // elements

// Where the elements of an argument are that a caller passes: at a distance in bytes, which is 0
// where one serves all.
struct Place {
    char* at;
    std::ptrdiff_t step;

    Place from(std::size_t i) const noexcept {
        return {at + static_cast<std::ptrdiff_t>(i) * step, step};
    }
    // Whether `count` numbers of that size are whole packs, one after the other.
    bool whole(std::size_t count, std::size_t size) const noexcept {
        return step == static_cast<std::ptrdiff_t>(size) && count % width == 0;
    }
};

template <class T>
[[gnu::noinline]] void gather(Place from, std::size_t count, T* room) noexcept {
    for (std::size_t i = 0; i < count; ++i) std::memcpy(room + i, from.from(i).at, sizeof(T));
    for (std::size_t i = count; i % width != 0; ++i) room[i] = room[count - 1];
}

template <class T>
[[gnu::noinline]] void scatter(const T* room, std::size_t count, Place to) noexcept {
    for (std::size_t i = 0; i < count; ++i) std::memcpy(to.from(i).at, room + i, sizeof(T));
}

template <class N>
class InputColumn {
    using T = Stored<N>;

  public:
    explicit InputColumn(Place place) noexcept : place_(place) {}

    // Turns to `count` elements from `first` on.
    void open(std::size_t first, std::size_t count) noexcept {
        next_ = reinterpret_cast<const char*>(room_.data());
        advance_ = place_.step == 0 ? 0 : sizeof(T) * width;
        if (place_.step == 0) {
            if (first == 0) gather(place_, width, room_.data());
        } else if (place_.whole(count, sizeof(T))) {
            next_ = place_.from(first).at;
        } else {
            gather(place_.from(first), count, room_.data());
        }
    }

    N next() noexcept {
        const N x = load<N>(reinterpret_cast<const T*>(next_));
        next_ += advance_;
        return x;
    }

  private:
    Place place_;
    const char* next_ = nullptr;
    std::size_t advance_ = 0;
    std::array<T, block> room_;
};

template <class N>
class OutputColumn {
    using T = Stored<N>;

  public:
    explicit OutputColumn(Place place) noexcept : place_(place) {}

    void open(std::size_t first, std::size_t count) noexcept {
        in_place_ = place_.whole(count, sizeof(T));
        next_ = in_place_ ? place_.from(first).at : reinterpret_cast<char*>(room_.data());
    }

    void put(N x) noexcept {
        store(x, reinterpret_cast<T*>(next_));
        next_ += sizeof(T) * width;
    }

    void close(std::size_t first, std::size_t count) noexcept {
        if (!in_place_) scatter(room_.data(), count, place_.from(first));
    }

  private:
    Place place_;
    char* next_ = nullptr;
    bool in_place_ = false;
    std::array<T, block> room_;
};

}  // namespace quorvel::arrays
