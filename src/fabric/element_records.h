// The records that describe the layers, gaps and ends of a construction, one by one from face to
// face, and the properties that they hold.
#pragma once

#include <span>

#include "base/contract.h"

namespace quorvel::fabric {

// Fields 1 to 10. The first is the type code: 100 times the class of the element plus its subtype.
using ElementRecord = std::span<const Real, 10>;

// Property of an element by its number in the catalogue; undefined where it does not apply to the
// class of the element. end_code: type code of the last record of the construction.
Real element_property(ElementRecord record, Real end_code, Integer item) noexcept;

}  // namespace quorvel::fabric
