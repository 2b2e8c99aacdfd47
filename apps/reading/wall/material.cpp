#include "reading/wall/material.h"

#include <algorithm>

#include "text/text.h"

namespace quorvel::wall {
namespace {

using host::Range;

constexpr std::string_view states[] = {"dry", "wet"};
constexpr double insulates = 0.07;  // W/mK: below, a layer is drawn as insulation unless told

}  // namespace

Properties::Properties(const host::InputTable& own, const host::Library& library) : own_(own) {
    if (!own.has("material")) return;
    material_ = library.named(own, "material", "material");
    material_->expect({}, {"conductivity", "density", "specific_heat", "vapour_resistivity", "mu",
                           "s_d", "drawing", "source"});
}

bool Properties::gap() const {
    return own_.has("resistance") || own_.has("emissivities") || own_.has("ventilated");
}

bool Properties::membrane() const {
    return own_.has("vapour_resistance") || (has("s_d") && !has("conductivity"));
}

std::string Properties::name() const {
    return own_.text(own_.has("name") || !material_ ? "name" : "material", 60);
}

double Properties::number(std::string_view key, const Range& range) const {
    if (has(key)) return holder(key).number(key, range);
    const std::string missing = "missing " + std::string(key);
    throw material_ ? material_->error("", missing)
                    : own_.error("", missing + ", or a material by name");
}

void Properties::expect(std::initializer_list<std::string_view> known,
                        std::initializer_list<std::string_view> more) const {
    std::vector<std::string_view> all(known);
    all.insert(all.end(), more);
    for (const std::string& key : own_.keys())
        if (std::ranges::find(all, key) == all.end())
            throw own_.error(key, "unknown key; known are " + host::joined(all));
}

// The one of the keys that is given; the input's own go before the material's.
std::string_view Properties::vapour_key(std::initializer_list<std::string_view> keys) const {
    const auto one_of = [&](const host::InputTable& table) {
        std::string_view found;
        for (const std::string_view key : keys) {
            if (!table.has(key)) continue;
            if (!found.empty())
                throw table.error(
                    key, "given beside " + std::string(found) + "; allowed is one of them");
            found = key;
        }
        return found;
    };
    std::string_view key = one_of(own_);
    if (key.empty() && material_) key = one_of(*material_);
    if (!key.empty()) return key;
    throw own_.error("", "missing one of " + host::joined(std::vector<std::string_view>(keys)));
}

double Properties::diffusion_factor() const {
    const auto dry_and_wet = holder("mu").numbers("mu", 2, {1, 2e6, "(µ)"});
    return dry_and_wet[own_.has("state") ? static_cast<std::size_t>(own_.choice("state", states, 0))
                                         : 0];
}

Solid Properties::solid(double thickness) const {
    Solid solid{};
    solid.conductivity = number("conductivity", {0.005, 500, "W/mK"});
    solid.density = number("density", {0.5, 12000, "kg/m³"});
    solid.specific_heat = number("specific_heat", {100, 5000, "J/kgK"});
    const std::string_view key = vapour_key({"vapour_resistivity", "mu", "s_d"});
    if (own_.has("state") && key != "mu") throw own_.error("state", "goes with mu");
    solid.vapour_resistivity = key == "mu" ? diffusion_factor() * resistivity_of_air
                               : key == "s_d"
                                   ? number(key, {0.001, 1e5, "m"}) * resistivity_of_air / thickness
                                   : number(key, {1, 1e7, "GN s/(kg m)"});
    return solid;
}

Gap Properties::gap_between() const {
    Gap gap{};
    const auto given = [&](std::string_view key) { return own_.has(key) ? 1 : 0; };
    if (given("resistance") + given("emissivities") + given("ventilated") > 1)
        throw own_.error("",
                         "an air gap needs either resistance or emissivities, and not both, or "
                         "ventilated = true");
    if (own_.has("ventilated")) {
        if (!own_.flag("ventilated", false))
            throw own_.error("ventilated",
                             "value false; allowed true, or resistance or emissivities");
        gap.resistance = 0;
    } else if (own_.has("emissivities")) {
        const auto faces = own_.numbers("emissivities", 2, {0.01, 1, "of the faces"});
        gap.emissivities = {faces[0], faces[1]};
    } else {
        gap.resistance = own_.number("resistance", {0.01, 10, "m²K/W"});
    }
    return gap;
}

Membrane Properties::sheet() const {
    const std::string_view key = vapour_key({"vapour_resistance", "s_d"});
    return {key == "s_d" ? number(key, {0.001, 1e5, "m"}) * resistivity_of_air
                         : number(key, {0.01, 1e6, "GN s/kg"})};
}

Part Properties::part(double fraction, double thickness,
                      std::initializer_list<std::string_view> more) const {
    Part part{name(), fraction, Membrane{}};
    if (gap()) {
        expect({"name", "resistance", "emissivities"}, more);
        part.make = gap_between();
    } else if (membrane()) {
        expect({"name", "material", "vapour_resistance", "s_d"}, more);
        part.make = sheet();
    } else {
        expect({"name", "material", "conductivity", "density", "specific_heat",
                "vapour_resistivity", "mu", "s_d", "state", "drawing"},
               more);
        const Solid made = solid(thickness);
        part.make = made;
        part.hatching =
            has("drawing")
                ? static_cast<Hatching>(holder("drawing").choice("drawing", hatchings, 0))
            : made.conductivity < insulates ? Hatching::insulation
                                            : Hatching::plain;
    }
    return part;
}

}  // namespace quorvel::wall
