#include "program/page.h"

#include <CLI/CLI.hpp>

#include <map>
#include <sstream>

#include "program/command.h"
#include "text/text.h"

namespace quorvel::program {
namespace {

constexpr std::size_t widest = 78;
constexpr std::size_t meanings = 25;  // where they begin

constexpr const char* exit_status = R"(## Exit status

0: done. 1: what was checked is not right, or anything that is not the
input's fault, such as a missing library. 2: bad input, with one line for each
fault that says where and what is allowed.)";

constexpr const char* environment = R"(## Environment

The library, quorvel.dll or libquorvel.so, is looked for beside the program,
or is the file that the variable QUORVEL_LIBRARY names.)";

const std::map<std::string_view, std::string_view>& input_languages() {
    static const std::map<std::string_view, std::string_view> languages{
#include "input_languages.inc"
    };
    return languages;
}

std::string full_name(const CLI::App& app) {
    const std::string above = app.get_parent() ? full_name(*app.get_parent()) + ' ' : "";
    return above + app.get_name();
}

// -o, --output FILE
std::string term_of(const CLI::Option& option) {
    std::string term;
    for (const std::string& name : option.get_snames()) term += (term.empty() ? "-" : ", -") + name;
    for (const std::string& name : option.get_lnames())
        term += (term.empty() ? "--" : ", --") + name;
    const std::string& text = option.get_option_text();
    if (option.get_positional()) return option.get_name() + (text == "..." ? text : "");
    return text.empty() ? term : term + ' ' + text;
}

Group positionals(const CLI::App& app) {
    Group group;
    for (const CLI::Option* option : app.get_options())
        if (option->get_positional())
            group.entries.push_back({term_of(*option), option->get_description()});
    return group;
}

Group options(const CLI::App& app, const std::string& title) {
    Group group{title, {}};
    for (const CLI::Option* option : app.get_options())
        if (option->nonpositional() && option->get_group() == title)
            group.entries.push_back({term_of(*option), option->get_description()});
    return group;
}

Group subcommands(const CLI::App& app) {
    Group group{"Commands", {}};
    for (const CLI::App* command : app.get_subcommands([](const CLI::App*) { return true; }))
        if (!command->get_group().empty())
            group.entries.push_back({command->get_name(), command->get_description()});
    return group;
}

std::string usage_of(const CLI::App& app) {
    std::string usage = full_name(app);
    if (!subcommands(app).entries.empty()) usage += " COMMAND";
    usage += " [OPTIONS]";
    for (const CLI::Option* option : app.get_options())
        if (option->get_positional())
            usage +=
                ' ' + (option->get_required() ? term_of(*option) : '[' + term_of(*option) + ']');
    return usage;
}

std::string entries_text(const Group& group) {
    std::string text;
    for (const auto& [term, meaning] : group.entries) {
        std::string block = host::wrapped(meaning, widest, meanings);
        if (host::character_count(term) + 4 <= meanings)
            block.replace(0, 2 + term.size(), "  " + term);
        else
            block.insert(0, "  " + term + '\n');
        text += block;
    }
    return text;
}

void append(std::string& text, const std::string& block) {
    if (!block.empty()) text += '\n' + block;
}

// Written to be read as it is: only the marks of headings go, and long lines of running text are
// broken.
std::string plain_text(const std::string& markdown) {
    std::string text;
    std::istringstream lines(markdown);
    for (std::string line; std::getline(lines, line);) {
        if (line.starts_with('#')) line.erase(0, line.find_first_not_of("# "));
        const bool running = !line.starts_with(' ') && !line.starts_with('|');
        if (running && host::character_count(line) > widest)
            text += host::wrapped(line, widest);
        else
            text += line + '\n';
    }
    return text;
}

// The command that a command belongs to tells what they have in common.
std::string see_also(const Page& page) {
    if (std::ranges::count(page.name, ' ') < 2) return "";
    return "See also: " + page.related.front() + " --help\n";
}

}  // namespace

Page page_of(const CLI::App& app, const Command* command) {
    Page page{full_name(app), app.get_description(), usage_of(app), "", {}, {}, {}};
    for (Group group : {positionals(app), subcommands(app)})
        page.groups.push_back(std::move(group));
    for (const std::string& title : app.get_groups())
        if (!title.empty()) page.groups.push_back(options(app, title));
    std::erase_if(page.groups, [](const Group& group) { return group.entries.empty(); });
    if (command) {
        page.description = command->description;
        const auto language = input_languages().find(command->name);
        const bool of_program = app.get_parent() && !app.get_parent()->get_parent();
        if (of_program && language != input_languages().end())
            page.topics.emplace_back(language->second);
        if (!command->details.empty()) page.topics.push_back(command->details);
    }
    page.topics.emplace_back(exit_status);
    page.topics.emplace_back(environment);
    if (app.get_parent()) page.related.push_back(full_name(*app.get_parent()));
    for (const CLI::App* part : app.get_subcommands([](const CLI::App*) { return true; }))
        if (!part->get_group().empty()) page.related.push_back(full_name(*part));
    return page;
}

std::string as_help(const Page& page) {
    std::string text = host::wrapped(page.name + ": " + page.purpose, widest) + "\n" +
                       host::wrapped("Usage: " + page.usage, widest);
    if (!page.description.empty()) append(text, host::wrapped(page.description, widest));
    for (const Group& group : page.groups)
        append(text, (group.title.empty() ? "" : group.title + ":\n") + entries_text(group));
    for (const std::string& topic : page.topics) append(text, plain_text(topic));
    append(text, see_also(page));
    return text;
}

std::string page_file(const Page& page) {
    std::string name = page.name;
    std::ranges::replace(name, ' ', '-');
    return name;
}

}  // namespace quorvel::program
