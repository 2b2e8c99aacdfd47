// Climate data files, as quorvel climate checks and shows them. The input:
//     H length station
// and on a new line the bytes of the file, repeated up to its length.
#include <cmath>

#include "calculation/climate/monthly_means.h"
#include "calculation/climate/station_day.h"
#include "fuzz/climate_image.h"
#include "fuzz/input_file.h"
#include "reading/climate/data_file.h"
#include "reading/climate/rules.h"
#include "telling/as_text.h"
#include "telling/climate/station_answer.h"

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
    each([](const std::string& file) { check(DataFile(file), {}); });
    each([&](const std::string& file) { check(DataFile(file), station); });
    each([&](const std::string& file) {
        const Station shown = DataFile(file).station(station);
        host::as_text(told(shown, {0, 1}, {0, 11}));
        monthly_means(shown, 1, 101325);
    });
    each([&](const std::string& file) {
        const auto day = station_day(DataFile(file).month(station, 7, 2, 5));
        for (int hour = 0; day && hour <= 24; ++hour)
            fuzz::require(std::isfinite(day->air(hour)), "a day that is formed has temperatures");
    });
    return 0;
}
