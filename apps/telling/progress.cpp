#include "telling/progress.h"

#include <cstdio>
#include <iostream>
#include <utility>

#ifdef _WIN32
#include <io.h>
#else
#include <unistd.h>
#endif

namespace quorvel::host {
namespace {

#ifdef _WIN32
bool error_is_terminal() { return _isatty(_fileno(stderr)) != 0; }
#else
bool error_is_terminal() { return isatty(STDERR_FILENO) != 0; }
#endif

}  // namespace

Progress::Progress(std::string title, std::size_t steps)
    : title_(std::move(title)), steps_(steps), shown_(error_is_terminal()) {
    show();
}

// Leaves nothing on the line.
Progress::~Progress() {
    if (shown_) std::cerr << '\r' << std::string(title_.size() + 8, ' ') << '\r' << std::flush;
}

void Progress::advance() {
    ++done_;
    show();
}

void Progress::show() const {
    if (shown_ && steps_ > 0)
        std::cerr << '\r' << title_ << ' ' << 100 * done_ / steps_ << " %" << std::flush;
}

}  // namespace quorvel::host
