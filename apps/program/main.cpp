// quorvel: answers of building physics, worked out with the Quorvel library.
#include "program/command_line.h"
#include "program/program.h"

int main(int argc, char** argv) {
    int status = quorvel::host::success;
    const int failed = quorvel::host::run(
        "quorvel", [&] { status = quorvel::program::run_command_line(argc, argv); });
    return failed ? failed : status;
}
