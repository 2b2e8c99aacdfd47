#include "telling/wall/answer.h"

#include "telling/wall/figures.h"
#include "telling/wall/section_chart.h"
#include "telling/wall/tables.h"
#include "telling/wall/year_chart.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::fixed;

std::string conditions(const Subject& subject, const Question& question,
                       const Assessment& assessment) {
    static constexpr const char* flows[] = {"upwards", "horizontally", "downwards"};
    static constexpr const char* exposures[] = {"sheltered", "normal", "severe"};
    const Element& element = question.element;
    const bool exposed = !element.outside_resistance && !element.in_ventilated_gap;
    std::string text = std::string("heat flows ") + flows[static_cast<int>(element.heat_flow)];
    if (exposed) text += std::string(", exposure ") + exposures[element.exposure - 1];
    text += "; surface resistances " + fixed(assessment.surfaces.inside, 3) + " inside, " +
            fixed(assessment.surfaces.outside, 3) + " m²K/W outside";
    return text + (subject.climate.empty() ? "" : "\n" + subject.climate);
}

std::vector<std::string> notes(const Subject& subject, const Question& question,
                               const Assessment& assessment) {
    std::vector<std::string> notes;
    const Section& section = assessment.sections[question.section];
    if (assessment.sections.size() > 1)
        notes.push_back("Vapour is followed through the section " +
                        section_name(question.element, section) + ", " +
                        fixed(100 * section.fraction, 1) + " % of the area.");
    if (subject.left_out > 0)
        notes.push_back("The outermost " + std::to_string(subject.left_out) +
                        " layers, from the well-ventilated gap on, are left out.");
    if (!assessment.transmittance.applies())
        notes.push_back(
            "The limits of the resistance are further apart than the method is meant for: look for "
            "the U-value in two or three dimensions.");
    return notes;
}

host::Section summary(const Subject& subject, const Question& question,
                      const Assessment& assessment) {
    host::Section section;
    section.paragraphs = {condensation_told(question, assessment),
                          mould_told(question, assessment)};
    for (std::string& note : notes(subject, question, assessment))
        section.paragraphs.push_back(std::move(note));
    section.figures = key_figures(question, assessment);
    return section;
}

host::Section profile(const Subject& subject, const Question& question,
                      const Assessment& assessment, std::size_t month) {
    host::Section section{
        .title = "Profile",
        .tables = {profile_table(question, assessment, month), profiles_table(question, assessment),
                   shift_table(assessment.periodic)}};
    section.pictures.push_back({"section", "Section, temperature and vapour pressure",
                                section_chart(subject, question, assessment, month)});
    return section;
}

host::Section year(const Subject& subject, const Question& question, const Assessment& assessment) {
    host::Section section;
    section.tables = {month_table(question, assessment)};
    if (!assessment.year->dry()) section.tables.push_back(water_table(question, assessment));
    section.pictures.push_back({"year", "The months", year_chart(subject, question, assessment)});
    return section;
}

// What is not in the tables of layers and months.
host::Section conditions_given(const Question& question, const Assessment& assessment) {
    const SurfaceDemand& demand = question.demand;
    return {.title = "Conditions",
            .figures = {{{"inside_resistance", "Resistance of the inside surface", "m²K/W", 3},
                         assessment.surfaces.inside},
                        {{"outside_resistance", "Resistance of the outside surface", "m²K/W", 3},
                         assessment.surfaces.outside},
                        {{"mould_inside_resistance", "Resistance inside, as for mould", "m²K/W", 3},
                         demand.inside_resistance},
                        {{"mould_surface_humidity", "Humidity at the surface, at most", "%", 0},
                         demand.humidity}}};
}

std::vector<std::string> method() {
    return {
        "U-value: resistances in series; of layers of several parts the mean of the upper and the "
        "lower limit of the resistance (EN ISO 6946).",
        "Water: Glaser's method through the months (EN ISO 13788). The state of a month is "
        "steady; vapour pressure nowhere exceeds saturation, and is held to it where there is "
        "water. What arrives there and does not pass on condenses; what leaves and does not "
        "arrive evaporates. A month is parted where a place has dried. Layers of more than 0.25 "
        "m²K/W are divided. The year begins, dry, with the first month in which vapour "
        "condenses. Rain, sun, the cold of the sky, air leaking through joints, water that moves "
        "as a liquid and water built in are left out.",
        "Mould: the temperature factor of the plane element, and the one at which the humidity at "
        "the surface is at most that asked for (EN ISO 13788). Corners and other thermal bridges "
        "are colder.",
        "Daily swing of temperature: transfer matrices of the layers with the surface resistances "
        "(EN ISO 13786); gaps and sheets store no heat, layers of several parts count with their "
        "mean conductivity and heat capacity."};
}

}  // namespace

host::Answer answer(const Subject& subject, const Question& question, const Assessment& assessment,
                    std::optional<std::size_t> month) {
    const std::size_t shown = month.value_or(month_that_matters(question, assessment));
    host::Answer answer{.title = subject.name,
                        .subtitle = conditions(subject, question, assessment)};
    answer.sections.push_back(summary(subject, question, assessment));
    answer.sections.push_back({.title = "Layers", .tables = {layer_table(question, assessment)}});
    answer.sections.push_back(profile(subject, question, assessment, shown));
    if (assessment.year) answer.sections.push_back(year(subject, question, assessment));
    answer.inputs.push_back(conditions_given(question, assessment));
    answer.method = method();
    answer.warnings = subject.warnings;
    return answer;
}

}  // namespace quorvel::wall
