// What shells need to complete the program's command lines.
#pragma once

#include <string>
#include <vector>

#include "program/page.h"

namespace quorvel::program {

// From the pages of all commands, that of the program itself first.
std::string bash_completion(const std::vector<Page>& pages);
std::string zsh_completion(const std::vector<Page>& pages);
std::string fish_completion(const std::vector<Page>& pages);

}  // namespace quorvel::program
