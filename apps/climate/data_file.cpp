#include "climate/data_file.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <fstream>

#include "quorvel/climate.h"
#include "reading/input.h"

namespace quorvel::climatefile {
namespace {

// Puts station 1 at record 3, as near to the header as can be: record 2 would need H = -1, which
// the library takes for a header not yet read.
constexpr std::int32_t written_H = 0;
static_assert(first_record(1, written_H) == 3);
static_assert(sizeof(Station::rows) == station_records * record_bytes);

std::size_t begin_of(int station) {
    return static_cast<std::size_t>(value_offset(station, written_H, 0, 0));
}

using Number = std::array<char, 4>;

Number bytes_of(float value) {
    return std::bit_cast<Number>(file_order(std::bit_cast<std::uint32_t>(value)));
}

}  // namespace

std::string data_file(const std::vector<Station>& stations) {
    int last = 0;
    for (const Station& station : stations) last = std::max(last, station.number);
    std::string bytes(begin_of(last + 1), '\0');
    for (const Station& station : stations) {
        auto to = bytes.begin() + static_cast<std::ptrdiff_t>(begin_of(station.number));
        for (const MonthlyRow& row : station.rows)
            for (const float value : row) to = std::ranges::copy(bytes_of(value), to).out;
    }
    return bytes;
}

DataFile::DataFile(std::string path) : path_(std::move(path)) {
    std::ifstream stream(path_, std::ios::binary | std::ios::ate);
    bytes_ = static_cast<std::int64_t>(stream.tellg());
    char header[8] = {};
    stream.seekg(0);
    stream.read(header, std::min<std::int64_t>(bytes_, sizeof header));  // a folder opens as well
    if (!stream) throw host::InputError(path_ + ": cannot be read");
    std::uint32_t H;
    std::memcpy(&H, header + header_offset, sizeof H);
    H_ = static_cast<std::int32_t>(file_order(H));
}

std::int64_t DataFile::last_station() const {
    const std::int64_t behind_station_0 = records() - first_record(0, H_);
    return behind_station_0 < 0 ? -1 : behind_station_0 / station_records;
}

bool DataFile::holds(std::int64_t station) const {
    return first_record(station, H_) > 1 && first_record(station + 1, H_) - 1 <= records();
}

Station DataFile::station(int number) const {
    if (!holds(number))
        throw host::InputError(path_ + ": station " + std::to_string(number) + ": not in the file");
    std::array<float, 11 * month_count> records{};
    lib::CLBNF0(path_, number, 1, records);  // for the rows read below, whatever it returns
    Station station;
    station.name = "Station " + std::to_string(number);
    station.number = number;
    for (std::size_t row = 0; row < station_rows; ++row)
        lib::CLBNF3(static_cast<int>(row) + 1, station.rows[row]);
    return station;
}

}  // namespace quorvel::climatefile
