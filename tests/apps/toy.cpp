// The frame of the program around toy commands: answers with all that an answer can have.
#include <CLI/CLI.hpp>

#include <memory>

#include "calculation/none.h"
#include "program/command_line.h"
#include "program/program.h"
#include "reading/input.h"
#include "telling/output_file.h"

namespace {

using namespace quorvel;
using host::Answer;
using host::Quantity;

host::Chart chart(const std::string& words) {
    host::Chart chart(300, 200);
    chart.panel({40, 30, 240, 140});
    chart.horizontal_scale({0, 3, 1});
    chart.vertical_scale({0, 9, 3});
    chart.title(12, words, {});
    chart.mark(2, 4, "4 at 2");
    chart.text(90, 80, "over it", {.backed = true});
    chart.plot(
        {host::curve(chart.data({{0, 0}, {1, 1}, {2, 4}, {3, 9}}), 2, host::colour::ink, 2)});
    return chart;
}

host::DataTable wide_table() {
    host::DataTable table{
        .key = "wide", .title = "Many columns", .columns = {{"month", "month"}}, .rows = {{"May"}}};
    for (int i = 0; i < 12; ++i) {
        table.columns.push_back({"q" + std::to_string(i), "a quantity " + std::to_string(i), "W", 1,
                                 i / 4 == 1 ? "Group" : ""});
        table.rows[0].push_back(i + 0.25);
    }
    return table;
}

host::DataTable hours(const std::string& side, double factor) {
    host::DataTable table{.key = "hours",
                          .title = "Hours " + side,
                          .columns = {{"hour", "hour"}, {"gain", "gain", "W/m²K", 1}},
                          .rows = {},
                          .main = true};
    for (int hour = 1; hour <= 3; ++hour)
        table.rows.push_back({hour * 1.0, hour == 3 ? host::none : factor * hour});
    return table;
}

Answer answer(const std::string& path) {
    const host::InputFile file(path);
    const host::InputTable root = file.root();
    root.expect({"name"},
                {"whole", "one", "range", "only", "list", "part", "choice", "value", "replaced"});
    if (root.has("whole")) root.integer("whole", 1, 6);
    if (root.has("one")) root.integer("one", 1, 1);
    if (root.has("range")) root.number("range", {0, 5, "m"});
    if (root.has("only")) root.number("only", {2, 2, "m"});
    if (root.has("list")) root.numbers("list", 1, {0, 5, "m"});
    if (root.has("part")) root.tables("part", 1, 1);
    static constexpr std::string_view names[] = {"red", "green"};
    if (root.has("choice")) root.choice("choice", names, 1);
    const double value = root.has("value") ? root.number("value", {-1e9, 1e9, "m"}) : 2.345;

    Answer answer{.title = root.text("name"), .subtitle = "a toy & <more>"};
    answer.sections = {{.paragraphs = {"All of it."},
                        .figures = {{{"u_value", "U-value", "W/m²K", 2}, value},
                                    {{"count", "Count"},
                                     7.0,
                                     "whole, with a remark that goes on and on until it reaches "
                                     "the edge and beyond, to the next line"},
                                    {{"given", "Given", "%", host::as_given}, value},
                                    {{"unknown", "Unknown", "°C", 1}, host::none},
                                    {{"kind", "Kind"}, "a \"word\", and more"}},
                        .tables = {wide_table()},
                        .pictures = {{"square", "Squares <and> more", chart("Squares")},
                                     {"the/../second", "Again", chart("Again")}}},
                       {.title = "North side",
                        .key = "north",
                        .figures = {{{"u_value", "U-value", "W/m²K", 2}, 1.0}},
                        .tables = {hours("north", 1)}},
                       {.title = "South side", .key = "south", .tables = {hours("south", 2.04)}}};
    answer.sections[1].tables[0].on_request = true;
    answer.inputs = {
        {.title = "What was asked", .figures = {{{"name", "Name"}, root.text("name")}}}};
    answer.method = {"By a toy."};
    if (root.has("replaced")) answer.warnings = {"3 values replaced"};
    answer.wrong = root.text("name") == "wrong";
    return answer;
}

program::Command reader() {
    return {.name = "read",
            .purpose =
                "Answers about files, in more words than a line of the help has room for, and so "
                "on and on",
            .description = "Reads each of them.",
            .input = "What it is about",
            .answer = answer,
            .details =
                "## Method\n\nBy `toy` means, - and . and \\ too:\n\n    indented as it "
                "is\n\n.dots begin lines\n'quotes too"};
}

program::Command writer() {
    const auto place = std::make_shared<std::string>();
    return {.name = "write",
            .purpose = "Writes a file",
            .options =
                [place](CLI::App& app) { app.add_option("OUT", *place, "The file")->required(); },
            .act = [place] { host::write_file(*place, std::string(100000, 'x')); }};
}

}  // namespace

int main(int argc, char** argv) {
    const program::Command group{
        .name = "group", .purpose = "Has commands of its own", .commands = {reader(), writer()}};
    return host::run("quorvel", [&] {
        return program::run_command_line(argc, argv, {reader(), group});
    });
}
