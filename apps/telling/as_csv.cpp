#include "telling/as_csv.h"

#include <algorithm>

#include "telling/value.h"
#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr const char* key_of_figures = "figures";

// The key figures of a section as the only line of a table.
DataTable line_of_figures(const Section& section) {
    DataTable table{.key = key_of_figures, .title = {}, .columns = {}, .rows = {}};
    if (section.figures.empty()) return table;
    table.rows.emplace_back();
    for (const auto& [quantity, value, remark] : section.figures) {
        table.columns.push_back(quantity);
        table.rows[0].push_back(value);
    }
    return table;
}

// Lines of name and field, which need not all have the same names.
class Lines {
  public:
    void begin() { lines_.emplace_back(); }
    void add(const std::string& name, std::string field) {
        const auto found = std::ranges::find(names_, name);
        const auto place = static_cast<std::size_t>(found - names_.begin());
        if (found == names_.end()) names_.push_back(name);
        auto& line = lines_.back();
        if (line.size() <= place) line.resize(place + 1);
        line[place] = std::move(field);
    }
    std::string text() {
        std::string text = csv_line(names_);
        for (auto& line : lines_) {
            line.resize(names_.size());
            text += csv_line(line);
        }
        return text;
    }

  private:
    std::vector<std::string> names_;
    std::vector<std::vector<std::string>> lines_;
};

// A table, and what it is about.
struct Found {
    std::string input, part;
    DataTable table;
};

std::vector<Found> tables_of(std::span<const Answered> answers, const std::string& key) {
    std::vector<Found> found;
    for (const auto& [input, answer] : answers)
        for (const Section& section : answer.sections) {
            if (key == key_of_figures)
                found.push_back({input, section.key, line_of_figures(section)});
            for (const DataTable& table : section.tables)
                if (table.key == key) found.push_back({input, section.key, table});
        }
    return found;
}

}  // namespace

std::vector<std::string> table_keys(std::span<const Answered> answers) {
    std::vector<std::string> keys;
    for (const Answered& answered : answers)
        for (const Section& section : answered.answer.sections)
            for (const DataTable& table : section.tables)
                if (std::ranges::find(keys, table.key) == keys.end()) keys.push_back(table.key);
    keys.push_back(key_of_figures);
    return keys;
}

std::string main_table(std::span<const Answered> answers) {
    for (const Answered& answered : answers)
        for (const Section& section : answered.answer.sections)
            for (const DataTable& table : section.tables)
                if (table.main) return table.key;
    return table_keys(answers).front();
}

std::string as_csv(std::span<const Answered> answers, const std::string& key) {
    const auto found = tables_of(answers, key);
    const bool parts =
        std::ranges::any_of(found, [](const Found& one) { return !one.part.empty(); });
    Lines lines;
    for (const auto& [input, part, table] : found) {
        std::vector<std::string> names;
        for (const Quantity& quantity : table.columns) names.push_back(column_name(quantity));
        for (const auto& row : table.rows) {
            lines.begin();
            if (answers.size() > 1) lines.add("input", told_path(input));
            if (parts) lines.add("part", part);
            for (std::size_t i = 0; i < row.size(); ++i)
                lines.add(names[i], digits(table.columns[i], row[i]));
        }
    }
    return lines.text();
}

}  // namespace quorvel::host
