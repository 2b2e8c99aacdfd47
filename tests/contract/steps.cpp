#include "contract/steps.h"

namespace {

std::uint64_t steps;

}  // namespace

std::uint64_t quorvel::test::steps_taken() { return steps; }

// Called by the instrumented library at every branch.
extern "C" void __sanitizer_cov_trace_pc();
extern "C" void __sanitizer_cov_trace_pc() { ++steps; }
