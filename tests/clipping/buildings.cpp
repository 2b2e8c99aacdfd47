#include "clipping/buildings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace quorvel::test {
namespace {

// Storeys of 4 by 3 steps.
const PlanRing storeys[] = {
    {{0, 0}, {0, 3}, {4, 3}, {4, 0}},
    {{0, 0}, {0, 1}, {0, 3}, {4, 3}, {4, 0}},  // a vertex within a straight side
    {{0, 0}, {0, 3}, {1, 3}, {1, 1}, {4, 1}, {4, 0}},
    {{0, 0}, {0, 3}, {1, 3}, {1, 1}, {3, 1}, {3, 3}, {4, 3}, {4, 0}},
    {{0, 0}, {0, 1}, {1, 1}, {1, 3}, {3, 3}, {3, 1}, {4, 1}, {4, 0}},
};

PlanRing storey(Random& random) { return storeys[random.below(std::size(storeys))]; }

// Mostly on the lines of the walls.
double place(int low, int high, Random& random) {
    return random.below(4) ? low + random.below(high - low + 1) : random.between(low, high);
}

PlanRing room(int low, int high_x, int high_y, Random& random) {
    const double x = place(low, high_x - 1, random), y = place(low, high_y - 1, random);
    return rectangle(x, y, x + place(1, 4, random), y + place(1, 3, random));
}

RingPair storey_and_room(Random& random) { return {storey(random), room(0, 4, 3, random)}; }

RingPair neighbours(Random& random) {
    RingPair pair{storey(random), storey(random)};
    const double x = random.below(9) - 4, y = random.below(7) - 3;
    const bool mirrored = random.below(2) == 0;
    for (PlanPoint& p : pair.b) p = {x + (mirrored ? 4 - p.x : p.x), y + p.y};
    return pair;
}

RingPair wall_and_window(Random& random) {
    const double x = random.between(0, 3), y = place(0, 2, random);
    return {rectangle(0, 0, 4, 3), rectangle(x, y, random.between(x + 0.2, 4), y + 0.9)};
}

RingPair storey_and_shadow(Random& random) {
    PlanRing shadow = room(-2, 4, 3, random);
    const double shear = random.between(-2, 2), level = shadow[0].y;
    for (PlanPoint& p : shadow) p.x += shear * (p.y - level);
    return {storey(random), shadow};
}

RingPair same_storey(Random& random) {
    const PlanRing ring = storey(random);
    return {ring, ring};
}

// Steps are from 0.5 m to 3 m.
struct Site {
    double step_x, step_y, cos, sin, x, y;

    Site(double offset, Random& random)
        : step_x(random.between(0.5, 3)), step_y(random.between(0.5, 3)) {
        const double turn = random.between(0, 2 * std::numbers::pi);
        const double direction = random.between(0, 2 * std::numbers::pi);
        cos = std::cos(turn), sin = std::sin(turn);
        x = offset * std::cos(direction), y = offset * std::sin(direction);
    }

    void place(PlanRing& ring, Random& random) const {
        for (PlanPoint& p : ring) {
            const double u = step_x * p.x, v = step_y * p.y;
            p = {x + cos * u - sin * v, y + sin * u + cos * v};
        }
        if (random.below(2)) std::ranges::reverse(ring);
        std::ranges::rotate(ring, ring.begin() + random.below(static_cast<int>(ring.size())));
    }
};

}  // namespace

const std::vector<BuildingKind>& building_kinds() {
    static const std::vector<BuildingKind> kinds = {
        {"StoreyAndRoom", storey_and_room}, {"Neighbours", neighbours},
        {"WallAndWindow", wall_and_window}, {"StoreyAndShadow", storey_and_shadow},
        {"SameStorey", same_storey},
    };
    return kinds;
}

RingPair draw_on_site(const BuildingKind& kind, double offset, Random& random) {
    RingPair pair = kind.draw(random);
    const Site site(offset, random);
    site.place(pair.a, random);
    site.place(pair.b, random);
    if (random.below(2)) std::swap(pair.a, pair.b);
    return pair;
}

}  // namespace quorvel::test
