#include "program/command_line.h"

#include <CLI/CLI.hpp>

#include <iostream>
#include <map>

#include "program/completion.h"
#include "program/library_identity.h"
#include "program/outputs.h"
#include "program/page.h"
#include "program/pictures.h"
#include "program/program.h"
#include "quorvel/library.h"
#include "reading/input.h"

namespace quorvel::program {
namespace {

using host::InputError;

class CommandLine {
  public:
    explicit CommandLine(const std::vector<Command>& commands) {
        app_.name("quorvel");
        app_.set_help_flag("-h,--help", "Print this help");
        app_.add_flag("--version", version_, "Print the versions of program and library");
        app_.add_option("--write-share", share_)->group("");  // for installing
        app_.require_subcommand(0, 1);
        for (const Command& command : commands) add(app_, command);
        help_ = app_.add_subcommand("help", "Print the help of a command");
        help_->add_option("COMMAND", topic_, "The command, with its own where it has any")
            ->option_text("...");
        for (CLI::App* app : all()) app->allow_windows_style_options(false);
    }

    int run(int argc, char** argv) {
        try {
            app_.parse(argc, argv);
        } catch (const CLI::CallForHelp&) {
            return print_help(parsed());
        } catch (const CLI::ExtrasError& fault) {
            if (parts_of(parsed()).empty()) throw fault_of(parsed(), fault.what());
            throw no_command(parsed(), parsed().remaining().front());
        } catch (const CLI::ParseError& fault) {
            throw fault_of(parsed(), fault.what());
        }
        if (version_) return print_version();
        if (!share_.empty()) return write_share();
        if (help_->parsed()) return print_help(named(topic_));
        if (!chosen_)
            throw fault_of(parsed(), "which command? There are " + names_of_parts(parsed()));
        return execute();
    }

  private:
    void add(CLI::App& parent, const Command& command) {
        CLI::App& app = *parent.add_subcommand(command.name, command.purpose);
        described_[&app] = &command;
        for (const Command& part : command.commands) add(app, part);
        if (!command.commands.empty()) app.require_subcommand(0, 1);
        if (command.options) command.options(app);
        if (command.answer)
            app.add_option("FILE", inputs_, command.input + "; - for standard input")
                ->required()
                ->option_text("...");
        if (command.answer || command.report)
            add_output_options(app, outputs_, command.answer != nullptr);
        if (command.commands.empty()) app.callback([this, &command] { chosen_ = &command; });
    }

    // The program, all commands and theirs, each ahead of what is in it.
    std::vector<CLI::App*> all() {
        std::vector<CLI::App*> found{&app_};
        for (std::size_t i = 0; i < found.size(); ++i) {
            const auto parts = found[i]->get_subcommands([](const CLI::App*) { return true; });
            found.insert(found.begin() + static_cast<std::ptrdiff_t>(i) + 1, parts.begin(),
                         parts.end());
        }
        return found;
    }

    // As far as the command line has led.
    const CLI::App& parsed() const {
        const CLI::App* app = &app_;
        while (!app->get_subcommands().empty()) app = app->get_subcommands().front();
        return *app;
    }

    const CLI::App& named(const std::vector<std::string>& words) const {
        const CLI::App* app = &app_;
        for (const std::string& word : words) {
            const auto parts = parts_of(*app);
            const auto found =
                std::ranges::find(parts, word, [](auto* part) { return part->get_name(); });
            if (found == parts.end())
                throw fault_of(*app,
                               "no command \"" + word + "\"; there are " + names_of_parts(*app));
            app = *found;
        }
        return *app;
    }

    Page page(const CLI::App& app) const {
        const auto found = described_.find(&app);
        return page_of(app, found == described_.end() ? nullptr : found->second);
    }

    static std::vector<const CLI::App*> parts_of(const CLI::App& app) {
        return app.get_subcommands([](const CLI::App*) { return true; });
    }

    static std::string names_of_parts(const CLI::App& app) {
        std::vector<std::string> names;
        for (const CLI::App* part : parts_of(app)) names.push_back(part->get_name());
        return CLI::detail::join(names, ", ");
    }

    InputError fault_of(const CLI::App& app, const std::string& what) const {
        const std::string name = page(app).name;
        return InputError(name + ": " + what + "; see " + name + " --help");
    }

    InputError no_command(const CLI::App& app, const std::string& word) const {
        return fault_of(app, "no command \"" + word + "\"; there are " + names_of_parts(app));
    }

    int print_help(const CLI::App& app) const {
        std::cout << as_help(page(app));
        return host::success;
    }

    static int print_version() {
        std::cout << "quorvel " << QUORVEL_VERSION << '\n' << std::flush;
        host::load_library();
        const LibraryIdentity library = loaded_library();
        std::cout << "library " << (library.version.empty() ? "unknown" : library.version) << " ("
                  << library.file << ")\n";
        return host::success;
    }

    // Man pages and completions, into a folder as they are installed.
    int write_share() {
        std::vector<Page> pages;
        std::vector<File> files;
        for (const CLI::App* app : all()) pages.push_back(page(*app));
        for (const Page& page : pages)
            files.push_back({share_ + "/man/man1/" + page_file(page) + ".1",
                             [&page] { return as_man(page, QUORVEL_VERSION); }});
        files.push_back({share_ + "/bash-completion/completions/quorvel",
                         [&pages] { return bash_completion(pages); }});
        files.push_back(
            {share_ + "/zsh/site-functions/_quorvel", [&pages] { return zsh_completion(pages); }});
        files.push_back({share_ + "/fish/vendor_completions.d/quorvel.fish",
                         [&pages] { return fish_completion(pages); }});
        for (const File& file : files)
            std::filesystem::create_directories(std::filesystem::path(file.path).parent_path());
        write(files);
        return host::success;
    }

    int execute() const {
        if (chosen_->act) {
            chosen_->act();
            return host::success;
        }
        return deliver(full_name(), answers(), outputs_);
    }

    std::string full_name() const { return page(parsed()).name.substr(std::size("quorvel")); }

    // Of several inputs the faults of all are told, and nothing is answered.
    std::vector<host::Answered> answers() const {
        if (chosen_->report) return {{"", chosen_->report()}};
        std::vector<host::Answered> answers;
        std::vector<std::string> faults;
        for (const std::string& input : inputs_) try {
                answers.push_back({input, chosen_->answer(input)});
            } catch (const InputError& fault) {
                faults.push_back(fault.what());
            }
        if (!faults.empty()) throw InputError::all(faults);
        return answers;
    }

    CLI::App app_{"Answers of building physics, worked out with the Quorvel library"};
    std::map<const CLI::App*, const Command*> described_;
    CLI::App* help_;
    const Command* chosen_ = nullptr;
    bool version_ = false;
    std::string share_;
    std::vector<std::string> topic_, inputs_;
    Outputs outputs_;
};

}  // namespace

int run_command_line(int argc, char** argv, const std::vector<Command>& commands) {
    return CommandLine(commands).run(argc, argv);
}

}  // namespace quorvel::program
