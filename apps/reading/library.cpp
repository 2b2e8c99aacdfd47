#include "reading/library.h"

#include <algorithm>

#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr std::size_t longest_name = 60;
constexpr std::size_t most_told = 12;  // names in a message

struct ShippedTable {
    std::string_view file, text;
};
constexpr ShippedTable shipped_tables[] = {
#include "shipped_tables.inc"
};

bool shares_word(std::string_view name, std::string_view wanted) {
    while (!wanted.empty()) {
        const auto end = std::min(wanted.find(' '), wanted.size());
        const std::string_view word = wanted.substr(0, end);
        if (!word.empty() && name.find(word) != name.npos) return true;
        wanted.remove_prefix(std::min(end + 1, wanted.size()));
    }
    return false;
}

}  // namespace

Library::Library(const std::vector<std::string>& own) {
    for (const auto& [file, text] : shipped_tables)
        add(std::make_unique<InputFile>(std::string(file), text), true);
    for (const std::string& path : own) add(std::make_unique<InputFile>(path), false);
}

void Library::add(std::unique_ptr<InputFile> file, bool may_add_kinds) {
    const InputTable root = file->root();
    for (const std::string& kind : root.keys()) {
        if (!may_add_kinds && !kinds_.contains(kind)) {
            const auto known = kinds();
            const std::vector<std::string_view> told(known.begin(), known.end());
            throw root.error(kind, "unknown kind; known are " + joined(told));
        }
        const InputTable named = root.table(kind);
        for (const std::string& name : named.keys())
            kinds_[kind].insert_or_assign(name, named.table(name));
    }
    files_.push_back(std::move(file));
}

std::vector<std::string> Library::kinds() const {
    std::vector<std::string> result;
    for (const auto& [kind, entries] : kinds_) result.push_back(kind);
    return result;
}

std::vector<LibraryEntry> Library::entries(std::string_view kind, std::string_view word) const {
    std::vector<LibraryEntry> result;
    const auto entries = kinds_.find(kind);
    if (entries == kinds_.end()) return result;
    for (const auto& [name, table] : entries->second)
        if (name.find(word) != name.npos) result.push_back({name, table});
    return result;
}

InputTable Library::named(const InputTable& table, std::string_view key,
                          std::string_view kind) const {
    return named(table, key, kind, table.text(key, longest_name));
}

InputTable Library::named(const InputTable& table, std::string_view key, std::string_view kind,
                          const std::string& wanted) const {
    static const Entries nothing;
    const auto of_kind = kinds_.find(kind);
    const Entries& entries = of_kind != kinds_.end() ? of_kind->second : nothing;
    const auto entry = entries.find(wanted);
    if (entry != entries.end()) return entry->second;
    throw table.error(key, "unknown " + std::string(kind) + " \"" + wanted + "\"; known are " +
                               known_names(entries, wanted));
}

// All of a few; of many those that have a word in common with what was wanted.
std::string Library::known_names(const Entries& entries, std::string_view wanted) const {
    std::vector<std::string_view> alike, all;
    for (const auto& [name, table] : entries) {
        all.push_back(name);
        if (shares_word(name, wanted)) alike.push_back(name);
    }
    std::vector<std::string_view>& told = all.size() > most_told && !alike.empty() ? alike : all;
    const bool more = told.size() > most_told;
    if (more) told.resize(most_told);
    return joined(told) +
           (more || told.size() < entries.size() ? " and others, see quorvel materials" : "");
}

}  // namespace quorvel::host
