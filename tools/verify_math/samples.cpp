#include "samples.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>

namespace verify {

std::uint64_t Random::bits() {
    std::uint64_t z = state_ += 0x9e3779b97f4a7c15u;
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9u;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebu;
    return z ^ (z >> 31);
}

double Random::unit() { return static_cast<double>(bits() >> 11) * 0x1p-53; }

double Random::between(double low, double high) { return low + (high - low) * unit(); }

namespace {

float any_float(Random& random) {
    return std::bit_cast<float>(static_cast<std::uint32_t>(random.bits()));
}
double any_double(Random& random) { return std::bit_cast<double>(random.bits()); }

double log_uniform(Random& random, double low, double high) {
    return std::exp2(random.between(low, high));
}

double signed_log_uniform(Random& random, double low, double high) {
    const double x = log_uniform(random, low, high);
    return (random.bits() & 1) != 0 ? -x : x;
}

float with_fields(Random& random, std::uint64_t exponent) {
    const std::uint64_t sign_and_fraction = random.bits() & 0x807fffff;
    return std::bit_cast<float>(static_cast<std::uint32_t>(sign_and_fraction | exponent << 23));
}

// A positive base whose logarithm is not lost in rounding: everywhere, or at all distances from 1
template <typename T>
T pow_base(Random& random, bool near_one, double low, double high) {
    if (!near_one) return static_cast<T>(log_uniform(random, low, high));
    const double distance = signed_log_uniform(random, -std::numeric_limits<T>::digits, -1);
    return static_cast<T>(1.0 + distance);
}

}  // namespace

float float_sample(std::uint64_t index, std::uint64_t count) {
    const std::uint64_t width = (std::uint64_t{1} << 32) / count;
    const std::uint64_t offset = width == 1 ? 0 : Random(index).below(width);
    return std::bit_cast<float>(static_cast<std::uint32_t>(index * width + offset));
}

float any_float_sample(std::uint64_t index) {
    Random random(index);
    return any_float(random);
}

// Half the pairs run through all pairs of exponents, half stay within 2^26 of each other.
std::pair<float, float> atan2_sample(std::uint64_t index) {
    Random random(index);
    const std::uint64_t stratum = index / 2;
    if (index % 2 == 0) {
        const float y = with_fields(random, stratum % 256);
        return {y, with_fields(random, stratum / 256 % 256)};
    }
    const auto y_exponent = static_cast<std::int64_t>(1 + stratum % 254);
    const auto difference = static_cast<std::int64_t>(stratum / 254 % 53) - 26;
    const float y = with_fields(random, static_cast<std::uint64_t>(y_exponent));
    const auto x_exponent = std::clamp<std::int64_t>(y_exponent + difference, 1, 254);
    return {y, with_fields(random, static_cast<std::uint64_t>(x_exponent))};
}

// Mostly powers spread over the range of results, with bases everywhere or near one; some with
// exponents in quarters, some of any bit patterns.
std::pair<float, float> pow_sample(std::uint64_t index) {
    Random random(index);
    const std::uint64_t kind = index % 8;
    if (kind == 7) {
        const float x = any_float(random);
        return {x, any_float(random)};
    }
    if (kind == 6) {
        const double y = 0.25 * static_cast<double>(1 + random.below(64));
        const double limit = std::min(126.0, 130.0 / y);
        const auto x = static_cast<float>(log_uniform(random, -limit, limit));
        return {x, static_cast<float>((random.bits() & 1) != 0 ? -y : y)};
    }
    const auto x = pow_base<float>(random, kind >= 4, -149.0, 128.0);
    return {x,
            static_cast<float>(random.between(-151.0, 129.0) / std::log2(static_cast<double>(x)))};
}

namespace {

// Fractions of 24-bit terms nearest to the tangents of midpoints of two floats
void add_convergents(Random& random, std::vector<std::pair<float, float>>& cases) {
    const auto nearest = static_cast<float>(log_uniform(random, -12.0, 0.6));
    const double angle =
        0.5 * (static_cast<double>(nearest) + static_cast<double>(std::nextafter(nearest, 4.0f)));
    double rest = std::tan(angle), p = 1.0, q = 0.0, last_p = 0.0, last_q = 1.0;
    for (int i = 0; i < 40; ++i) {
        const double term = std::floor(rest);
        const double next_p = term * p + last_p, next_q = term * q + last_q;
        if (std::abs(next_p) >= 0x1p24 || next_q >= 0x1p24 || rest == term) break;
        last_p = p, last_q = q, p = next_p, q = next_q;
        rest = 1.0 / (rest - term);
    }
    const double scale = std::exp2(static_cast<double>(random.below(120)) - 60.0);
    cases.emplace_back(static_cast<float>(p * scale), static_cast<float>(q * scale));
    cases.emplace_back(static_cast<float>(-p * scale), static_cast<float>(q * scale));
}

}  // namespace

std::vector<std::pair<float, float>> atan2_hard_cases(std::uint64_t count) {
    std::vector<std::pair<float, float>> cases;
    Random random(0);
    while (cases.size() < count / 2) add_convergents(random, cases);
    // quotients that are midpoints of subnormals, where the angle is a trifle less
    while (cases.size() < count) {
        const auto odd = static_cast<double>(random.below(0x800000) * 2 + 1);
        const int halvings = 1 + static_cast<int>(random.below(24));
        cases.emplace_back(static_cast<float>(odd * 0x1p-149), std::ldexp(1.0f, halvings));
    }
    const float limits[] = {0.0f,
                            -0.0f,
                            1.0f,
                            -1.0f,
                            std::numeric_limits<float>::infinity(),
                            -std::numeric_limits<float>::infinity(),
                            0x1p-149f,
                            -0x1p-149f,
                            std::numeric_limits<float>::max(),
                            std::numeric_limits<float>::quiet_NaN()};
    for (const float y : limits)
        for (const float x : limits) cases.emplace_back(y, x);
    return cases;
}

namespace {

void add_with_neighbours(float x, float y, std::vector<std::pair<float, float>>& cases) {
    constexpr float kUp = std::numeric_limits<float>::infinity();
    for (const float a : {std::nextafter(x, 0.0f), x, std::nextafter(x, kUp)})
        for (const float b : {std::nextafter(y, -kUp), y, std::nextafter(y, kUp)})
            cases.emplace_back(a, b);
}

// (m^q 2^(q k))^(p / q) = m^p 2^(p k) for all odd m whose power m^p has up to 26 bits, for results
// about 1 and among the subnormals
void add_exact_powers(int p, int q, std::uint64_t limit,
                      std::vector<std::pair<float, float>>& cases) {
    const float y = static_cast<float>(p) / static_cast<float>(q);
    const int subnormal = -150 / p;
    for (double m = 1.0; std::pow(m, q) < 0x1p24 && std::pow(m, p) < 0x1p26; m += 2.0) {
        if (cases.size() >= limit && m > 3.0) return;
        for (const int k :
             {-2, -1, 0, 1, 2, subnormal - 2, subnormal - 1, subnormal, subnormal + 1})
            add_with_neighbours(static_cast<float>(std::ldexp(std::pow(m, q), q * k)), y, cases);
    }
}

}  // namespace

std::vector<std::pair<float, float>> pow_hard_cases(std::uint64_t count) {
    std::vector<std::pair<float, float>> cases;
    for (int q = 1; q <= 16; q *= 2)
        for (int p = 1; p <= 80; ++p)
            if (p != q) add_exact_powers(p, q, count, cases);
    const float limits[] = {0.0f,
                            0.5f,
                            1.0f,
                            2.0f,
                            3.0f,
                            0x1p23f,
                            0x1.000002p24f,
                            0x1p-149f,
                            std::numeric_limits<float>::infinity(),
                            std::numeric_limits<float>::max(),
                            std::numeric_limits<float>::quiet_NaN()};
    for (const float x : limits)
        for (const float y : limits)
            for (const float a : {x, -x})
                for (const float b : {y, -y}) cases.emplace_back(a, b);
    return cases;
}

double double_sample(const DoubleFunction& function, std::uint64_t index) {
    Random random(index);
    if (index % 8 == 7) return any_double(random);
    if (function.near_one && index % 2 == 0) return pow_base<double>(random, true, 0.0, 0.0);
    const double x = signed_log_uniform(random, function.low, function.high);
    return function.near_one ? std::abs(x) : x;
}

std::pair<double, double> double_pair_sample(std::string_view name, std::uint64_t index) {
    Random random(index);
    if (index % 8 == 7) {
        const double x = any_double(random);
        return {x, any_double(random)};
    }
    if (name == "atan2") {
        const double x = signed_log_uniform(random, -1074.0, 1024.0);
        const double spread = index % 2 == 0 ? 4.0 : 60.0;
        return {x * signed_log_uniform(random, -spread, spread), x};
    }
    const auto x = pow_base<double>(random, index % 2 == 0, -1074.0, 1024.0);
    return {x, random.between(-1076.0, 1025.0) / std::log2(x)};
}

}  // namespace verify
