// Levels of x86-64 as the System V ABI defines them, as far as processor and system both support
// them.
#pragma once

namespace quorvel::arrays {

bool supports_v2() noexcept;
bool supports_v3() noexcept;
bool supports_v4() noexcept;

}  // namespace quorvel::arrays
