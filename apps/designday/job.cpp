#include "designday/job.h"

#include <cmath>
#include <string_view>

#include "calculation/calendar.h"
#include "designday/climate.h"
#include "reading/input.h"

namespace quorvel::designday {
namespace {

using host::InputTable;

constexpr std::string_view skies[] = {"clear", "bright"};
constexpr std::string_view sky_models[] = {"design", "perez", "muneer", "muneer-north",
                                           "muneer-south"};
constexpr std::string_view blinds[] = {"slatted", "roller"};
constexpr std::string_view sides[] = {"inside", "outside"};

Site read_site(const InputTable& table) {
    table.expect({"name", "latitude", "longitude", "height", "class"},
                 {"sky", "sky_model", "utc_offset"});
    Site site{};
    site.name = table.text("name");
    site.latitude = table.number("latitude", {-90, 90, "degrees north"});
    site.longitude = table.number("longitude", {-180, 180, "degrees east"});
    site.height = table.number("height", {-430, 4000, "m above sea level"});
    site.site_class = table.integer("class", 1, 6);
    if (table.has("sky")) site.sky = table.choice("sky", skies, 0);
    if (table.has("sky_model"))
        site.sky_model = static_cast<SkyModel>(table.choice("sky_model", sky_models, 0));
    if (table.has("utc_offset")) site.utc_offset = table.number("utc_offset", {-12, 14, "h"});
    return site;
}

Day read_day(const InputTable& table, const std::string& input) {
    const bool has_climate = table.has("climate");
    if (has_climate &&
        (table.has("outdoor_min") || table.has("outdoor_max") || table.has("hour_of_max")))
        throw table.error("climate", "stands in place of outdoor_min, outdoor_max and hour_of_max");
    if (has_climate)
        table.expect({"month", "room", "climate"});
    else
        table.expect({"month", "room", "outdoor_min", "outdoor_max"}, {"hour_of_max", "climate"});
    Day day{};
    day.month = table.choice("month", host::month_names, 1);
    day.room = table.number("room", {-30, 60, "°C"});
    if (has_climate) {
        read_climate(table.table("climate"), input, day);
        return day;
    }
    day.outdoor_min = table.number("outdoor_min", {-60, 60, "°C"});
    day.outdoor_max = table.number("outdoor_max", {day.outdoor_min, 60, "°C"});
    day.hour_of_max = table.number("hour_of_max", {13, 18, "h solar time"}, 15);
    return day;
}

// What is left for the reflectance, without the last places of binary fractions.
double rest_of(double transmittance) { return std::round(1000 * (1 - transmittance)) / 1000; }

// An uncoated pane cannot transmit more than its two surfaces let through (0.918); below 0.05 the
// thickness can no longer be told from the transmittance in single precision.
Pane read_pane(const InputTable& table) {
    table.expect({"transmittance"}, {"reflectance"});
    Pane pane{};
    pane.transmittance = table.number("transmittance", {0.05, 0.91, "at normal incidence"});
    pane.reflectance = table.number(
        "reflectance", {0.01, rest_of(pane.transmittance), "beside this transmittance"}, 0);
    return pane;
}

Panes read_panes(const InputTable& window) {
    Panes panes;
    for (const InputTable& table : window.tables("panes", 1, most_panes))
        panes.push_back(read_pane(table));
    return panes;
}

ShadingCoefficients read_shading(const InputTable& table) {
    table.expect({"short_wave", "long_wave", "panes"});
    return {table.number("short_wave", {0.05, 1, "of clear single glass"}),
            table.number("long_wave", {0, 1, "of clear single glass"}),
            table.integer("panes", 1, most_panes)};
}

Slats read_slats(const InputTable& table) {
    table.expect({"kind", "side", "spacing", "width", "angle", "absorptance"});
    const auto faces = table.numbers("absorptance", 2, {0, 1, "of the slats"});
    return {table.number("spacing", {5, 500, "mm"}), table.number("width", {10, 500, "mm"}),
            table.number("angle", {-90, 90, "degrees off the normal"}), faces[0], faces[1]};
}

Fabric read_fabric(const InputTable& table) {
    table.expect({"kind", "side", "transmittance", "reflectance"});
    const double transmittance = table.number("transmittance", {0, 1, "of the fabric"});
    return {transmittance,
            table.number("reflectance", {0, rest_of(transmittance), "beside this transmittance"})};
}

Blind read_blind(const InputTable& table) {
    if (!table.has("kind") || !table.has("side"))
        throw table.error("", "needs kind (slatted, roller) and side (inside, outside)");
    Blind blind{};
    if (table.choice("kind", blinds, 0) == 0)
        blind.make = read_slats(table);
    else
        blind.make = read_fabric(table);
    blind.outside = table.choice("side", sides, 0) == 1;
    return blind;
}

Window read_window(const InputTable& table) {
    table.expect({"name", "orientation", "area"}, {"tilt", "panes", "shading", "blind"});
    if (table.has("panes") == table.has("shading"))
        throw table.error("", "needs either panes or shading, and not both");
    if (table.has("blind") && !table.has("panes"))
        throw table.error("blind", "needs panes; shading is of a whole unit and takes no blind");
    Window window{};
    window.name = table.text("name");
    window.orientation = table.number("orientation", {0, 360, "degrees clockwise from north"});
    window.tilt = table.number("tilt", {0, 180, "degrees from the horizontal"}, 90);
    window.area = table.number("area", {0.01, 1000, "m²"});
    if (table.has("panes"))
        window.glazing = read_panes(table);
    else
        window.glazing = read_shading(table.table("shading"));
    if (table.has("blind")) window.blind = read_blind(table.table("blind"));
    return window;
}

}  // namespace

Job read_job(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    root.expect({"site", "day", "window"});
    Job job{read_site(root.table("site")), read_day(root.table("day"), path), {}};
    for (const InputTable& table : root.tables("window", 1, most_windows))
        job.windows.push_back(read_window(table));
    return job;
}

}  // namespace quorvel::designday
