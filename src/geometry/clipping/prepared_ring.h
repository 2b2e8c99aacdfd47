// A ring prepared for clipping.
#pragma once

#include "geometry/clipping/half_plane.h"
#include "geometry/clipping/half_planes.h"

namespace quorvel::geometry::clipping {

class PreparedRing : public Ring {
  public:
    PreparedRing(const Ring& ring, const Measures& measures, DoubleReal tolerance) noexcept
        : Ring(ring),
          box_(measures.box),
          centred_box_(measures.box),
          finite_(measures.finite()),
          tolerance_(tolerance),
          orientation_(orientation_of(measures.area, tolerance)),
          convex_(is_convex(measures, tolerance)) {}

    // Coordinates that are not numbers lie in no box.
    const Box& box() const noexcept { return box_; }
    const CentredBox& centred_box() const noexcept { return centred_box_; }
    bool finite() const noexcept { return finite_; }
    DoubleReal tolerance() const noexcept { return tolerance_; }

    // A ring of less area than a square of five tolerances has none.
    Orientation orientation() const noexcept { return orientation_; }
    HalfPlane half_plane(Integer i) const noexcept { return {edge(i), orientation_}; }

    // Clearly so: every vertex is off the lines of all edges but those that end there.
    bool convex() const noexcept { return convex_; }

    // No point is clear of the ring before this.
    void prepare_half_planes() noexcept { half_planes_.prepare(*this, tolerance_); }

    // Of a point, or of all points of a box.
    template <class Where>
    Sides sides(const Where& where) const noexcept {
        return half_planes_.sides(where);
    }

    // Whether the inside is there; for convex rings and what is clear of them.
    bool encloses(const Sides& sides) const noexcept {
        return sides.right ==
               (orientation_ == Orientation::clockwise ? half_planes_.all_edges() : 0);
    }

  private:
    static Orientation orientation_of(DoubleReal area, DoubleReal tolerance) noexcept {
        if (math::sqrt(std::fabs(area)) < 5.0 * tolerance) return Orientation::none;
        return area > 0.0 ? Orientation::clockwise : Orientation::anticlockwise;
    }

    // Turns the same way at every vertex, and once round in all.
    static bool is_convex(const Measures& measures, DoubleReal tolerance) noexcept {
        const DoubleReal clear = 1.0e-6 * tolerance * tolerance;
        const bool one_way = measures.least_turn > clear || measures.greatest_turn < -clear;
        return one_way && measures.half_turns == 2 && measures.finite();
    }

    Box box_;
    CentredBox centred_box_;
    bool finite_;
    DoubleReal tolerance_;
    Orientation orientation_;
    bool convex_;
    HalfPlanes half_planes_;
};

}  // namespace quorvel::geometry::clipping
