// Things that an input may call by name: glass, gases, glazing units, materials. The program brings
// tables of them along (apps/data/*.toml); the user's own files add to these or take their place.
//
//     [glass."clear 6"]        # kind and name
//     thickness = 6
//     source = "..."
#pragma once

#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "reading/input.h"

namespace quorvel::host {

struct LibraryEntry {
    std::string name;
    InputTable table;
};

class Library {
  public:
    // What the program brings along, and the user's own files: entries of the same kinds. Throws
    // InputError.
    explicit Library(const std::vector<std::string>& own);

    std::vector<std::string> kinds() const;

    // Of a kind, by name in the alphabet's order: those whose name has the word in it.
    std::vector<LibraryEntry> entries(std::string_view kind, std::string_view word = "") const;

    // What `key` of an input's table names, as in glass = "clear 6". Throws InputError with names
    // that are known.
    InputTable named(const InputTable& table, std::string_view key, std::string_view kind) const;

    // The same of a name that stands in a list at that key.
    InputTable named(const InputTable& table, std::string_view key, std::string_view kind,
                     const std::string& name) const;

  private:
    using Entries = std::map<std::string, InputTable, std::less<>>;

    void add(std::unique_ptr<InputFile> file, bool may_add_kinds);
    std::string known_names(const Entries& entries, std::string_view wanted) const;

    std::vector<std::unique_ptr<InputFile>> files_;  // to which the tables refer
    std::map<std::string, Entries, std::less<>> kinds_;
};

}  // namespace quorvel::host
