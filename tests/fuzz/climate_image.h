// A climate data file that a few words make, so that seeds can be small.
#pragma once

#include <bit>
#include <cstring>
#include <string>

#include "fuzz/bytes.h"
#include "quorvel/climate_file_layout.h"

namespace quorvel::fuzz {

inline constexpr int two_stations = 40 * 432;

struct ClimateImage {
    std::int32_t H = 0;  // second word of the header; 0 lets station 1 begin at record 3
    int length = two_stations;
    std::string_view values;  // over and over; without any, numbers that rise from 0 to 1

    std::string bytes() const {
        std::string file(static_cast<std::size_t>(length), '\0');
        if (values.empty())
            fill_rising(file);
        else
            for (std::size_t i = 0; i < file.size(); ++i) file[i] = values[i % values.size()];
        if (file.size() >= 8) put(static_cast<std::uint32_t>(H), file, 4);
        return file;
    }

  private:
    static void put(std::uint32_t bits, std::string& file, std::size_t offset) {
        bits = climate_file_layout::file_order(bits);
        std::memcpy(&file[offset], &bits, sizeof bits);
    }
    static void fill_rising(std::string& file) {
        for (std::size_t i = 0; i + 4 <= file.size(); i += 4) {
            const float value = static_cast<float>(i % 4096) / 4096;
            put(std::bit_cast<std::uint32_t>(value), file, i);
        }
    }
};

}  // namespace quorvel::fuzz
