#include "telling/as_html.h"

#include <algorithm>

#include "telling/svg.h"
#include "telling/value.h"
#include "text/text.h"

namespace quorvel::host {
namespace {

constexpr const char* style =
#include "report_css.inc"
    ;

constexpr std::size_t many_columns = 12;  // from here on they are set smaller

// Without its folders, which concern nobody but its author.
std::string file_name(const std::string& path) {
    return told_path(path.substr(path.find_last_of("/\\") + 1));
}

std::string escaped(std::string_view text) {
    std::string result;
    for (const char c : text) switch (c) {
            case '&':
                result += "&amp;";
                break;
            case '<':
                result += "&lt;";
                break;
            case '>':
                result += "&gt;";
                break;
            case '"':
                result += "&quot;";
                break;
            default:
                result += c;
        }
    return result;
}

// <name attributes>text</name>, the text as it is.
std::string element(const std::string& name, const std::string& inside,
                    const std::string& attributes = {}) {
    std::string result = "<" + name;
    if (!attributes.empty()) result.append(" ").append(attributes);
    return result.append(">").append(inside).append("</").append(name).append(">");
}

std::string line(const std::string& name, std::string_view text,
                 const std::string& attributes = {}) {
    return element(name, escaped(text), attributes) + '\n';
}

bool is_word(const Value& value) { return std::holds_alternative<std::string>(value); }

std::string words_class(bool words) { return words ? "class=\"word\"" : ""; }

class Headings {
  public:
    explicit Headings(const DataTable& table) : table_(table) {
        for (std::size_t i = 0; i < table.columns.size(); ++i)
            words_.push_back(
                std::ranges::any_of(table.rows, [i](const auto& row) { return is_word(row[i]); }));
    }

    std::string html() const {
        std::string rows;
        if (any(&Quantity::group)) rows += element("tr", groups()) + '\n';
        if (any(&Quantity::name)) rows += element("tr", cells(&Quantity::name)) + '\n';
        if (any(&Quantity::unit))
            rows += element("tr", cells(&Quantity::unit), "class=\"units\"") + '\n';
        return rows.empty() ? "" : element("thead", '\n' + rows) + '\n';
    }

    bool words(std::size_t column) const { return words_[column]; }

  private:
    bool any(std::string Quantity::*part) const {
        return std::ranges::any_of(
            table_.columns, [part](const Quantity& column) { return !(column.*part).empty(); });
    }

    std::string cells(std::string Quantity::*part) const {
        std::string row;
        for (std::size_t i = 0; i < words_.size(); ++i)
            row += element("th", escaped(table_.columns[i].*part), words_class(words_[i]));
        return row;
    }

    std::string groups() const {
        std::string row;
        const auto& columns = table_.columns;
        for (std::size_t i = 0, next; i < columns.size(); i = next) {
            for (next = i + 1; next < columns.size() && columns[next].group == columns[i].group;)
                ++next;
            std::string attributes = "colspan=\"" + std::to_string(next - i) + '"';
            if (!columns[i].group.empty()) attributes += " class=\"group\"";
            row += element("th", escaped(columns[i].group), attributes);
        }
        return row;
    }

    const DataTable& table_;
    std::vector<bool> words_;
};

std::string html_of(const DataTable& table) {
    const Headings headings(table);
    std::string body;
    for (const auto& row : table.rows) {
        std::string cells;
        for (std::size_t i = 0; i < row.size(); ++i)
            cells += element("td", escaped(told(table.columns[i], row[i])),
                             words_class(headings.words(i)));
        body += element("tr", cells) + '\n';
    }
    const bool wide = table.columns.size() >= many_columns;
    std::string html =
        element("table", '\n' + headings.html() + element("tbody", '\n' + body) + '\n',
                wide ? "class=\"wide\"" : "");
    html = element("div", html, "class=\"scroll\"") + '\n';
    for (const std::string& remark : table.remarks) html += line("p", remark, "class=\"remark\"");
    if (!table.on_request) return (table.title.empty() ? "" : line("h3", table.title)) + html;
    const std::string& title = table.title.empty() ? table.key : table.title;
    return element("details", element("summary", escaped(title)) + '\n' + html) + '\n';
}

std::string html_of(const std::vector<Figure>& figures) {
    if (figures.empty()) return "";
    std::string rows;
    for (const auto& [quantity, value, remark] : figures) {
        const std::string kind = is_word(value) ? "class=\"value word\"" : "class=\"value\"";
        rows += element("tr", element("td", escaped(quantity.name), "class=\"word\"") +
                                  element("td", escaped(told(quantity, value)), kind) +
                                  element("td", escaped(quantity.unit), "class=\"word\"") +
                                  element("td", escaped(remark), "class=\"word remark\"")) +
                '\n';
    }
    return element("table", '\n' + rows, "class=\"figures\"") + '\n';
}

class Report {
  public:
    Report(const Origin& origin, const Draw& draw) : origin_(origin), draw_(draw) {}

    std::string html_of(const Answered& answered) {
        const Answer& answer = answered.answer;
        std::string html = heading(answered) + warnings(answer.warnings);
        for (const Section& section : answer.sections) html += html_of(section, "h2");
        if (!answer.inputs.empty()) html += line("h2", "Inputs");
        for (const Section& section : answer.inputs) html += html_of(section, "h3");
        if (!answer.method.empty()) html += line("h2", "Method");
        for (const std::string& paragraph : answer.method) html += line("p", paragraph);
        return element("article", '\n' + html + footer()) + '\n';
    }

  private:
    static std::string heading(const Answered& answered) {
        std::string html = line("h1", answered.answer.title);
        if (!answered.answer.subtitle.empty())
            html += line("p", answered.answer.subtitle, "class=\"subtitle\"");
        if (!answered.input.empty())
            html += line("p", "Input: " + file_name(answered.input), "class=\"source\"");
        return element("header", '\n' + html) + '\n';
    }

    static std::string warnings(const std::vector<std::string>& warnings) {
        if (warnings.empty()) return "";
        std::string list;
        for (const std::string& warning : warnings) list += line("li", warning);
        return element("section", line("h2", "Please note") + element("ul", '\n' + list),
                       "class=\"warnings\"") +
               '\n';
    }

    std::string html_of(const Section& section, const char* level) {
        std::string html = section.title.empty() ? "" : line(level, section.title);
        for (const std::string& paragraph : section.paragraphs) html += line("p", paragraph);
        html += host::html_of(section.figures);
        for (const Picture& picture : section.pictures) html += html_of(picture);
        for (const DataTable& table : section.tables) html += host::html_of(table);
        return element("section", '\n' + html) + '\n';
    }

    // Names inside a picture are those of this one alone.
    std::string html_of(const Picture& picture) {
        const std::string svg = draw_(picture.chart);
        if (svg.empty())
            return line("p", picture.title + ": this chart could not be drawn.",
                        "class=\"remark\"");
        const std::string inside =
            svg_inside_html(svg, picture.chart.width(), escaped(picture.title),
                            "picture" + std::to_string(++pictures_) + '-');
        return element("figure", inside + line("figcaption", picture.title)) + '\n';
    }

    std::string footer() const {
        std::string text = "quorvel " + origin_.command + ", program " + origin_.program_version;
        if (!origin_.library_version.empty())
            text += ", Quorvel library " + origin_.library_version;
        return line("footer", text);
    }

    const Origin& origin_;
    const Draw& draw_;
    int pictures_ = 0;
};

}  // namespace

std::string as_html(const Origin& origin, std::span<const Answered> answers, const Draw& draw) {
    Report report(origin, draw);
    std::string body;
    for (const Answered& answered : answers) body += report.html_of(answered);
    const std::string title =
        answers.size() == 1 ? answers[0].answer.title : "quorvel " + origin.command;
    const std::string head =
        "<meta charset=\"utf-8\">\n<meta name=\"viewport\" content=\"width=device-width\">\n" +
        line("title", title) + element("style", '\n' + std::string(style)) + '\n';
    return "<!DOCTYPE html>\n<html lang=\"en\">\n" + element("head", '\n' + head) + '\n' +
           element("body", '\n' + body) + "\n</html>\n";
}

}  // namespace quorvel::host
