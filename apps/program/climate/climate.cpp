// climate: makes climate data files, and looks into them.
#include <CLI/CLI.hpp>

#include <iostream>
#include <memory>
#include <numeric>
#include <optional>

#include "program/climate/files.h"
#include "program/commands.h"
#include "quorvel/library.h"
#include "reading/climate/data_file.h"
#include "reading/climate/rules.h"
#include "telling/climate/files.h"
#include "telling/climate/station_answer.h"
#include "telling/output_file.h"

namespace quorvel::program {
namespace {

using climatefile::DataFile;

CLI::Option* required(CLI::App& app, const char* name, std::string& value, const char* meaning) {
    return app.add_option(name, value, meaning)->required()->option_text(" ");
}

struct Packing {
    std::string output;
    std::vector<std::string> inputs;
};

Command pack_command() {
    const auto given = std::make_shared<Packing>();
    return {
        .name = "pack",
        .purpose = "Make a climate data file from station files",
        .options =
            [given](CLI::App& app) {
                required(app, "OUT", given->output,
                         "The climate data file, such as europe.climate");
                app.add_option("STATION", given->inputs,
                               "Station files, or folders whose .toml files are all taken")
                    ->required()
                    ->option_text("...");
            },
        .act = [given] { pack_stations(given->output, given->inputs); },
    };
}

struct Shown {
    std::string file, output;
    int station = 1;
    std::optional<int> month, set;
};

void add_file_and_station(CLI::App& app, Shown& given) {
    required(app, "FILE", given.file, "A climate data file");
    app.add_option("STATION", given.station, "Number of the station")->required()->option_text(" ");
}

// The one asked for, counted from 1, or all.
std::vector<std::size_t> chosen(std::optional<int> one, std::size_t count) {
    if (one) return {static_cast<std::size_t>(*one - 1)};
    std::vector<std::size_t> all(count);
    std::iota(all.begin(), all.end(), std::size_t{0});
    return all;
}

Command show_command() {
    const auto given = std::make_shared<Shown>();
    return {
        .name = "show",
        .purpose = "Tell a station's bands as tables",
        .options =
            [given](CLI::App& app) {
                add_file_and_station(app, *given);
                app.add_option("--month", given->month, "Only this month, 1 to 12")
                    ->check(CLI::Range(1, 12))
                    ->option_text("M");
                app.add_option("--set", given->set, "Only this set, 1 or 2")
                    ->check(CLI::Range(1, 2))
                    ->option_text("S");
            },
        .report =
            [given] {
                const DataFile file(given->file);
                host::load_library();
                return climatefile::told(file.station(given->station),
                                         chosen(given->set, climatefile::set_count),
                                         chosen(given->month, climatefile::month_count));
            },
    };
}

Command unpack_command() {
    const auto given = std::make_shared<Shown>();
    return {
        .name = "unpack",
        .purpose = "Write the station file of a station, for pack to take",
        .options =
            [given](CLI::App& app) {
                add_file_and_station(app, *given);
                app.add_option("-o,--output", given->output,
                               "The station file, otherwise standard output")
                    ->option_text("STATION.toml");
            },
        .act =
            [given] {
                const DataFile file(given->file);
                host::load_library();
                const auto text = climatefile::station_file(file.station(given->station), "");
                if (given->output.empty()) {
                    std::cout << text;
                } else {
                    host::write_file(given->output, text);
                }
            },
    };
}

Command list_command() {
    const auto path = std::make_shared<std::string>();
    return {
        .name = "list",
        .purpose = "Tell which stations a climate data file has, and where they are",
        .options = [path](CLI::App& app) { required(app, "FILE", *path, "A climate data file"); },
        .report =
            [path] {
                const DataFile file(*path);
                host::load_library();
                std::vector<climatefile::Station> stations;
                for (const int number : climatefile::whole_stations(file))
                    if (auto station = file.any_station(number); !station.empty())
                        stations.push_back(std::move(station));
                if (stations.empty())
                    throw host::InputError(*path + ": has no station; see quorvel climate check");
                return climatefile::told_stations(*path, stations);
            },
    };
}

struct Checked {
    std::string file;
    std::optional<int> station;
};

Command check_file_command() {
    const auto given = std::make_shared<Checked>();
    return {
        .name = "check",
        .purpose = "Tell every rule that a climate data file violates",
        .options =
            [given](CLI::App& app) {
                required(app, "FILE", given->file, "A climate data file");
                app.add_option("STATION", given->station, "Only this station")->option_text(" ");
            },
        .report =
            [given] {
                const DataFile file(given->file);
                host::load_library();
                const auto [stations, violations] = climatefile::check(file, given->station);
                return climatefile::told_violations(given->file, stations, violations);
            },
    };
}

Command from_hourly_command() {
    const auto given = std::make_shared<Derivation>();
    return {
        .name = "from-hourly",
        .purpose = "Derive station files from years of hourly weather",
        .options =
            [given](CLI::App& app) {
                app.add_option("YEAR", given->years, "The weather of a year in the EPW format")
                    ->required()
                    ->option_text("...");
                app.add_option("-o,--output", given->output,
                               "The station file to write, or a folder for those of all years")
                    ->required()
                    ->option_text("STATION.toml");
                app.add_option("--station", given->first_number,
                               "Number of the first station, otherwise 1; the others count up")
                    ->check(CLI::Range(1, climatefile::last_station_number))
                    ->option_text("N");
                app.add_option("--name", given->name, "Its name, otherwise that of the place")
                    ->option_text("NAME");
                app.add_flag("--strict", given->strict,
                             "Refuse a year of which anything would be mended or assumed");
            },
        .act = [given] { derive_stations(*given); },
    };
}

}  // namespace

Command climate_command() {
    return {
        .name = "climate",
        .purpose = "Climate data files: made from weather and station files, told and checked",
        .commands = {pack_command(), show_command(), list_command(), check_file_command(),
                     from_hourly_command(), unpack_command()},
    };
}

}  // namespace quorvel::program
