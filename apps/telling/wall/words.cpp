#include "telling/wall/words.h"

#include <algorithm>
#include <cmath>
#include <numeric>

#include "calculation/calendar.h"
#include "telling/value.h"
#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::fixed;
using host::shortest;

std::string joined(const std::vector<std::string>& words) {
    const std::vector<std::string_view> views(words.begin(), words.end());
    return host::joined(views);
}

// Names of deposits in a sentence: at 2|3, 3|4, in layer 5.
std::string located(const std::vector<std::string>& deposits) {
    std::string told;
    bool at = false;
    for (const std::string& deposit : deposits) {
        const bool within = deposit.starts_with("in ");
        told += told.empty() ? "" : ", ";
        told += within ? "in layer " + deposit.substr(3) : (at ? "" : "at ") + deposit;
        at = !within;
    }
    return told;
}

double condensing(const Profile& profile) {  // g/m² a day
    return std::accumulate(profile.gain.begin(), profile.gain.end(), 0.0,
                           [](double sum, double gain) { return sum + std::max(gain, 0.0); });
}

std::string grams(double value) { return told_with_unit(water, value); }

std::string steady_condensation(const Question& question, const Assessment& assessment) {
    const Profile& profile = assessment.dry.front();
    const std::size_t layers = question.element.layers.size();
    std::vector<std::string> places;
    for (std::size_t i = 0; i < profile.gain.size(); ++i) {
        const Place& place = assessment.path.places[i];
        const std::string name = deposit_name({place.index, place.within, {}, {}}, layers);
        if (profile.gain[i] >= least_water && (places.empty() || places.back() != name))
            places.push_back(name);
    }
    if (places.empty()) return "No vapour condenses within it.";
    return "Vapour condenses " + located(places) + ", " +
           told_with_unit(water_gain, condensing(profile)) + ", as long as the climate stays so.";
}

std::string wet_places(const Question& question, const Year& year) {
    std::vector<std::string> names;
    for (const Deposit& deposit : year.deposits)
        names.push_back(deposit_name(deposit, question.element.layers.size()));
    const Deposit& first = year.deposits.front();
    const bool one = names.size() == 1 && !first.within && first.index > 0;
    return located(names) +
           (one ? ", behind " + question.element.layers[first.index - 1].name : "");
}

std::string year_told(const Question& question, const Year& year) {
    if (year.dry()) return "No vapour condenses within it in any month.";
    std::vector<bool> gaining(months_of_year);
    for (const MonthOfYear& month : year.months)
        gaining[month.month] = month.condensed - month.evaporated >= least_water;
    const auto name = [&](std::size_t i) { return month_name(year.months[i].month); };
    const std::string where =
        "Vapour condenses " + wet_places(question, year) + ", " + months_told(gaining) + ": ";
    const std::string most = grams(year.peak()) + " at the end of " + name(year.wettest);
    if (year.dries())
        return where + "at most " + most + ", dry again in " + name(year.dry_from) + '.';
    const bool still_rising = year.wettest + 1 == months_of_year;
    return where + (still_rising ? "" : most + ", of which ") + grams(year.left()) +
           " are left after a year, and every further year adds about as much. It does not dry.";
}

std::string surfaces_told(const Assessment& assessment) {
    std::vector<bool> wet;
    for (const Profile& profile : assessment.dry) wet.push_back(profile.inside_wet);
    if (std::ranges::find(wet, true) == wet.end()) return "";
    return " Vapour condenses on the inside surface" +
           (wet.size() > 1 ? ", " + months_told(wet) : "") + '.';
}

}  // namespace

std::string told_with_unit(const host::Quantity& quantity, double value) {
    return host::told(quantity, value) + ' ' + quantity.unit;
}

std::string interface_name(std::size_t i, std::size_t layers) {
    if (i == 0) return "inside";
    return i == layers ? "outside" : std::to_string(i) + '|' + std::to_string(i + 1);
}

std::string place_name(const Place& place, std::size_t layers) {
    if (!place.within) return interface_name(place.index, layers);
    return "in " + std::to_string(place.index + 1) + ", " + fixed(1000 * place.position, 1) + " mm";
}

std::string deposit_name(const Deposit& deposit, std::size_t layers) {
    return deposit.within ? "in " + std::to_string(deposit.index + 1)
                          : interface_name(deposit.index, layers);
}

std::string section_name(const Element& element, const Section& section) {
    std::vector<std::string> names;
    for (std::size_t i = 0; i < element.layers.size(); ++i)
        if (!element.layers[i].homogeneous()) names.push_back(section.slabs[i].part->name);
    std::string told;
    for (const std::string& name : names) told += (told.empty() ? "" : " + ") + name;
    return told;
}

std::string told(const Climate& climate) {
    const auto told = [](const Air& air) {
        return fixed(air.temperature, 1) + " °C " + fixed(air.humidity, 0) + " %";
    };
    return "inside " + told(climate.inside) + ", outside " + told(climate.outside);
}

std::string month_name(std::size_t month) { return std::string(host::month_names[month]); }

std::string months_told(const std::vector<bool>& months) {
    const auto before = [](std::size_t m) { return (m + months_of_year - 1) % months_of_year; };
    std::vector<std::string> spells;
    for (std::size_t first = 0; first < months_of_year; ++first) {
        if (!months[first] || months[before(first)]) continue;
        std::size_t last = first;
        while (months[(last + 1) % months_of_year]) last = (last + 1) % months_of_year;
        spells.push_back(month_name(first) + (last == first ? "" : " to " + month_name(last)));
    }
    return spells.empty() ? (months[0] ? "every month" : "no month") : joined(spells);
}

std::string condensation_told(const Question& question, const Assessment& assessment) {
    return (assessment.year ? year_told(question, *assessment.year)
                            : steady_condensation(question, assessment)) +
           surfaces_told(assessment);
}

std::string mould_told(const Question& question, const Assessment& assessment) {
    const SurfaceYear& surface = assessment.surface;
    const bool monthly = question.climates.size() > 1;
    const std::string demand = std::isnan(surface.required)
                                   ? "the climate asks for none"
                                   : "needed is " +
                                         host::told(temperature_factor, surface.required) +
                                         (monthly ? " in " + month_name(surface.critical) : "");
    const std::string factors =
        "f_Rsi is " + host::told(temperature_factor, surface.factor) + ", " + demand + '.';
    if (!surface.mould()) return "No risk of mould on the plane surface: " + factors;
    std::vector<bool> months;
    for (const SurfaceOfMonth& month : surface.months)
        months.push_back(month.required > surface.factor);
    return "Risk of mould on the inside surface" + (monthly ? ", " + months_told(months) : "") +
           ": " + factors;
}

std::size_t month_that_matters(const Question& question, const Assessment& assessment) {
    if (question.climates.size() == 1) return 0;
    if (assessment.year->dry()) return assessment.surface.critical;
    return std::ranges::max_element(assessment.year->months, {}, &MonthOfYear::condensed)->month;
}

const Profile& profile_of(const Assessment& assessment, std::size_t month) {
    return assessment.year ? assessment.year->of(month).profile : assessment.dry[month];
}

}  // namespace quorvel::wall
