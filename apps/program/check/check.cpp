// check: whether the library on this machine is the right one and gives the right results.
#include <CLI/CLI.hpp>

#include <filesystem>
#include <memory>
#include <sstream>

#include "calculation/none.h"
#include "conformance/climate_file.h"
#include "conformance/examples.h"
#include "conformance/routine_table.h"
#include "program/check/arithmetic.h"
#include "program/check/bits.h"
#include "program/commands.h"
#include "program/library_identity.h"
#include "quorvel/library.h"
#include "text/text.h"

namespace quorvel::program {
namespace {

using host::Answer;
using host::DataTable;

// What was looked at, whether it is right, and what was found.
class Findings {
  public:
    void tell(const std::string& item, const std::string& finding) {
        add(item, host::none, finding);
    }
    void judge(const std::string& item, const std::string& right, const std::string& fault) {
        add(item, std::string(fault.empty() ? "right" : "WRONG"), fault.empty() ? right : fault);
        right_ = right_ && fault.empty();
    }
    bool right() const { return right_; }

    DataTable table() const {
        return {.key = "findings",
                .title = {},
                .columns = {{"item", "item"}, {"verdict", "verdict"}, {"finding", "finding"}},
                .rows = rows_};
    }

  private:
    void add(const std::string& item, const host::Value& verdict, const std::string& finding) {
        rows_.push_back({item, verdict, finding});
    }

    std::vector<std::vector<host::Value>> rows_;
    bool right_ = true;
};

// The first of many, so that the findings stay on one screen.
std::vector<std::string> first_of(std::vector<std::string> all) {
    constexpr std::size_t shown = 4;
    if (all.size() <= shown) return all;
    const std::string more = std::to_string(all.size() - shown) + " more";
    all.resize(shown);
    all.push_back(more);
    return all;
}

// Without the line ends and indents of what was printed for reading.
std::string on_one_line(const std::string& text) {
    std::istringstream words(text);
    std::string line;
    for (std::string word; words >> word;) line += (line.empty() ? "" : " ") + word;
    return line;
}

std::string in_a_row(const std::vector<std::string>& names) {
    const auto first = first_of(names);
    const std::vector<std::string_view> views(first.begin(), first.end());
    return host::joined(views);
}

std::string fault_of_version(const std::string& version) {
    if (version == QUORVEL_VERSION) return "";
    return (version.empty() ? "unknown" : version) + ", and this program checks " + QUORVEL_VERSION;
}

void look_at_library(Findings& findings, const LibraryIdentity& library) {
    findings.tell("library", library.file);
    findings.judge("version", library.version, fault_of_version(library.version));
}

// Hosts need not have it.
void look_at_arrays(Findings& findings, const LibraryIdentity& library) {
    const auto [arrays, there, level] = array_library_beside(library);
    const std::string name = std::filesystem::path(arrays.file).filename().string();
    if (!there) return findings.tell("arrays", "no " + name + " beside the library");
    findings.judge("arrays", name + " beside the library, instructions: " + level,
                   level.empty() ? name + " cannot be loaded" : fault_of_version(arrays.version));
}

// False if any is missing.
bool look_at_routines(Findings& findings) {
    const auto missing = missing_routines();
    findings.judge("routines", std::to_string(conformance::routines().size()) + " are there",
                   missing.empty() ? "" : "without " + in_a_row(missing));
    return missing.empty();
}

// After loading: a library may change the state, and those that it brings with it too.
void look_at_arithmetic(Findings& findings) {
    findings.judge("arithmetic", "rounds to nearest and keeps subnormal numbers",
                   fault_of_arithmetic());
    mask_exceptions();
}

void look_at_values(Findings& findings) {
    const conformance::ExampleFolder folder;
    std::vector<std::string> faults;
    for (const auto& example : conformance::examples())
        if (auto fault = conformance::fault_of(example); !fault.empty()) faults.push_back(fault);
    for (const std::string& fault : first_of(faults))
        findings.judge("values", "", on_one_line(fault));
    if (faults.empty())
        findings.judge(
            "values",
            std::to_string(conformance::examples().size()) + " published examples are met", "");
}

void look_at_bits(Findings& findings) {
    const auto [routines, calls, differing] = compare_bits();
    findings.judge("bits",
                   std::to_string(routines) + " routines give the bits they must, in " +
                       std::to_string(calls) + " calls",
                   differing.empty() ? "" : "other results from " + in_a_row(differing));
}

Answer look_at_installation(bool quick) {
    host::load_library();
    Findings findings;
    const LibraryIdentity library = loaded_library();
    look_at_library(findings, library);
    const bool complete = look_at_routines(findings);
    look_at_arithmetic(findings);
    look_at_arrays(findings, library);
    if (complete) look_at_values(findings);
    if (complete && !quick) look_at_bits(findings);
    const bool right = findings.right();
    return {.title = "Quorvel on this machine",
            .subtitle = right ? "All is right." : "Do not rely on its results here.",
            .sections = {{.tables = {findings.table()}}},
            .wrong = !right};
}

constexpr const char* description =
    "Looks at the Quorvel library of this machine: that it can be loaded, is of this version, "
    "gives the published values, and gives the same bits as on every other machine.";

constexpr const char* details =
    "Of the array library beside it the version is checked, and the level of instructions told "
    "that it uses here. The comparison of bits takes some seconds. Where anything is not right, "
    "the exit status is 1.";

}  // namespace

Command check_command() {
    const auto quick = std::make_shared<bool>(false);
    return {
        .name = "check",
        .purpose = "Whether the library of this machine gives the right results",
        .description = description,
        .options =
            [quick](CLI::App& app) {
                app.add_flag("--quick", *quick, "Leave out the comparison of bits");
            },
        .report = [quick] { return look_at_installation(*quick); },
        .details = details,
    };
}

}  // namespace quorvel::program
