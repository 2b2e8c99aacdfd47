#include "call.h"

#include <algorithm>

#include "loop.h"
#include "numpy_api.h"
#include "range.h"

namespace quorvel::python {
namespace {

PyObject* dispatcher = nullptr;

union Number {
    float real;
    double double_real;
    std::int32_t integer;
    bool logical;
};

bool read(PyObject* object, Kind kind, Number& number) noexcept {
    if (kind == Kind::Integer) {
        if (!PyLong_Check(object)) return false;
        int overflow = 0;
        const long long value = PyLong_AsLongLongAndOverflow(object, &overflow);
        number.integer = static_cast<std::int32_t>(value);
        return overflow == 0 && number.integer == value;
    }
    if (!PyFloat_Check(object) && !PyLong_Check(object)) return false;
    const double value = PyFloat_AsDouble(object);
    if (value == -1.0 && PyErr_Occurred()) return PyErr_Clear(), false;
    if (kind == Kind::Real)
        number.real = static_cast<float>(value);
    else
        number.double_real = value;
    return true;
}

PyObject* scalar(Kind kind, Number& number) {
    if (kind == Kind::Logical) number.logical = number.integer != 0;
    return numpy::scalar(type_of(kind, Inputs::AsTaken), &number);
}

PyObject* tuple_of(const Routine& routine, Number* outputs) {
    Reference tuple(PyTuple_New(routine.outputs));
    for (int k = 0; tuple && k < routine.outputs; ++k) {
        PyObject* value = scalar(routine.operands[routine.inputs + k].kind, outputs[k]);
        if (value == nullptr) return nullptr;
        PyTuple_SetItem(tuple.get(), k, value);
    }
    return tuple.release();
}

// One element, from numbers; null and no exception where these are none.
PyObject* call_numbers(const Target& target, PyObject* const* arguments) {
    const Routine& routine = target.routine;
    std::array<Number, most_operands> numbers;
    std::array<void*, most_operands> at;
    static constexpr std::array<std::ptrdiff_t, most_operands> step{};
    for (int j = 0; j < routine.count(); ++j) at[j] = &numbers[j];
    for (int j = 0; j < routine.inputs; ++j)
        if (!read(arguments[j], routine.operands[j].kind, numbers[j])) return nullptr;
    const std::int32_t status = quorvel_call(target.called, 1, at.data(), step.data());
    if (status != QUORVEL_OK)
        return PyErr_SetString(PyExc_ValueError, message(target, status).data()), nullptr;
    Number* outputs = &numbers[routine.inputs];
    return routine.outputs == 1 ? scalar(routine.operands[routine.inputs].kind, outputs[0])
                                : tuple_of(routine, outputs);
}

bool is_plain(PyObject* object) {
    return PyFloat_Check(object) || PyLong_Check(object) || PyTuple_Check(object) ||
           PyList_Check(object) || numpy::is_own(object);
}

PyObject* call_ufunc(const Function& function, PyObject* const* arguments, PyObject* out,
                     PyObject* where) {
    const int inputs = function.target->routine.inputs;
    const Reference given(PyTuple_New(inputs));
    if (!given) return nullptr;
    for (int j = 0; j < inputs; ++j) PyTuple_SetItem(given.get(), j, Py_NewRef(arguments[j]));
    if (out == Py_None && where == Py_True)
        return PyObject_Call(function.ufunc, given.get(), nullptr);
    const Reference options(PyDict_New());
    if (!options) return nullptr;
    if (out != Py_None) PyDict_SetItemString(options.get(), "out", out);
    if (where != Py_True) PyDict_SetItemString(options.get(), "where", where);
    return PyObject_Call(function.ufunc, given.get(), options.get());
}

PyObject* dispatch(const Function& function, PyObject* const* arguments, PyObject* out,
                   PyObject* where) {
    const Routine& routine = function.target->routine;
    const Reference given(PyTuple_New(routine.inputs));
    if (!given) return nullptr;
    for (int j = 0; j < routine.inputs; ++j)
        PyTuple_SetItem(given.get(), j, Py_NewRef(arguments[j]));
    return PyObject_CallFunction(dispatcher, "sOOOO", routine.name, function.ufunc, given.get(),
                                 out, where);
}

bool is_about_arguments() {
    return PyErr_ExceptionMatches(PyExc_TypeError) || PyErr_ExceptionMatches(PyExc_ValueError) ||
           PyErr_ExceptionMatches(PyExc_OverflowError);
}

}  // namespace

PyObject* call(PyObject* self, PyObject* const* arguments, Py_ssize_t count) {
    const auto* function = static_cast<const Function*>(PyCapsule_GetPointer(self, nullptr));
    if (function == nullptr) return nullptr;
    const Routine& routine = function->target->routine;
    if (count != routine.inputs + 2)
        return PyErr_Format(PyExc_TypeError, "%s takes %d inputs, out and where", routine.name,
                            routine.inputs);
    PyObject *out = arguments[count - 2], *where = arguments[count - 1];
    const bool simple = out == Py_None && where == Py_True;
    if (simple && !routine.has_core() && policy() == Policy::Ignore) {
        PyObject* result = call_numbers(*function->target, arguments);
        if (result != nullptr || PyErr_Occurred()) return result;
    }
    if (!std::all_of(arguments, arguments + routine.inputs, is_plain))
        return dispatch(*function, arguments, out, where);
    PyObject* result = call_ufunc(*function, arguments, out, where);
    if (result != nullptr || !is_about_arguments()) return result;
    PyErr_Clear();  // again, for an error in the package's words
    return dispatch(*function, arguments, out, where);
}

void set_dispatcher(PyObject* of_package) { dispatcher = Py_NewRef(of_package); }

}  // namespace quorvel::python
