#include "entry/entry.h"
#include "fabric/packing.h"

using namespace quorvel;

namespace {

// Any other mode unpacks.
constexpr Integer pack = 1;

}  // namespace

void TPCOLW(const Integer* mode, Real* packed, Real* p1, Real* p2) {
    if (*mode == pack) {
        *packed = fabric::packed({*p1, *p2, 0.0f});
        return;
    }
    const fabric::Fractions p = fabric::unpacked(*packed);
    *p1 = p.first;
    *p2 = p.second;
}

void TPCOLT(const Integer* mode, Real* packed, Real* p1, Real* p2, Real* p3) {
    if (*mode == pack) {
        *packed = fabric::packed({*p1, *p2, *p3});
        return;
    }
    const fabric::Fractions p = fabric::unpacked(*packed);
    *p1 = p.first;
    *p2 = p.second;
    *p3 = p.third;
}

void TPCOLW2(const Integer* mode, Real* packed, Real* p3, Real* p1, Real* p2) {
    TPCOLT(mode, packed, p1, p2, p3);
}

void TPCOSW(const Integer* mode, Real* packed, Real* a, Real* r1, Real* r2) {
    if (*mode == pack) {
        *packed = fabric::packed_pane({*a, *r1, *r2});
        return;
    }
    const fabric::PaneFaces pane = fabric::unpacked_pane(*packed);
    *a = pane.absorptance;
    *r1 = pane.first_reflectance;
    *r2 = pane.second_reflectance;
}
