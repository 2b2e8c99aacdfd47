#include "climate_file.h"

#include <quorvel_arrays.h>

#include <span>

namespace quorvel::python {
namespace {

constexpr const char* capsule_name = "quorvel.ClimateFile";

quorvel_climate_file* file_of(PyObject* capsule) {
    return static_cast<quorvel_climate_file*>(PyCapsule_GetPointer(capsule, capsule_name));
}

PyObject* open(PyObject*, PyObject* path) {
    PyObject* encoded = nullptr;
    if (!PyUnicode_FSConverter(path, &encoded)) return nullptr;
    const Reference bytes(encoded);
    std::int32_t status = QUORVEL_OK;
    quorvel_climate_file* file = quorvel_climate_file_open(PyBytes_AsString(encoded), &status);
    if (status == QUORVEL_NO_MEMORY) return PyErr_NoMemory();
    if (file == nullptr)
        return PyErr_Format(PyExc_FileNotFoundError,
                            "%S: there is no regular file that may be read", path);
    return PyCapsule_New(file, capsule_name,
                         [](PyObject* capsule) { quorvel_climate_file_close(file_of(capsule)); });
}

// The open file, and the values that come after it; null, and an exception is set, if they do not
// fit.
template <class... Values>
quorvel_climate_file* read(PyObject* arguments, const char* format, Values*... values) {
    PyObject* capsule = nullptr;
    return PyArg_ParseTuple(arguments, format, &capsule, values...) ? file_of(capsule) : nullptr;
}

PyObject* unreadable() {
    PyErr_SetString(PyExc_OSError, "the climate data file has no such record, or fails to be read");
    return nullptr;
}

PyObject* list_of(std::span<const float> values) {
    Reference list(PyList_New(static_cast<Py_ssize_t>(values.size())));
    for (std::size_t k = 0; list && k < values.size(); ++k)
        PyList_SetItem(list.get(), static_cast<Py_ssize_t>(k), PyFloat_FromDouble(values[k]));
    return list.release();
}

PyObject* station_climate(PyObject*, PyObject* arguments) {
    int station = 0, band = 0, month = 0, band_set = 0;
    float percentage = 0.0f;
    quorvel_climate_file* file =
        read(arguments, "Oiiiif", &station, &band, &month, &band_set, &percentage);
    if (file == nullptr) return nullptr;
    float values[9];
    const std::int32_t status = quorvel_climate_file_station_climate(
        file, station, band, month, band_set, percentage, values, values + 7);
    return status == QUORVEL_OK ? list_of(values) : unreadable();
}

PyObject* locate_station_band(PyObject*, PyObject* arguments) {
    int station = 0, band_set = 0, month = 0;
    float fraction = 0.0f;
    quorvel_climate_file* file = read(arguments, "Oiifi", &station, &band_set, &fraction, &month);
    if (file == nullptr) return nullptr;
    std::int32_t lower = 0, upper = 0;
    float weight = 0.0f;
    const std::int32_t status = quorvel_climate_file_locate_station_band(
        file, station, band_set, fraction, month, &lower, &upper, &weight);
    return status == QUORVEL_OK ? Py_BuildValue("iif", lower, upper, weight) : unreadable();
}

PyObject* interpolate_station_rows(PyObject*, PyObject* arguments) {
    int station = 0, base_row = 0, lower = 0, upper = 0, month = 0;
    float weight = 0.0f, value = 0.0f;
    quorvel_climate_file* file =
        read(arguments, "Oiiiiif", &station, &base_row, &lower, &upper, &month, &weight);
    if (file == nullptr) return nullptr;
    const std::int32_t status = quorvel_climate_file_interpolate_station_rows(
        file, station, base_row, lower, upper, month, weight, &value);
    return status == QUORVEL_OK ? PyFloat_FromDouble(value) : unreadable();
}

PyObject* station_row(PyObject*, PyObject* arguments) {
    int station = 0, row = 0;
    quorvel_climate_file* file = read(arguments, "Oii", &station, &row);
    if (file == nullptr) return nullptr;
    float values[12];
    return quorvel_climate_file_station_row(file, station, row, values) == QUORVEL_OK
               ? list_of(values)
               : unreadable();
}

PyMethodDef functions[] = {
    {"open_climate_file", open, METH_O, nullptr},
    {"station_climate", station_climate, METH_VARARGS, nullptr},
    {"locate_station_band", locate_station_band, METH_VARARGS, nullptr},
    {"interpolate_station_rows", interpolate_station_rows, METH_VARARGS, nullptr},
    {"station_row", station_row, METH_VARARGS, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

bool add_climate_file(PyObject* module) { return PyModule_AddFunctions(module, functions) == 0; }

}  // namespace quorvel::python
