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
          convex_(measures.turning.once_round(clear_turn()) && finite_) {}

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

    // Whether all of the boundary is seen from the middle of the box, clearly so.
    bool star_shaped() const noexcept {
        const Point from = centred_box_.middle;
        Turning turning((*this)[size() - 1] - from);
        for (Integer i = 0; i < size(); ++i) turning.add((*this)[i] - from);
        return turning.once_round(clear_turn()) && finite_;
    }

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
    // The cross product of two directions that rounding cannot make.
    DoubleReal clear_turn() const noexcept { return 1.0e-6 * tolerance_ * tolerance_; }

    static Orientation orientation_of(DoubleReal area, DoubleReal tolerance) noexcept {
        if (math::sqrt(std::fabs(area)) < 5.0 * tolerance) return Orientation::none;
        return area > 0.0 ? Orientation::clockwise : Orientation::anticlockwise;
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
