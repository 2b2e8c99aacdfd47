// The climate data file: records of 432 bytes, nine rows of twelve numbers each. Record 1 is the
// header, whose second word H places the stations; a station has 19 records.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "climate/station.h"

namespace quorvel::climatefile {

inline constexpr std::int64_t record_bytes = 432;
inline constexpr int station_records = 19;

// Of a station's first record. H = 0 puts station 1 at record 3, as near to the header as can be:
// record 2 would need H = -1, which the library takes for a header not yet read.
constexpr std::int64_t first_record(std::int64_t station, std::int64_t H) {
    return station_records * station + (H - 1) / 18 + H - 16;
}

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
