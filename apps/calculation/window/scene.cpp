#include "calculation/window/scene.h"

#include <cmath>

#include "calculation/angle.h"
#include "quorvel/geometry.h"

namespace quorvel::window {

using host::radians;

Scene::Scene(const Window& window) {
    Matrix inverse;
    const auto set = [&](double tilt, Matrix& rotation) {
        lib::GERSET(radians(window.orientation), radians(tilt), rotation, inverse);
    };
    set(window.tilt, rotation_);
    set(90, upright_);
    const Shades& shades = window.shades;
    if (shades.reveal > 0) add_reveal(window);
    if (shades.left_fin) add_fin(*shades.left_fin, window, -shades.left_fin->offset);
    if (shades.right_fin)
        add_fin(*shades.right_fin, window, window.width + shades.right_fin->offset);
    if (shades.overhang) add_overhang(*shades.overhang, window);
    for (const Obstruction& box : shades.obstructions) add_box(box, window);
}

Vector Scene::towards_sun(const host::Sun& sun) const {
    Vector global, result;
    lib::GESUNV(sun.altitude, sun.azimuth, global);
    lib::GERAX2(global, rotation_, result);
    return result;
}

float Scene::rise(const Vector& direction) const {
    Vector global;
    lib::GERAXI(direction, rotation_, global);
    return global[2];
}

// Of a point to the right of the window's lower left corner, above it and in front of it.
Vector Scene::from_upright(const Vector& point) const {
    Vector global, result;
    lib::GERAXI(point, upright_, global);
    lib::GERAX2(global, rotation_, result);
    return result;
}

void Scene::add_fin(const Fin& fin, const Window& window, double x) {
    const double low = -fin.below, high = window.height + fin.above;
    add_plate({vector(x, low, 0), vector(x, high, 0), vector(x, high, fin.depth),
               vector(x, low, fin.depth)});
}

void Scene::add_overhang(const Overhang& overhang, const Window& window) {
    const double left = -overhang.left, right = window.width + overhang.right;
    const double slope = radians(overhang.slope), root = window.height + overhang.offset;
    const double edge = root - overhang.depth * std::sin(slope);
    const double out = overhang.depth * std::cos(slope);
    add_plate({vector(left, root, 0), vector(right, root, 0), vector(right, edge, out),
               vector(left, edge, out)});
}

// The four sides of a hole in the wall.
void Scene::add_reveal(const Window& window) {
    const double depth = window.shades.reveal;
    add_fin({depth, 0, 0, 0}, window, 0);
    add_fin({depth, 0, 0, 0}, window, window.width);
    add_overhang({depth, 0, 0, 0, 0}, window);
    add_plate({vector(0, 0, 0), vector(window.width, 0, 0), vector(window.width, 0, depth),
               vector(0, 0, depth)});
}

// Its underside never faces a sun above the horizon.
void Scene::add_box(const Obstruction& box, const Window& window) {
    const double turn = radians(box.rotation), low = box.base - window.sill;
    const double high = box.top - window.sill;
    const auto corner = [&](double along, double back, double up) {
        const double right = along * std::cos(turn) - back * std::sin(turn);
        const double out = along * std::sin(turn) + back * std::cos(turn);
        return from_upright(vector(window.width / 2 + box.offset + right, up, box.distance + out));
    };
    const double end = box.width / 2;
    if (box.depth == 0)
        return add_plate({corner(end, 0, low), corner(-end, 0, low), corner(-end, 0, high),
                          corner(end, 0, high)});
    struct Foot {
        double along, back;
    };
    const Foot feet[] = {{end, 0}, {-end, 0}, {-end, box.depth}, {end, box.depth}};
    Face roof{{}, false};
    for (std::size_t i = 0; i < 4; ++i) {
        const Foot a = feet[i], b = feet[(i + 1) % 4];
        faces_.push_back({{corner(a.along, a.back, low), corner(b.along, b.back, low),
                           corner(b.along, b.back, high), corner(a.along, a.back, high)},
                          false});
        roof.corners.push_back(corner(a.along, a.back, high));
    }
    faces_.push_back(roof);
}

}  // namespace quorvel::window
