// Calls on a climate data file that changes between them, of the library and of its literal form. A
// step is a letter and numbers:
//     h H                                    the header's word
//     n LENGTH                               the file's length
//     x                                      the file is removed
//     0 STATION MONTH SET PERCENTAGE         CLBNF0
//     i UNIT STATION BAND MONTH SET PERCENTAGE   CLBNFI
//     1 FRACTION MONTH                       CLBNF1
//     2 BASE LOWER UPPER MONTH WEIGHT        CLBNF2
//     3 ROW                                  CLBNF3
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <fstream>

#include "fuzz/bytes.h"
#include "fuzz/climate_image.h"
#include "literal/climate_file.h"

namespace quorvel::test {

template <class Library>
class FileSession {
  public:
    FileSession(std::string name, std::string_view values) : name_(std::move(name)) {
        image_.values = values;
    }

    // Whether both do the same: to the bit, but for what is not a number.
    bool step(fuzz::Bytes& script) {
        const char kind = script.letter();
        if (kind == 'h' || kind == 'n' || kind == 'x') return change(kind, script);
        if (kind == '0') return station_records(script);
        if (kind == 'i') return station_climate(script);
        if (kind == '1') return locate(script);
        if (kind == '2') return between(script);
        const int row = script.integer();
        return both([&](auto& file, Values& v) { file.CLBNF3(row, v.data()); });
    }

  private:
    using Values = std::array<float, 132>;

    bool change(char kind, fuzz::Bytes& script) {
        if (kind == 'h') image_.H = script.integer();
        if (kind == 'n') image_.length = script.integer(0, 2 * fuzz::two_stations);
        if (kind == 'x')
            std::remove(name_.c_str());
        else
            save(image_.bytes());
        return true;
    }

    bool station_records(fuzz::Bytes& script) {
        const int station = script.integer(), month = script.integer();
        const auto set = static_cast<float>(script.real()),
                   percentage = static_cast<float>(script.real());
        return both([&](auto& file, Values& v) {
            for (std::size_t i = 0; i < v.size(); i += 11) {
                v[i + 9] = set;
                v[i + 10] = percentage;
            }
            file.CLBNF0(name_, station, month, v.data());
        });
    }

    bool station_climate(fuzz::Bytes& script) {
        const int unit = script.integer(), station = script.integer(), band = script.integer(),
                  month = script.integer(), set = script.integer();
        const auto percentage = static_cast<float>(script.real());
        return both([&](auto& file, Values& v) {
            file.CLBNFI(unit, station, band, month, set, percentage, v[0], v[1], v[2], v[3], v[4],
                        v[5], v[6], v[7], v[8]);
        });
    }

    bool locate(fuzz::Bytes& script) {
        const auto fraction = static_cast<float>(script.real());
        const int month = script.integer();
        return both([&](auto& file, Values& v) {
            int lower = 0, upper = 0;
            file.CLBNF1(fraction, month, lower, upper, v[0]);
            v[1] = static_cast<float>(10 * lower + upper);
        });
    }

    bool between(fuzz::Bytes& script) {
        const int base = script.integer(), lower = script.integer(), upper = script.integer(),
                  month = script.integer();
        const auto weight = static_cast<float>(script.real());
        return both(
            [&](auto& file, Values& v) { file.CLBNF2(base, lower, upper, month, weight, v[0]); });
    }

    void save(const std::string& bytes) const {
        std::ofstream stream(name_, std::ios::binary);
        stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        fuzz::require(static_cast<bool>(stream.flush()), "temporary files can be written");
    }

    template <class Call>
    bool both(Call call) {
        Values ours;
        ours.fill(-1e30f);
        Values literally = ours;
        call(library_, ours);
        call(literal_, literally);
        return std::ranges::equal(ours, literally, [](float a, float b) {
            return std::bit_cast<std::int32_t>(a) == std::bit_cast<std::int32_t>(b) ||
                   (std::isnan(a) && std::isnan(b));
        });
    }

    std::string name_;
    fuzz::ClimateImage image_;
    Library library_;
    literal::ClimateFile<literal::StdioFile> literal_;
};

}  // namespace quorvel::test
