// A progress display on standard error for long work, where that is a terminal.
#pragma once

#include <cstddef>
#include <string>

namespace quorvel::host {

class Progress {
  public:
    Progress(std::string title, std::size_t steps);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress& operator=(const Progress&) = delete;

    void advance();

  private:
    void show() const;

    std::string title_;
    std::size_t steps_, done_ = 0;
    bool shown_;
};

}  // namespace quorvel::host
