#include "reading/window/job.h"

#include <algorithm>
#include <cmath>

#include "calculation/calendar.h"
#include "calculation/climate/mended_weather.h"
#include "calculation/none.h"
#include "reading/climate/epw.h"
#include "reading/variants.h"
#include "reading/window/glazing.h"
#include "reading/window/shades.h"
#include "reading/window/temperatures.h"

namespace quorvel::window {
namespace {

using host::InputFile;
using host::InputTable;
using host::none;

constexpr std::string_view skies[] = {"clear", "bright"};
constexpr std::string_view sky_models[] = {"design", "perez", "muneer", "muneer-north",
                                           "muneer-south"};

const host::Alternatives alternatives{{"unit", "panes", "shading"},
                                      {"climate", "outdoor_min"},
                                      {"climate", "outdoor_max"},
                                      {"climate", "hour_of_max"},
                                      {"month", "day_of_year"}};

Site read_site(const InputTable& table, const std::optional<Weather>& weather) {
    if (weather)
        table.expect({}, {"name", "latitude", "longitude", "height", "class", "sky", "sky_model",
                          "utc_offset", "ground_reflectance"});
    else
        table.expect({"name", "latitude"}, {"longitude", "height", "class", "sky", "sky_model",
                                            "utc_offset", "ground_reflectance"});
    Site site{};
    site.name = table.has("name") ? table.text("name") : weather->place;
    site.latitude = table.number("latitude", {-90, 90, "degrees north"}, none);
    site.longitude = table.number("longitude", {-180, 180, "degrees east"}, none);
    site.height = table.number("height", {-430, 4000, "m above sea level"}, 0);
    site.site_class = table.has("class") ? table.integer("class", 1, 6) : 5;
    if (table.has("sky")) site.sky = table.choice("sky", skies, 0);
    site.sky_model = SkyModel::perez;
    if (table.has("sky_model"))
        site.sky_model = static_cast<SkyModel>(table.choice("sky_model", sky_models, 0));
    if (table.has("ground_reflectance"))
        site.ground_reflectance = table.number("ground_reflectance", {0, 1, ""});
    if (table.has("utc_offset")) {
        site.utc_offset = table.number("utc_offset", {-12, 14, "h"});
        if (std::isnan(site.longitude) && !weather)
            throw table.error("utc_offset", "needs the longitude too");
    }
    if (weather) {
        site.latitude = weather->latitude;
        site.longitude = weather->longitude;
        site.height = weather->height;
    }
    return site;
}

Site site_of(const Weather& weather) {
    Site site{};
    site.name = weather.place;
    site.latitude = weather.latitude;
    site.longitude = weather.longitude;
    site.height = weather.height;
    site.site_class = 5;
    site.sky_model = SkyModel::perez;
    return site;
}

// One number for all months, or twelve.
double of_month(const InputTable& table, std::string_view key, int month,
                const host::Range& range) {
    if (!table.is_list(key)) return table.number(key, range);
    return table.numbers(key, 12, range)[static_cast<std::size_t>(month - 1)];
}

void expect_day(const InputTable& table, Span span, bool glazed) {
    if (table.has("climate") &&
        (table.has("outdoor_min") || table.has("outdoor_max") || table.has("hour_of_max")))
        throw table.error("climate", "stands in place of outdoor_min, outdoor_max and hour_of_max");
    if (table.has("month") && table.has("day_of_year"))
        throw table.error("", "needs either month or day_of_year, and not both");
    if (glazed && span == Span::year)
        table.expect({"room"}, {"month", "day_of_year", "outdoor_min", "outdoor_max", "hour_of_max",
                                "climate"});
    else if (glazed && table.has("climate"))
        table.expect({"room", "climate"}, {"month", "day_of_year"});
    else if (glazed)
        table.expect({"room", "outdoor_min", "outdoor_max"},
                     {"month", "day_of_year", "hour_of_max", "climate"});
    else
        table.expect({}, {"month", "day_of_year", "room", "outdoor_min", "outdoor_max",
                          "hour_of_max", "climate"});
}

void read_temperatures(const InputTable& table, DesignDay& day, std::vector<std::string>& notes) {
    day.room = table.has("room") ? of_month(table, "room", day.month, {-30, 60, "°C"}) : none;
    day.outdoor_min = day.outdoor_max = none;
    day.hour_of_max = 15;
    if (table.has("climate")) return read_climate(table.table("climate"), day, notes);
    if (table.has("outdoor_min"))
        day.outdoor_min = of_month(table, "outdoor_min", day.month, {-60, 60, "°C"});
    if (table.has("outdoor_max")) {
        const bool bounded = table.has("outdoor_min") && !table.is_list("outdoor_max");
        day.outdoor_max =
            of_month(table, "outdoor_max", day.month, {bounded ? day.outdoor_min : -60, 60, "°C"});
        if (day.outdoor_max < day.outdoor_min)
            throw table.error(
                "outdoor_max",
                "is below outdoor_min in " +
                    std::string(host::month_names[static_cast<std::size_t>(day.month - 1)]));
    }
    day.hour_of_max = table.number("hour_of_max", {13, 18, "h solar time"}, 15);
}

std::vector<DesignDay> read_days(const InputTable& table, Span span,
                                 std::vector<std::string>& notes) {
    std::vector<DesignDay> days;
    if (span == Span::year) return days;
    if (span == Span::months) {
        for (int month = 1; month <= 12; ++month) {
            days.push_back({month, 0, 0, 0, 0, 0, {}, ""});
            read_temperatures(table, days.back(), notes);
        }
        return days;
    }
    if (!table.has("month") && !table.has("day_of_year"))
        throw table.error("", "missing month; or ask for --months, or for a year of --weather");
    DesignDay day{};
    if (table.has("month")) {
        day.month = table.choice("month", host::month_names, 1);
    } else {
        day.day_of_year = table.integer("day_of_year", 1, 365);
        day.month = static_cast<int>(host::date_of(day.day_of_year).month) + 1;
    }
    read_temperatures(table, day, notes);
    return {day};
}

// The area of the glass, or its width and height, which shades need.
void read_size(const InputTable& table, bool shaded, Window& window) {
    const bool sized = table.has("width") || table.has("height");
    if (sized && table.has("area"))
        throw table.error("area", "stands in place of width and height");
    if (!sized && !table.has("area")) throw table.error("", "missing width, height; or area");
    if (sized) {
        for (const char* key : {"width", "height"})
            if (!table.has(key)) throw table.error("", std::string("missing ") + key);
        window.width = table.number("width", {0.05, 50, "m"});
        window.height = table.number("height", {0.05, 50, "m"});
        window.area = window.width * window.height;
        return;
    }
    if (shaded)
        throw table.error("area",
                          "shading needs the width and the height of the window in its place");
    window.area = table.number("area", {0.01, 1000, "m²"});
    window.width = window.height = std::sqrt(window.area);
}

Window read_window(const InputTable& table, const InputTable& root, const host::Library& library,
                   std::vector<std::string>& notes) {
    table.expect({"name", "orientation"}, {"area", "width", "height", "tilt", "sill", "unit",
                                           "panes", "gas", "gap", "shading", "blind", "reveal",
                                           "left_fin", "right_fin", "overhang", "obstruction"});
    Window window{};
    window.name = table.text("name");
    window.orientation = table.number("orientation", {0, 360, "degrees clockwise from north"});
    window.tilt = table.number("tilt", {0, 180, "degrees from the horizontal"}, 90);
    window.sill = table.number("sill", {0, 1000, "m above the ground"}, 0);
    read_size(table, has_shades(table) || has_shades(root), window);
    window.glazing = read_glazing(table, library, notes);
    if (table.has("blind")) {
        if (!std::holds_alternative<Unit>(window.glazing))
            throw table.error(
                "blind", "needs a unit or panes; shading is of a whole unit and takes no blind");
        window.blind = read_blind(table.table("blind"), window.glazing, library);
    }
    window.shades = read_shades(table, root);
    return window;
}

// Shades that stand in no window's table are those of the one window.
std::vector<Window> read_windows(const InputTable& root, const host::Library& library,
                                 std::vector<std::string>& notes) {
    std::vector<InputTable> tables;
    if (root.is_table("window"))
        tables.push_back(root.table("window"));
    else
        tables = root.tables("window", 1, most_windows);
    if (tables.size() > 1 && has_shades(root))
        throw root.error("window",
                         "is more than one; what shades each of them belongs into its own table");
    std::vector<Window> windows;
    for (const InputTable& table : tables) {
        Window window = read_window(table, root, library, notes);
        if (window.name == "all" || std::ranges::count(windows, window.name, &Window::name) > 0)
            throw table.error("name", "is that of another window, or of all together");
        windows.push_back(std::move(window));
    }
    return windows;
}

// What was replaced in the weather, so far as it matters to a window.
void note_what_was_replaced(climatefile::WeatherYear year, std::vector<std::string>& notes) {
    using climatefile::Hour;
    std::erase_if(year.replaced, [](const climatefile::Replacement& done) {
        return done.of != &Hour::dry_bulb && done.of != &Hour::direct_normal &&
               done.of != &Hour::diffuse_horizontal;
    });
    for (const std::string& line : climatefile::told(year.replaced))
        notes.push_back(year.place + ": " + line);
}

Weather read_weather(const std::string& path, std::vector<std::string>& notes) {
    const climatefile::WeatherYear year = climatefile::read_epw(path);
    note_what_was_replaced(year, notes);
    Weather weather{year.place, year.latitude, year.longitude, year.height, year.zone, none, {}};
    for (const climatefile::WeatherDay& day : year.days)
        for (std::size_t h = 0; h < day.hours.size(); ++h) {
            const climatefile::Hour& hour = day.hours[h];
            weather.hours.push_back({day.month, day.day_of_year, static_cast<int>(h) + 1,
                                     hour.direct_normal, hour.diffuse_horizontal, hour.dry_bulb});
        }
    return weather;
}

Job read_job(const InputTable& root, const Request& request, const host::Library& library,
             const std::optional<Weather>& weather) {
    if (weather)
        root.expect({"window"},
                    {"site", "day", "reveal", "left_fin", "right_fin", "overhang", "obstruction"});
    else
        root.expect({"site", "day", "window"},
                    {"reveal", "left_fin", "right_fin", "overhang", "obstruction"});
    Job job{};
    job.weather = weather;
    job.site = root.has("site") ? read_site(root.table("site"), weather) : site_of(*weather);
    job.windows = read_windows(root, library, job.notes);
    const bool glazed = any_glazed(job.windows);
    if (!root.has("day")) {
        if (glazed) throw root.error("", "missing day, with the temperature of the room");
        return job;
    }
    const InputTable day = root.table("day");
    expect_day(day, request.span, glazed);
    job.days = read_days(day, request.span, job.notes);
    if (job.weather && day.has("room")) job.weather->room = day.number("room", {-30, 60, "°C"});
    return job;
}

}  // namespace

std::vector<Job> read_jobs(const std::string& path, const Request& request) {
    const host::Library library(request.libraries);
    std::vector<host::Variant> variants = host::read_variants(path, alternatives);
    std::optional<Weather> weather;
    std::vector<std::string> notes;
    if (request.span == Span::year) weather = read_weather(request.weather, notes);
    std::vector<Job> jobs;
    for (const host::Variant& variant : variants) {
        jobs.push_back(read_job(variant.input->root(), request, library, weather));
        jobs.back().variant = variant.name;
        jobs.back().notes.insert(jobs.back().notes.end(), notes.begin(), notes.end());
    }
    return jobs;
}

}  // namespace quorvel::window
