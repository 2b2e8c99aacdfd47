// Climate data files, written and looked through.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "climate/station.h"

namespace quorvel::climatefile {

// The bytes of a file of these stations. Numbers left out become stations of zeros.
std::string data_file(const std::vector<Station>& stations);

// Where the stations of a file lie. Its values are read by the library, of which one process can
// read one file only.
class DataFile {
  public:
    // Of any length. Throws host::InputError when there is no file.
    explicit DataFile(std::string path);

    const std::string& path() const { return path_; }
    std::int64_t bytes() const { return bytes_; }
    std::int64_t records() const { return bytes_ / record_bytes; }
    std::int32_t H() const { return H_; }
    std::int64_t last_station() const;       // that begins in the file
    bool holds(std::int64_t station) const;  // as a whole

    // Throws host::InputError when it is not in the file.
    Station station(int number) const;

  private:
    std::string path_;
    std::int64_t bytes_ = 0;
    std::int32_t H_ = 0;
};

}  // namespace quorvel::climatefile
