// Variants of one input: [[variant]] tables, each with a name and the keys that it has otherwise.
//
//     [[variant]]
//     name = "Blind inside"
//     [[variant.window]]           # the window of this name
//     name = "South"
//     blind = { side = "inside" }  # what else the blind has remains
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reading/input.h"

namespace quorvel::host {

struct Variant {
    std::string name;  // empty: the input as it is
    std::unique_ptr<InputFile> input;
};

// Keys of one table that stand for each other: in a variant, one of them takes the place of all
// others.
using Alternatives = std::vector<std::vector<std::string_view>>;

// The input as it is, and all its variants. Tables are merged key by key; so are lists of tables
// with names, by name, where a new name adds a table. Anything else is replaced, and `false` in
// place of a table takes it away.
std::vector<Variant> read_variants(const std::string& path, const Alternatives& alternatives);

}  // namespace quorvel::host
