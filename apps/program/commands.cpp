#include "program/commands.h"

namespace quorvel::program {

std::vector<Command> commands() {
    return {
        window_command(), wall_command(), materials_command(), climate_command(), check_command(),
    };
}

}  // namespace quorvel::program
