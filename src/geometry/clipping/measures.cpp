#include "geometry/clipping/measures.h"

#include <limits>

namespace quorvel::geometry::clipping {

Measures::Measures(const Ring& ring) noexcept
    : least_turn(std::numeric_limits<DoubleReal>::infinity()),
      greatest_turn(-least_turn),
      half_turns(0) {
    DoubleReal doubled_area = 0.0;
    Point start = ring[ring.size() - 1];
    Point last = start - ring[ring.size() - 2];
    for (Integer i = 0; i < ring.size(); ++i) {
        const Point end = ring[i], along = end - start;
        box.include(end);
        doubled_area += along.x * (end.y + start.y);
        const DoubleReal turn = cross(last, along);
        least_turn = std::min(least_turn, turn);
        greatest_turn = std::max(greatest_turn, turn);
        half_turns += (last.y > 0.0) != (along.y > 0.0);
        start = end;
        last = along;
    }
    area = 0.5 * doubled_area;
}

}  // namespace quorvel::geometry::clipping
