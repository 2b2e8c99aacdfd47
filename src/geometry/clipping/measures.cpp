#include "geometry/clipping/measures.h"

namespace quorvel::geometry::clipping {

Measures::Measures(const Ring& ring) noexcept
    : turning(ring[ring.size() - 1] - ring[ring.size() - 2]) {
    DoubleReal doubled_area = 0.0;
    Point start = ring[ring.size() - 1];
    for (Integer i = 0; i < ring.size(); ++i) {
        const Point end = ring[i], along = end - start;
        box.include(end);
        doubled_area += along.x * (end.y + start.y);
        turning.add(along);
        start = end;
    }
    area = 0.5 * doubled_area;
}

}  // namespace quorvel::geometry::clipping
