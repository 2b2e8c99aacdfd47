// The climate data file as the library reads it: any calls on files that change between them do
// what a single record buffer does. The input is a line of steps,
//     h H                                    the header's word
//     n LENGTH                               the file's length
//     x                                      the file is removed
//     0 STATION MONTH SET PERCENTAGE         CLBNF0
//     i UNIT STATION BAND MONTH SET PERCENTAGE   CLBNFI
//     1 FRACTION MONTH                       CLBNF1
//     2 BASE LOWER UPPER MONTH WEIGHT        CLBNF2
//     3 ROW                                  CLBNF3
// and on a new line the bytes of the file, repeated up to its length.
#include <array>
#include <bit>

#include "fuzz/climate_image.h"
#include "fuzz/input_file.h"
#include "literal/climate_file.h"
#include "quorvel/library.h"

namespace {

using namespace quorvel;

using Values = std::array<float, 132>;

constexpr const char* name = "fuzzed.climate";
constexpr int most_steps = 30;

bool same(float a, float b) {
    return std::bit_cast<std::int32_t>(a) == std::bit_cast<std::int32_t>(b) ||
           (std::isnan(a) && std::isnan(b));
}

// The exported routines, in the form of their literal form.
struct Library {
    decltype((lib::CLBNF0)) CLBNF0 = lib::CLBNF0;
    decltype((lib::CLBNFI)) CLBNFI = lib::CLBNFI;
    decltype((lib::CLBNF1)) CLBNF1 = lib::CLBNF1;
    decltype((lib::CLBNF2)) CLBNF2 = lib::CLBNF2;
    decltype((lib::CLBNF3)) CLBNF3 = lib::CLBNF3;
};

class Session {
  public:
    explicit Session(std::string_view values) { image_.values = values; }

    void step(fuzz::Bytes& script) {
        const char kind = script.letter();
        if (kind == 'h' || kind == 'n' || kind == 'x') return change(kind, script);
        if (kind == '0') return station_records(script);
        if (kind == 'i') return station_climate(script);
        if (kind == '1') return locate(script);
        if (kind == '2') return between(script);
        const int row = script.integer();
        both([&](auto& file, Values& v) { file.CLBNF3(row, v.data()); });
    }

  private:
    void change(char kind, fuzz::Bytes& script) {
        if (kind == 'h') image_.H = script.integer();
        if (kind == 'n') image_.length = script.integer(0, 2 * fuzz::two_stations);
        if (kind == 'x')
            std::remove(name);
        else
            fuzz::write_file(name, image_.bytes());
    }

    void station_records(fuzz::Bytes& script) {
        const int station = script.integer(), month = script.integer();
        const auto set = static_cast<float>(script.real()),
                   percentage = static_cast<float>(script.real());
        both([&](auto& file, Values& v) {
            for (std::size_t i = 0; i < v.size(); i += 11) {
                v[i + 9] = set;
                v[i + 10] = percentage;
            }
            file.CLBNF0(std::string(name), station, month, v.data());
        });
    }

    void station_climate(fuzz::Bytes& script) {
        const int unit = script.integer(), station = script.integer(), band = script.integer(),
                  month = script.integer(), set = script.integer();
        const auto percentage = static_cast<float>(script.real());
        both([&](auto& file, Values& v) {
            file.CLBNFI(unit, station, band, month, set, percentage, v[0], v[1], v[2], v[3], v[4],
                        v[5], v[6], v[7], v[8]);
        });
    }

    void locate(fuzz::Bytes& script) {
        const auto fraction = static_cast<float>(script.real());
        const int month = script.integer();
        both([&](auto& file, Values& v) {
            int lower = 0, upper = 0;
            file.CLBNF1(fraction, month, lower, upper, v[0]);
            fuzz::require(1 <= lower && lower <= upper && upper <= 10, "bands are 1 to 10");
            v[1] = static_cast<float>(10 * lower + upper);
        });
    }

    void between(fuzz::Bytes& script) {
        const int base = script.integer(), lower = script.integer(), upper = script.integer(),
                  month = script.integer();
        const auto weight = static_cast<float>(script.real());
        both([&](auto& file, Values& v) { file.CLBNF2(base, lower, upper, month, weight, v[0]); });
    }

    template <class Call>
    void both(Call call) {
        Values ours;
        ours.fill(-1e30f);
        Values literally = ours;
        call(library_, ours);
        call(literal_, literally);
        fuzz::require(std::ranges::equal(ours, literally, same), "one record buffer serves all");
    }

    fuzz::ClimateImage image_;
    Library library_;
    literal::ClimateFile<literal::StdioFile> literal_;
};

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    fuzz::enter_folder();
    fuzz::forget_climate_file();
    fuzz::Bytes bytes(data, size), script(bytes.line());
    Session session(bytes.rest());
    for (int steps = 0; steps < most_steps && !script.empty(); ++steps) session.step(script);
    std::remove(name);
    return 0;
}
