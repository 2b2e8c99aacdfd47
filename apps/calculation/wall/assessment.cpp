#include "calculation/wall/assessment.h"

namespace quorvel::wall {
namespace {

double mass(const Layer& layer) {
    double density = 0;
    for (const Part& part : layer.parts)
        if (const auto* solid = std::get_if<Solid>(&part.make))
            density += part.fraction * solid->density;
    return density * layer.thickness;
}

}  // namespace

Assessment assess(const Question& question) {
    const Element& element = question.element;
    Assessment result{};
    result.surfaces = surface_resistances(element);
    result.sections = sections(element);
    result.layer_resistances = layer_resistances(element, result.sections);
    result.transmittance = transmittance(element, result.sections, result.surfaces);
    result.periodic = periodic(element, result.sections, result.surfaces);
    result.surface =
        surface_year(result.sections, result.surfaces, question.climates, question.demand);
    result.path = path(result.sections[question.section], result.surfaces);
    for (const Climate& climate : question.climates)
        result.dry.push_back(profile(result.path, climate));
    if (question.climates.size() == months_of_year)
        result.year = year(result.path, question.climates);
    for (const Layer& layer : element.layers) {
        result.thickness += layer.thickness;
        result.mass += mass(layer);
    }
    return result;
}

}  // namespace quorvel::wall
