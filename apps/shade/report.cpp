#include "shade/report.h"

#include <cmath>

#include "calculation/angle.h"
#include "calculation/calendar.h"
#include "telling/sun.h"
#include "telling/table.h"

namespace quorvel::shade {
namespace {

using host::absent;
using host::fixed;
using host::shortest;

std::string metres(double length, const char* what) {
    return length == 0 ? "" : ", " + shortest(length) + " m " + what;
}

std::string told(const Fin& fin) {
    return shortest(fin.depth) + " m deep" + metres(fin.offset, "beside the window") +
           metres(fin.above, "above it") + metres(fin.below, "below it");
}

std::string told(const Overhang& overhang) {
    return shortest(overhang.depth) + " m deep" + metres(overhang.offset, "above the window") +
           metres(overhang.left, "beyond it on the left") +
           metres(overhang.right, "beyond it on the right") +
           (overhang.slope == 0 ? "" : ", sloping " + shortest(overhang.slope) + "°");
}

std::string told(const Obstruction& box) {
    const double aside = box.offset < 0 ? -box.offset : box.offset;
    return shortest(box.width) + " m wide" + metres(box.depth, "deep") + ", " +
           (box.base == 0 ? "" : "from " + shortest(box.base) + " m ") + "up to " +
           shortest(box.top) + " m above the ground, " + shortest(box.distance) + " m away" +
           metres(aside, box.offset < 0 ? "to the left" : "to the right") +
           (box.rotation == 0 ? "" : ", turned " + shortest(box.rotation) + "°");
}

std::string shading_told(const Job& job) {
    std::string text;
    const auto add = [&](const std::string& name, const std::string& what) {
        text += "  " + name + ": " + what + '\n';
    };
    if (job.left_fin) add("Left fin", told(*job.left_fin));
    if (job.right_fin) add("Right fin", told(*job.right_fin));
    if (job.overhang) add("Overhang", told(*job.overhang));
    for (const Obstruction& box : job.obstructions) add(box.name, told(box));
    return text.empty() ? "  Nothing shades the window\n" : text;
}

std::string heading(const Job& job, const Day& day) {
    return title(job, day) + '\n' + size_and_facing(job.window) +
           metres(job.window.sill, "above the ground") + '\n' + shading_told(job) +
           host::on_the_globe(job.site.latitude, "N", "S") + "; " +
           host::sun_times(day.sunrise, day.sunset) + "; declination " + fixed(day.declination, 1) +
           "°\nhours are solar time, the sun due south or north at 12\n";
}

std::string watts(double value) {
    const std::string text = fixed(value, 0);
    return text == "0" ? host::nothing : text;
}

// The hours of daylight.
std::string hour_table(const Job& job, const Day& day) {
    host::Table table({{"", "hour"},
                       {"Sun, °", "altitude"},
                       {"Sun, °", "azimuth"},
                       {"Seen from the window, °", "incidence"},
                       {"Seen from the window, °", "vertical"},
                       {"Seen from the window, °", "horizontal"},
                       {"Window", "sunlit %"},
                       {"Window", "shaded m²"},
                       {"Direct sun, W/m²", "unshaded"},
                       {"Direct sun, W/m²", "as shaded"}});
    const double area = job.window.width * job.window.height;
    for (const Hour& at : day.at) {
        if (std::isnan(at.altitude)) continue;
        table.add({fixed(at.hour, 0), fixed(at.altitude, 1), fixed(at.azimuth, 1),
                   at.has_sun() ? fixed(at.incidence, 1) : absent, fixed(at.vertical, 1),
                   fixed(at.horizontal, 1),
                   at.has_sun() ? fixed(100 * at.sunlit, 0) : host::nothing,
                   at.has_sun() ? fixed(area * (1 - at.sunlit), 2) : host::nothing,
                   watts(at.direct_unshaded), watts(at.direct)});
    }
    return table.text();
}

}  // namespace

std::string title(const Job& job, const Day& day) {
    return job.window.name + ", " + job.site.name + ", " + host::date(day.day_of_year);
}

std::string size_and_facing(const Window& window) {
    return shortest(window.width) + " × " + shortest(window.height) + " m, " +
           host::facing(window.orientation, window.tilt);
}

std::string totals(const Day& day) {
    double unshaded = 0, reaching = 0, sunlit = 0;
    int hours = 0;
    for (const Hour& at : day.at) {
        if (!at.has_sun()) continue;
        ++hours;
        sunlit += at.sunlit;
        unshaded += at.direct_unshaded;
        reaching += at.direct;
    }
    if (hours == 0) return "no sun on the window";
    return "sun at " + std::to_string(hours) + (hours == 1 ? " full hour" : " full hours") + ", " +
           fixed(100 * sunlit / hours, 0) + " % of the window sunlit on average; " +
           fixed(reaching / 1000, 2) + " of " + fixed(unshaded / 1000, 2) +
           " kWh/m² direct sun reach it, " + fixed(100 * reaching / unshaded, 0) + " %";
}

std::string report(const Job& job, const Day& day) {
    return heading(job, day) + '\n' + hour_table(job, day) + "\n  Day: " + totals(day) + '\n';
}

}  // namespace quorvel::shade
