#include "conformance/examples.h"

#include <gtest/gtest.h>

#include <string_view>

#include "conformance/climate_file.h"

using namespace quorvel::conformance;

namespace {

// Each routine of the family has one at least.
TEST(Examples, OfTheCatalogueAreMet) {
    const ExampleFolder folder;
    for (const Routine& routine : routines()) {
        if (std::string_view(routine.family) != FAMILY) continue;
        int count = 0;
        for (const Example& example : examples()) {
            if (std::string_view(example.routine) != routine.name) continue;
            EXPECT_EQ(fault_of(example), "");
            ++count;
        }
        EXPECT_GT(count, 0) << routine.name;
    }
}

}  // namespace
