#include "geometry/clipping/clipping.h"
#include "entry/entry.h"
#include "entry/geometry/clipping.h"
#include "geometry/clipping/overlap.h"

using namespace quorvel;
using namespace quorvel::geometry;

void HOHOLEDP(DoubleReal* x, DoubleReal* y, const Integer* vertices_a, const Integer* positions_a,
              const Integer* vertices_b, const Integer* positions_b, const Integer* point_capacity,
              const Integer* crossing_capacity, const Integer* difference_capacity,
              const Integer* overlap_capacity, Integer* used_points, Integer* difference_pieces,
              Integer* overlap_pieces, Integer* status) {
    clipping::Pool pool(x, y, *point_capacity, *used_points);
    clipping::PieceList difference(difference_pieces, *difference_capacity),
        overlap(overlap_pieces, *overlap_capacity);
    const clipping::Ring a(pool, positions_a, *vertices_a), b(pool, positions_b, *vertices_b);
    *status =
        static_cast<Integer>(clipping::clip(a, b, *crossing_capacity, pool, difference, overlap));
    *used_points = pool.used();
}

void GEOVER(const Real* x_1, const Real* y_1, const Integer* vertices_1, const Real* x_2,
            const Real* y_2, const Integer* vertices_2, Real* piece_x, Real* piece_y,
            Integer* piece_vertices, Real* area) {
    clipping::overlap(PlanPoints(x_1, y_1, *vertices_1), PlanPoints(x_2, y_2, *vertices_2),
                      {piece_x, piece_y, piece_vertices, area});
}

void GEHOLE(const Real* x_1, const Real* y_1, const Integer* vertices_1, const Real* x_2,
            const Real* y_2, const Integer* vertices_2, Real* piece_x, Real* piece_y,
            Integer* piece_vertices, Real* area) {
    clipping::overlap(PlanPoints(x_1, y_1, *vertices_1), PlanPoints(x_2, y_2, *vertices_2),
                      {piece_x, piece_y, piece_vertices, area});
}
