#include "check/value_cases.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <sstream>
#include <stdexcept>

#include "common/text.h"
#include "conformance/routine_table.h"
#include "quorvel/library.h"

namespace quorvel::check {
namespace {

using conformance::Argument;
using conformance::Routine;
using conformance::Type;

std::vector<std::string> split(std::string_view text, char separator) {
    std::vector<std::string> parts;
    std::istringstream stream{std::string(text)};
    for (std::string part; std::getline(stream, part, separator);) parts.push_back(part);
    return parts;
}

double number(const std::string& text) {
    std::size_t used = 0;
    const double value = std::stod(text, &used);
    if (used != text.size()) throw std::invalid_argument("not a number: " + text);
    return value;
}

// name=1,2,3
NamedValues assignment(const std::string& text) {
    const auto equals = text.find('=');
    if (equals == std::string::npos) throw std::invalid_argument("no = in " + text);
    NamedValues result{text.substr(0, equals), {}};
    for (const std::string& value : split(text.substr(equals + 1), ','))
        result.values.push_back(number(value));
    return result;
}

// ROUTINE name=values ... | name=values ± tolerance ... | source
ValueCase value_case(const std::string& line) {
    const auto parts = split(line, '|');
    if (parts.size() != 3) throw std::invalid_argument("not three parts");
    ValueCase result;
    std::istringstream call(parts[0]), outputs(parts[1]);
    call >> result.routine;
    for (std::string word; call >> word;) result.given.push_back(assignment(word));
    for (std::string word, sign, tolerance; outputs >> word >> sign >> tolerance;) {
        if (sign != "±") throw std::invalid_argument("no ± after " + word);
        result.expected.push_back(assignment(word));
        result.expected.back().tolerance = number(tolerance);
    }
    result.source = parts[2].substr(parts[2].find_first_not_of(' '));
    if (result.expected.empty()) throw std::invalid_argument("nothing is expected");
    return result;
}

const Routine& routine_called(const std::string& name) {
    for (const Routine& routine : conformance::routines())
        if (routine.name == name) return routine;
    throw std::invalid_argument("no routine is called " + name);
}

const NamedValues* find(const std::vector<NamedValues>& list, const std::string& name) {
    const auto found = std::ranges::find(list, name, &NamedValues::name);
    return found == list.end() ? nullptr : &*found;
}

// The storage of one argument, each value in the type of the argument.
class Storage {
  public:
    Storage(Type type, std::size_t count)
        : type_(type), bytes_(count * conformance::size_of(type)) {}

    void* address() { return bytes_.data(); }
    void set(std::size_t index, double value) {
        if (type_ == Type::DoubleReal) return put(index, value);
        if (type_ == Type::Integer) return put(index, static_cast<std::int32_t>(value));
        put(index, static_cast<float>(value));
    }
    double get(std::size_t index) const {
        if (type_ == Type::DoubleReal) return at<double>(index);
        if (type_ == Type::Integer) return at<std::int32_t>(index);
        return double{at<float>(index)};
    }

  private:
    template <class T>
    void put(std::size_t index, T value) {
        std::memcpy(&bytes_.at(index * sizeof value), &value, sizeof value);
    }
    template <class T>
    T at(std::size_t index) const {
        T value;
        std::memcpy(&value, &bytes_.at(index * sizeof value), sizeof value);
        return value;
    }

    Type type_;
    std::vector<std::byte> bytes_;
};

std::size_t elements(const Argument& argument, const Routine& routine, const ValueCase& given) {
    std::size_t count = 1;
    for (const conformance::Extent& extent : argument.shape) {
        if (extent.argument < 0) {
            count *= static_cast<std::size_t>(extent.fixed);
            continue;
        }
        const auto& name = routine.arguments[static_cast<std::size_t>(extent.argument)].name;
        const NamedValues* const size = find(given.given, name);
        count *= size ? static_cast<std::size_t>(size->values.at(0)) : 0;
    }
    return count;
}

std::vector<Storage> arguments_of(const Routine& routine, const ValueCase& given) {
    std::vector<Storage> arguments;
    for (const Argument& argument : routine.arguments) {
        arguments.emplace_back(argument.type, elements(argument, routine, given));
        if (const NamedValues* const values = find(given.given, argument.name))
            for (std::size_t i = 0; i < values->values.size(); ++i)
                arguments.back().set(i, values->values[i]);
    }
    return arguments;
}

std::string difference(const ValueCase& value_case, const NamedValues& expected,
                       const Storage& got) {
    for (std::size_t i = 0; i < expected.values.size(); ++i)
        if (!(std::fabs(got.get(i) - expected.values[i]) <= expected.tolerance))
            return value_case.routine + ": " + expected.name + " is " + host::shortest(got.get(i)) +
                   " and not " + host::shortest(expected.values[i]) + " ± " +
                   host::shortest(expected.tolerance) + "\n  (" + value_case.source + ")";
    return {};
}

}  // namespace

std::vector<ValueCase> parse_value_cases(std::string_view table) {
    std::vector<ValueCase> cases;
    int number_of_line = 0;
    for (const std::string& line : split(table, '\n')) {
        ++number_of_line;
        if (line.empty() || line[0] == '#') continue;
        try {
            cases.push_back(value_case(line));
        } catch (const std::exception& fault) {
            throw std::runtime_error("values.txt, line " + std::to_string(number_of_line) + ": " +
                                     fault.what());
        }
    }
    return cases;
}

std::string fault_of(const ValueCase& value_case) {
    const Routine& routine = routine_called(value_case.routine);
    std::vector<Storage> arguments = arguments_of(routine, value_case);
    Storage result(routine.result == Type::None ? Type::Real : routine.result, 1);
    std::vector<void*> addresses;
    addresses.reserve(arguments.size());
    for (Storage& argument : arguments) addresses.push_back(argument.address());
    routine.call(reinterpret_cast<conformance::Address>(host::routine_address(routine.name)),
                 addresses.data(), result.address());
    for (const NamedValues& expected : value_case.expected) {
        const auto argument = std::ranges::find(routine.arguments, expected.name, &Argument::name);
        const bool is_result = argument == routine.arguments.end();
        if (is_result && expected.name != "result")
            throw std::runtime_error(value_case.routine + " has no argument " + expected.name);
        const auto index = static_cast<std::size_t>(argument - routine.arguments.begin());
        if (auto text = difference(value_case, expected, is_result ? result : arguments[index]);
            !text.empty())
            return text;
    }
    return {};
}

}  // namespace quorvel::check
