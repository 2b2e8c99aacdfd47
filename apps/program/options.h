// Options that several commands have.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
class Option;
}  // namespace CLI

namespace quorvel::program {

// --library FILE, as often as one likes: things that the user calls by name.
void add_library_option(CLI::App& app, std::vector<std::string>& files, const std::string& meaning);

// --weather FILE
CLI::Option* add_weather_option(CLI::App& app, std::string& file, const std::string& more = "");

}  // namespace quorvel::program
