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

Real BELDAT(const Real* records, const Integer* n, const Integer* i, const Integer* item) {
    if (*i < 1 || *i > *n) return undefined;
    return fabric::element_property(record_at(records, *i), record_at(records, *n)[0], *item);
}
