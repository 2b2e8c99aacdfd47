// In place of libFuzzer's main: gives the files of the folders named to a harness, once each.
#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/bytes.h"

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> files_of(const fs::path& folder) {
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder)) files.push_back(fs::absolute(entry));
    std::ranges::sort(files);
    return files;
}

void replay(const fs::path& path) {
    std::ifstream stream(path, std::ios::binary);
    const std::vector<char> bytes(std::istreambuf_iterator<char>(stream), {});
    std::printf("%s\n", path.c_str());
    std::fflush(stdout);
    LLVMFuzzerTestOneInput(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
}

}  // namespace

int main(int argc, char** argv) {
    std::vector<fs::path> files;  // first of all: a harness may change the working folder
    for (int i = 1; i < argc; ++i) std::ranges::copy(files_of(argv[i]), std::back_inserter(files));
    for (const fs::path& file : files) replay(file);
    return files.empty();
}
