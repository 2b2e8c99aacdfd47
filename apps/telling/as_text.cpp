#include "telling/as_text.h"

#include <algorithm>
#include <sstream>

#include "telling/table.h"
#include "telling/value.h"
#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr std::size_t widest = 100;  // columns of a terminal

bool holds_words(const DataTable& table, std::size_t column) {
    return std::ranges::any_of(table.rows, [&](const auto& row) {
        return std::holds_alternative<std::string>(row[column]);
    });
}

using Columns = std::vector<std::size_t>;

Table table_of(const DataTable& data, const Columns& columns) {
    std::vector<Column> headings;
    for (const std::size_t i : columns) {
        const Quantity& quantity = data.columns[i];
        headings.push_back({quantity.group, quantity.name, holds_words(data, i), quantity.unit});
    }
    Table table(std::move(headings));
    for (const auto& row : data.rows) {
        std::vector<std::string> cells;
        for (const std::size_t i : columns) cells.push_back(told(data.columns[i], row[i]));
        table.add(std::move(cells));
    }
    return table;
}

// As many columns beside each other as the width takes, neighbours under one heading together where
// they can be; the first column, which says what a row is about, begins each part.
std::vector<Columns> parts_of(const DataTable& data) {
    std::vector<Columns> parts{{0}};
    for (std::size_t next = 1; next < data.columns.size(); ++next) {
        Columns& part = parts.back();
        part.push_back(next);
        if (part.size() <= 2 || table_of(data, part).width() <= widest) continue;
        const auto begins = std::ranges::find_if(part, [&](std::size_t i) {
            return i > 0 && !data.columns[i].group.empty() &&
                   data.columns[i].group == data.columns[next].group;
        });
        const auto cut =
            begins == part.end() || begins == part.begin() + 1 ? part.end() - 1 : begins;
        Columns rest{0};
        rest.insert(rest.end(), cut, part.end());
        part.erase(cut, part.end());
        parts.push_back(std::move(rest));
    }
    return parts;
}

// With an empty line between.
void append(std::string& text, const std::string& block) {
    if (!text.empty() && !block.empty()) text += '\n';
    text += block;
}

std::string text_of(const DataTable& data) {
    std::string text, parts;
    if (!data.title.empty()) append(text, data.title + '\n');
    for (const Columns& part : parts_of(data)) append(parts, table_of(data, part).text());
    append(text, parts);
    for (const std::string& remark : data.remarks) text += wrapped(remark, widest, 2);
    return text;
}

struct Line {
    std::string name, number, words;
};

Line line_of(const Figure& figure) {
    const auto& [quantity, value, remark] = figure;
    const auto* const word = std::get_if<std::string>(&value);
    const std::string& first = word ? *word : quantity.unit;
    const std::string between = first.empty() || remark.empty() ? "" : ", ";
    return {quantity.name, word ? "" : told(quantity, value), first + between + remark};
}

// Numbers below each other, words and remarks beside them, on several lines where they are long.
std::string text_of(const std::vector<Figure>& figures) {
    constexpr std::size_t gaps = 6, least = 30;
    std::vector<Line> lines;
    std::size_t names = 0, numbers = 0;
    for (const Figure& figure : figures) {
        lines.push_back(line_of(figure));
        names = std::max(names, character_count(lines.back().name));
        numbers = std::max(numbers, character_count(lines.back().number));
    }
    const std::size_t room = std::max(widest - std::min(widest, names + numbers + gaps), least);
    Table table({{"", "", true}, {"", ""}, {"", "", true}});
    for (auto& [name, number, words] : lines) {
        std::istringstream parts(words.empty() ? "\n" : wrapped(words, room));
        for (std::string part; std::getline(parts, part); name.clear(), number.clear())
            table.add({name, number, part});
    }
    return table.text();
}

// What --tables would add; a title that comes again, once.
std::string left_out(const Answer& answer) {
    std::vector<std::string_view> titles;
    for (const Section& section : answer.sections)
        for (const DataTable& table : section.tables) {
            const std::string& title = table.title.empty() ? table.key : table.title;
            if (table.on_request && std::ranges::find(titles, title) == titles.end())
                titles.push_back(title);
        }
    return titles.empty() ? "" : wrapped("With --tables also: " + joined(titles), widest);
}

// Nothing where all that it has is left out.
std::string text_of(const Section& section, bool all_tables) {
    std::string text;
    for (const std::string& paragraph : section.paragraphs)
        append(text, wrapped(paragraph, widest));
    append(text, section.figures.empty() ? "" : text_of(section.figures));
    for (const DataTable& table : section.tables)
        if (all_tables || !table.on_request) append(text, text_of(table));
    if (text.empty() || section.title.empty()) return text;
    return section.title + "\n\n" + text;
}

}  // namespace

std::string as_text(const Answer& answer, bool all_tables) {
    std::string text = answer.title + '\n';
    text += wrapped(answer.subtitle, widest);
    for (const Section& section : answer.sections) append(text, text_of(section, all_tables));
    if (!all_tables) append(text, left_out(answer));
    return text;
}

std::string as_text(std::span<const Answered> answers, bool all_tables) {
    std::string text;
    for (const auto& [input, answer] : answers) {
        if (answers.size() > 1) append(text, "── " + told_path(input) + " ──\n");
        append(text, as_text(answer, all_tables));
    }
    return text;
}

}  // namespace quorvel::host
