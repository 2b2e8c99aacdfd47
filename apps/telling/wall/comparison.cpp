#include "telling/wall/answer.h"
#include "telling/wall/year_chart.h"

namespace quorvel::wall {
namespace {

bool all_years(const std::vector<Variation>& variations) {
    for (const Variation& v : variations)
        if (!v.assessment.year) return false;
    return true;
}

std::vector<host::Value> row(const Variation& v) {
    const Assessment& a = v.assessment;
    const bool wet = a.year && !a.year->dry();
    return {v.subject.variant_name(),
            a.transmittance.u_value,
            a.surface.factor,
            a.surface.required,
            std::string(a.surface.mould() ? "at risk" : "none"),
            a.year ? a.year->peak() : host::none,
            wet ? month_name(a.year->months[a.year->wettest].month) : "",
            a.year ? a.year->left() : host::none,
            a.periodic.decrement_factor};
}

}  // namespace

host::Answer comparison(const std::vector<Variation>& variations) {
    host::Answer answer{.title = variations.front().subject.name, .subtitle = "and its variants"};
    host::Section section{.title = "Variants"};
    host::DataTable table{.key = "variants",
                          .title = "",
                          .columns = {{"variant", "variant"},
                                      u_value,
                                      {"f_rsi", "f_Rsi", "", 3, "Inside surface"},
                                      {"required_f_rsi", "needed", "", 3, "Inside surface"},
                                      {"mould", "mould", "", 0, "Inside surface"},
                                      {"peak_content", "at most", "g/m²", 1, "Water", true},
                                      {"peak_month", "end of", "", 0, "Water"},
                                      {"left_content", "left", "g/m²", 1, "Water", true},
                                      {"decrement_factor", "decrement", "", 3}},
                          .rows = {},
                          .main = true};
    for (const Variation& v : variations) {
        table.rows.push_back(row(v));
        section.paragraphs.push_back((v.subject.variant.empty() ? "As it is" : v.subject.variant) +
                                     ": " + condensation_told(v.question, v.assessment));
        answer.warnings.insert(answer.warnings.end(), v.subject.warnings.begin(),
                               v.subject.warnings.end());
    }
    section.tables.push_back(std::move(table));
    if (all_years(variations))
        section.pictures.push_back(
            {"variants", "Water through the year", comparison_chart(variations)});
    answer.sections.push_back(std::move(section));
    return answer;
}

}  // namespace quorvel::wall
