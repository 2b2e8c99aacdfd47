#pragma once

#include <string>

namespace quorvel::host {

// A picture of gnuplot without the names that it gives the parts and itself, which a browser shows
// when pointed at.
std::string svg_without_names(std::string svg);

// Such a picture as a part of an HTML page: without the head of a file, no wider than it was made,
// with a title of its own, and with a prefix to all names, which must be unique in the page.
std::string svg_inside_html(const std::string& svg, int width, const std::string& title,
                            const std::string& prefix);

}  // namespace quorvel::host
