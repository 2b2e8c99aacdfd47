// A ring prepared for clipping.
#pragma once

#include "geometry/clipping/survey.h"

namespace quorvel::geometry::clipping {

// The way a ring runs: clockwise has the interior on the right.
enum class Sense { none, clockwise, anticlockwise };

class Outline : public Ring {
  public:
    Outline(const Ring& ring, const Measures& measures, DoubleReal tolerance) noexcept
        : Ring(ring),
          box_(measures.box),
          finite_(measures.finite()),
          tolerance_(tolerance),
          sense_(sense_of(measures.area, tolerance)),
          convex_(is_convex(measures, tolerance)) {}

    // Coordinates that are not numbers lie in no box.
    const Box& box() const noexcept { return box_; }
    bool finite() const noexcept { return finite_; }
    DoubleReal tolerance() const noexcept { return tolerance_; }

    // A ring of less area than a square of five tolerances has none.
    Sense sense() const noexcept { return sense_; }

    // +1 when the outside is on the left of the edges, else -1.
    DoubleReal outside() const noexcept { return sense_ == Sense::clockwise ? 1.0 : -1.0; }

    // Clearly so: every vertex is off the lines of all edges but those that end there.
    bool convex() const noexcept { return convex_; }

    // No point has a clear view before this.
    void survey() noexcept { survey_.make(*this, tolerance_); }

    // Of a point, or of all points of a box.
    template <class From>
    View view(const From& from) const noexcept {
        return survey_.view(from);
    }

    // Whether that is a view from inside; for convex outlines and clear views.
    bool encloses(const View& view) const noexcept {
        return view.right == (sense_ == Sense::clockwise ? survey_.all_edges() : 0);
    }

  private:
    static Sense sense_of(DoubleReal area, DoubleReal tolerance) noexcept {
        if (math::sqrt(std::fabs(area)) < 5.0 * tolerance) return Sense::none;
        return area > 0.0 ? Sense::clockwise : Sense::anticlockwise;
    }

    // Turns the same way at every vertex, and once round in all.
    static bool is_convex(const Measures& measures, DoubleReal tolerance) noexcept {
        const DoubleReal clear = 1.0e-6 * tolerance * tolerance;
        const bool one_way = measures.least_turn > clear || measures.greatest_turn < -clear;
        return one_way && measures.half_turns == 2 && measures.finite();
    }

    Box box_;
    bool finite_;
    DoubleReal tolerance_;
    Sense sense_;
    bool convex_;
    Survey survey_;
};

}  // namespace quorvel::geometry::clipping
