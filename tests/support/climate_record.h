// A record of a climate data file, read as it stands there.
#pragma once

#include <bit>

#include "quorvel/climate_file_layout.h"

namespace quorvel::test {

template <class Record>
void put_in_order(Record& record) {
    for (auto& row : record)
        for (float& value : row)
            value = std::bit_cast<float>(
                climate_file_layout::file_order(std::bit_cast<std::uint32_t>(value)));
}

}  // namespace quorvel::test
