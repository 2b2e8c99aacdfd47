// Answers as a report for a client: one HTML file with its style and charts in it, for a browser
// and for paper.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "telling/answer.h"

namespace quorvel::host {

// What draws a chart as SVG; nothing where it cannot be drawn.
using Draw = std::function<std::string(const Chart&)>;

std::string as_html(const Origin& origin, std::span<const Answered> answers, const Draw& draw);

}  // namespace quorvel::host
