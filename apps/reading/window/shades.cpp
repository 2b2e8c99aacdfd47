#include "reading/window/shades.h"

#include <algorithm>

namespace quorvel::window {
namespace {

using host::InputTable;
using host::Range;

constexpr std::string_view keys[] = {"reveal", "left_fin", "right_fin", "overhang", "obstruction"};

constexpr Range depth{0.01, 20, "m"};     // of what is fixed to the wall
constexpr Range beyond{0, 50, "m"};       // from an edge of the window
constexpr Range extent{0.01, 1000, "m"};  // of an obstruction
constexpr Range place{-1000, 1000, "m"};  // of an obstruction
constexpr Range level{0, 1000, "m above the ground"};

std::optional<Fin> read_fin(const InputTable& place, std::string_view key) {
    if (!place.has(key)) return std::nullopt;
    const InputTable table = place.table(key);
    table.expect({"depth"}, {"offset", "above", "below"});
    return Fin{table.number("depth", depth), table.number("offset", beyond, 0),
               table.number("above", beyond, 0), table.number("below", beyond, 0)};
}

Overhang read_overhang(const InputTable& table) {
    table.expect({"depth"}, {"offset", "left", "right", "slope"});
    return {table.number("depth", depth), table.number("offset", beyond, 0),
            table.number("left", beyond, 0), table.number("right", beyond, 0),
            table.number("slope", {-80, 80, "degrees, falling outwards"}, 0)};
}

Obstruction read_obstruction(const InputTable& table) {
    table.expect({"name", "distance", "width", "top"}, {"offset", "depth", "base", "rotation"});
    Obstruction box{};
    box.name = table.text("name");
    box.distance = table.number("distance", place);
    box.offset = table.number("offset", place, 0);
    box.width = table.number("width", extent);
    box.depth = table.has("depth") ? table.number("depth", extent) : 0;
    box.base = table.number("base", level, 0);
    box.top = table.number("top", level);
    box.rotation = table.number("rotation", {-360, 360, "degrees clockwise from above"}, 0);
    if (!(box.top > box.base)) throw table.error("top", "must be above the base");
    return box;
}

}  // namespace

bool has_shades(const InputTable& table) {
    return std::ranges::any_of(keys, [&](std::string_view key) { return table.has(key); });
}

Shades read_shades(const InputTable& window, const InputTable& root) {
    const auto place_of = [&](std::string_view key) -> const InputTable& {
        if (!root.has(key)) return window;
        if (window.has(key)) throw root.error(key, "stands in the table of the window too");
        return root;
    };
    Shades shades;
    shades.reveal = place_of("reveal").number("reveal", {0, 5, "m"}, 0);
    shades.left_fin = read_fin(place_of("left_fin"), "left_fin");
    shades.right_fin = read_fin(place_of("right_fin"), "right_fin");
    if (const InputTable& table = place_of("overhang"); table.has("overhang"))
        shades.overhang = read_overhang(table.table("overhang"));
    if (const InputTable& table = place_of("obstruction"); table.has("obstruction"))
        for (const InputTable& box : table.tables("obstruction", 1, most_obstructions))
            shades.obstructions.push_back(read_obstruction(box));
    return shades;
}

}  // namespace quorvel::window
