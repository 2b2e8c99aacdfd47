#include "geometry/clipping/overlap.h"

#include <array>
#include <cmath>

#include "geometry/clipping/clipping.h"
#include "geometry/polygon_area.h"

namespace quorvel::geometry::clipping {
namespace {

// The limits within which the overlap is sought.
constexpr Integer most_points = 50, most_crossings = 10, list_capacity = 50;

constexpr auto all_positions = [] {
    std::array<Integer, most_points> positions{};
    for (std::size_t i = 0; i < positions.size(); ++i) positions[i] = static_cast<Integer>(i) + 1;
    return positions;
}();

void clear(const OverlapPieces& pieces) noexcept {
    constexpr static std::array<Real, OverlapPieces::column> cleared{};
    for (Integer k = 0; k < OverlapPieces::most; ++k) {
        std::copy(cleared.begin(), cleared.end(), pieces.x + k * OverlapPieces::column);
        std::copy(cleared.begin(), cleared.end(), pieces.y + k * OverlapPieces::column);
    }
    std::fill_n(pieces.sizes, pieces.most, 0);
    *pieces.area = 0.0f;
}

DoubleReal cleaned(Real coordinate) noexcept {
    return std::fabs(coordinate) < 0.0001f ? 0.0 : static_cast<DoubleReal>(coordinate);
}

// Places of the polygon's vertices in the pool begin after those already used.
void load(const PlanPoints& polygon, Integer used, DoubleReal* x, DoubleReal* y) noexcept {
    for (Integer i = 0; i < polygon.size(); ++i) {
        x[used + i] = cleaned(polygon[i].x);
        y[used + i] = cleaned(polygon[i].y);
    }
}

bool fit(const Integer* list) noexcept {
    Integer pieces = 0;
    for (; *list > 0; list += *list + 1)
        if (++pieces > OverlapPieces::most || *list > OverlapPieces::most_vertices) return false;
    return true;
}

void store(const Integer* list, const Pool& pool, const OverlapPieces& pieces) noexcept {
    Real *x = pieces.x, *y = pieces.y;
    Integer* size = pieces.sizes;
    for (; *list > 0; list += *list + 1) {
        for (Integer i = 0; i < *list; ++i) {
            x[i] = static_cast<Real>(pool[list[i + 1]].x);
            y[i] = static_cast<Real>(pool[list[i + 1]].y);
        }
        *pieces.area += plan_area(PlanPoints(x, y, *list));
        *size++ = *list;
        x += OverlapPieces::column;
        y += OverlapPieces::column;
    }
}

}  // namespace

void overlap(const PlanPoints& polygon_1, const PlanPoints& polygon_2,
             const OverlapPieces& pieces) noexcept {
    clear(pieces);
    const Integer size_b = polygon_1.size(), size_a = polygon_2.size();
    if (size_a > most_points || size_b > most_points - size_a) return;
    DoubleReal x[most_points], y[most_points];
    load(polygon_2, 0, x, y);
    load(polygon_1, size_a, x, y);
    Pool pool(x, y, most_points, size_a + size_b);
    const Ring a(pool, all_positions.data(), size_a);
    const Ring b(pool, all_positions.data() + size_a, size_b);
    Integer difference_entries[list_capacity], overlap_entries[list_capacity];
    PieceList difference(difference_entries, list_capacity);
    PieceList overlap(overlap_entries, list_capacity);
    const Status status = clip(a, b, most_crossings, pool, difference, overlap, Wanted::overlap);
    if (status == Status::done && fit(overlap_entries)) store(overlap_entries, pool, pieces);
}

}  // namespace quorvel::geometry::clipping
