// Memory between two inaccessible pages: a read or write outside it ends in a fault at once.
#pragma once

#include <cstddef>

namespace quorvel::test {

enum class Against { PageBelow, PageAbove };

class GuardedMemory {
  public:
    explicit GuardedMemory(std::size_t bytes);
    ~GuardedMemory();
    GuardedMemory(GuardedMemory&& other) noexcept;
    GuardedMemory(const GuardedMemory&) = delete;

    // The address of so many bytes directly against one of the pages.
    void* place(std::size_t bytes, Against page) const;
    void allow_writing(bool allowed);

  private:
    std::byte* first_;
    std::size_t size_;
    bool writable_ = false;
};

// From now on a fault prints this text and ends the program with status 1.
void explain_faults(const char* (*text)());

}  // namespace quorvel::test
