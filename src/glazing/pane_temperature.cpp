#include "glazing/pane_temperature.h"

namespace quorvel::glazing {
namespace {

struct Row {
    Real room, outdoor;
    PaneValues absorbed;  // K per W/m²
};

// Rows of glazings with one, two, three and five panes, one after the other. The single pane stands
// between surface resistances of 0.12 m²K/W towards the room and 0.06 m²K/W outdoors.
constexpr Row rows[] = {
    {0.33f, 0.67f, {0.04f}},
    {0.62f, 0.38f, {0.07f, 0.02f}},
    {0.19f, 0.81f, {0.02f, 0.05f}},
    {0.73f, 0.27f, {0.09f, 0.05f, 0.02f}},
    {0.43f, 0.57f, {0.05f, 0.11f, 0.03f}},
    {0.13f, 0.87f, {0.02f, 0.03f, 0.05f}},
    {0.88f, 0.12f, {0.1f, 0.08f, 0.06f, 0.03f, 0.01f}},
    {0.67f, 0.33f, {0.08f, 0.2f, 0.14f, 0.08f, 0.02f}},
    {0.47f, 0.53f, {0.06f, 0.14f, 0.22f, 0.13f, 0.03f}},
    {0.27f, 0.73f, {0.03f, 0.08f, 0.13f, 0.18f, 0.04f}},
    {0.06f, 0.94f, {0.01f, 0.02f, 0.03f, 0.04f, 0.06f}},
};

// By number of calculated panes.
constexpr int first_row[] = {0, 0, 1, 3, 0, 6};

}  // namespace

PaneValues pane_temperatures(Real t_room, Real t_out, Integer n,
                             const PaneValues& absorbed) noexcept {
    const int panes = calculated_panes(n);
    PaneValues temperatures{};
    for (int k = 0; k < panes; ++k) {
        const Row& row = rows[first_row[panes] + k];
        Real t = row.room * t_room + row.outdoor * t_out;
        for (int j = 0; j < panes; ++j) t += row.absorbed[j] * absorbed[j];
        temperatures[k] = t;
    }
    return temperatures;
}

}  // namespace quorvel::glazing
