// A file of fixed-length records of numbers, lowest byte first, read only, addressed by record
// number.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

#include "climate/months.h"

namespace quorvel::climate {

using Record = std::array<MonthlyRow, 9>;
static_assert(sizeof(Record) == 432);

// A name without its trailing blanks. Longer ones than the capacity name no file that could be
// opened. No more of a text is read: it may have no end.
class FileName {
  public:
    // False, and the name is as before, when it is too long.
    bool assign(const char* text) noexcept {
        std::size_t length = 0;
        while (length < text_.size() && text[length] != '\0') ++length;
        while (length > 0 && text[length - 1] == ' ') --length;
        if (length == text_.size()) return false;
        std::memcpy(text_.data(), text, length);
        text_[length] = '\0';
        return true;
    }
    const char* c_str() const noexcept { return text_.data(); }

    static constexpr std::size_t capacity = 4096;  // with the NUL

  private:
    std::array<char, capacity> text_{};
};

class RecordFile {
  public:
    RecordFile() noexcept = default;
    ~RecordFile();
    RecordFile(const RecordFile&) = delete;
    RecordFile& operator=(const RecordFile&) = delete;

    // The name that means the same file from any folder; none if the given one does, or if that is
    // too long or cannot be told.
    static std::optional<FileName> in_full(const FileName& name) noexcept;

    // Once with success in the object's life. Only regular files are opened: never one that could
    // wait for data or that has no end.
    bool open(const char* name) noexcept;
    bool is_open() const noexcept { return handle_ != closed; }

    // Records count from 1. False, and the record's content is of no use, when it is not in the
    // file as a whole.
    bool read(std::int64_t number, Record& record) const noexcept;

  private:
    static constexpr std::intptr_t closed = -1;
    std::intptr_t handle_ = closed;
};

}  // namespace quorvel::climate
