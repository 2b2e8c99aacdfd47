#include "program/outputs.h"

#include <CLI/CLI.hpp>

#include <filesystem>
#include <iostream>
#include <set>

#include "program/library_identity.h"
#include "program/pictures.h"
#include "program/program.h"
#include "reading/input.h"
#include "telling/as_csv.h"
#include "telling/as_html.h"
#include "telling/as_json.h"
#include "telling/as_text.h"
#include "text/text.h"

namespace quorvel::program {
namespace {

using host::Answered;
using host::InputError;

void add_picture_options(CLI::App& app, std::vector<std::string>& files) {
    const auto add = [&](const char* name, const char* meaning, const std::string& ending) {
        app.add_option_function<std::string>(
               name,
               [&files, name, ending](const std::string& file) {
                   const std::string told = picture_ending(file);
                   if (!ending.empty() && told != ending)
                       throw CLI::ValidationError(name, file + " does not end in " + ending);
                   files.push_back(file);
               },
               meaning)
            ->option_text("FILE")
            ->group("Output");
    };
    add("--svg", "Draw the chart into this SVG file (needs gnuplot)", ".svg");
    add("--pdf", "Draw it into this PDF file", ".pdf");
    add("--png", "Draw it into this PNG file", ".png");
    add("--chart", "Draw it into a file of the kind that its ending names", "");
}

void tell_warnings(const std::string& command, std::span<const Answered> answers, bool strict) {
    std::vector<std::string> lines;
    for (const auto& [input, answer] : answers)
        for (const std::string& warning : answer.warnings) {
            const std::string place = input.empty() ? "quorvel " + command : host::told_path(input);
            lines.push_back(place + (strict ? ": " : ": warning: ") + warning);
        }
    if (strict && !lines.empty()) throw InputError::all(lines);
    for (const std::string& line : lines) std::cerr << line << '\n';
}

std::string table_asked_for(std::span<const Answered> answers, const std::string& key) {
    if (key.empty()) return host::main_table(answers);
    const auto keys = host::table_keys(answers);
    if (std::ranges::find(keys, key) != keys.end()) return key;
    const std::vector<std::string_view> views(keys.begin(), keys.end());
    throw InputError("--table: no table \"" + key + "\"; there are " + host::joined(views));
}

// A report is worth having without its charts, where there is nothing that draws.
host::Draw drawing_for_report(bool strict) {
    return [strict](const host::Chart& chart) -> std::string {
        try {
            return chart.draw(host::Format::svg);
        } catch (const std::runtime_error& fault) {
            if (strict) throw;
            std::cerr << "quorvel: warning: a chart is left out of the report: " << fault.what()
                      << '\n';
            return "";
        }
    };
}

// One file is not to be two outputs, nor an input too.
void check_places(std::span<const Answered> answers, const std::vector<File>& files) {
    namespace fs = std::filesystem;
    std::set<fs::path> places;
    for (const File& file : files) {
        std::error_code ignored;
        if (!places.insert(fs::weakly_canonical(fs::absolute(file.path), ignored)).second)
            throw InputError(file.path + ": is to be written twice");
        for (const Answered& answered : answers)
            if (fs::is_regular_file(file.path, ignored) &&
                fs::equivalent(answered.input, file.path, ignored))
                throw InputError(file.path + ": is to be read and written");
    }
}

}  // namespace

void add_output_options(CLI::App& app, Outputs& outputs, bool pictures) {
    const auto flag = [&](const char* name, bool& value, const char* meaning) {
        return app.add_flag(name, value, meaning)->group("Output");
    };
    const auto text = [&](const char* name, std::string& value, const char* placeholder,
                          const char* meaning) {
        return app.add_option(name, value, meaning)->option_text(placeholder)->group("Output");
    };
    auto* const csv = flag("--csv", outputs.csv, "Write a table as comma-separated values");
    text("--table", outputs.table, "KEY",
         "With --csv: which table; an unknown KEY has those named that there are")
        ->needs(csv);
    flag("--json", outputs.json, "Write everything as JSON")->excludes(csv);
    flag("--tables", outputs.tables, "Print long tables too")->excludes(csv);
    text("-o,--output", outputs.output, "FILE", "Write into this file, not on standard output");
    text("--html", outputs.html, "FILE", "Write a report with inputs, method, tables and charts");
    if (pictures) add_picture_options(app, outputs.pictures);
    flag("--strict", outputs.strict, "Refuse what otherwise gets a warning");
}

int deliver(const std::string& command, std::span<const Answered> answers, const Outputs& outputs) {
    tell_warnings(command, answers, outputs.strict);
    host::Origin origin{command, QUORVEL_VERSION, ""};
    if (outputs.json || !outputs.html.empty()) origin.library_version = library_version();

    std::vector<File> files = pictures(answers, outputs.pictures);
    std::string text = outputs.json ? host::as_json(origin, answers)
                       : outputs.csv
                           ? host::as_csv(answers, table_asked_for(answers, outputs.table))
                           : host::as_text(answers, outputs.tables);
    if (!outputs.output.empty()) files.push_back({outputs.output, [&] { return text; }});
    if (!outputs.html.empty())
        files.push_back(
            {outputs.html,
             [&] { return host::as_html(origin, answers, drawing_for_report(outputs.strict)); }});
    check_places(answers, files);
    write(files);
    if (outputs.output.empty()) std::cout << text;
    const bool wrong =
        std::ranges::any_of(answers, [](const Answered& told) { return told.answer.wrong; });
    return wrong ? host::failure : host::success;
}

}  // namespace quorvel::program
