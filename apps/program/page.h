// What is said of a command: from its description come help, man page and completion.
#pragma once

#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace quorvel::program {

struct Command;

struct Entry {
    std::string term, meaning;
};

struct Group {
    std::string title;
    std::vector<Entry> entries;
};

struct Page {
    std::string name;  // quorvel climate pack
    std::string purpose, usage, description;
    std::vector<Group> groups;         // what it takes and its options, or its commands
    std::vector<std::string> topics;   // Markdown: the input language and what else there is to say
    std::vector<std::string> related;  // names of other pages
};

// Of a command; of the program itself where there is none.
Page page_of(const CLI::App& app, const Command* command);

// For a terminal, within 78 columns where the topics keep to them.
std::string as_help(const Page& page);

// For man, with the version of the program in its foot.
std::string as_man(const Page& page, const std::string& version);

// quorvel-climate-pack
std::string page_file(const Page& page);

}  // namespace quorvel::program
