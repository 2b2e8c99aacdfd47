// The examples of the catalogue: arguments with results from publications and calculations by hand.
#pragma once

#include <string>
#include <vector>

#include "conformance/routine_table.h"

namespace quorvel::conformance {

struct Given {
    int argument;  // index among the arguments of the routine
    std::vector<double> values;
    const char* text;  // in place of values
};

struct Expected {
    int argument;                // -1 for the result
    std::vector<double> values;  // of an array its first ones
    double within;
};

struct Example {
    const char* routine;
    std::vector<Given> given;  // what is left out is never read
    std::vector<Expected> expected;
    const char* source;
};

const std::vector<Example>& examples();

// Calls the routine of the loaded library: nothing if every value is as expected, else two lines
// that say which one is not. The example file of climate_file.h must be in the working folder.
std::string fault_of(const Example& example);

}  // namespace quorvel::conformance
