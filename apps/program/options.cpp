#include "program/options.h"

#include <CLI/CLI.hpp>

namespace quorvel::program {

void add_library_option(CLI::App& app, std::vector<std::string>& files,
                        const std::string& meaning) {
    app.add_option("--library", files, meaning)->option_text("FILE")->allow_extra_args(false);
}

CLI::Option* add_weather_option(CLI::App& app, std::string& file, const std::string& more) {
    return app.add_option("--weather", file, "A year of hourly weather, an EPW file" + more)
        ->option_text("FILE");
}

}  // namespace quorvel::program
