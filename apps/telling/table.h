// A table for reading: numbers in right-aligned columns, words in left-aligned ones, neighbours
// with a common heading ruled together, units below the titles.
#pragma once

#include <string>
#include <vector>

namespace quorvel::host {

struct Column {
    std::string group;  // common heading of neighbouring columns, empty for none
    std::string title;
    bool left = false;
    std::string unit = {};
};

class Table {
  public:
    explicit Table(std::vector<Column> columns);

    void add(std::vector<std::string> cells);
    std::string text() const;
    std::size_t width() const;

  private:
    // Neighbouring columns under one heading: [first, last).
    struct Group {
        std::size_t first, last;
    };
    std::vector<Group> groups() const;
    std::size_t width_of(const Group& group) const;
    std::string heading(const Group& group) const;
    std::string line(const std::vector<std::string>& cells) const;

    std::vector<Column> columns_;
    std::vector<std::size_t> widths_;
    std::vector<std::vector<std::string>> rows_;
};

}  // namespace quorvel::host
