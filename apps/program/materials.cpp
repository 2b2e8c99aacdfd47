// materials: what inputs may call by name.
#include <CLI/CLI.hpp>

#include <memory>

#include "calculation/none.h"
#include "program/commands.h"
#include "program/options.h"
#include "reading/library.h"

namespace quorvel::program {
namespace {

using host::DataTable;
using host::InputTable;
using host::Quantity;
using host::Value;

struct Given {
    std::string word;
    std::vector<std::string> libraries;
};

constexpr host::Range any{-1e9, 1e9, ""};

const Quantity source{"source", "source"};

struct Kind {
    const char* kind;
    const char* title;
    std::vector<Quantity> columns;  // whose keys are those of the entries
};

const std::vector<Kind>& kinds() {
    constexpr int given = host::as_given;
    static const std::vector<Kind> kinds{{"material",
                                          "Materials",
                                          {{"conductivity", "conductivity", "W/mK", given},
                                           {"density", "density", "kg/m³", 0},
                                           {"specific_heat", "specific heat", "J/kgK", 0},
                                           {"mu", "µ dry", "", 0},
                                           {"mu_wet", "µ wet", "", 0},
                                           {"s_d", "s_d", "m", given}}},
                                         {"glass",
                                          "Glass",
                                          {{"thickness", "thickness", "mm", given},
                                           {"transmittance", "transmittance", "", given},
                                           {"reflectance", "reflectance", "", given}}},
                                         {"gas", "Gases between panes", {}},
                                         {"unit", "Glazing units", {}}};
    return kinds;
}

// A number, or the place in a list of one or two: µ dry and wet, reflectances outside and inside.
Value value(const InputTable& entry, const std::string& key) {
    const bool wet = key == "mu_wet";
    const std::string name = wet ? "mu" : key;
    if (!entry.has(name)) return host::none;
    return entry.numbers(name, entry.is_list(name) ? 2 : 1,
                         any)[wet && entry.is_list(name) ? 1 : 0];
}

DataTable table_of(const Kind& kind, const std::vector<host::LibraryEntry>& entries) {
    DataTable table{.key = kind.kind, .title = kind.title, .columns = kind.columns, .rows = {}};
    table.columns.insert(table.columns.begin(), {"name", "name"});
    table.columns.push_back(source);
    for (const auto& [name, entry] : entries) {
        std::vector<Value> row{name};
        for (const Quantity& column : kind.columns) row.push_back(value(entry, column.key));
        row.push_back(entry.has("source") ? entry.text("source", 200) : std::string());
        table.rows.push_back(std::move(row));
    }
    return table;
}

host::Answer list(const Given& given) {
    const host::Library library(given.libraries);
    host::Answer answer{.title = given.word.empty()
                                     ? "Materials by name"
                                     : "Materials with \"" + given.word + "\" in their names"};
    host::Section section;
    for (const Kind& kind : kinds())
        if (const auto entries = library.entries(kind.kind, given.word); !entries.empty())
            section.tables.push_back(table_of(kind, entries));
    if (section.tables.empty()) section.paragraphs = {"There are none."};
    answer.sections.push_back(std::move(section));
    return answer;
}

}  // namespace

Command materials_command() {
    const auto given = std::make_shared<Given>();
    return {
        .name = "materials",
        .purpose = "Materials, glass, gases and glazing units that inputs may call by name",
        .options =
            [given](CLI::App& app) {
                app.add_option("WORD", given->word, "Only those with this in their names")
                    ->option_text(" ");
                add_library_option(app, given->libraries,
                                   "A file of your own, listed with those of the program");
            },
        .report = [given] { return list(*given); },
    };
}

}  // namespace quorvel::program
