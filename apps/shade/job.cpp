#include "shade/job.h"

#include "calculation/calendar.h"
#include "reading/input.h"

namespace quorvel::shade {
namespace {

using host::InputTable;
using host::Range;

constexpr Range length{0.05, 50, "m"};    // of a window
constexpr Range depth{0.01, 20, "m"};     // of what is fixed to the wall
constexpr Range beyond{0, 50, "m"};       // from an edge of the window
constexpr Range extent{0.01, 1000, "m"};  // of an obstruction
constexpr Range place{-1000, 1000, "m"};  // of an obstruction
constexpr Range level{0, 1000, "m above the ground"};

Site read_site(const InputTable& table) {
    table.expect({"name", "latitude"}, {"height"});
    Site site{};
    site.name = table.text("name");
    site.latitude = table.number("latitude", {-90, 90, "degrees north"});
    site.height = table.number("height", {-430, 4000, "m above sea level"}, 0);
    return site;
}

Date read_date(const InputTable& table) {
    table.expect({}, {"month", "day_of_year"});
    if (table.has("month") == table.has("day_of_year"))
        throw table.error("", "needs either month or day_of_year, and not both");
    if (table.has("month")) return {table.choice("month", host::month_names, 1), 0};
    return {0, table.integer("day_of_year", 1, 365)};
}

Window read_window(const InputTable& table) {
    table.expect({"name", "width", "height", "orientation"}, {"tilt", "sill"});
    Window window{};
    window.name = table.text("name");
    window.width = table.number("width", length);
    window.height = table.number("height", length);
    window.orientation = table.number("orientation", {0, 360, "degrees clockwise from north"});
    window.tilt = table.number("tilt", {0, 180, "degrees from the horizontal"}, 90);
    window.sill = table.number("sill", level, 0);
    return window;
}

Fin read_fin(const InputTable& table) {
    table.expect({"depth"}, {"offset", "above", "below"});
    return {table.number("depth", depth), table.number("offset", beyond, 0),
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

std::optional<Fin> read_fin(const InputTable& root, std::string_view key) {
    if (!root.has(key)) return std::nullopt;
    return read_fin(root.table(key));
}

}  // namespace

Job read_job(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    root.expect({"site", "day", "window"}, {"left_fin", "right_fin", "overhang", "obstruction"});
    Job job{};
    job.site = read_site(root.table("site"));
    job.date = read_date(root.table("day"));
    job.window = read_window(root.table("window"));
    job.left_fin = read_fin(root, "left_fin");
    job.right_fin = read_fin(root, "right_fin");
    if (root.has("overhang")) job.overhang = read_overhang(root.table("overhang"));
    if (root.has("obstruction"))
        for (const InputTable& table : root.tables("obstruction", 1, most_obstructions))
            job.obstructions.push_back(read_obstruction(table));
    return job;
}

}  // namespace quorvel::shade
