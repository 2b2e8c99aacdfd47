// The inner loop of every ufunc: hands NumPy's elements to the array library, a block at a time
// where they have another type or order than it takes.
#pragma once

#include "numpy_api.h"
#include "routine.h"

namespace quorvel::python {

// With 64-bit inputs, or with those of the array library's own types.
enum class Inputs : bool { AsTaken, Wide };

struct LoopData {
    const Target* target;
    Inputs inputs;
};

numpy::TypeNumber type_of(Kind kind, Inputs inputs) noexcept;

void run(char** at, const Py_ssize_t* dimensions, const Py_ssize_t* steps, void* data);

}  // namespace quorvel::python
