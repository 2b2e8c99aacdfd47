// Man pages, in the macros of man(7).
#include <algorithm>
#include <cctype>
#include <sstream>

#include "program/page.h"

namespace quorvel::program {
namespace {

// Text whose characters all stand for themselves, at the beginning of a line too.
std::string literal(std::string_view text) {
    std::string result;
    for (const char c : text) {
        if (c == '\\')
            result += "\\e";
        else if (c == '-')
            result += "\\-";
        else
            result += c;
    }
    return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

// A heading, or any argument of a macro.
std::string argument(std::string_view text) {
    std::string result = literal(text);
    for (std::size_t i = 0; (i = result.find('"', i)) != result.npos; i += 4)
        result.replace(i, 1, "\\(dq");
    return '"' + result + '"';
}

// A line of running text: `code` and **words** are bold.
std::string inline_text(std::string_view text) {
    std::string result;
    bool bold = false;
    const auto turn = [&] { result += (bold = !bold) ? "\\fB" : "\\fR"; };
    while (!text.empty()) {
        const std::size_t mark = text.starts_with("**") ? 2 : text.starts_with("`") ? 1 : 0;
        if (mark) turn();
        if (!mark)
            result += text[0] == '\\' ? "\\e" : text[0] == '-' ? "\\-" : std::string(1, text[0]);
        text.remove_prefix(std::max<std::size_t>(mark, 1));
    }
    if (bold) turn();
    return result.starts_with('.') || result.starts_with('\'') ? "\\&" + result : result;
}

std::string upper(std::string text) {
    std::ranges::transform(text, text.begin(),
                           [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
    return text;
}

// Markdown: headings, running text, and all else line by line as it stands.
class Topic {
  public:
    std::string roff(const std::string& markdown) {
        if (!markdown.starts_with('#')) text_ += ".SH NOTES\n";
        std::istringstream lines(markdown);
        for (std::string line; std::getline(lines, line);) add(line);
        as_it_stands(false);
        return text_;
    }

  private:
    void add(const std::string& line) {
        if (line.starts_with("```")) {
            fenced_ = !fenced_;
            return as_it_stands(fenced_);
        }
        if (line.empty() && !fenced_) {
            paragraph_ = !below_heading_;
            return;
        }
        const bool table_or_list =
            line.starts_with(' ') || line.starts_with('|') || line.starts_with("- ");
        if (!fenced_ && line.starts_with('#')) return heading(line);
        as_it_stands(fenced_ || table_or_list);
        if (paragraph_) text_ += ".PP\n";
        paragraph_ = below_heading_ = false;
        text_ += (fenced_ || table_or_list ? literal(line) : inline_text(line)) + '\n';
    }

    void heading(const std::string& line) {
        as_it_stands(false);
        paragraph_ = false;
        below_heading_ = true;
        const bool first = line.starts_with("# ") || line.starts_with("## ");
        const std::string title = line.substr(line.find_first_not_of("# "));
        text_ += (first ? ".SH " + argument(upper(title)) : ".SS " + argument(title)) + '\n';
    }

    void as_it_stands(bool wanted) {
        if (wanted == standing_) return;
        if (wanted && paragraph_) text_ += ".PP\n";
        if (wanted) paragraph_ = false;
        text_ += wanted ? ".nf\n" : ".fi\n";
        standing_ = wanted;
    }

    std::string text_;
    bool fenced_ = false, standing_ = false, paragraph_ = false, below_heading_ = false;
};

}  // namespace

std::string as_man(const Page& page, const std::string& version) {
    std::string text = ".TH " + argument(upper(page_file(page))) + " 1 \"\" " +
                       argument("quorvel " + version) + " " + argument("Quorvel") + "\n.SH NAME\n" +
                       literal(page_file(page)) + " \\- " + literal(page.purpose) +
                       "\n.SH SYNOPSIS\n.B " + literal(page.usage) + '\n';
    if (!page.description.empty()) text += Topic().roff("# Description\n" + page.description);
    for (const Group& group : page.groups) {
        text += ".SH " + argument(upper(group.title.empty() ? "Arguments" : group.title)) + '\n';
        for (const auto& [term, meaning] : group.entries)
            text += ".TP\n.B " + literal(term) + '\n' + inline_text(meaning) + '\n';
    }
    for (const std::string& topic : page.topics) text += Topic().roff(topic);
    if (page.related.empty()) return text;
    text += ".SH \"SEE ALSO\"\n";
    for (const std::string& name : page.related) {
        Page other;
        other.name = name;
        text += ".BR " + literal(page_file(other)) + " (1)" +
                (name == page.related.back() ? "\n" : ",\n");
    }
    return text;
}

}  // namespace quorvel::program
