#include "program/commands.h"

namespace quorvel::program {

std::vector<Command> commands() {
    return {
        check_command(),
        climate_command(),
    };
}

}  // namespace quorvel::program
