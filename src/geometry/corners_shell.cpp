#include "entry/entry.h"
#include "geometry/corners.h"

#include "geometry/points.h"

using namespace quorvel;
using geometry::Quadrilateral;
using geometry::Triangle;

namespace {

template <class Corners>
Corners corners(const DoubleReal* at) noexcept {
    Corners loaded;
    for (auto& corner : loaded) {
        corner = geometry::space_vector(at);
        at += 3;
    }
    return loaded;
}

void store(const Quadrilateral& q, DoubleReal* at) noexcept {
    for (const auto& corner : q) {
        geometry::store(corner, at);
        at += 3;
    }
}

}  // namespace

Integer GEPLEL(const DoubleReal* t1, const DoubleReal* t2) {
    return entry::logical(geometry::parallel_planes(corners<Triangle>(t1), corners<Triangle>(t2)));
}

Integer GEPSID(const DoubleReal* t1, const DoubleReal* t2, Integer* i, Integer* j) {
    const auto sides = geometry::parallel_sides(corners<Triangle>(t1), corners<Triangle>(t2));
    *i = sides.first;
    *j = sides.second;
    return entry::logical(sides.first != geometry::no_sides.first);
}

Integer GERECT(const DoubleReal* q) {
    return entry::logical(geometry::rectangular(corners<Quadrilateral>(q)));
}

void GETILT(const DoubleReal* t, DoubleReal* azimuth, DoubleReal* tilt) {
    const auto facing = geometry::facing(corners<Triangle>(t), *azimuth);
    *azimuth = facing.azimuth;
    *tilt = facing.tilt;
}

void GETRNS(DoubleReal* p, const DoubleReal* u, const DoubleReal* v, const DoubleReal* w) {
    using geometry::space_vector;
    const geometry::Axes axes{space_vector(u), space_vector(v), space_vector(w)};
    auto points = corners<Quadrilateral>(p);
    for (auto& point : points) point = geometry::to_local(axes, point);
    store(points, p);
}

void GELCAL(const DoubleReal* q, const DoubleReal* q2, DoubleReal* ql, DoubleReal* q2l) {
    const auto first = corners<Quadrilateral>(q), second = corners<Quadrilateral>(q2);
    const auto axes = geometry::axes_of(first);
    store(geometry::to_local(axes, first, first[0]), ql);
    store(geometry::to_local(axes, second, first[0]), q2l);
}
