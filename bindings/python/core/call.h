// The function behind each documented one: numbers go straight to the library, arrays to the ufunc,
// all else to the package's own Python.
#pragma once

#include "python.h"
#include "routine.h"

namespace quorvel::python {

struct Function {
    const Target* target;
    PyObject* ufunc;
};

// call(inputs..., out, where): `self` is a capsule with the Function.
PyObject* call(PyObject* self, PyObject* const* arguments, Py_ssize_t count);

// The package's function that takes what is neither number nor array, or went wrong.
void set_dispatcher(PyObject* dispatcher);

}  // namespace quorvel::python
