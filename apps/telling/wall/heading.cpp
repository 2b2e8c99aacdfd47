#include "telling/wall/heading.h"

#include "telling/value.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::colour::ink;

constexpr const char* water_colour = "#2b6cb8";
constexpr std::size_t longest_line = 110;  // characters

// In two lines where it is too long for one.
std::vector<std::string> lines(const std::string& text) {
    if (host::character_count(text) <= longest_line) return {text};
    const std::size_t space = text.rfind(' ', longest_line);
    return {text.substr(0, space), text.substr(space + 1)};
}

}  // namespace

void draw_heading(host::Chart& chart, const Subject& subject, const Question& question,
                  const Assessment& assessment, const std::string& shown) {
    const bool wet = assessment.year ? !assessment.year->dry() : assessment.dry.front().inside_wet;
    chart.heading(subject.name + (subject.variant.empty() ? "" : ": " + subject.variant),
                  "U-value " + told_with_unit(u_value, assessment.transmittance.u_value) +
                      "  ·  f_Rsi " + host::told(temperature_factor, assessment.surface.factor) +
                      "  ·  " + shown);
    double y = 94;
    for (const std::string& line : lines(condensation_told(question, assessment))) {
        chart.text(host::chart_margin, y, line, {wet ? water_colour : ink, 13, true});
        y += 20;
    }
}

}  // namespace quorvel::wall
