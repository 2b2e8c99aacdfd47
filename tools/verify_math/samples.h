// Stratified arguments, each a function of its index alone, so that runs and threads agree.
#pragma once

#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

#include "functions.h"

namespace verify {

// SplitMix64 started at an index
class Random {
  public:
    explicit Random(std::uint64_t index)
        : state_(index * 0xd1342543de82ef95u + 0x9e3779b97f4a7c15u) {}
    std::uint64_t bits();
    double unit();  // [0, 1)
    double between(double low, double high);
    std::uint64_t below(std::uint64_t limit) { return bits() % limit; }

  private:
    std::uint64_t state_;
};

// One argument out of each of `count` equal strata of the 2^32 bit patterns
float float_sample(std::uint64_t index, std::uint64_t count);
float any_float_sample(std::uint64_t index);
std::pair<float, float> atan2_sample(std::uint64_t index);
std::pair<float, float> pow_sample(std::uint64_t index);

// Arguments whose result is exact, a midpoint of two floats, or very near one
std::vector<std::pair<float, float>> atan2_hard_cases(std::uint64_t count);
std::vector<std::pair<float, float>> pow_hard_cases(std::uint64_t count);

double double_sample(const DoubleFunction& function, std::uint64_t index);
std::pair<double, double> double_pair_sample(std::string_view name, std::uint64_t index);

}  // namespace verify
