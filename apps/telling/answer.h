// What a command answers: key figures, tables, pictures and how they came about. One answer is told
// as text, as comma-separated values, as JSON and as a report in HTML; the figures and their digits
// are the same in all of them.
#pragma once

#include <string>
#include <variant>
#include <vector>

#include "telling/chart.h"

namespace quorvel::host {

// As many decimals as the number needs, for what the user has given.
inline constexpr int as_given = -1;

// What a number means: the key is its name in JSON and, with the unit, in CSV (u_value, W/m²K).
struct Quantity {
    std::string key, name;
    std::string unit = {};   // empty for a word or a pure number
    int decimals = 0;        // told everywhere, or as_given
    std::string group = {};  // common heading of neighbouring columns
    bool rare_zero = false;  // a zero is told as ·, where many of them would hide what matters
};

// NaN is told as absent (–, an empty field, null).
using Value = std::variant<double, std::string>;

struct Figure {
    Quantity quantity;
    Value value;
    std::string remark = {};  // behind it, in a few words
};

// Tables of one key in several sections have the same columns; they are one table in CSV, where the
// key of their section stands in each line.
struct DataTable {
    std::string key, title;
    std::vector<Quantity> columns;
    std::vector<std::vector<Value>> rows;
    std::vector<std::string> remarks = {};  // lines below it
    bool on_request = false;  // as text only with --tables; always in CSV, JSON and HTML
    bool main = false;  // what --csv writes unless another table is asked for; else the first one
};

struct Picture {
    std::string key, title;
    Chart chart;
};

// A part of an answer, told in this order. Keys of figures and tables are unique within sections of
// one key: those without a key are about the whole, those of a window or a variant have its name.
struct Section {
    std::string title = {}, key = {};
    std::vector<std::string> paragraphs = {};
    std::vector<Figure> figures = {};
    std::vector<DataTable> tables = {};
    std::vector<Picture> pictures = {};
};

struct Answer {
    std::string title, subtitle = {};
    std::vector<Section> sections = {};    // the summary first
    std::vector<Section> inputs = {};      // what was asked, for the report
    std::vector<std::string> method = {};  // how it was worked out, a paragraph each
    // What was replaced or assumed; on standard error too, refused by --strict.
    std::vector<std::string> warnings = {};
    bool wrong = false;  // what was checked is not as it should be: exit status 1
};

// An answer and the input that it is about: a file, "-" for standard input, nothing where a command
// takes none.
struct Answered {
    std::string input;
    Answer answer;
};

// What an answer was worked out with.
struct Origin {
    std::string command, program_version;
    std::string library_version;  // empty if the library was not needed
};

}  // namespace quorvel::host
