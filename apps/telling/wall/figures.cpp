#include "telling/wall/figures.h"

#include <cmath>

#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::Figure;
using host::fixed;
using Figures = std::vector<Figure>;

std::string limits_told(const Transmittance& t) {
    if (t.error < 0.005) return "";
    return "limits " + fixed(t.upper, 3) + " and " + fixed(t.lower, 3) + " m²K/W, error up to " +
           fixed(t.error, 1) + " %";
}

std::string corrections_told(const Transmittance& t) {
    if (t.fasteners + t.air_voids == 0) return "";
    std::string text = "with ";
    if (t.fasteners > 0) text += fixed(t.fasteners, 3) + " for fasteners";
    if (t.fasteners > 0 && t.air_voids > 0) text += ", ";
    if (t.air_voids > 0) text += fixed(t.air_voids, 3) + " for air voids";
    return text;
}

Figure transmittance_figure(const Transmittance& t) {
    const std::string limits = limits_told(t), corrections = corrections_told(t);
    return {u_value, t.u_value,
            limits + (limits.empty() || corrections.empty() ? "" : "; ") + corrections};
}

Figures surface_figures(const Question& question, const Assessment& assessment) {
    const SurfaceYear& s = assessment.surface;
    const std::string month =
        question.climates.size() > 1 ? "in " + month_name(s.critical) + ", " : "";
    const std::string humidity = host::shortest(question.demand.humidity) + " % at the surface";
    const std::string film = host::shortest(question.demand.inside_resistance) + " m²K/W inside";
    const std::string coldest = assessment.sections.size() > 1 ? ", coldest section" : "";
    return {{temperature_factor, s.factor, "with " + film + coldest},
            {{"required_f_rsi", "f_Rsi needed against mould", "", 3},
             s.required,
             std::isnan(s.required) ? "" : month + "for at most " + humidity}};
}

Figures water_figures(const Year& year) {
    Figures figures;
    if (!year.dry())
        figures.push_back(
            {{"first_month", "Water gathers from"}, month_name(year.months.front().month)});
    figures.push_back(
        {{"peak_content", "Most water", "g/m²", 1},
         year.peak(),
         year.dry() ? "" : "at the end of " + month_name(year.months[year.wettest].month)});
    figures.push_back({{"left_content", "Water left after a year", "g/m²", 1}, year.left()});
    return figures;
}

Figures periodic_figures(const Periodic& p) {
    const auto hours = [](const std::string& verb, double shift) {
        return std::isnan(shift) ? "" : verb + " by " + fixed(shift, 1) + " h";
    };
    return {
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
}

}  // namespace

Figures key_figures(const Question& question, const Assessment& assessment) {
    Figures figures{transmittance_figure(assessment.transmittance)};
    const auto add = [&](const Figures& more) {
        figures.insert(figures.end(), more.begin(), more.end());
    };
    add(surface_figures(question, assessment));
    if (assessment.year) add(water_figures(*assessment.year));
    add(periodic_figures(assessment.periodic));
    return figures;
}

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

}  // namespace quorvel::wall
