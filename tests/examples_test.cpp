#include "conformance/examples.h"

#include <gtest/gtest.h>

#include "conformance/climate_file.h"

namespace {

using namespace quorvel::conformance;

TEST(Examples, OfTheCatalogueAreMet) {
    const ExampleFolder folder;
    for (const Example& example : examples()) EXPECT_EQ(fault_of(example), "");
}

}  // namespace
