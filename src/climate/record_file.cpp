#define _FILE_OFFSET_BITS 64  // of 32-bit Linux, before any header

#include "climate/record_file.h"

#include <algorithm>
#include <bit>

#ifdef _WIN32
#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <cerrno>
#endif

namespace quorvel::climate {
namespace {

// write_in_full has room for a folder and a name, and is false where the name is a full one
// already. open_regular gives -1 for what is no regular file; read_at gives the number of bytes
// read, at most `size`, and none at the end of the file or after an error.

#ifdef _WIN32
HANDLE handle_of(std::intptr_t handle) noexcept { return reinterpret_cast<HANDLE>(handle); }

void close_handle(std::intptr_t handle) noexcept { CloseHandle(handle_of(handle)); }

// A name as Windows takes it. Empty, which names no file, where it is not UTF-8 or too long.
class WideName {
  public:
    explicit WideName(const char* name) noexcept {
        if (!MultiByteToWideChar(CP_UTF8, MB_ERR_INVALID_CHARS, name, -1, text_, room))
            text_[0] = L'\0';
    }
    const wchar_t* c_str() const noexcept { return text_; }

  private:
    static constexpr int room = FileName::capacity;
    wchar_t text_[room];
};

bool write_in_full(const char* name, char* text) noexcept {
    constexpr DWORD room = FileName::capacity;
    wchar_t full[room];
    const DWORD length = GetFullPathNameW(WideName(name).c_str(), room, full, nullptr);
    // The name of a folder need not have a form in UTF-8.
    return length > 0 && length < room &&
           WideCharToMultiByte(CP_UTF8, WC_ERR_INVALID_CHARS, full, -1, text,
                               2 * FileName::capacity, nullptr, nullptr) > 0 &&
           std::strcmp(text, name) != 0;
}

std::intptr_t open_regular(const char* name) noexcept {
    // Others may replace or remove the file meanwhile, as they can elsewhere.
    constexpr DWORD sharing = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
    const HANDLE file = CreateFileW(WideName(name).c_str(), GENERIC_READ, sharing, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (file == INVALID_HANDLE_VALUE || GetFileType(file) == FILE_TYPE_DISK)
        return reinterpret_cast<std::intptr_t>(file);
    CloseHandle(file);
    return -1;
}

std::size_t read_at(std::intptr_t handle, std::int64_t offset, char* to,
                    std::size_t size) noexcept {
    OVERLAPPED place = {};
    place.Offset = static_cast<DWORD>(offset);
    place.OffsetHigh = static_cast<DWORD>(offset >> 32);
    DWORD count = 0;
    return ReadFile(handle_of(handle), to, static_cast<DWORD>(size), &count, &place) ? count : 0;
}
#else
static_assert(sizeof(off_t) == 8, "offsets go beyond 2 GiB");

void close_handle(std::intptr_t handle) noexcept { close(static_cast<int>(handle)); }

bool write_in_full(const char* name, char* text) noexcept {
    if (name[0] == '/' || !getcwd(text, FileName::capacity)) return false;
    const std::size_t length = std::strlen(text);
    text[length] = '/';
    std::strcpy(text + length + 1, name);
    return true;
}

bool is_regular(int file) noexcept {
    // fstat would ask for a C library of 2021, which the Python package would then need too.
    struct statx status;
    return statx(file, "", AT_EMPTY_PATH, STATX_TYPE, &status) == 0 && S_ISREG(status.stx_mode);
}

std::intptr_t open_regular(const char* name) noexcept {
    // Without O_NONBLOCK the opening of a named pipe waits for a writer.
    const int file = open(name, O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    if (file < 0 || is_regular(file)) return file;
    close(file);
    return -1;
}

std::size_t read_at(std::intptr_t handle, std::int64_t offset, char* to,
                    std::size_t size) noexcept {
    ssize_t count;
    do count = pread(static_cast<int>(handle), to, size, offset);
    while (count < 0 && errno == EINTR);
    return count < 0 ? 0 : static_cast<std::size_t>(count);
}
#endif

}  // namespace

std::optional<FileName> RecordFile::in_full(const FileName& name) noexcept {
    char text[2 * FileName::capacity];
    FileName full;
    if (!write_in_full(name.c_str(), text) || !full.assign(text)) return {};
    return full;
}

RecordFile::~RecordFile() {
    if (is_open()) close_handle(handle_);
}

bool RecordFile::open(const char* name) noexcept {
    handle_ = open_regular(name);
    return is_open();
}

bool RecordFile::read(std::int64_t number, Record& record) const noexcept {
    const std::int64_t offset = (number - 1) * static_cast<std::int64_t>(sizeof(Record));
    auto* const bytes = reinterpret_cast<char*>(&record);
    std::size_t done = 0;
    while (done < sizeof(Record)) {
        const std::size_t count = read_at(handle_, offset + static_cast<std::int64_t>(done),
                                          bytes + done, sizeof(Record) - done);
        if (count == 0) return false;
        done += count;
    }
    // The file has the lowest byte of a number first.
    if constexpr (std::endian::native == std::endian::big)
        for (done = 0; done < sizeof(Record); done += sizeof(Real))
            std::reverse(bytes + done, bytes + done + sizeof(Real));
    return true;
}

}  // namespace quorvel::climate
