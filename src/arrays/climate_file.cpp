// Climate data files as objects of the caller's.
#include <algorithm>
#include <cstdlib>
#include <memory>

#include "climate/climate_file.h"
#include "quorvel_arrays.h"

namespace climate = quorvel::climate;

struct quorvel_climate_file {
    climate::RecordFile file;
    climate::ClimateFileState state;
};

namespace {

// The file of an object, which stays open between its calls.
class OpenFile {
  public:
    explicit OpenFile(const climate::RecordFile& file) noexcept : file_(&file) {}

    bool is_open() const noexcept { return file_->is_open(); }
    bool open(const char*) const noexcept { return false; }
    bool read(std::int64_t number, climate::Record& record) const noexcept {
        return file_->read(number, record);
    }

  private:
    const climate::RecordFile* file_;
};
using Reader = climate::ClimateFileReader<OpenFile>;

std::int32_t readable(bool read) noexcept { return read ? QUORVEL_OK : QUORVEL_UNREADABLE; }

// What `work` says of a station of the file, where all that is passed has an address.
template <class Work, class... Outputs>
std::int32_t with_station(quorvel_climate_file* file, std::int32_t station, Work work,
                          const Outputs*... outputs) noexcept {
    if (file == nullptr || ((outputs == nullptr) || ...)) return QUORVEL_NO_ARRAY;
    Reader reader(file->state, OpenFile(file->file));
    reader.select(climate::file_unit, station);
    return readable(work(reader));
}

}  // namespace

// The memory is the C library's: the C++ runtime would be a library that this one does not need.
quorvel_climate_file* quorvel_climate_file_open(const char* path, int32_t* status) {
    std::int32_t ignored;
    if (status == nullptr) status = &ignored;
    *status = QUORVEL_NO_ARRAY;
    if (path == nullptr) return nullptr;
    *status = QUORVEL_NO_MEMORY;
    void* const memory = std::malloc(sizeof(quorvel_climate_file));
    if (memory == nullptr) return nullptr;
    auto* const file = std::construct_at(static_cast<quorvel_climate_file*>(memory));
    *status = QUORVEL_OK;
    if (file->file.open(path)) return file;
    *status = QUORVEL_NO_FILE;
    quorvel_climate_file_close(file);
    return nullptr;
}

void quorvel_climate_file_close(quorvel_climate_file* file) {
    if (file == nullptr) return;
    std::destroy_at(file);
    std::free(file);
}

int32_t quorvel_climate_file_station_climate(quorvel_climate_file* file, int32_t station,
                                             int32_t band, int32_t month, int32_t band_set,
                                             float percentage, float* quantities, float* times) {
    const auto work = [&](Reader& reader) {
        const auto found = reader.station_climate(band, percentage / 100.0f, month, band_set);
        if (!found) return false;
        std::ranges::copy(found->quantities, quantities);
        times[0] = found->time_a;
        times[1] = found->time_b;
        return true;
    };
    return with_station(file, station, work, quantities, times);
}

int32_t quorvel_climate_file_locate_station_band(quorvel_climate_file* file, int32_t station,
                                                 int32_t band_set, float fraction, int32_t month,
                                                 int32_t* lower_band, int32_t* upper_band,
                                                 float* band_weight) {
    const auto work = [&](Reader& reader) {
        if (!reader.load_frequencies(band_set)) return false;
        const auto position = climate::locate_station_band(file->state, fraction, month);
        *lower_band = position.lower;
        *upper_band = position.upper;
        *band_weight = position.weight;
        return true;
    };
    return with_station(file, station, work, lower_band, upper_band, band_weight);
}

int32_t quorvel_climate_file_interpolate_station_rows(quorvel_climate_file* file, int32_t station,
                                                      int32_t base_row, int32_t lower_band,
                                                      int32_t upper_band, int32_t month,
                                                      float band_weight, float* value) {
    const auto work = [&](Reader& reader) {
        const std::int64_t before = std::int64_t{base_row} - 1;
        const auto found = reader.interpolate_station_rows(before + lower_band, before + upper_band,
                                                           month, band_weight);
        if (found) *value = *found;
        return found.has_value();
    };
    return with_station(file, station, work, value);
}

int32_t quorvel_climate_file_station_row(quorvel_climate_file* file, int32_t station, int32_t row,
                                         float* values) {
    const auto work = [&](Reader& reader) {
        const auto* const found = reader.station_row(std::int64_t{row} - 1);
        if (found) std::ranges::copy(*found, values);
        return found != nullptr;
    };
    return with_station(file, station, work, values);
}

int32_t quorvel_climate_file_station_records(quorvel_climate_file* file, int32_t station,
                                             int32_t month, float* records) {
    const auto work = [&](Reader& reader) { return reader.fill_records(month, records); };
    return with_station(file, station, work, records);
}
