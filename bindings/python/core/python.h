// Python's stable interface: one extension for all interpreters from 3.11 on.
#pragma once

#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030B0000
#include <Python.h>

#include <memory>

namespace quorvel::python {

struct Release {
    void operator()(PyObject* object) const noexcept { Py_DECREF(object); }
};

// A reference that is given back at the end.
using Reference = std::unique_ptr<PyObject, Release>;

// Holds the interpreter's lock where a loop of NumPy's runs without it.
class Interpreter {
  public:
    Interpreter() noexcept : state_(PyGILState_Ensure()) {}
    ~Interpreter() { PyGILState_Release(state_); }
    Interpreter(const Interpreter&) = delete;
    Interpreter& operator=(const Interpreter&) = delete;

  private:
    PyGILState_STATE state_;
};

}  // namespace quorvel::python
