// quorvel-check: whether the library on this machine is the right one and gives the right results.
#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>

#include "check/arithmetic.h"
#include "check/bits.h"
#include "check/library_identity.h"
#include "conformance/climate_file.h"
#include "conformance/examples.h"
#include "conformance/routine_table.h"
#include "program/options.h"
#include "program/program.h"
#include "quorvel/library.h"

namespace {

using namespace quorvel;

class Report {
  public:
    // A finding may have several lines.
    void line(const std::string& what, const std::string& finding) const {
        std::cout << "  " << what << std::string(12 - what.size(), ' ');
        for (const char c : finding) std::cout << c << (c == '\n' ? std::string(14, ' ') : "");
        std::cout << '\n';
    }
    void verdict(const std::string& what, const std::string& right, const std::string& fault) {
        line(what, fault.empty() ? right : "WRONG: " + fault);
        right_ = right_ && fault.empty();
    }
    bool right() const { return right_; }

  private:
    bool right_ = true;
};

// The first of many, so that the report stays on one screen.
std::string first_of(const std::vector<std::string>& all, const std::string& separator) {
    constexpr std::size_t shown = 4;
    std::string text;
    for (std::size_t i = 0; i < all.size() && i < shown; ++i) text += (i ? separator : "") + all[i];
    if (all.size() > shown) text += separator + std::to_string(all.size() - shown) + " more";
    return text;
}

std::string fault_of_version(const std::string& version) {
    if (version == QUORVEL_VERSION) return "";
    return (version.empty() ? "unknown" : version) + ", and this program checks " + QUORVEL_VERSION;
}

void report_library(Report& report, const check::LibraryIdentity& library) {
    std::cout << "Quorvel on this machine\n";
    report.line("library", library.file);
    report.verdict("version", library.version, fault_of_version(library.version));
}

// Hosts need not have it.
void report_arrays(Report& report, const check::LibraryIdentity& library) {
    const auto [arrays, there, level] = check::array_library_beside(library);
    const std::string name = std::filesystem::path(arrays.file).filename().string();
    if (!there) return report.line("arrays", "no " + name + " beside the library");
    report.verdict("arrays", name + " beside the library, instructions: " + level,
                   level.empty() ? name + " cannot be loaded" : fault_of_version(arrays.version));
}

// False if any is missing.
bool report_routines(Report& report) {
    const auto missing = check::missing_routines();
    report.verdict("routines", std::to_string(conformance::routines().size()) + " are there",
                   missing.empty() ? "" : "without " + first_of(missing, ", "));
    return missing.empty();
}

// After loading: a library may change the state, and those that it brings with it too.
void report_arithmetic(Report& report) {
    report.verdict("arithmetic", "rounds to nearest and keeps subnormal numbers",
                   check::fault_of_arithmetic());
    check::mask_exceptions();
}

void report_values(Report& report) {
    const conformance::ExampleFolder folder;
    std::vector<std::string> faults;
    for (const auto& example : conformance::examples())
        if (auto fault = conformance::fault_of(example); !fault.empty()) faults.push_back(fault);
    report.verdict("values",
                   std::to_string(conformance::examples().size()) + " published examples are met",
                   first_of(faults, "\n"));
}

void report_bits(Report& report) {
    const auto [routines, calls, differing] = check::compare_bits();
    report.verdict("bits",
                   std::to_string(routines) + " routines give the bits they must, in " +
                       std::to_string(calls) + " calls",
                   differing.empty() ? "" : "other results from " + first_of(differing, ", "));
}

bool check_installation(bool quick) {
    host::load_library();
    Report report;
    const check::LibraryIdentity library = check::loaded_library();
    report_library(report, library);
    const bool complete = report_routines(report);
    report_arithmetic(report);
    report_arrays(report, library);
    if (complete) report_values(report);
    if (complete && !quick) report_bits(report);
    std::cout << (report.right() ? "All is right.\n" : "Do not rely on its results here.\n");
    return report.right();
}

}  // namespace

int main(int argc, char** argv) {
    bool right = true;
    const int status = host::run("quorvel-check", [&] {
        bool quick = false;
        CLI::App app{
            "Checks the Quorvel library of this machine: that it can be loaded, is of this "
            "version, gives\nthe published values, and gives the same bits as on every other "
            "machine."};
        app.name("quorvel-check");
        app.add_flag("--quick", quick,
                     "Leave out the comparison of bits, which takes some seconds");
        app.footer(
            "The library, quorvel.dll or libquorvel.so, is looked for beside the program, or is "
            "the\nfile that the environment variable QUORVEL_LIBRARY names. Of the array library "
            "beside it\n"
            "the version is checked, and the level of instructions told that it uses here.\n"
            "Exit status: 0 all is right, 1 something is not, 2 bad command line.");
        if (host::parse(app, argc, argv)) right = check_installation(quick);
    });
    return status == host::success && !right ? host::failure : status;
}
