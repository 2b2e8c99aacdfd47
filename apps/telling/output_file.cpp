#include "telling/output_file.h"

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "telling/unique_name.h"

namespace quorvel::host {
namespace {

namespace fs = std::filesystem;

[[noreturn]] void fail(const std::string& path, const std::string& reason) {
    throw std::runtime_error(path + ": cannot be written" + (reason.empty() ? "" : ": " + reason));
}

std::string last_error() { return errno ? std::strerror(errno) : ""; }

void write_directly(const fs::path& path, std::string_view bytes) {
    errno = 0;
    std::ofstream stream(path, std::ios::binary);
    stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    stream.close();
    if (!stream) fail(path.string(), last_error());
}

// Removes the file unless it has found its place.
struct Beside {
    fs::path path;
    ~Beside() {
        std::error_code ignored;
        fs::remove(path, ignored);
    }
};

// Where the links lead, whether or not there is a file yet.
fs::path target_of(fs::path path) {
    constexpr int most_links = 40;  // as the system has it
    for (int links = 0; fs::is_symlink(path); ++links) {
        if (links == most_links) fail(path.string(), "too many links");
        path = path.parent_path() / fs::read_symlink(path);
    }
    return path;
}

// A file that may not be written to may not be replaced either.
bool may_write(const fs::path& path) { return std::ofstream(path, std::ios::app).is_open(); }

void replace(const fs::path& path, std::string_view bytes) {
    const bool there = fs::exists(path);
    errno = 0;
    if (there && !may_write(path)) fail(path.string(), last_error());
    const Beside beside{path.parent_path() / (path.filename().string() + unique_name() + ".part")};
    try {
        write_directly(beside.path, bytes);
    } catch (const std::runtime_error&) {
        fail(path.string(), last_error());
    }
    if (there) fs::permissions(beside.path, fs::status(path).permissions());
    fs::rename(beside.path, path);
}

}  // namespace

void write_file(const std::string& path, std::string_view bytes) {
    try {
        const fs::path target = target_of(path);
        const fs::file_status status = fs::status(target);
        if (fs::exists(status) && !fs::is_regular_file(status) && !fs::is_directory(status))
            write_directly(target, bytes);
        else
            replace(target, bytes);
    } catch (const fs::filesystem_error& fault) {
        fail(path, fault.code().message());
    }
}

std::string read_file(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

}  // namespace quorvel::host
