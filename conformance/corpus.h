// The corpus: a fixed set of calls of every exported routine. Equal hashes of what they give mean
// equal bits, however they are made. The example file of random arguments must be in the working
// folder.
#pragma once

#include <cstdint>
#include <functional>
#include <span>
#include <string>

#include "conformance/random_arguments.h"
#include "conformance/routine_table.h"

namespace quorvel::conformance {

inline constexpr int corpus_cases = 100000;

struct Case {
    ArgumentSet arguments;
    std::uint32_t result[2] = {};
};

// One way to make calls, so many at once.
struct Caller {
    int at_once;
    void (*call)(const Routine& routine, std::span<Case> cases);
};

void call_by_reference(const Routine& routine, std::span<Case> cases);
inline constexpr Caller by_reference = {1, call_by_reference};

// Hands over, case by case, every word of the inputs and then every word of what the call left;
// where several are called at once, the inputs of all of them first.
void run_corpus(const Routine& routine, const std::function<void(std::uint32_t)>& given,
                const std::function<void(std::uint32_t)>& left, const Caller& caller = by_reference,
                int cases = corpus_cases);

// 16 hexadecimal digits.
std::string corpus_hash(const Routine& routine, const Caller& caller = by_reference);

}  // namespace quorvel::conformance
