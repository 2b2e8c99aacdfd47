// Reading of an input, a TOML file. Every fault of it becomes one line for the user:
//
//     london.toml:7: site.latitude: value 95; allowed -90 to 90 degrees north
#pragma once

#include <cstddef>
#include <initializer_list>
#include <span>
#include <stdexcept>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "reading/toml.h"

namespace quorvel::host {

// A fault of the user's input, told in one line.
class InputError : public std::runtime_error {
  public:
    explicit InputError(std::string message);

    // Several, of several inputs: a line each.
    static InputError all(const std::vector<std::string>& messages);

  private:
    struct Lines {
        std::string text;
    };
    explicit InputError(const Lines& lines) : std::runtime_error(lines.text) {}
};

// All bytes of a file, or of standard input where the path is "-". Throws InputError.
std::string read_bytes(const std::string& path);

struct Range {
    double low, high;  // ends included
    const char* unit;
};

class InputTable;

// An entry of a list that may hold names in place of tables.
using InputItem = std::variant<std::string, InputTable>;

// One table of the file. Must not outlive its InputFile.
class InputTable {
  public:
    InputTable(const toml::table& table, std::string_view file, std::string path);

    // To be called first: reports a key that is in neither list, and all required ones that are
    // missing.
    void expect(std::initializer_list<std::string_view> required,
                std::initializer_list<std::string_view> optional = {}) const;
    bool has(std::string_view key) const { return table_->contains(key); }
    std::vector<std::string> keys() const;  // sorted

    double number(std::string_view key, const Range& range) const;
    double number(std::string_view key, const Range& range, double otherwise) const;
    // A list of so many numbers, or one number that stands for all of them.
    std::vector<double> numbers(std::string_view key, std::size_t count, const Range& range) const;
    std::vector<std::string> texts(std::string_view key, std::size_t count,
                                   std::size_t longest = 40) const;
    bool is_list(std::string_view key) const { return node(key).is_array(); }
    bool is_table(std::string_view key) const { return node(key).is_table(); }
    int integer(std::string_view key, int low, int high) const;
    bool flag(std::string_view key, bool otherwise) const;
    std::string text(std::string_view key, std::size_t longest = 40) const;

    // The name of a file, of up to 400 characters.
    std::string file_name(std::string_view key) const;
    // Where that file is: beside the input, unless its name has a root.
    std::string file(std::string_view key) const;

    // The number of one of the names, counted from `first`; the number itself may stand in the file
    // too.
    int choice(std::string_view key, std::span<const std::string_view> names, int first) const;

    InputTable table(std::string_view key) const;
    std::vector<InputTable> tables(std::string_view key, std::size_t low, std::size_t high) const;
    std::vector<InputItem> items(std::string_view key, std::size_t low, std::size_t high) const;

    // For rules that concern more than one key: `throw table.error("panes", "...")`; without a key
    // the fault is the table's.
    InputError error(std::string_view key, std::string_view message) const;

  private:
    const toml::node& node(std::string_view key) const;  // throws where it is missing
    InputError not_allowed(std::string_view key, std::string_view allowed) const;
    InputError not_allowed(std::string_view key, std::size_t index, const toml::node& entry,
                           std::string_view allowed) const;  // of an entry of a list
    InputError not_allowed_whole(std::string_view key, std::string_view allowed) const;
    InputError located(const toml::node& node, const std::string& message) const;
    std::string path_of(std::string_view key) const;

    const toml::table* table_;
    std::string_view file_;
    std::string path_;
};

// A text as the table that it is, with a name for messages. Throws InputError.
toml::table parsed(std::string_view text, const std::string& name);

class InputFile {
  public:
    explicit InputFile(const std::string& path);  // "-" for standard input
    // Of a text that is no file, by a name for messages.
    InputFile(std::string name, std::string_view text);
    InputFile(std::string name, toml::table table);
    InputFile(const InputFile&) = delete;
    InputFile& operator=(const InputFile&) = delete;

    InputTable root() const { return {table_, path_, ""}; }

  private:
    std::string path_;
    toml::table table_;
};

}  // namespace quorvel::host
