// Lines and segments: where two meet in plan, what lies on one, and on which side of it.
//
// The tolerances are lengths, not ratios: results depend on the unit of the coordinates.
#pragma once

#include "base/numeric.h"
#include "geometry/vector.h"

namespace quorvel::geometry {

// Where the lines AB and CD meet; far away when they are parallel.
template <class R>
PlanVector<R> meeting_point(PlanVector<R> a, PlanVector<R> b, PlanVector<R> c,
                            PlanVector<R> d) noexcept {
    const PlanVector<R> along = b - a;
    const PlanVector<R> normal{d.y - c.y, c.x - d.x};
    const R divergence = dot_product(along, normal);
    return select(absolute(divergence) < 1.0e-10f, far_point_in_plan<R>(),
                  a + dot_product(c - a, normal) / divergence * along);
}

template <class R>
MaskOf<R> in_box_of_segment(PlanVector<R> x, PlanVector<R> a, PlanVector<R> b) noexcept {
    const auto between = [](R v, R end, R other_end) {
        constexpr Real slack = -1.0e-4f;
        return both(greater(end, other_end) - v > slack,
                    [&] { return v - lesser(end, other_end) > slack; });
    };
    return both(between(x.x, a.x, b.x), [&] { return between(x.y, a.y, b.y); });
}

// Where the segments AB and CD cross or touch, else far away.
template <class R>
PlanVector<R> crossing_point(PlanVector<R> a, PlanVector<R> b, PlanVector<R> c,
                             PlanVector<R> d) noexcept {
    const PlanVector<R> x = meeting_point(a, b, c, d);
    const MaskOf<R> cross =
        both(in_box_of_segment(x, a, b), [&] { return in_box_of_segment(x, c, d); });
    return select(cross, x, far_point_in_plan<R>());
}

inline constexpr Real coincidence = 1.0e-5f;

template <class R>
MaskOf<R> coincide(R x1, R y1, R x2, R y2) noexcept {
    return both(absolute(x1 - x2) < coincidence, [&] { return absolute(y1 - y2) < coincidence; });
}
template <class R>
MaskOf<R> coincide(PlanVector<R> a, PlanVector<R> b) noexcept {
    return coincide(a.x, a.y, b.x, b.y);
}

// Side of the directed line AB on which C lies: 1 right, -1 left, 0 on the line.
template <class R>
IntegerOf<R> side_of_line(PlanVector<R> a, PlanVector<R> b, PlanVector<R> c) noexcept {
    using I = IntegerOf<R>;
    const auto [sin, cos] = math::sincos(math::atan2(b.x - a.x, b.y - a.y));
    const R to_right = (c.x - a.x) * cos - (c.y - a.y) * sin;
    return select(to_right >= coincidence, I(1), select(to_right <= -coincidence, I(-1), I(0)));
}

// Whether P, known to lie on the line AB, lies between the two. Only the test of x asks for it; y
// and z merely object to points beyond both ends.
template <class R>
MaskOf<R> spans(SpaceVector<R> a, SpaceVector<R> b, SpaceVector<R> p) noexcept {
    const auto beyond = [](R v, R end, R other_end) {
        return ((v > end) & (v > other_end)) | ((v < end) & (v < other_end));
    };
    const MaskOf<R> x_between = ((a.x <= p.x) & (p.x <= b.x)) | ((b.x <= p.x) & (p.x <= a.x));
    return both(both(x_between, [&] { return !beyond(p.y, a.y, b.y); }),
                [&] { return !beyond(p.z, a.z, b.z); });
}

template <class R>
R in_span(SpaceVector<R> a, SpaceVector<R> b, SpaceVector<R> p) noexcept {
    return select(spans(a, b, p), R(1.0f), R(0.0f));
}

// Whether P lies on B's side of A and nearer to A than B is. Not a number does not speak against.
template <class R>
R ahead_and_nearer(SpaceVector<R> a, SpaceVector<R> b, SpaceVector<R> p) noexcept {
    const SpaceVector<R> u = b - a, w = p - a;
    const MaskOf<R> out = (dot_product(w, u) < 0.0f) | (squared_length(u) <= squared_length(w));
    return select(out, R(0.0f), R(1.0f));
}

}  // namespace quorvel::geometry
