// What the examples of the catalogue need as calls of the C++ interface.
#pragma once

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <type_traits>
#include <vector>

namespace quorvel::test {

// So many that they are calculated in packs, and that the last one is not full.
inline constexpr std::size_t elements = 13;

// Numbers one after the other as a value.
template <class T>
const double* fill(T& value, const double* from) {
    if constexpr (std::is_arithmetic_v<T>)
        value = static_cast<T>(*from++);
    else
        for (auto& part : value) from = fill(part, from);
    return from;
}

template <class T>
T value(const std::vector<double>& numbers) {
    T value;
    fill(value, numbers.data());
    return value;
}

// Values one after the other.
template <class T>
std::vector<T> list(const std::vector<double>& numbers) {
    std::vector<T> values;
    for (const double* at = numbers.data(); at != numbers.data() + numbers.size();)
        at = fill(values.emplace_back(), at);
    return values;
}

template <class T>
std::vector<T> repeated(const T& value) {
    return std::vector<T>(elements, value);
}

template <class T>
std::vector<T> repeated_list(const std::vector<T>& list, std::size_t times) {
    std::vector<T> all;
    for (std::size_t i = 0; i < times; ++i) all.insert(all.end(), list.begin(), list.end());
    return all;
}

template <class T>
void append_numbers(const T& value, std::vector<double>& numbers) {
    if constexpr (std::is_arithmetic_v<T>)
        numbers.push_back(static_cast<double>(value));
    else
        for (const auto& part : value) append_numbers(part, numbers);
}

template <class T>
std::vector<double> numbers(const T& value) {
    std::vector<double> numbers;
    append_numbers(value, numbers);
    return numbers;
}

// The first ones, which an example knows.
template <class T>
void expect_near(const char* name, const T& got, const std::vector<double>& expected,
                 double within) {
    std::vector<double> all = numbers(got);
    if constexpr (std::is_same_v<T, bool>) all[0] = got ? -1 : 0;
    ASSERT_LE(expected.size(), all.size()) << name;
    for (std::size_t i = 0; i < expected.size(); ++i)
        EXPECT_NEAR(all[i], expected[i], within) << name << " " << i;
}

// Each element of an array has the bits of the one value; what is not a number is alike.
template <class T, class Element>
void expect_same(const char* name, const T& one, const std::vector<Element>& array) {
    std::vector<double> once = numbers(one);
    if constexpr (std::is_same_v<T, bool>) once[0] = one ? -1 : 0;
    const std::vector<double> all = numbers(array);
    ASSERT_EQ(all.size(), once.size() * elements) << name;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const double want = once[i % once.size()];
        const bool same = std::memcmp(&want, &all[i], sizeof want) == 0;
        EXPECT_TRUE(same || (want != want && all[i] != all[i]))
            << name << " " << i << ": " << all[i] << " and not " << want;
    }
}

}  // namespace quorvel::test
