#include "program/commands.h"

namespace quorvel::program {

std::vector<Command> commands() {
    return {
        wall_command(),
        materials_command(),
        check_command(),
        climate_command(),
    };
}

}  // namespace quorvel::program
