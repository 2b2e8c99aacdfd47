// The climate data file: any calls on files that change between them do what a single record buffer
// does, from which the rows of a month are read one after another.
#include <gtest/gtest.h>

#include <sstream>

#include "climate/file_session.h"
#include "climate/library_copy.h"

using namespace quorvel::conformance;
using namespace quorvel::test;

namespace {

namespace climate_file_layout = quorvel::climate_file_layout;

// The bytes of two stations, from where the first begins.
std::string two_stations(Random& random) {
    ClimateFileImage image(1, 2, random.bits());
    for (const int station : {1, 2}) {
        image.fill(station, random);
        for (int month = 1; month <= 12; ++month) {
            // Frequencies that repeat, quantities out of their ranges, hours that are no numbers.
            for (int row = 2; month % 2 && row < 94; row += row % 82 == 11 ? 73 : 1)
                image.set(station, row, month,
                          std::round(4 * image.value(station, row, month)) / 4);
            image.set(station, 12 + random.below(20), month, -0.5f);
            const int fraction_row = 72 + random.below(10);
            image.set(station, fraction_row, month, random.below(2) ? -0.5f : 1.5f);
            image.set(station, month % 2, month, std::bit_cast<float>(0x7f800001u));
        }
    }
    const auto bytes = image.bytes().subspan(3 * record_bytes);
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

// Halves round away from zero; a little less does not.
double any_set(Random& random) {
    const double set = 0.5 * random.below(7);
    return random.below(2) ? set - 0.01 : set;
}

int any(Random& random, std::initializer_list<int> values) {
    return values.begin()[random.below(static_cast<int>(values.size()))];
}

// Negative headers tell truncation from rounding down.
int any_header(Random& random) { return any(random, {1, 1, 1, 17, 18, 19, 500, 0, -1, -3, -40}); }

// Often on a frequency, or beyond all.
double percentage(Random& random) {
    return random.below(2) ? 12.5 * (random.below(13) - 2) : 100.0 * random.unit();
}

// A step of a session: a file written, shortened or removed, or a call, of a station near the
// first.
std::string step(Random& random, int first) {
    const int station = first - 1 + random.below(4), month = random.below(15) - 1;
    const int band = random.below(13) - 1, row = random.below(200) - 9;
    std::ostringstream text;
    switch (random.below(9)) {
        case 0:
            text << "n 21600";
            break;
        case 1:
            text << "n 21600 h " << any_header(random);
            break;
        case 2:
            text << (random.below(2) ? "x" : "n 8000");
            break;
        case 3:
        case 4:
            text << "0 " << station << ' ' << any(random, {0, month}) << ' ' << any_set(random)
                 << ' ' << percentage(random);
            break;
        case 5:
            text << "i " << any(random, {31, 31, 31, 30}) << ' ' << station << ' ' << band << ' '
                 << month << ' ' << random.below(4) << ' ' << percentage(random);
            break;
        case 6:
            text << "1 " << percentage(random) / 100 << ' ' << month;
            break;
        case 7:
            text << "2 " << row << ' ' << band << " 4 " << month << " 0.3";
            break;
        default:
            text << "3 " << row;
    }
    return text.str() + ' ';
}

TEST(ClimateFile, AnyCallsDoWhatOneRecordBufferDoes) {
    const TemporaryFolder folder;
    for (std::uint64_t seed = 1; seed <= 60; ++seed) {
        Random random(seed);
        const int H = any_header(random);
        int first = 1;
        while (climate_file_layout::first_record(first, H) < 2) ++first;
        std::string values = two_stations(random);
        const auto begin = climate_file_layout::value_offset(first, H, 0, 0);
        std::ranges::rotate(values, values.end() - begin % std::ssize(values));
        FileSession<LibraryCopy> session((folder.path() / "stations").string(), values);
        std::string text = "n 21600 h " + std::to_string(H) + ' ';
        for (int i = 0; i < 100; ++i) text += step(random, first);
        quorvel::fuzz::Bytes steps(text);
        while (!steps.empty())
            ASSERT_TRUE(session.step(steps)) << text.substr(0, text.size() - steps.rest().size());
    }
}

TEST(ClimateFile, RowsComeBackToTheBit) {
    const TemporaryFolder folder;
    const std::string name = (folder.path() / "stations").string();
    const ClimateFileImage image(500, 2, 7);  // words of any kind
    image.save(name);
    const LibraryCopy library;
    std::array<float, 132> records{};
    library.CLBNF0(name, 2, 1, records);
    for (int row = 0; row < 171; ++row) {
        std::array<float, 12> values;
        library.CLBNF3(row + 1, values);
        for (int month = 1; month <= 12; ++month)
            ASSERT_EQ(std::bit_cast<std::uint32_t>(values[static_cast<std::size_t>(month - 1)]),
                      std::bit_cast<std::uint32_t>(image.value(2, row, month)))
                << row;
    }
}

}  // namespace
