#include "program/completion.h"

#include <algorithm>

namespace quorvel::program {
namespace {

constexpr const char* group_of_commands = "Commands";

bool has_commands(const Page& page) {
    return std::ranges::any_of(page.groups,
                               [](const Group& group) { return group.title == group_of_commands; });
}

// Commands and options of a page; what it takes else are files.
std::vector<Entry> words_of(const Page& page) {
    std::vector<Entry> words;
    for (const Group& group : page.groups)
        for (const auto& [term, meaning] : group.entries) {
            if (group.title == group_of_commands) words.push_back({term, meaning});
            for (std::size_t i = 0; term.starts_with('-') && i != term.npos;
                 i = term.find('-', i)) {
                const std::size_t end = std::min(term.find_first_of(", ", i), term.size());
                words.push_back({term.substr(i, end - i), meaning});
                i = end;
            }
        }
    return words;
}

std::string quoted(const std::string& text) {
    std::string result = "'";
    for (const char c : text) result += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return result + '\'';
}

// The branches of a shell's case over the commands given so far.
template <class Word>
std::string cases(const std::vector<Page>& pages, Word word) {
    std::string text;
    for (const Page& page : pages) {
        text += "        " + quoted(page.name) + ") choices=(";
        for (const Entry& entry : words_of(page)) text += ' ' + word(entry);
        text += " ) files=" + std::string(has_commands(page) ? "no" : "yes") + " ;;\n";
    }
    return text;
}

// Commands that stand in a row, up to the first word that is none.
std::string names(const std::vector<Page>& pages) {
    std::string text;
    for (const Page& page : pages) text += (text.empty() ? "" : " | ") + quoted(page.name);
    return text;
}

}  // namespace

std::string bash_completion(const std::vector<Page>& pages) {
    return "_quorvel() {\n"
           "    local path=quorvel i files=yes choices=()\n"
           "    for ((i = 1; i < COMP_CWORD; i++)); do\n"
           "        case \"$path ${COMP_WORDS[i]}\" in\n            " +
           names(pages) +
           ") path+=\" ${COMP_WORDS[i]}\" ;;\n"
           "        esac\n"
           "    done\n"
           "    case $path in\n" +
           cases(pages, [](const Entry& entry) { return entry.term; }) +
           "    esac\n"
           "    [[ $files == yes ]] || compopt +o default\n"
           "    COMPREPLY=($(compgen -W \"${choices[*]}\" -- \"${COMP_WORDS[COMP_CWORD]}\"))\n"
           "}\n"
           "complete -o default -F _quorvel quorvel\n";
}

std::string zsh_completion(const std::vector<Page>& pages) {
    const auto described = [](const Entry& entry) {
        return quoted(entry.term + ':' + entry.meaning);
    };
    return "#compdef quorvel\n"
           "_quorvel() {\n"
           "    local path_=quorvel word files=yes\n"
           "    local -a choices=()\n"
           "    for word in \"${(@)words[2,CURRENT-1]}\"; do\n"
           "        case \"$path_ $word\" in\n            " +
           names(pages) +
           ") path_+=\" $word\" ;;\n"
           "        esac\n"
           "    done\n"
           "    case $path_ in\n" +
           cases(pages, described) +
           "    esac\n"
           "    _describe 'quorvel' choices\n"
           "    [[ $files == no ]] || _files\n"
           "}\n"
           "_quorvel \"$@\"\n";
}

std::string fish_completion(const std::vector<Page>& pages) {
    std::string text =
        "function __quorvel_is_at\n"
        "    set -l path quorvel\n"
        "    for word in (commandline -opc)[2..]\n"
        "        contains -- \"$path $word\" ";
    for (const Page& page : pages) text += quoted(page.name) + ' ';
    text +=
        "; and set path \"$path $word\"\n"
        "    end\n"
        "    test \"$path\" = \"$argv\"\n"
        "end\n";
    for (const Page& page : pages) {
        const std::string here = "complete -c quorvel -n " + quoted("__quorvel_is_at " + page.name);
        if (has_commands(page)) text += here + " -f\n";
        for (const Entry& entry : words_of(page)) {
            const std::string& word = entry.term;
            const std::string kind = word.starts_with("--")  ? "-l " + word.substr(2)
                                     : word.starts_with('-') ? "-s " + word.substr(1)
                                                             : "-a " + word;
            text += here + ' ' + kind + " -d " + quoted(entry.meaning) + '\n';
        }
    }
    return text;
}

}  // namespace quorvel::program
