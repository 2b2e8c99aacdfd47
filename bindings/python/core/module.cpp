// quorvel._core: a ufunc and a function for each routine, climate data files, and clipping.
#include <deque>

#include "call.h"
#include "climate_file.h"
#include "loop.h"
#include "numpy_api.h"
#include "polygon.h"
#include "range.h"

namespace quorvel::python {
namespace {

// What a ufunc keeps pointing to.
struct Kept {
    explicit Kept(const Routine& routine)
        : target(routine), data{{&target, Inputs::AsTaken}, {&target, Inputs::Wide}} {}

    Target target;
    LoopData data[2];
    void* pointers[2] = {&data[0], &data[1]};
    numpy::Loop loops[2] = {run, run};
    char types[2 * most_operands] = {};
    PyMethodDef method = {};
    Function function = {};
};

// Two loops: for the types that the library takes, and for the 64-bit ones that NumPy makes of all
// else.
PyObject* make_ufunc(Kept& kept) {
    const Routine& routine = kept.target.routine;
    int place = 0;
    for (const Inputs inputs : {Inputs::AsTaken, Inputs::Wide})
        for (int j = 0; j < routine.count(); ++j)
            kept.types[place++] =
                type_of(routine.operands[j].kind, j < routine.inputs ? inputs : Inputs::AsTaken);
    return numpy::make_ufunc({kept.loops, kept.pointers, kept.types, 2, routine.inputs,
                              routine.outputs, routine.name, "",
                              routine.has_core() ? routine.signature : nullptr});
}

PyObject* make_function(Kept& kept) {
    kept.method = {kept.target.routine.name,
                   reinterpret_cast<PyCFunction>(reinterpret_cast<void (*)()>(call)), METH_FASTCALL,
                   nullptr};
    const Reference capsule(PyCapsule_New(&kept.function, nullptr, nullptr));
    return capsule ? PyCFunction_New(&kept.method, capsule.get()) : nullptr;
}

bool add_routine(const Routine& routine, PyObject* ufuncs, PyObject* functions) {
    static std::deque<Kept> all;
    Kept& kept = all.emplace_back(routine);
    PyObject* ufunc = make_ufunc(kept);  // never given back: the function uses it
    kept.function = {&kept.target, ufunc};
    const Reference function(ufunc ? make_function(kept) : nullptr);
    return function && PyDict_SetItemString(ufuncs, routine.name, ufunc) == 0 &&
           PyDict_SetItemString(functions, routine.name, function.get()) == 0;
}

bool add_routines(PyObject* module) {
    const Reference ufuncs(PyDict_New()), functions(PyDict_New());
    if (!ufuncs || !functions) return false;
    for (const Routine& routine : routines())
        if (!add_routine(routine, ufuncs.get(), functions.get())) return false;
    return PyModule_AddObjectRef(module, "ufuncs", ufuncs.get()) == 0 &&
           PyModule_AddObjectRef(module, "functions", functions.get()) == 0;
}

// connect(context variable of the policy, reporter, dispatcher): what of the package is called
// here.
PyObject* connect(PyObject*, PyObject* arguments) {
    PyObject *variable = nullptr, *reporter = nullptr, *dispatcher = nullptr;
    if (!PyArg_ParseTuple(arguments, "OOO", &variable, &reporter, &dispatcher)) return nullptr;
    set_policy(variable, reporter);
    set_dispatcher(dispatcher);
    Py_RETURN_NONE;
}

PyObject* begin_policies(PyObject*, PyObject*) {
    use_policies();
    Py_RETURN_NONE;
}

PyObject* level(PyObject*, PyObject*) { return PyUnicode_FromString(quorvel_level()); }

PyObject* choose_level(PyObject*, PyObject* name) {
    const char* text = name == Py_None ? nullptr : PyUnicode_AsUTF8AndSize(name, nullptr);
    if (text == nullptr && PyErr_Occurred()) return nullptr;
    return PyBool_FromLong(quorvel_choose_level(text));
}

PyObject* version(PyObject*, PyObject*) { return PyUnicode_FromString(QUORVEL_VERSION); }

PyMethodDef methods[] = {
    {"connect", connect, METH_VARARGS, nullptr},
    {"use_policies", begin_policies, METH_NOARGS, nullptr},
    {"level", level, METH_NOARGS, nullptr},
    {"version", version, METH_NOARGS, nullptr},
    {"choose_level", choose_level, METH_O, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

PyModuleDef definition = {PyModuleDef_HEAD_INIT,
                          "quorvel._core",
                          nullptr,
                          -1,
                          methods,
                          nullptr,
                          nullptr,
                          nullptr,
                          nullptr};

}  // namespace
}  // namespace quorvel::python

PyMODINIT_FUNC PyInit__core() {
    using namespace quorvel::python;
    if (!numpy::import()) return nullptr;
    Reference module(PyModule_Create(&definition));
    if (!module || !add_routines(module.get()) || !add_climate_file(module.get()) ||
        !add_polygon(module.get()))
        return nullptr;
    return module.release();
}
