#include "reading/input.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <optional>
#include <sstream>

#include "telling/text.h"

namespace quorvel::host {
namespace {

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// Names and values come from the file and may hold line ends.
std::string on_one_line(std::string text) {
    std::ranges::replace_if(text, is_control, ' ');
    return text;
}

// A value as the user wrote it, near enough to be recognised.
std::string shown(const toml::node& node) {
    if (const auto* number = node.as_integer()) return std::to_string(number->get());
    if (const auto* number = node.as_floating_point()) return shortest(number->get());
    if (const auto* text = node.as_string()) return '"' + text->get() + '"';
    if (const auto* flag = node.as_boolean()) return flag->get() ? "true" : "false";
    if (const auto* list = node.as_array()) return "list of " + std::to_string(list->size());
    return node.is_table() ? "table" : "date or time";
}

std::string told(const Range& range) {
    return shortest(range.low) + " to " + shortest(range.high) + ' ' + range.unit;
}

std::optional<double> number_within(const toml::node& node, const Range& range) {
    const double value = node.is_number() ? *node.value<double>() : std::nan("");
    if (value >= range.low && value <= range.high) return value;
    return std::nullopt;
}

std::string read_bytes(const std::string& path) {
    std::ifstream stream(path, std::ios::binary);
    std::ostringstream bytes;
    if (stream && stream.peek() != std::ifstream::traits_type::eof()) bytes << stream.rdbuf();
    if (!stream.is_open() || stream.bad()) throw InputError(path + ": cannot be read");
    return bytes.str();
}

}  // namespace

InputError::InputError(std::string message) : std::runtime_error(on_one_line(std::move(message))) {}

InputFile::InputFile(std::string path) : InputFile(path, read_bytes(path)) {}

InputFile::InputFile(std::string name, std::string_view text) : path_(std::move(name)) {
    try {
        table_ = toml::parse(text, path_);
    } catch (const toml::parse_error& fault) {
        throw InputError(path_ + ':' + std::to_string(fault.source().begin.line) +
                         ": not valid TOML: " + std::string(fault.description()));
    }
}

InputTable::InputTable(const toml::table& table, std::string_view file, std::string path)
    : table_(&table), file_(file), path_(std::move(path)) {}

void InputTable::expect(std::initializer_list<std::string_view> required,
                        std::initializer_list<std::string_view> optional) const {
    std::vector<std::string_view> known(required);
    known.insert(known.end(), optional);
    for (const auto& [key, value] : *table_) {
        if (std::ranges::find(known, key.str()) == known.end())
            throw located(value, path_of(key.str()) + ": unknown key; known are " + joined(known));
    }
    std::vector<std::string_view> missing;
    std::ranges::copy_if(required, std::back_inserter(missing),
                         [&](auto key) { return !has(key); });
    if (missing.empty()) return;
    throw located(*table_, (path_.empty() ? "" : path_ + ": ") + "missing " + joined(missing));
}

std::vector<std::string> InputTable::keys() const {
    std::vector<std::string> result;
    for (const auto& [key, value] : *table_) result.emplace_back(key.str());
    return result;
}

double InputTable::number(std::string_view key, const Range& range) const {
    if (const auto value = number_within(node(key), range)) return *value;
    throw not_allowed(key, told(range));
}

double InputTable::number(std::string_view key, const Range& range, double otherwise) const {
    return has(key) ? number(key, range) : otherwise;
}

std::vector<double> InputTable::numbers(std::string_view key, std::size_t count,
                                        const Range& range) const {
    const auto* list = node(key).as_array();
    if (!list) return std::vector<double>(count, number(key, range));
    if (list->size() != count) throw not_allowed(key, std::to_string(count) + " numbers");
    std::vector<double> result;
    for (const toml::node& entry : *list) {
        const auto value = number_within(entry, range);
        const std::string place = path_of(key) + '[' + std::to_string(result.size() + 1) + ']';
        if (!value)
            throw located(entry, place + ": value " + shown(entry) + "; allowed " + told(range));
        result.push_back(*value);
    }
    return result;
}

int InputTable::integer(std::string_view key, int low, int high) const {
    const auto* value = node(key).as_integer();
    if (value && value->get() >= low && value->get() <= high) return static_cast<int>(value->get());
    throw not_allowed(key, "whole numbers " + std::to_string(low) + " to " + std::to_string(high));
}

std::string InputTable::text(std::string_view key, std::size_t longest) const {
    if (const auto* value = node(key).as_string()) {
        const std::string& text = value->get();
        const bool short_enough = !text.empty() && character_count(text) <= longest;
        if (short_enough && std::ranges::none_of(text, is_control)) return text;
    }
    throw not_allowed(key, "text of 1 to " + std::to_string(longest) + " characters on one line");
}

int InputTable::choice(std::string_view key, std::span<const std::string_view> names,
                       int first) const {
    const int last = first + static_cast<int>(names.size()) - 1;
    if (const auto* value = node(key).as_integer()) {
        if (value->get() >= first && value->get() <= last) return static_cast<int>(value->get());
    } else if (const auto* name = node(key).as_string()) {
        const auto found = std::ranges::find(names, std::string_view(name->get()));
        if (found != names.end()) return first + static_cast<int>(found - names.begin());
    }
    throw not_allowed(
        key, joined(names) + ", or " + std::to_string(first) + " to " + std::to_string(last));
}

InputTable InputTable::table(std::string_view key) const {
    if (const auto* value = node(key).as_table()) return {*value, file_, path_of(key)};
    throw not_allowed(key, "a table of keys");
}

std::vector<InputTable> InputTable::tables(std::string_view key, std::size_t low,
                                           std::size_t high) const {
    const auto* list = node(key).as_array();
    const auto is_table = [](const toml::node& entry) { return entry.is_table(); };
    if (!list || list->size() < low || list->size() > high || !std::ranges::all_of(*list, is_table))
        throw not_allowed(key,
                          std::to_string(low) + " to " + std::to_string(high) + " tables of keys");
    std::vector<InputTable> result;
    for (const toml::node& entry : *list) {
        const std::string number = std::to_string(result.size() + 1);
        result.push_back({*entry.as_table(), file_, path_of(key) + '[' + number + ']'});
    }
    return result;
}

InputError InputTable::error(std::string_view key, std::string_view message) const {
    const toml::node& place = has(key) ? node(key) : *table_;
    return located(place, path_of(key) + ": " + std::string(message));
}

InputError InputTable::not_allowed(std::string_view key, std::string_view allowed) const {
    return error(key, "value " + shown(node(key)) + "; allowed " + std::string(allowed));
}

InputError InputTable::located(const toml::node& node, const std::string& message) const {
    const auto line = node.source().begin.line;
    const std::string place = line > 0 ? ':' + std::to_string(line) : "";
    return InputError(std::string(file_) + place + ": " + message);
}

std::string InputTable::path_of(std::string_view key) const {
    if (path_.empty() || key.empty()) return path_ + std::string(key);
    return path_ + '.' + std::string(key);
}

}  // namespace quorvel::host
