// Station files, as quorvel climate packs them: what it writes reads back as the same station.
#include "fuzz/input_file.h"
#include "reading/climate/station_file.h"
#include "telling/climate/files.h"

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace quorvel;
    using namespace quorvel::climatefile;
    fuzz::try_file(data, size, [](const std::string& file) {
        const Station station = read_station(file);
        data_file({station});
        places_file({station});
        fuzz::try_file(station_file(station, ""), [&](const std::string& written) {
            const Station again = read_station(written);
            fuzz::require(again.place.name == station.place.name &&
                              again.number == station.number && again.rows == station.rows,
                          "a station reads back as it was written");
        });
    });
    return 0;
}
