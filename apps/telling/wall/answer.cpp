#include "telling/wall/answer.h"

#include <cmath>

#include "telling/text.h"
#include "telling/value.h"
#include "telling/wall/section_chart.h"
#include "telling/wall/tables.h"
#include "telling/wall/year_chart.h"

namespace quorvel::wall {
namespace {

using host::Figure;
using host::fixed;
using host::Section;

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

std::string on_transmittance(const Transmittance& t) {
    std::string text;
    if (t.error > 0.005)
        text = "from limits of " + fixed(t.upper, 3) + " and " + fixed(t.lower, 3) +
               " m²K/W, error at most " + fixed(t.error, 1) + " %";
    const double corrections = t.air_voids + t.fasteners;
    if (corrections > 0)
        text += (text.empty() ? "" : "; ") +
                ("with " + fixed(corrections, 3) + " for " + (t.fasteners > 0 ? "fasteners" : "") +
                 (t.fasteners > 0 && t.air_voids > 0 ? " and " : "") +
                 (t.air_voids > 0 ? "air voids" : ""));
    return text;
}

std::vector<Figure> wet_figures(const Year& year) {
    return {{{"peak_content", "Most water", "g/m²", 1},
             year.peak(),
             year.dry() ? "" : "at the end of " + month_name(year.months[year.wettest].month)},
            {{"left_content", "Water left after a year", "g/m²", 1}, year.left()}};
}

std::vector<Figure> figures(const Question& question, const Assessment& assessment) {
    const Periodic& p = assessment.periodic;
    const SurfaceYear& s = assessment.surface;
    const auto hours = [](const char* verb, double shift) {
        return std::isnan(shift) ? "" : verb + (" by " + fixed(shift, 1)) + " h";
    };
    std::vector<Figure> figures{
        {u_value, assessment.transmittance.u_value, on_transmittance(assessment.transmittance)},
        {temperature_factor, s.factor,
         "with " + host::shortest(question.demand.inside_resistance) +
             " m²K/W at the inside surface" +
             (assessment.sections.size() > 1 ? ", in the coldest section" : "")},
        {{"required_f_rsi", "f_Rsi needed against mould", "", 3},
         s.required,
         std::isnan(s.required)
             ? ""
             : (question.climates.size() > 1 ? "in " + month_name(s.critical) + ", " : "") +
                   "for at most " + host::shortest(question.demand.humidity) +
                   " % at the surface"}};
    if (assessment.year) {
        const auto wet = wet_figures(*assessment.year);
        figures.insert(figures.end(), wet.begin(), wet.end());
    }
    const std::vector<Figure> cyclic{
        {{"periodic_transmittance", "Periodic transmittance |Y12|", "W/m²K", 3}, p.transmittance},
        {{"decrement_factor", "Decrement factor", "", 3},
         p.decrement_factor,
         hours("lags", p.decrement_lag)},
        {{"admittance", "Admittance |Y11|", "W/m²K", 2},
         p.admittance,
         hours("leads", p.admittance_lead)},
        {{"outside_admittance", "Admittance outside |Y22|", "W/m²K", 2},
         p.outside_admittance,
         hours("leads", p.outside_admittance_lead)},
        {{"surface_factor", "Surface factor", "", 2},
         p.surface_factor,
         hours("lags", p.surface_lag)},
        {{"inside_capacity", "Areal heat capacity inside", "kJ/m²K", 1}, p.inside_capacity / 1000},
        {{"outside_capacity", "Areal heat capacity outside", "kJ/m²K", 1},
         p.outside_capacity / 1000}};
    figures.insert(figures.end(), cyclic.begin(), cyclic.end());
    return figures;
}

// Hours by which the daily answers are shifted, for other programs.
host::DataTable shift_table(const Periodic& p) {
    return {
        .key = "shifts",
        .title = "Shifts of the daily swing",
        .columns = {{"admittance_lead", "admittance leads", "h", 2},
                    {"outside_admittance_lead", "outside admittance leads", "h", 2},
                    {"decrement_lag", "decrement factor lags", "h", 2},
                    {"surface_lag", "surface factor lags", "h", 2}},
        .rows = {{p.admittance_lead, p.outside_admittance_lead, p.decrement_lag, p.surface_lag}},
        .on_request = true};
}

std::vector<std::string> notes(const Subject& subject, const Question& question,
                               const Assessment& assessment) {
    std::vector<std::string> notes;
    if (assessment.sections.size() > 1)
        notes.push_back("Vapour is followed through the section " +
                        section_name(question.element, assessment.sections[question.section]) +
                        ", " + fixed(100 * assessment.sections[question.section].fraction, 1) +
                        " % of the area.");
    if (subject.left_out > 0)
        notes.push_back("The outermost " + std::to_string(subject.left_out) +
                        " layers, from the well-ventilated gap on, are left out.");
    if (!assessment.transmittance.applies())
        notes.push_back(
            "The limits of the resistance are further apart than the method is meant for: look for "
            "the U-value in two or three dimensions.");
    return notes;
}

Section summary(const Subject& subject, const Question& question, const Assessment& assessment) {
    Section section;
    section.paragraphs = {condensation_told(question, assessment),
                          mould_told(question, assessment)};
    for (std::string& note : notes(subject, question, assessment))
        section.paragraphs.push_back(std::move(note));
    section.figures = figures(question, assessment);
    return section;
}

std::vector<std::string> method() {
    return {
        "U-value: resistances in series; of inhomogeneous layers the mean of the upper and the "
        "lower limit of the resistance (EN ISO 6946).",
        "Water: Glaser's method through the months (EN ISO 13788). The state of a month is steady; "
        "vapour pressure nowhere exceeds saturation, and is held to it where there is water. What "
        "arrives there and does not pass on condenses; what leaves and does not arrive evaporates. "
        "A month is parted where a place has dried. Layers of more than 0.25 m²K/W are divided. "
        "The year begins with the first month in which vapour condenses in the dry element. Rain, "
        "sun, the sky's cold, air leaking through joints, water that moves as a liquid and water "
        "built in are left out.",
        "Mould: the temperature factor of the plane element, and the one at which the humidity at "
        "the surface is at most that asked for (EN ISO 13788). Corners and other thermal bridges "
        "are colder.",
        "Daily swing of temperature: transfer matrices of the layers with the surface resistances "
        "(EN ISO 13786); gaps and sheets store no heat, inhomogeneous layers count with their mean "
        "conductivity and heat capacity."};
}

}  // namespace

host::Answer answer(const Subject& subject, const Question& question, const Assessment& assessment,
                    std::optional<std::size_t> month) {
    const std::size_t shown = month.value_or(month_that_matters(question, assessment));
    host::Answer answer{.title = subject.name,
                        .subtitle = conditions(subject, question, assessment)};
    answer.sections.push_back(summary(subject, question, assessment));
    answer.sections.push_back({.title = "Layers", .tables = {layer_table(question, assessment)}});
    host::Section through{
        .title = "Profile",
        .tables = {profile_table(question, assessment, shown), profiles_table(question, assessment),
                   shift_table(assessment.periodic)}};
    through.pictures.push_back({"section", "Section, temperature and vapour pressure",
                                section_chart(subject, question, assessment, shown)});
    answer.sections.push_back(std::move(through));
    if (assessment.year) {
        host::Section year{.title = "", .tables = {month_table(question, assessment)}};
        if (!assessment.year->dry()) year.tables.push_back(water_table(question, assessment));
        year.pictures.push_back({"year", "Water and surface through the year",
                                 year_chart(subject, question, assessment)});
        answer.sections.push_back(std::move(year));
    }
    answer.method = method();
    answer.warnings = subject.warnings;
    return answer;
}

}  // namespace quorvel::wall
