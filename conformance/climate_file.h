// Climate data files for tests and benchmarks.
#pragma once

#include <array>
#include <cstdint>
#include <filesystem>
#include <span>
#include <vector>

#include "conformance/random_arguments.h"
#include "quorvel/climate_file_layout.h"

namespace quorvel::conformance {

using climate_file_layout::record_bytes;

// A file's content, to be filled value by value. It ends with the last row of the last station; all
// that has no value yet is random, as the unused parts of real files may be.
class ClimateFileImage {
  public:
    ClimateFileImage(std::int32_t H, int last_station, std::uint64_t seed = 1);

    // Number of the record with a row of a station, rows counted from 0.
    std::int64_t record_of(std::int64_t station, int row) const;
    float value(int station, int row, int month) const;
    void set(int station, int row, int month, float value);
    // A plausible climate: hours, rising frequencies, quantities within their physical ranges.
    void fill(int station, Random& random);

    std::span<std::byte> bytes() { return std::as_writable_bytes(std::span(words_)); }
    std::int32_t H() const { return H_; }
    void save(const std::filesystem::path& path) const;

  private:
    std::size_t word(int station, int row, int month) const;

    std::int32_t H_;
    std::vector<std::uint32_t> words_;  // in the order of the file
};

// A new empty folder, removed with all in it at the end.
class TemporaryFolder {
  public:
    TemporaryFolder();
    ~TemporaryFolder();
    TemporaryFolder(const TemporaryFolder&) = delete;

    const std::filesystem::path& path() const { return path_; }

  private:
    std::filesystem::path path_;
};

// The example file of random arguments, always the same.
void save_example(const std::filesystem::path& path);

// While it lives, the working folder has the example file of random arguments in it. To be made
// after the library is loaded, whose name may be relative.
class ExampleFolder {
  public:
    ExampleFolder();
    ~ExampleFolder();

  private:
    TemporaryFolder folder_;
    std::filesystem::path before_;
};

// Brings the library into one and the same state, with the example file of the working folder on
// its unit.
void open_example();

}  // namespace quorvel::conformance
