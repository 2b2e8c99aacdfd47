#include "shade/report.h"
#include "telling/text.h"

namespace quorvel::shade {
namespace {

using host::csv_number;

constexpr const char* header =
    "window,hour,sun_altitude_deg,sun_azimuth_deg,incidence_deg,vertical_profile_deg,"
    "horizontal_profile_deg,sunlit_pct,sunlit_m2,shaded_m2,direct_unshaded_W_m2,direct_W_m2\n";

}  // namespace

std::string csv(const Job& job, const Day& day) {
    std::string text = header;
    const double area = job.window.width * job.window.height;
    for (const Hour& at : day.at)
        text += host::csv_line({
            job.window.name,
            csv_number(at.hour, 0),
            csv_number(at.altitude, 3),
            csv_number(at.azimuth, 3),
            csv_number(at.incidence, 3),
            csv_number(at.vertical, 3),
            csv_number(at.horizontal, 3),
            csv_number(100 * at.sunlit, 2),
            csv_number(area * at.sunlit, 4),
            csv_number(area * (1 - at.sunlit), 4),
            csv_number(at.direct_unshaded, 2),
            csv_number(at.direct, 2),
        });
    return text;
}

}  // namespace quorvel::shade
