#include "range.h"

#include <atomic>
#include <cstring>

namespace quorvel::python {
namespace {

std::atomic<bool> policies_are_used = false;
PyObject* variable = nullptr;
PyObject* reporter = nullptr;

template <class T>
bool is_outside(const Operand& operand, T value) noexcept {
    return !(value >= static_cast<T>(operand.low) && value <= static_cast<T>(operand.high));
}

template <class T>
void mark_as(const Operand& operand, const Values& values, std::span<unsigned char> marks,
             Outside& found) noexcept {
    for (std::size_t i = 0; i < marks.size(); ++i)
        for (Py_ssize_t k = 0; k < values.numbers; ++k) {
            T value;
            std::memcpy(&value,
                        values.at + static_cast<Py_ssize_t>(i) * values.step + k * sizeof value,
                        sizeof value);
            if (!is_outside<double>(operand, value)) continue;
            if (found.operand == nullptr)
                found = {&operand, static_cast<double>(value), found.elements};
            found.elements += marks[i] == 0;
            marks[i] = 1;
        }
}

template <class T>
void blank_as(const Values& values, std::span<const unsigned char> marks, T with) noexcept {
    for (std::size_t i = 0; i < marks.size(); ++i)
        for (Py_ssize_t k = 0; marks[i] && k < values.numbers; ++k)
            std::memcpy(values.at + static_cast<Py_ssize_t>(i) * values.step + k * sizeof with,
                        &with, sizeof with);
}

}  // namespace

Policy policy() noexcept {
    if (!policies_are_used.load(std::memory_order_relaxed)) return Policy::Ignore;
    const Interpreter held;
    const Reference value(PyObject_CallMethod(variable, "get", nullptr));
    return value ? static_cast<Policy>(PyLong_AsLong(value.get())) : Policy::Ignore;
}

void mark(const Operand& operand, const Values& values, std::span<unsigned char> marks,
          Outside& found) noexcept {
    switch (operand.kind) {
        case Kind::Real:
            return mark_as<float>(operand, values, marks, found);
        case Kind::DoubleReal:
            return mark_as<double>(operand, values, marks, found);
        default:
            return mark_as<std::int32_t>(operand, values, marks, found);
    }
}

void blank(const Operand& operand, const Values& values,
           std::span<const unsigned char> marks) noexcept {
    switch (operand.kind) {
        case Kind::Real:
            return blank_as(values, marks, std::numeric_limits<float>::quiet_NaN());
        case Kind::DoubleReal:
            return blank_as(values, marks, std::numeric_limits<double>::quiet_NaN());
        default:
            return blank_as(values, marks, std::int32_t{0});
    }
}

void report(const Routine& routine, const Outside& outside, Policy policy) {
    const Reference done(PyObject_CallFunction(reporter, "ssdni", routine.name,
                                               outside.operand->name, outside.value,
                                               outside.elements, static_cast<int>(policy)));
}

void set_policy(PyObject* of_package, PyObject* reporter_of_package) {
    variable = Py_NewRef(of_package);
    reporter = Py_NewRef(reporter_of_package);
}

void use_policies() noexcept { policies_are_used = true; }

}  // namespace quorvel::python
