// quorvel: answers of building physics, worked out with the Quorvel library.
#include "program/command_line.h"
#include "program/commands.h"
#include "program/program.h"

int main(int argc, char** argv) {
    using namespace quorvel;
    return host::run("quorvel",
                     [&] { return program::run_command_line(argc, argv, program::commands()); });
}
