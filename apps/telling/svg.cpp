#include "telling/svg.h"

#include <algorithm>

namespace quorvel::host {
namespace {

// Puts a text behind each place of another.
void insert_behind(std::string& text, const std::string& place, const std::string& added) {
    for (std::size_t i = 0; (i = text.find(place, i)) != text.npos; i += added.size())
        text.insert(i += place.size(), added);
}

void remove_elements(std::string& text, const std::string& name) {
    const std::string begin = '<' + name + '>', end = "</" + name + '>';
    for (std::size_t i = 0; (i = text.find(begin, i)) != text.npos;)
        text.erase(i, text.find(end, i) + end.size() - i);
}

}  // namespace

std::string svg_without_names(std::string svg) {
    remove_elements(svg, "title");
    remove_elements(svg, "desc");
    return svg;
}

std::string svg_inside_html(const std::string& svg, int width, const std::string& title,
                            const std::string& prefix) {
    std::string text = svg.substr(std::min(svg.find("<svg"), svg.size()));
    for (const char* place : {" id='", " id=\"", "href='#", "href=\"#", "url(#"})
        insert_behind(text, place, prefix);
    if (const auto end = text.find('>'); end != text.npos)
        text.insert(end + 1, "<title>" + title + "</title>");
    text.insert(std::min<std::size_t>(4, text.size()),
                " role=\"img\" style=\"max-width: " + std::to_string(width) + "px\"");
    return text;
}

}  // namespace quorvel::host
