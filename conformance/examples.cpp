#include "conformance/examples.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#include <string_view>

#include "conformance/climate_file.h"
#include "quorvel/library.h"

namespace quorvel::conformance {
namespace {

// The storage of one argument, each value in the type of the argument.
class Storage {
  public:
    Storage(Type type, std::size_t count) : type_(type), bytes_(count * size_of(type)) {}

    void* address() { return bytes_.data(); }
    void set(const Given& given) {
        if (given.text) std::memcpy(bytes_.data(), given.text, std::strlen(given.text));
        for (std::size_t i = 0; i < given.values.size(); ++i) set(i, given.values[i]);
    }
    double get(std::size_t index) const {
        if (type_ == Type::DoubleReal) return at<double>(index);
        if (type_ == Type::Integer) return at<std::int32_t>(index);
        return double{at<float>(index)};
    }

  private:
    void set(std::size_t index, double value) {
        if (type_ == Type::DoubleReal) return put(index, value);
        if (type_ == Type::Integer) return put(index, static_cast<std::int32_t>(value));
        put(index, static_cast<float>(value));
    }
    template <class T>
    void put(std::size_t index, T value) {
        std::memcpy(&bytes_[index * sizeof value], &value, sizeof value);
    }
    template <class T>
    T at(std::size_t index) const {
        T value;
        std::memcpy(&value, &bytes_[index * sizeof value], sizeof value);
        return value;
    }

    Type type_;
    std::vector<std::byte> bytes_;
};

std::size_t elements(const Argument& argument, const Example& example) {
    std::size_t count = 1;
    for (const Extent& extent : argument.shape) {
        const auto size = std::ranges::find(example.given, extent.argument, &Given::argument);
        count *= static_cast<std::size_t>(extent.argument < 0 ? extent.fixed : size->values.at(0));
    }
    return count;
}

std::vector<Storage> storage_for(const Routine& routine, const Example& example) {
    std::vector<Storage> storage;
    for (const Argument& argument : routine.arguments)
        storage.emplace_back(argument.type, elements(argument, example));
    for (const Given& given : example.given)
        storage[static_cast<std::size_t>(given.argument)].set(given);
    return storage;
}

std::string shortest(double value) {
    char digits[32];
    return {digits, std::to_chars(digits, digits + sizeof digits, value).ptr};
}

std::string difference(const Example& example, const std::string& name, const Expected& expected,
                       const Storage& got) {
    for (std::size_t i = 0; i < expected.values.size(); ++i)
        if (!(std::fabs(got.get(i) - expected.values[i]) <= expected.within))
            return std::string(example.routine) + ": " + name + " is " + shortest(got.get(i)) +
                   " and not " + shortest(expected.values[i]) + " ± " + shortest(expected.within) +
                   "\n  (" + example.source + ")";
    return {};
}

}  // namespace

const std::vector<Example>& examples() {
    static const std::vector<Example> table = {
#include "examples.inc"
    };
    return table;
}

std::string fault_of(const Example& example) {
    open_example();
    const Routine& routine =
        *std::ranges::find(routines(), std::string_view(example.routine), &Routine::name);
    std::vector<Storage> storage = storage_for(routine, example);
    Storage result(routine.result == Type::None ? Type::Real : routine.result, 1);
    std::vector<void*> addresses;
    for (Storage& argument : storage) addresses.push_back(argument.address());
    routine.call(reinterpret_cast<Address>(host::routine_address(routine.name)), addresses.data(),
                 result.address());
    for (const Expected& expected : example.expected) {
        const auto index = static_cast<std::size_t>(expected.argument);
        const bool is_result = expected.argument < 0;
        auto fault = difference(example, is_result ? "result" : routine.arguments[index].name,
                                expected, is_result ? result : storage[index]);
        if (!fault.empty()) return fault;
    }
    return {};
}

}  // namespace quorvel::conformance
