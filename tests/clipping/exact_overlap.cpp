#include "clipping/exact_overlap.h"

#include <algorithm>
#include <boost/multiprecision/cpp_int.hpp>

namespace quorvel::test {
namespace {

using Rational = boost::multiprecision::cpp_rational;

// An edge from left to right, with the way it had as a sign.
template <class Number>
struct Slope {
    Number x0, y0, x1, y1;
    int sign;

    Number at(const Number& x) const { return y0 + (y1 - y0) * (x - x0) / (x1 - x0); }
};

// Relative to a point nearby, so that rounding does no harm.
template <class Number>
std::vector<Slope<Number>> slopes(const PlanRing& ring, PlanPoint origin) {
    std::vector<Slope<Number>> result;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        const PlanPoint start = ring[i], end = ring[(i + 1) % ring.size()];
        if (start.x == end.x) continue;
        const bool forward = start.x < end.x;
        const auto [p, q] = forward ? std::pair(start, end) : std::pair(end, start);
        result.push_back({Number(p.x) - Number(origin.x), Number(p.y) - Number(origin.y),
                          Number(q.x) - Number(origin.x), Number(q.y) - Number(origin.y),
                          forward ? 1 : -1});
    }
    return result;
}

// Twice the integral of the lower one of two edges.
template <class Number>
Number under_both(const Slope<Number>& e, const Slope<Number>& f) {
    const Number low = std::max(e.x0, f.x0), high = std::min(e.x1, f.x1);
    if (!(low < high)) return 0;
    const Number e0 = e.at(low), e1 = e.at(high), f0 = f.at(low), f1 = f.at(high);
    const Number ends = std::min(e0, f0) + std::min(e1, f1), start_gap = e0 - f0, end_gap = e1 - f1;
    if (start_gap * end_gap >= 0) return (high - low) * ends;
    const Number middle = low + (high - low) * start_gap / (start_gap - end_gap);
    return (middle - low) * (std::min(e0, f0) + e.at(middle)) +
           (high - middle) * (e.at(middle) + std::min(e1, f1));
}

// A polygon is the sum of the areas under its edges, with their signs; so an overlap is the sum of
// the areas under any two.
template <class Number>
double overlap(const PlanRing& a, const PlanRing& b) {
    Number sum = 0;
    const auto slopes_b = slopes<Number>(b, a[0]);
    for (const auto& e : slopes<Number>(a, a[0]))
        for (const auto& f : slopes_b) sum += e.sign * f.sign * under_both<Number>(e, f);
    return std::fabs(static_cast<double>(sum)) / 2.0;
}

}  // namespace

double exact_overlap(const PlanRing& a, const PlanRing& b) { return overlap<Rational>(a, b); }
double rounded_overlap(const PlanRing& a, const PlanRing& b) { return overlap<double>(a, b); }

int exact_side(PlanPoint a, PlanPoint b, PlanPoint c) {
    const Rational x = a.x, y = a.y;
    return Rational((b.x - x) * (c.y - y) - (b.y - y) * (c.x - x)).sign();
}

}  // namespace quorvel::test
