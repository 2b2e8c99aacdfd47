#include "telling/window/words.h"

#include <cmath>

#include "telling/direction.h"
#include "telling/value.h"
#include "text/text.h"

namespace quorvel::window {
namespace {

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
    return shortest(box.width) + " m wide" + metres(box.depth, "deep") + ", " +
           (box.base == 0 ? "" : "from " + shortest(box.base) + " m ") + "up to " +
           shortest(box.top) + " m above the ground, " + shortest(box.distance) + " m away" +
           metres(std::fabs(box.offset), box.offset < 0 ? "to the left" : "to the right") +
           (box.rotation == 0 ? "" : ", turned " + shortest(box.rotation) + "°");
}

std::string told(const Unit& unit) {
    if (!unit.name.empty()) return unit.name;
    std::string text =
        std::to_string(unit.panes.size()) + (unit.panes.size() == 1 ? " pane" : " panes");
    for (std::size_t k = 0; k < unit.panes.size(); ++k) {
        if (unit.panes[k].name.empty()) return text;
        if (k == 0) text += ": ";
        if (k > 0)
            text += " | " + shortest(unit.cavities[k - 1].width) + " mm " +
                    unit.cavities[k - 1].gas.name + " | ";
        text += unit.panes[k].name;
    }
    return text;
}

std::string told(const Blind& blind) {
    static constexpr const char* places[] = {"inside", "outside", "between the panes"};
    const bool slatted = std::holds_alternative<Slats>(blind.make);
    std::string text = std::string(slatted ? "slatted" : "roller") + " blind " +
                       places[static_cast<int>(blind.place)];
    if (blind.lowered_above > 0)
        text += ", lowered from " + shortest(blind.lowered_above) + " W/m²";
    return text;
}

}  // namespace

std::string place(const Site& site) {
    const std::string east =
        std::isnan(site.longitude) ? "" : ", " + host::on_the_globe(site.longitude, "E", "W");
    return host::on_the_globe(site.latitude, "N", "S") + east + ", " + shortest(site.height) +
           " m above sea level";
}

std::string sky_told(const Site& site) {
    static constexpr const char* authors[] = {"as the design sky has it", "after Perez",
                                              "after Muneer", "after Muneer for northern Europe",
                                              "after Muneer for southern Europe"};
    return std::string("diffuse sky ") + authors[static_cast<int>(site.sky_model)];
}

std::string size_and_facing(const Window& window) {
    const bool sized = window.width * window.height == window.area && window.width != window.height;
    return (sized ? shortest(window.width) + " × " + shortest(window.height) + " m, "
                  : shortest(window.area) + " m² ") +
           host::facing(window.orientation == 360 ? 0 : window.orientation, window.tilt);
}

std::string glazing_told(const Window& window) {
    std::string text;
    if (const auto* unit = std::get_if<Unit>(&window.glazing)) text = told(*unit);
    if (const auto* unit = std::get_if<ShadingCoefficients>(&window.glazing))
        text = std::to_string(unit->panes) + (unit->panes == 1 ? " pane" : " panes") +
               " known by shading coefficients";
    return text.empty() ? "no glazing given" : text;
}

std::string blind_told(const Window& window) { return window.blind ? told(*window.blind) : ""; }

std::vector<std::string> shades_told(const Window& window) {
    const Shades& shades = window.shades;
    std::vector<std::string> lines;
    if (shades.reveal > 0) lines.push_back("Reveal: " + shortest(shades.reveal) + " m deep");
    if (shades.left_fin) lines.push_back("Left fin: " + told(*shades.left_fin));
    if (shades.right_fin) lines.push_back("Right fin: " + told(*shades.right_fin));
    if (shades.overhang) lines.push_back("Overhang: " + told(*shades.overhang));
    for (const Obstruction& box : shades.obstructions) lines.push_back(box.name + ": " + told(box));
    return lines;
}

std::string described(const Window& window) {
    std::string text = size_and_facing(window) + '\n' + glazing_told(window);
    if (window.blind) text += '\n' + blind_told(window);
    for (const std::string& line : shades_told(window)) text += '\n' + line;
    return text;
}

// Panes are counted from the outside, as the input has them and unlike the library's own numbers.
std::string layer_name(const Window& window, std::size_t layer) {
    std::size_t layers = 0, pane = layer;
    if (const auto* unit = std::get_if<Unit>(&window.glazing)) layers = unit->panes.size();
    if (const auto* unit = std::get_if<ShadingCoefficients>(&window.glazing))
        layers = static_cast<std::size_t>(unit->panes);
    if (window.blind) {
        const std::size_t blind = window.blind->place_among(layers);
        if (layer == blind) return "blind";
        if (layer > blind) --pane;
    }
    const std::string name = "pane " + std::to_string(pane + 1);
    return layers > 1 && pane + 1 == layers ? name + " (room)" : name;
}

std::string method_told(Method method) {
    return method == Method::pane_temperatures ? "temperatures by the library's pane temperatures, "
                                                 "whose fixed resistances hold here"
                                               : "temperatures by a heat balance of the layers "
                                                 "with their emissivities, gases and blind";
}

double azimuth_told(double degrees) { return std::lround(10 * degrees) % 3600 == 0 ? 0 : degrees; }

Quantity watts(std::string key, std::string name, std::string group) {
    return {std::move(key), std::move(name), "W", 0, std::move(group), true};
}
Quantity per_area(std::string key, std::string name, std::string group) {
    return {std::move(key), std::move(name), "W/m²", 0, std::move(group), true};
}
Quantity energy(std::string key, std::string name) {
    return {std::move(key), std::move(name), "kWh", 2};
}
Quantity celsius(std::string key, std::string name, std::string group) {
    return {std::move(key), std::move(name), "°C", 1, std::move(group)};
}
Quantity fraction(std::string key, std::string name) {
    return {std::move(key), std::move(name), "", 2};
}
Quantity percent(std::string key, std::string name, std::string group) {
    return {std::move(key), std::move(name), "%", 0, std::move(group)};
}
Quantity angle(std::string key, std::string name, std::string group) {
    return {std::move(key), std::move(name), "°", 1, std::move(group)};
}
Quantity word(std::string key, std::string name) { return {std::move(key), std::move(name)}; }
Quantity hour_of_day() { return {"hour", "hour"}; }

void add_openness(const Openness& open, std::vector<host::Figure>& figures) {
    figures.push_back({percent("sky_left", "Sky left by what shades it"), 100 * open.sky});
    figures.push_back({percent("ground_left", "Ground left"), 100 * open.ground});
}

std::vector<host::Figure> unit_figures_told(const Window& window) {
    const UnitFigures unit = unit_figures(window);
    std::vector<host::Figure> figures;
    const auto add = [&](const Quantity& quantity, double value, std::string remark = "") {
        if (!std::isnan(value)) figures.push_back({quantity, value, std::move(remark)});
    };
    add({"u_value", "U-value of the glass", "W/m²K", 2}, unit.u_value, "EN 673");
    add(fraction("transmittance", "Solar transmittance"), unit.transmittance, "normal incidence");
    add(fraction("g", "Solar heat gain coefficient g"), unit.g, "normal incidence");
    add(fraction("g_diffuse", "g of diffuse radiation"), unit.g_diffuse);
    add(fraction("shading_coefficient", "Shading coefficient"), unit.g / reference_gain,
        "g by 0.87 of clear glass");
    add(fraction("g_with_blind", "g with the blind"), unit.g_with_blind, "normal incidence");
    add(fraction("g_diffuse_with_blind", "g of diffuse radiation with it"),
        unit.g_diffuse_with_blind);
    add(fraction("shading_coefficient_with_blind", "Shading coefficient with it"),
        unit.g_with_blind / reference_gain);
    return figures;
}

}  // namespace quorvel::window
