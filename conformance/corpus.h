// The corpus: a fixed set of calls of every exported routine. Equal hashes of what they give mean
// equal bits. The example file of random arguments must be in the working folder.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "conformance/routine_table.h"

namespace quorvel::conformance {

inline constexpr int corpus_cases = 100000;

// Hands over, case by case, every word of the inputs and then every word of what the call left.
void run_corpus(const Routine& routine, const std::function<void(std::uint32_t)>& given,
                const std::function<void(std::uint32_t)>& left);

// 16 hexadecimal digits.
std::string corpus_hash(const Routine& routine);

}  // namespace quorvel::conformance
