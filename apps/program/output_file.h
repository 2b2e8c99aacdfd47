#pragma once

#include <string>

namespace quorvel::host {

// Writes a file beside its place and then puts it there: whatever fails, a file of that name stays
// as it was. Throws.
void write_file(const std::string& path, const std::string& bytes);

}  // namespace quorvel::host
