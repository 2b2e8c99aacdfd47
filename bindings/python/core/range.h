// What a call does about values outside their valid range: nothing, unless quorvel.errstate says
// so.
#pragma once

#include "python.h"
#include "routine.h"

namespace quorvel::python {

enum class Policy { Ignore, Nan, Warn, Raise };

// Of this context of Python's.
Policy policy() noexcept;

// Values of one operand: element i from at + i step, its numbers one after the other.
struct Values {
    char* at;
    Py_ssize_t step;
    Py_ssize_t numbers;
};

// The first value that is outside, and how many elements have one.
struct Outside {
    const Operand* operand = nullptr;
    double value = 0.0;
    Py_ssize_t elements = 0;
};

// Marks the elements of which an operand has a value that is outside; not-a-number is.
void mark(const Operand& operand, const Values& values, std::span<unsigned char> marks,
          Outside& found) noexcept;

// Replaces the marked elements by not-a-number, integers by 0 and logical values by false.
void blank(const Operand& operand, const Values& values,
           std::span<const unsigned char> marks) noexcept;

// Warns of it or, with an exception, refuses it; with the interpreter's lock.
void report(const Routine& routine, const Outside& outside, Policy policy);

// The package's context variable with the policy, and its function that words what is wrong.
void set_policy(PyObject* variable, PyObject* reporter);

// That there are policies from now on: until then nobody asks for them.
void use_policies() noexcept;

}  // namespace quorvel::python
