#include "reading/climate/data_file.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>

#include "quorvel/climate.h"
#include "reading/input.h"

namespace quorvel::climatefile {
namespace {

constexpr const char* left_out = "all its values are 0, the file leaves this number out";
constexpr std::size_t record_length = 11;
using Records = std::array<double, record_length * month_count>;

}  // namespace

DataFile::DataFile(std::string path) : path_(std::move(path)), places_(read_places(path_)) {
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

void DataFile::expect(int station) const {
    if (!holds(station)) throw error(station, "not in the file");
}

host::InputError DataFile::error(int station, const char* fault) const {
    return host::InputError(path_ + ": station " + std::to_string(station) + ": " + fault);
}

Station DataFile::any_station(int number) const {
    expect(number);
    lib::station_records(path_, number, 1, Records{});  // for the rows read below
    Station station;
    station.place = place(number);
    station.number = number;
    for (std::size_t row = 0; row < station_rows; ++row)
        std::ranges::transform(lib::station_row(static_cast<int>(row) + 1),
                               station.rows[row].begin(),
                               [](double value) { return static_cast<float>(value); });
    return station;
}

Station DataFile::station(int number) const {
    const Station station = any_station(number);
    if (station.empty()) throw error(number, left_out);
    return station;
}

MonthRecord DataFile::month(int number, int month, int set, double percentage) const {
    expect(number);
    Records records{};
    const std::size_t begin = record_length * static_cast<std::size_t>(month - 1);
    records[begin + 9] = set;
    records[begin + 10] = percentage;
    const auto filled = lib::station_records(path_, number, month, records);
    const auto value = [&](std::size_t i) { return filled[begin + i]; };
    if (std::all_of(&filled[begin], &filled[begin] + 9, [](double x) { return x == 0; }))
        throw error(number, left_out);
    return {value(5), value(2), value(3), value(0)};
}

}  // namespace quorvel::climatefile
