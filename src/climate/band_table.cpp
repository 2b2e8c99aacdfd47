#include "climate/band_table.h"

namespace quorvel::climate {

constinit const std::array<MonthlyRow, band_row_count> band_rows{{
#include "band_rows.inc"
}};

}  // namespace quorvel::climate
