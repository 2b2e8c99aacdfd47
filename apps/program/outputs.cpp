#include "program/outputs.h"

#include <CLI/CLI.hpp>

#include <iostream>

#include "program/program.h"
#include "telling/as_text.h"

namespace quorvel::program {

void add_output_options(CLI::App&, Outputs&) {}

int deliver(const std::string&, const std::vector<Told>& answers, const Outputs&) {
    for (const Told& told : answers) std::cout << host::as_text(told.answer);
    return host::success;
}

}  // namespace quorvel::program
