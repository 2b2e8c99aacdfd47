#include "telling/table.h"

#include <algorithm>

#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr std::size_t gap = 2;        // between columns
constexpr std::size_t group_gap = 4;  // between groups

std::string repeated(const char* text, std::size_t n) {
    std::string result;
    while (n-- > 0) result += text;
    return result;
}

}  // namespace

Table::Table(std::vector<Column> columns) : columns_(std::move(columns)) {
    for (const Column& column : columns_)
        widths_.push_back(std::max(character_count(column.title), character_count(column.unit)));
    for (const Group& group : groups()) {  // a long heading widens its first column
        const std::size_t heading = character_count(columns_[group.first].group) + 4;
        const std::size_t now = width_of(group);
        if (columns_[group.first].group != "" && heading > now)
            widths_[group.first] += heading - now;
    }
}

void Table::add(std::vector<std::string> cells) {
    for (std::size_t i = 0; i < cells.size(); ++i)
        widths_[i] = std::max(widths_[i], character_count(cells[i]));
    rows_.push_back(std::move(cells));
}

std::string Table::text() const {
    std::string headings;
    std::vector<std::string> titles, units;
    for (const Group& group : groups())
        headings += repeated(" ", group.first == 0 ? gap : group_gap) + heading(group);
    for (const Column& column : columns_) {
        titles.push_back(column.title);
        units.push_back(column.unit);
    }

    std::string result;
    for (const std::string& above : {headings, line(titles), line(units)})
        if (const auto end = above.find_last_not_of(" \n"); end != std::string::npos)
            result += above.substr(0, end + 1) + '\n';
    for (const auto& row : rows_) result += line(row);
    return result;
}

std::size_t Table::width() const {
    std::size_t sum = 0;
    for (const Group& group : groups())
        sum += (group.first == 0 ? gap : group_gap) + width_of(group);
    return sum;
}

std::vector<Table::Group> Table::groups() const {
    std::vector<Group> result;
    for (std::size_t i = 0; i < columns_.size(); ++i) {
        const bool continues = i > 0 && columns_[i].group == columns_[i - 1].group;
        if (!continues) result.push_back({i, i});
        result.back().last = i + 1;
    }
    return result;
}

std::size_t Table::width_of(const Group& group) const {
    std::size_t sum = gap * (group.last - group.first - 1);
    for (std::size_t i = group.first; i < group.last; ++i) sum += widths_[i];
    return sum;
}

std::string Table::heading(const Group& group) const {
    const std::string& name = columns_[group.first].group;
    if (name.empty()) return repeated(" ", width_of(group));
    const std::size_t rule = width_of(group) - character_count(name) - 2;
    return repeated("─", rule / 2) + ' ' + name + ' ' + repeated("─", rule - rule / 2);
}

std::string Table::line(const std::vector<std::string>& cells) const {
    std::string result;
    for (const Group& group : groups()) {
        for (std::size_t i = group.first; i < group.last; ++i) {
            const std::size_t before = i > 0 && i == group.first ? group_gap : gap;
            const std::string fill = repeated(" ", widths_[i] - character_count(cells[i]));
            result +=
                repeated(" ", before) + (columns_[i].left ? cells[i] + fill : fill + cells[i]);
        }
    }
    return result.substr(0, result.find_last_not_of(' ') + 1) + '\n';
}

}  // namespace quorvel::host
