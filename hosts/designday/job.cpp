#include "designday/job.h"

#include <cmath>
#include <string_view>

#include "common/calendar.h"
#include "common/input.h"

namespace quorvel::designday {
namespace {

using host::InputTable;

constexpr std::string_view skies[] = {"clear", "bright"};

Site read_site(const InputTable& table) {
    table.expect({"name", "latitude", "longitude", "height", "class"}, {"sky", "utc_offset"});
    Site site{};
    site.name = table.text("name");
    site.latitude = table.number("latitude", {-90, 90, "degrees north"});
    site.longitude = table.number("longitude", {-180, 180, "degrees east"});
    site.height = table.number("height", {-430, 4000, "m above sea level"});
    site.site_class = table.integer("class", 1, 6);
    if (table.has("sky")) site.sky = table.choice("sky", skies, 0);
    if (table.has("utc_offset")) site.utc_offset = table.number("utc_offset", {-12, 14, "h"});
    return site;
}

Day read_day(const InputTable& table) {
    table.expect({"month", "room", "outdoor_min", "outdoor_max"}, {"hour_of_max"});
    Day day{};
    day.month = table.choice("month", host::month_names, 1);
    day.room = table.number("room", {-30, 60, "°C"});
    day.outdoor_min = table.number("outdoor_min", {-60, 60, "°C"});
    day.outdoor_max = table.number("outdoor_max", {day.outdoor_min, 60, "°C"});
    day.hour_of_max = table.number("hour_of_max", {13, 18, "h solar time"}, 15);
    return day;
}

// An uncoated pane cannot transmit more than its two surfaces let through (0.918); below 0.05 the
// thickness can no longer be told from the transmittance in single precision.
Pane read_pane(const InputTable& table) {
    table.expect({"transmittance"}, {"reflectance"});
    Pane pane{};
    pane.transmittance = table.number("transmittance", {0.05, 0.91, "at normal incidence"});
    const double rest = std::round(1000 * (1 - pane.transmittance)) / 1000;
    pane.reflectance = table.number("reflectance", {0.01, rest, "beside this transmittance"}, 0);
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

Window read_window(const InputTable& table) {
    table.expect({"name", "orientation", "area"}, {"tilt", "panes", "shading"});
    if (table.has("panes") == table.has("shading"))
        throw table.error("", "needs either panes or shading, and not both");
    Window window{};
    window.name = table.text("name");
    window.orientation = table.number("orientation", {0, 360, "degrees clockwise from north"});
    window.tilt = table.number("tilt", {0, 180, "degrees from the horizontal"}, 90);
    window.area = table.number("area", {0.01, 1000, "m²"});
    if (table.has("panes"))
        window.glazing = read_panes(table);
    else
        window.glazing = read_shading(table.table("shading"));
    return window;
}

}  // namespace

Job read_job(const std::string& path) {
    const host::InputFile file(path);
    const InputTable root = file.root();
    root.expect({"site", "day", "window"});
    Job job{read_site(root.table("site")), read_day(root.table("day")), {}};
    for (const InputTable& table : root.tables("window", 1, most_windows))
        job.windows.push_back(read_window(table));
    return job;
}

}  // namespace quorvel::designday
