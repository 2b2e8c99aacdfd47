// Climate data files, looked through.
#pragma once

#include <cstdint>
#include <map>
#include <string>

#include "calculation/climate/station.h"
#include "calculation/climate/station_day.h"
#include "reading/climate/place.h"

namespace quorvel::climatefile {

// Where the stations of a file lie, and on earth. Its values are read by the library, of which one
// process can read one file only.
class DataFile {
  public:
    // Of any length. Throws host::InputError when there is no file, or the places beside it are at
    // fault.
    explicit DataFile(std::string path);

    const std::string& path() const { return path_; }
    std::int64_t bytes() const { return bytes_; }
    std::int64_t records() const { return bytes_ / record_bytes; }
    std::int32_t H() const { return H_; }
    std::int64_t last_station() const;       // that begins in the file
    bool holds(std::int64_t station) const;  // as a whole
    Place place(int station) const { return place_of(places_, station); }

    // All throw host::InputError when the station is not in the file; all but the first when the
    // file leaves its number out.
    Station any_station(int number) const;
    Station station(int number) const;
    // At a percentage of days, in set 1 or 2 of a month, 1 to 12. Interpolated as the library does
    // it.
    MonthRecord month(int number, int month, int set, double percentage) const;

  private:
    void expect(int station) const;
    host::InputError error(int station, const char* fault) const;

    std::string path_;
    std::map<int, Place> places_;
    std::int64_t bytes_ = 0;
    std::int32_t H_ = 0;
};

}  // namespace quorvel::climatefile
