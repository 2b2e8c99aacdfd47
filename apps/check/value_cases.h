// Results of the library against published values: the table values.txt.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace quorvel::check {

struct NamedValues {
    std::string name;
    std::vector<double> values;
    double tolerance = 0;  // of expected values
};

struct ValueCase {
    std::string routine;
    std::vector<NamedValues> given, expected;
    std::string source;
};

// Throws std::runtime_error that names the line at fault.
std::vector<ValueCase> parse_value_cases(std::string_view table);

// Calls the routine of the loaded library: nothing if every value is as expected, else two lines
// that say which one is not.
std::string fault_of(const ValueCase& value_case);

}  // namespace quorvel::check
