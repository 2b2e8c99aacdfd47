#include "clipping/buildings.h"

#include <cmath>
#include <numbers>

namespace quorvel::test {
namespace {

constexpr double full_turn = 2.0 * std::numbers::pi;

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
    const double width = place(1, 4, random), depth = place(1, 3, random);
    return rectangle(x, y, x + width, y + depth);
}

RingPair storey_and_room(Random& random) { return {storey(random), room(0, 4, 3, random)}; }

// Or twice the same.
RingPair neighbours(Random& random) {
    RingPair pair{storey(random), storey(random)};
    const double x = random.below(7) - 3, y = random.below(5) - 2;
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

}  // namespace

const std::vector<PairClass>& building_classes() {
    static const std::vector<PairClass> classes = {
        {"StoreyAndRoom", storey_and_room},
        {"Neighbours", neighbours},
        {"WallAndWindow", wall_and_window},
        {"StoreyAndShadow", storey_and_shadow},
    };
    return classes;
}

RingPair draw_on_site(const PairClass& kind, double offset, Random& random) {
    RingPair pair = kind.draw(random);
    const double turn = random.between(0, full_turn), direction = random.between(0, full_turn);
    const double step_x = random.between(0.5, 3), step_y = random.between(0.5, 3);
    for (PlanRing* const ring : {&pair.a, &pair.b})
        for (PlanPoint& p : *ring) {
            const double x = step_x * p.x, y = step_y * p.y;
            p = {offset * std::cos(direction) + std::cos(turn) * x - std::sin(turn) * y,
                 offset * std::sin(direction) + std::sin(turn) * x + std::cos(turn) * y};
        }
    turn_about(pair, random);
    return pair;
}

}  // namespace quorvel::test
