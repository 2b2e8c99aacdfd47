// HOHOLEDP as the tests call it: on rings of points, with a watch on the caller's memory.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace quorvel::test {

struct PlanPoint {
    double x, y;

    friend bool operator==(const PlanPoint&, const PlanPoint&) = default;
};
using PlanRing = std::vector<PlanPoint>;

// Capacities are those of the call; the arrays are as long, and 0 for a negative one.
struct Capacities {
    int nmax = 400, kmax = 100, ldif = 400, lovl = 400;
};

struct Piece {
    std::vector<int> positions;  // in the pool, from 1, negative where a bridge starts
    PlanRing vertices;
    double area = 0.0;  // positive when clockwise
};

struct Clipped {
    int ierr = -1;
    PlanRing pool;
    std::vector<Piece> difference, overlap;
    std::vector<int> dif, ovl;  // the lists as they are, as long as their capacities
    std::string fault;          // in memory, pool or lists; empty if there is none
    bool whole = true;          // no piece has fewer than three vertices, or one of them twice
};

// The pool holds the vertices of A, then those of B.
Clipped clip(const PlanRing& a, const PlanRing& b, const Capacities& capacities = {});

// Positive when clockwise.
double signed_area(const PlanRing& ring);
double total_area(const std::vector<Piece>& pieces);

double perimeter(const PlanRing& ring);
double diagonal(const std::vector<PlanRing>& rings);  // of the box round all of them

// Clockwise rings.
PlanRing rectangle(double x0, double y0, double x1, double y1);
PlanRing regular(int n, double radius, double x = 0.0, double start = 0.3);
PlanRing comb(int teeth);  // from y = 0 to 1, of 1 m with gaps of 1 m, on a bar below

}  // namespace quorvel::test
