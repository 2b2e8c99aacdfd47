#pragma once

#include <string>

namespace quorvel::host {

enum class Format { svg, pdf, png };

// A text as a string of gnuplot.
std::string quoted(const std::string& text);

// The bytes of the picture that commands draw on a terminal: "set terminal ...". Throws
// std::runtime_error when gnuplot is missing, fails or stops before the picture is whole.
std::string draw_with_gnuplot(const std::string& terminal, const std::string& commands,
                              Format format);

}  // namespace quorvel::host
