// Climate data files, as quorvel-climate checks and shows them. The input:
//     H length station
// and on a new line the bytes of the file, repeated up to its length.
#include "climate/commands.h"
#include "fuzz/climate_image.h"
#include "fuzz/input_file.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel;
    using namespace quorvel::climatefile;
    fuzz::Bytes bytes(data, size), numbers(bytes.line());
    fuzz::ClimateImage image;
    image.H = numbers.integer();
    image.length = numbers.integer(0, 2 * fuzz::two_stations);
    image.values = bytes.rest();
    const int station = numbers.integer();
    const auto each = [&](auto work) {
        fuzz::try_file(image.bytes(), [&](const std::string& file) { work(file); });
    };
    each([](const std::string& file) { check(file, {}); });
    each([&](const std::string& file) { check(file, station); });
    each([&](const std::string& file) { show(file, station, {}); });
    each([&](const std::string& file) { show_text(file, station); });
    return 0;
}
