// The caller's list of pieces: the count of vertices and their positions in the pool for each, and
// a 0 at the end.
#pragma once

#include "geometry/clipping/ring.h"

namespace quorvel::geometry::clipping {

// The list ends properly at all times: a piece shows when it is closed. Nothing is written beyond
// the capacity, and from the first entry that finds no room the list is full for good.
class PieceList {
  public:
    constexpr PieceList(Integer* entries, Integer capacity) noexcept
        : entries_(entries), capacity_(capacity), full_(capacity < 1) {
        if (!full_) entries_[0] = 0;
    }

    constexpr bool full() const noexcept { return full_; }

    // For further entries, the counts of pieces included.
    constexpr bool has_room(Integer entries) const noexcept { return entries < capacity_ - end_; }

    constexpr void add(Integer entry) noexcept {
        const Integer place = end_ + 1 + open_;
        full_ = full_ || place >= capacity_ - 1;
        if (full_) return;
        entries_[place] = entry;
        ++open_;
    }

    constexpr void close_piece() noexcept {
        if (full_) return;
        entries_[end_] = open_;
        end_ += open_ + 1;
        entries_[end_] = 0;
        open_ = 0;
    }

    constexpr void add_whole(const Ring& ring) noexcept {
        for (Integer i = 0; i < ring.size(); ++i) add(ring.position(i));
        close_piece();
    }
    constexpr void add_whole_reversed(const Ring& ring) noexcept {
        for (Integer i = ring.size(); i > 0; --i) add(ring.position(i - 1));
        close_piece();
    }

  private:
    Integer* entries_;
    Integer capacity_;
    Integer end_ = 0, open_ = 0;  // place of the closing 0; entries of the piece behind it
    bool full_;
};

}  // namespace quorvel::geometry::clipping
