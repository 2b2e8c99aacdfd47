#include "geometry/clipping/clipping.h"
#include "entry/entry.h"
#include "entry/geometry/clipping.h"
#include "geometry/clipping/overlap.h"

using namespace quorvel;
using namespace quorvel::geometry;

void HOHOLEDP(DoubleReal* x, DoubleReal* y, const Integer* na, const Integer* ia, const Integer* nb,
              const Integer* ib, const Integer* nmax, const Integer* kmax, const Integer* ldif,
              const Integer* lovl, Integer* npool, Integer* dif, Integer* ovl, Integer* ierr) {
    clipping::Pool pool(x, y, *nmax, *npool);
    clipping::PieceList difference(dif, *ldif), overlap(ovl, *lovl);
    const clipping::Ring a(pool, ia, *na), b(pool, ib, *nb);
    *ierr = static_cast<Integer>(clipping::clip(a, b, *kmax, pool, difference, overlap));
    *npool = pool.used();
}

void GEOVER(const Real* xa, const Real* ya, const Integer* na, const Real* xb, const Real* yb,
            const Integer* nb, Real* xout, Real* yout, Integer* nout, Real* area) {
    clipping::overlap(PlanPoints(xa, ya, *na), PlanPoints(xb, yb, *nb), {xout, yout, nout, area});
}

void GEHOLE(const Real* xa, const Real* ya, const Integer* na, const Real* xb, const Real* yb,
            const Integer* nb, Real* xout, Real* yout, Integer* nout, Real* area) {
    clipping::overlap(PlanPoints(xa, ya, *na), PlanPoints(xb, yb, *nb), {xout, yout, nout, area});
}
