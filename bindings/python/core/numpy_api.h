// The few functions of NumPy's that are needed, from its tables of functions. Their places are the
// same in all versions from 1.7 to 2.x, so no header of NumPy's is needed and one binary serves
// them all.
#pragma once

#include "python.h"

namespace quorvel::python::numpy {

using Loop = void (*)(char** at, const Py_ssize_t* dimensions, const Py_ssize_t* steps, void* data);

// Numbers of NumPy's types.
enum TypeNumber : char {
    boolean = 0,
    int32 = 5,
    int64 = sizeof(long) == 8 ? 7 : 9,
    float32 = 11,
    float64 = 12,
};

// Looks for NumPy's tables; false, and an exception is set, if there are none.
bool import();

// What a ufunc is made of. All of it is kept by the ufunc, not copied.
struct UfuncParts {
    Loop* loops;
    void** data;
    char* types;
    int loop_count, inputs, outputs;
    const char* name;
    const char* doc;
    const char* signature;  // null without core dimensions
};
PyObject* make_ufunc(const UfuncParts& parts);

// A number as NumPy's scalar.
PyObject* scalar(TypeNumber type, const void* value);

// Whether NumPy takes it as it is: an array of its own or one of its scalars.
bool is_own(PyObject* object);

}  // namespace quorvel::python::numpy
