#include "fabric/element_records.h"

#include "entry/entry.h"
#include "entry/fabric/element_records.h"

using namespace quorvel;

namespace {

fabric::ElementRecord record_at(const Real* records, Integer number) noexcept {
    constexpr std::size_t fields = fabric::ElementRecord::extent;
    return fabric::ElementRecord(records + fields * static_cast<std::size_t>(number - 1), fields);
}

}  // namespace

Real BELDAT(const Real* element_records, const Integer* record_count, const Integer* record_number,
            const Integer* item) {
    if (*record_number < 1 || *record_number > *record_count) return undefined;
    return fabric::element_property(record_at(element_records, *record_number),
                                    record_at(element_records, *record_count)[0], *item);
}
