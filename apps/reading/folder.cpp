#include "reading/folder.h"

#include <dirent.h>

#include <algorithm>

namespace quorvel::host {

// Through dirent, since its names are those by which files are opened, on Windows too.
std::optional<std::vector<std::string>> names_in(const std::string& folder) {
    DIR* const opened = opendir(folder.c_str());
    if (!opened) return std::nullopt;
    std::vector<std::string> names;
    while (const dirent* const entry = readdir(opened)) names.push_back(entry->d_name);
    closedir(opened);
    std::ranges::sort(names);
    return names;
}

}  // namespace quorvel::host
