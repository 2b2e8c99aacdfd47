#include "contract/guarded_memory.h"

#include <cstdio>
#include <cstdlib>
#include <new>
#include <utility>

#ifdef _WIN32
#include <windows.h>
#else
#include <sys/mman.h>
#include <unistd.h>
#include <csignal>
#endif

namespace quorvel::test {
namespace {

#ifdef _WIN32
std::size_t page_size() {
    SYSTEM_INFO system;
    GetSystemInfo(&system);
    return system.dwPageSize;
}
void* reserve(std::size_t bytes) {
    return VirtualAlloc(nullptr, bytes, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS);
}
void release(void* address, std::size_t) { VirtualFree(address, 0, MEM_RELEASE); }
void protect(void* address, std::size_t bytes, bool writable) {
    DWORD before;
    if (!VirtualProtect(address, bytes, writable ? PAGE_READWRITE : PAGE_READONLY, &before))
        std::abort();
}
#else
std::size_t page_size() { return static_cast<std::size_t>(sysconf(_SC_PAGESIZE)); }
void* reserve(std::size_t bytes) {
    void* const address = mmap(nullptr, bytes, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    return address == MAP_FAILED ? nullptr : address;
}
void release(void* address, std::size_t bytes) { munmap(address, bytes); }
void protect(void* address, std::size_t bytes, bool writable) {
    if (mprotect(address, bytes, writable ? PROT_READ | PROT_WRITE : PROT_READ)) std::abort();
}
#endif

const char* (*text_of_fault)();

[[noreturn]] void end_with_text() {
    std::fprintf(stderr, "%s\n", text_of_fault());
    std::_Exit(1);
}

}  // namespace

GuardedMemory::GuardedMemory(std::size_t bytes) {
    const std::size_t page = page_size();
    size_ = (bytes + page - 1) / page * page;
    if (!size_) size_ = page;
    auto* const all = static_cast<std::byte*>(reserve(size_ + 2 * page));
    if (!all) throw std::bad_alloc();
    first_ = all + page;
    allow_writing(true);
}

GuardedMemory::~GuardedMemory() {
    const std::size_t page = page_size();
    if (first_) release(first_ - page, size_ + 2 * page);
}

GuardedMemory::GuardedMemory(GuardedMemory&& other) noexcept
    : first_(std::exchange(other.first_, nullptr)),
      size_(other.size_),
      writable_(other.writable_) {}

void* GuardedMemory::place(std::size_t bytes, Against page) const {
    return page == Against::PageBelow ? first_ : first_ + (size_ - bytes);
}

void GuardedMemory::allow_writing(bool allowed) {
    if (allowed != writable_) protect(first_, size_, allowed);
    writable_ = allowed;
}

void explain_faults(const char* (*text)()) {
    text_of_fault = text;
#ifdef _WIN32
    SetUnhandledExceptionFilter([](EXCEPTION_POINTERS*) -> LONG { end_with_text(); });
#else
    for (const int fault : {SIGSEGV, SIGBUS, SIGFPE, SIGILL})
        std::signal(fault, [](int) { end_with_text(); });
#endif
}

}  // namespace quorvel::test
