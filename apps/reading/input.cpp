#include "reading/input.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <iostream>
#include <optional>
#include <sstream>

#include "text/text.h"

namespace quorvel::host {
namespace {

// Of UTF-8: no first byte of a character.
bool is_continued(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

bool is_control(char c) { return static_cast<unsigned char>(c) < 0x20 || c == 0x7F; }

// Names and values come from the file and may hold line ends.
std::string on_one_line(std::string text) {
    std::ranges::replace_if(text, is_control, ' ');
    return text;
}

// As TOML tells it from a whole number: 5.0.
std::string shown(double value) {
    const std::string digits = shortest(value);
    const bool whole = digits.find_first_not_of("-0123456789") == digits.npos;
    return whole ? digits + ".0" : digits;
}

// The beginning of a long one.
std::string shown(const std::string& text) {
    constexpr std::size_t longest = 60;
    if (character_count(text) <= longest) return '"' + text + '"';
    std::size_t end = longest;
    while (is_continued(text[end])) --end;
    return '"' + text.substr(0, end) + "…\"";
}

// A value as the user wrote it, near enough to be recognised.
std::string shown(const toml::node& node) {
    if (const auto* number = node.as_integer()) return std::to_string(number->get());
    if (const auto* number = node.as_floating_point()) return shown(number->get());
    if (const auto* text = node.as_string()) return shown(text->get());
    if (const auto* flag = node.as_boolean()) return flag->get() ? "true" : "false";
    if (const auto* list = node.as_array()) return "list of " + std::to_string(list->size());
    return node.is_table() ? "table" : "date or time";
}

// "1 to 6", or "only 1".
std::string from_to(const std::string& low, const std::string& high) {
    return low == high ? "only " + low : low + " to " + high;
}

template <class Integer>
std::string from_to(Integer low, Integer high) {
    return from_to(std::to_string(low), std::to_string(high));
}

std::string told(const Range& range) {
    return from_to(shortest(range.low), shortest(range.high)) + ' ' + range.unit;
}

std::string counted(std::size_t n, const std::string& what) {
    return std::to_string(n) + ' ' + what + (n == 1 ? "" : "s");
}

std::optional<double> number_within(const toml::node& node, const Range& range) {
    const double value = node.is_number() ? *node.value<double>() : std::nan("");
    if (value >= range.low && value <= range.high) return value;
    return std::nullopt;
}

// Nothing unless it is a text on one line, of 1 to so many characters.
const std::string* text_within(const toml::node& node, std::size_t longest) {
    const auto* value = node.as_string();
    if (!value || value->get().empty() || character_count(value->get()) > longest) return nullptr;
    return std::ranges::none_of(value->get(), is_control) ? &value->get() : nullptr;
}

std::string allowed_text(std::size_t longest) {
    return "text of 1 to " + std::to_string(longest) + " characters on one line";
}

std::string beside(std::string_view input, const std::string& file) {
    const bool rooted = file[0] == '/' || file[0] == '\\' || file.find(':') != std::string::npos;
    const std::size_t folder = input.find_last_of("/\\");
    return rooted || folder == std::string::npos ? file
                                                 : std::string(input.substr(0, folder + 1)) + file;
}

}  // namespace

InputError::InputError(std::string message) : std::runtime_error(on_one_line(std::move(message))) {}

InputError InputError::all(const std::vector<std::string>& messages) {
    Lines lines;
    for (const std::string& message : messages) {
        if (!lines.text.empty()) lines.text += '\n';
        lines.text += on_one_line(message);
    }
    return InputError(lines);
}

std::string read_bytes(const std::string& path) {
    std::ifstream file;
    if (path != "-") file.open(path, std::ios::binary);
    std::istream& stream = path == "-" ? std::cin : file;
    std::ostringstream bytes;
    if (stream && stream.peek() != std::istream::traits_type::eof()) bytes << stream.rdbuf();
    if ((path != "-" && !file.is_open()) || stream.bad())
        throw InputError(told_path(path) + ": cannot be read");
    return bytes.str();
}

toml::table parsed(std::string_view text, const std::string& name) {
    try {
        return toml::parse(text, name);
    } catch (const toml::parse_error& fault) {
        throw InputError(name + ':' + std::to_string(fault.source().begin.line) +
                         ": not valid TOML: " + std::string(fault.description()));
    }
}

InputFile::InputFile(const std::string& path) : InputFile(told_path(path), read_bytes(path)) {}

InputFile::InputFile(std::string name, std::string_view text)
    : InputFile(name, parsed(text, name)) {}

InputFile::InputFile(std::string name, toml::table table)
    : path_(std::move(name)), table_(std::move(table)) {}

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
    if (list->size() != count) throw not_allowed(key, counted(count, "number"));
    std::vector<double> result;
    for (const toml::node& entry : *list) {
        const auto value = number_within(entry, range);
        if (!value) throw not_allowed(key, result.size(), entry, told(range));
        result.push_back(*value);
    }
    return result;
}

int InputTable::integer(std::string_view key, int low, int high) const {
    const auto* value = node(key).as_integer();
    if (value && value->get() >= low && value->get() <= high) return static_cast<int>(value->get());
    throw not_allowed_whole(key, (low == high ? "" : "whole numbers ") + from_to(low, high));
}

bool InputTable::flag(std::string_view key, bool otherwise) const {
    if (!has(key)) return otherwise;
    if (const auto* value = node(key).as_boolean()) return value->get();
    throw not_allowed(key, "true or false");
}

std::string InputTable::text(std::string_view key, std::size_t longest) const {
    if (const auto* text = text_within(node(key), longest)) return *text;
    throw not_allowed(key, allowed_text(longest));
}

std::string InputTable::file_name(std::string_view key) const {
    constexpr std::size_t longest = 400;
    return text(key, longest);
}

std::string InputTable::file(std::string_view key) const { return beside(file_, file_name(key)); }

std::vector<std::string> InputTable::texts(std::string_view key, std::size_t count,
                                           std::size_t longest) const {
    const auto* list = node(key).as_array();
    if (!list || list->size() != count) throw not_allowed(key, std::to_string(count) + " texts");
    std::vector<std::string> result;
    for (const toml::node& entry : *list) {
        const auto* text = text_within(entry, longest);
        if (!text) throw not_allowed(key, result.size(), entry, allowed_text(longest));
        result.push_back(*text);
    }
    return result;
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
    throw not_allowed_whole(key, joined(names) + ", or " + from_to(first, last));
}

std::vector<InputItem> InputTable::items(std::string_view key, std::size_t low,
                                         std::size_t high) const {
    const auto* list = node(key).as_array();
    const auto is_item = [](const toml::node& entry) {
        return entry.is_table() || entry.is_string();
    };
    if (!list || list->size() < low || list->size() > high || !std::ranges::all_of(*list, is_item))
        throw not_allowed(
            key, std::to_string(low) + " to " + std::to_string(high) + " names or tables of keys");
    std::vector<InputItem> result;
    for (const toml::node& entry : *list) {
        const std::string number = path_of(key) + '[' + std::to_string(result.size() + 1) + ']';
        if (const auto* table = entry.as_table())
            result.emplace_back(InputTable(*table, file_, number));
        else
            result.emplace_back(entry.as_string()->get());
    }
    return result;
}

InputTable InputTable::table(std::string_view key) const {
    if (const auto* value = node(key).as_table()) return {*value, file_, path_of(key)};
    throw not_allowed(key, "a table of keys");
}

std::vector<InputTable> InputTable::tables(std::string_view key, std::size_t low,
                                           std::size_t high) const {
    const auto* list = node(key).as_array();
    const auto is_table = [](const toml::node& entry) { return entry.is_table(); };
    if (!list || list->size() < low || list->size() > high ||
        !std::ranges::all_of(*list, is_table)) {
        const std::string heading = "[[" + path_of(key) + "]]";
        throw not_allowed(key, from_to(low, high) + (high == 1 ? " table" : " tables") +
                                   " of keys, headed " + heading);
    }
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

const toml::node& InputTable::node(std::string_view key) const {
    if (const toml::node* found = table_->get(key)) return *found;
    throw error("", "missing " + std::string(key));
}

InputError InputTable::not_allowed(std::string_view key, std::string_view allowed) const {
    return error(key, "value " + shown(node(key)) + "; allowed " + std::string(allowed));
}

InputError InputTable::not_allowed(std::string_view key, std::size_t index, const toml::node& entry,
                                   std::string_view allowed) const {
    return located(entry, path_of(key) + '[' + std::to_string(index + 1) + "]: value " +
                              shown(entry) + "; allowed " + std::string(allowed));
}

InputError InputTable::not_allowed_whole(std::string_view key, std::string_view allowed) const {
    if (!node(key).is_floating_point()) return not_allowed(key, allowed);
    return error(
        key, "value " + shown(node(key)) + " is no whole number; allowed " + std::string(allowed));
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
