// The Quorvel library as a host sees it: loaded at run time by name, every routine callable by
// value. The headers quorvel/FAMILY.h (psychro.h, climate.h, ...) have the routines.
//
//     #include "quorvel/climate.h"
//     #include "quorvel/psychro.h"
//
//     quorvel::host::load_library();
//     const float ps = lib::PSSVP(20.0f);
//     float direct, diffuse;
//     lib::CLSNNR(altitude, azimuth, height, sky, direct, diffuse);
//
// Inputs are given by value, outputs as variables, arrays as std::array, C array or pointer, texts
// as C or C++ strings.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <string>
#include <type_traits>

namespace quorvel::host {

// Loads quorvel.dll or libquorvel.so, of the interface that this was made for, as the loader finds
// it (beside the program first), or the file named by the environment variable QUORVEL_LIBRARY.
// Throws std::runtime_error with the reason. To be called before there are threads.
void load_library();

// Address of an exported routine; throws std::runtime_error when the library does not export it.
void* routine_address(const char* name);

// Address of what another library exports, by its file; null if it cannot be loaded or lacks it.
void* address_in(const char* file, const char* name);

// One argument of a call: an input by value or by address, an output by variable or by address.
template <class Pointer>
class Argument {
    using Value = std::remove_const_t<std::remove_pointer_t<Pointer>>;
    static constexpr bool input = std::is_const_v<std::remove_pointer_t<Pointer>>;
    static constexpr bool text = std::is_same_v<Pointer, const char*>;

  public:
    Argument(Value value) requires(input && !text) : value_(value), address_(&value_) {}
    Argument(Value& variable) requires(!input) : address_(&variable) {}
    Argument(Pointer address) : address_(address) {}
    Argument(const std::string& characters) requires(text) : address_(characters.c_str()) {}
    template <std::size_t n>
    Argument(const std::array<Value, n>& values) requires(input) : address_(values.data()) {}
    template <std::size_t n>
    Argument(std::array<Value, n>& values) requires(!input) : address_(values.data()) {}
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;

    Pointer address() const { return address_; }

  private:
    Value value_{};
    Pointer address_;
};

// A routine, looked up at its first call, by any thread.
template <class Function>
class Routine;

template <class Result, class... Pointers>
class Routine<Result(Pointers...)> {
    using Function = Result (*)(Pointers...);

  public:
    explicit constexpr Routine(const char* name) : name_(name) {}
    // Of a library that is not the one loaded above.
    explicit Routine(void* address)
        : name_(nullptr), function_(reinterpret_cast<Function>(address)) {}
    Routine(const Routine& other)
        : name_(other.name_), function_(other.function_.load(std::memory_order_relaxed)) {}

    Result operator()(const Argument<Pointers>&... arguments) const {
        return address()(arguments.address()...);
    }

    Function address() const {
        Function function = function_.load(std::memory_order_relaxed);
        if (function) return function;
        function = reinterpret_cast<Function>(routine_address(name_));
        function_.store(function, std::memory_order_relaxed);
        return function;
    }

  private:
    const char* name_;
    mutable std::atomic<Function> function_ = nullptr;
};

}  // namespace quorvel::host
