#include "conformance/climate_file.h"

#include <algorithm>
#include <bit>
#include <chrono>
#include <fstream>
#include <stdexcept>

#include "quorvel/climate.h"

namespace quorvel::conformance {

namespace layout = climate_file_layout;

namespace {

constexpr int example_stations = 100;

}  // namespace

ClimateFileImage::ClimateFileImage(std::int32_t H, int last_station, std::uint64_t seed) : H_(H) {
    words_.resize(static_cast<std::size_t>(layout::value_offset(last_station + 1, H, 0, 0) / 4));
    Random random(seed);
    for (std::uint32_t& word : words_)
        word = layout::file_order(static_cast<std::uint32_t>(random.bits()));
    words_[1] = layout::file_order(static_cast<std::uint32_t>(H));
}

std::int64_t ClimateFileImage::record_of(std::int64_t station, int row) const {
    return layout::first_record(station, H_) + row / layout::rows_per_record;
}

std::size_t ClimateFileImage::word(int station, int row, int month) const {
    return static_cast<std::size_t>(
        layout::value_offset(station, H_, static_cast<std::size_t>(row), 0) / 4 + month - 1);
}

float ClimateFileImage::value(int station, int row, int month) const {
    return std::bit_cast<float>(layout::file_order(words_.at(word(station, row, month))));
}

void ClimateFileImage::set(int station, int row, int month, float value) {
    words_.at(word(station, row, month)) = layout::file_order(std::bit_cast<std::uint32_t>(value));
}

void ClimateFileImage::fill(int station, Random& random) {
    constexpr struct {
        double low, high;
    } ranges[] = {{0.05, 0.9}, {0, 1.2}, {-5, 30}, {-9, 18}, {-6, 20}, {-9, 16}, {0.1, 0.9}};
    for (int month = 1; month <= 12; ++month)
        for (const std::size_t band_set : {0u, 1u}) {
            const auto first = static_cast<int>(layout::time_row(band_set, 0));
            set(station, first, month, static_cast<float>(14 + random.below(3)));
            set(station, first + 1, month, static_cast<float>(4 + random.below(4)));
            std::array<float, 10> frequency;
            for (float& f : frequency) f = random.real(0, 1);
            frequency[9] = 1.0f;
            std::ranges::sort(frequency);
            for (int band = 0; band < 10; ++band)
                set(station, first + 2 + band, month, frequency[static_cast<std::size_t>(band)]);
            int row = first + 12;
            for (const auto& [low, high] : ranges)
                for (int band = 0; band < 10; ++band)
                    set(station, row++, month, random.real(low, high));
        }
}

void ClimateFileImage::save(const std::filesystem::path& path) const {
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    file.write(reinterpret_cast<const char*>(words_.data()),
               static_cast<std::streamsize>(sizeof words_[0] * words_.size()));
    if (!file.flush()) throw std::runtime_error("cannot write " + path.string());
}

TemporaryFolder::TemporaryFolder() {
    Random random(
        static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count()));
    do
        path_ =
            std::filesystem::temp_directory_path() / ("quorvel-" + std::to_string(random.bits()));
    while (!std::filesystem::create_directory(path_));
}

TemporaryFolder::~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

void save_example(const std::filesystem::path& path) {
    ClimateFileImage example(example_stations, example_stations);
    Random random(2);
    for (int station = 1; station <= example_stations; ++station) example.fill(station, random);
    example.save(path);
}

ExampleFolder::ExampleFolder() : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder_.path());
    save_example(example_file);
}

ExampleFolder::~ExampleFolder() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
}

void open_example() {
    std::array<float, 132> records;
    records.fill(1.0f);
    lib::CLBNF0(std::string(example_file), 1, 0, records);
}

}  // namespace quorvel::conformance
