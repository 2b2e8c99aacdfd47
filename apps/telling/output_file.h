#pragma once

#include <string>
#include <string_view>

namespace quorvel::host {

// Writes a file beside its place and puts it there when it is whole: whatever fails, a file of that
// name stays as it was, and nothing is left beside it. A link is followed, and what is no file,
// such as a device or a pipe, is written to directly. Throws std::runtime_error.
void write_file(const std::string& path, std::string_view bytes);

// All bytes of a file; nothing if it cannot be read.
std::string read_file(const std::string& path);

}  // namespace quorvel::host
