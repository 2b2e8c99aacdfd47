// In place of libFuzzer's main: gives the files of the folders named to a harness.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "fuzz/bytes.h"

namespace {

namespace fs = std::filesystem;

#ifdef __SANITIZE_ADDRESS__
constexpr bool sanitized = true;  // what takes seconds takes minutes
#else
constexpr bool sanitized = false;
#endif

std::vector<fs::path> files_of(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder)) files.push_back(fs::absolute(entry));
    std::ranges::sort(files);
    return files;
}

void give(const std::string& bytes) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

// What a user forgets: the file with each of its lines left out.
void give_without_lines(const std::string& text) {
    for (std::size_t begin = 0, end; begin < text.size(); begin = end) {
        end = std::min(text.find('\n', begin), text.size() - 1) + 1;
        if (text[begin] != '#') give(text.substr(0, begin) + text.substr(end));
    }
}

void replay(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    const std::string bytes(std::istreambuf_iterator<char>(stream), {});
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    give(bytes);
    if (!sanitized && path.extension() == ".toml") give_without_lines(bytes);
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<fs::path> files;  // first of all: a harness may change the working folder
    for (int i = 1; i < argc; ++i) std::ranges::copy(files_of(argv[i]), std::back_inserter(files));
    for (const fs::path& file : files) replay(file);
    return files.empty();
}
