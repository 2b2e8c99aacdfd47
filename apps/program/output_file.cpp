#include "program/output_file.h"

#include <cstdio>
#include <fstream>
#include <stdexcept>

#ifdef _WIN32
#include <windows.h>
#endif

namespace quorvel::host {
namespace {

// Over a file of that name.
#ifdef _WIN32
bool put_in_place(const std::string& from, const std::string& to) {
    return MoveFileExA(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING) != 0;
}
#else
bool put_in_place(const std::string& from, const std::string& to) {
    return std::rename(from.c_str(), to.c_str()) == 0;
}
#endif

bool written(const std::string& path, const std::string& bytes) {
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    return stream.good();
}

}  // namespace

void write_file(const std::string& path, const std::string& bytes) {
    const std::string beside = path + ".part";
    if (written(beside, bytes) && put_in_place(beside, path)) return;
    std::remove(beside.c_str());
    throw std::runtime_error(path + ": cannot be written");
}

}  // namespace quorvel::host
