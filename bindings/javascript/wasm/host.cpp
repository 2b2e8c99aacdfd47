// What the library has of its surroundings in JavaScript: files in memory, and no environment. It
// takes the place of src/climate/record_file.cpp and of the C library's getenv.
#include <cstdlib>

#include "climate/record_file.h"

#define QUORVEL_IMPORT(name) __attribute__((import_module("quorvel"), import_name(#name)))

extern "C" {

// A handle, or -1 where there is no file of that name.
QUORVEL_IMPORT(open) std::int32_t quorvel_open_file(const char* name, std::size_t length);
QUORVEL_IMPORT(close) void quorvel_close_file(std::int32_t handle);
// Whether the file has so many bytes there; the offset is a whole number.
QUORVEL_IMPORT(read)
bool quorvel_read_file(std::int32_t handle, double offset, void* to, std::size_t size);

char* getenv(const char*) { return nullptr; }

}  // extern "C"

namespace quorvel::climate {

std::optional<FileName> RecordFile::in_full(const FileName&) noexcept { return {}; }

RecordFile::~RecordFile() {
    if (is_open()) quorvel_close_file(static_cast<std::int32_t>(handle_));
}

bool RecordFile::open(const char* name) noexcept {
    handle_ = quorvel_open_file(name, std::strlen(name));
    return is_open();
}

bool RecordFile::read(std::int64_t number, Record& record) const noexcept {
    const auto offset =
        static_cast<double>((number - 1) * static_cast<std::int64_t>(sizeof(Record)));
    return quorvel_read_file(static_cast<std::int32_t>(handle_), offset, &record, sizeof record);
}

}  // namespace quorvel::climate
