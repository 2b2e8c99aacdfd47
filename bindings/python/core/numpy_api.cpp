#include "numpy_api.h"

namespace quorvel::python::numpy {
namespace {

void** ufunc_table;
void** array_table;
PyTypeObject* array_type;
PyTypeObject* scalar_type;
PyObject* descriptors[float64 + 1];

// Places in the tables.
enum : int { from_loops = 31 };
enum : int { ndarray = 2, generic = 10, descriptor_from_type = 45, array_scalar = 60 };

constexpr int no_identity = -1;

template <class Function>
Function function(void** table, int place) noexcept {
    return reinterpret_cast<Function>(table[place]);
}

void** table(PyObject* module, const char* name) {
    const Reference capsule(PyObject_GetAttrString(module, name));
    return capsule ? static_cast<void**>(PyCapsule_GetPointer(capsule.get(), nullptr)) : nullptr;
}

PyObject* core() {
    PyObject* module = PyImport_ImportModule("numpy._core._multiarray_umath");
    if (module != nullptr || !PyErr_ExceptionMatches(PyExc_ModuleNotFoundError)) return module;
    PyErr_Clear();
    return PyImport_ImportModule("numpy.core._multiarray_umath");  // its name before 2.0
}

}  // namespace

bool import() {
    const Reference module(core());
    if (!module) return false;
    ufunc_table = table(module.get(), "_UFUNC_API");
    array_table = table(module.get(), "_ARRAY_API");
    if (ufunc_table == nullptr || array_table == nullptr) return false;
    array_type = static_cast<PyTypeObject*>(array_table[ndarray]);
    scalar_type = static_cast<PyTypeObject*>(array_table[generic]);
    for (const TypeNumber type : {boolean, int32, float32, float64}) {
        descriptors[type] = function<PyObject* (*)(int)>(array_table, descriptor_from_type)(type);
        if (descriptors[type] == nullptr) return false;
    }
    return true;
}

PyObject* make_ufunc(const UfuncParts& parts) {
    using Make = PyObject* (*)(Loop*, void**, char*, int, int, int, int, const char*, const char*,
                               int, const char*);
    return function<Make>(ufunc_table, from_loops)(
        parts.loops, parts.data, parts.types, parts.loop_count, parts.inputs, parts.outputs,
        no_identity, parts.name, parts.doc, 0, parts.signature);
}

PyObject* scalar(TypeNumber type, const void* value) {
    using Make = PyObject* (*)(const void*, PyObject*, PyObject*);
    return function<Make>(array_table, array_scalar)(value, descriptors[type], nullptr);
}

bool is_own(PyObject* object) {
    return Py_IS_TYPE(object, array_type) || PyObject_TypeCheck(object, scalar_type);
}

}  // namespace quorvel::python::numpy
