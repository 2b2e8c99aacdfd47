// The exported functions of the array library.
#include <cstring>
#include <iterator>
#include <type_traits>

#include "arrays/fault.h"
#include "arrays/level.h"
#include "arrays/message.h"

namespace {

std::int32_t call(std::size_t number, std::size_t count, void* const* at,
                  const std::ptrdiff_t* stride) noexcept;

// An argument of a typed function.
struct Column {
    void* at;
    std::ptrdiff_t stride;
};
template <class T>
Column column(const T* at, std::ptrdiff_t stride) noexcept {
    return {const_cast<T*>(at), stride};
}

template <class... Columns>
std::int32_t call(std::size_t number, std::size_t count, Columns... columns) noexcept
    requires(std::is_same_v<Columns, Column>&&...) {
    void* const at[] = {columns.at...};
    const std::ptrdiff_t stride[] = {columns.stride...};
    return call(number, count, at, stride);
}

}  // namespace

#include "array_functions.inc"

namespace {

std::int32_t call(std::size_t number, std::size_t count, void* const* at,
                  const std::ptrdiff_t* stride) noexcept {
    const quorvel_routine& routine = routines[number];
    if (routine.elementwise == 0) return QUORVEL_NOT_ELEMENTWISE;
    if (count == 0) return QUORVEL_OK;
    if (at == nullptr || stride == nullptr) return QUORVEL_NO_ARRAY;
    const std::int32_t fault = quorvel::arrays::fault_of(routine, count, at, stride);
    if (fault != QUORVEL_OK) return fault;
    const auto kernel = quorvel::arrays::kernel(number, count);
    kernel(count, reinterpret_cast<char* const*>(at), stride);
    return QUORVEL_OK;
}

}  // namespace

const quorvel_routine* quorvel_find_routine(const char* name) {
    if (name == nullptr) return nullptr;
    const auto is = [&](const char* known) { return known && std::strcmp(known, name) == 0; };
    for (const quorvel_routine& routine : routines)
        if (is(routine.name) || is(routine.exported_name)) return &routine;
    return nullptr;
}

const quorvel_routine* quorvel_routines(size_t* count) {
    *count = std::size(routines);
    return routines;
}

int32_t quorvel_call(const quorvel_routine* routine, size_t count, void* const* at,
                     const ptrdiff_t* stride) {
    if (routine == nullptr) return QUORVEL_NO_ARRAY;
    return call(static_cast<std::size_t>(routine - routines), count, at, stride);
}

size_t quorvel_message(const quorvel_routine* routine, int32_t status, char* text, size_t size) {
    return quorvel::arrays::message(*routine, status, text, size);
}

const char* quorvel_level(void) { return quorvel::arrays::level().name; }

int32_t quorvel_choose_level(const char* name) { return quorvel::arrays::choose_level(name); }
