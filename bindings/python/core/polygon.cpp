#include "polygon.h"

#include <quorvel/polygon.hpp>

#include <new>
#include <span>

namespace quorvel::python {
namespace {

using geometry::Clipped;
using geometry::Clipper;
using geometry::PlanPoint;
using geometry::Polygon;

// The numbers of a contiguous array, which the package has made of what its user gave.
template <class T>
class Numbers {
  public:
    Numbers(PyObject* array, int flags) { held_ = PyObject_GetBuffer(array, &buffer_, flags) == 0; }
    ~Numbers() {
        if (held_) PyBuffer_Release(&buffer_);
    }
    Numbers(const Numbers&) = delete;
    Numbers& operator=(const Numbers&) = delete;

    explicit operator bool() const { return held_; }
    std::span<T> all() const {
        return {static_cast<T*>(buffer_.buf), static_cast<std::size_t>(buffer_.len) / sizeof(T)};
    }

  private:
    Py_buffer buffer_;
    bool held_ = false;
};
using Points = Numbers<const PlanPoint>;
using Starts = Numbers<const std::int64_t>;

PyObject* bytes_of(const Polygon& piece) {
    return PyBytes_FromStringAndSize(reinterpret_cast<const char*>(piece.data()),
                                     static_cast<Py_ssize_t>(piece.size() * sizeof piece[0]));
}

PyObject* list_of(const std::vector<Polygon>& pieces) {
    Reference list(PyList_New(static_cast<Py_ssize_t>(pieces.size())));
    for (std::size_t k = 0; list && k < pieces.size(); ++k) {
        PyObject* bytes = bytes_of(pieces[k]);
        if (bytes == nullptr) return nullptr;
        PyList_SetItem(list.get(), static_cast<Py_ssize_t>(k), bytes);
    }
    return list.release();
}

// clip(points of a, points of b): the status in words, empty for success, and two lists of points
// as bytes.
PyObject* clip(PyObject*, PyObject* arguments) try {
    PyObject *first = nullptr, *second = nullptr;
    if (!PyArg_ParseTuple(arguments, "OO", &first, &second)) return nullptr;
    const Points a(first, PyBUF_SIMPLE), b(second, PyBUF_SIMPLE);
    if (!a || !b) return nullptr;
    Clipped clipped;
    Clipper().clip({a.all().begin(), a.all().end()}, {b.all().begin(), b.all().end()}, clipped);
    const char* fault = clipped.status == 0 ? "" : geometry::clipping_fault(clipped.status);
    return Py_BuildValue("sNN", fault, list_of(clipped.difference), list_of(clipped.overlap));
} catch (const std::bad_alloc&) {
    return PyErr_NoMemory();
}

// Many polygons: the points of all, and where each begins, with the end of the last.
struct Many {
    std::span<const PlanPoint> points;
    std::span<const std::int64_t> starts;

    std::size_t count() const { return starts.size() - 1; }
    void take(std::size_t i, Polygon& polygon) const {
        const std::size_t k = count() == 1 ? 0 : i;
        const auto from = static_cast<std::size_t>(starts[k]),
                   to = static_cast<std::size_t>(starts[k + 1]);
        polygon.assign(points.begin() + from, points.begin() + to);
    }
};

void find_areas(const Many& a, const Many& b, std::span<double> areas) {
    Clipper clipper;
    Clipped clipped;
    Polygon left, right;
    for (std::size_t i = 0; i < areas.size(); ++i) {
        a.take(i, left);
        b.take(i, right);
        clipper.clip(left, right, clipped);
        areas[i] = clipped.status == 0 ? geometry::total_area(clipped.overlap)
                                       : std::numeric_limits<double>::quiet_NaN();
    }
}

// overlap_areas(points of a, starts, points of b, starts, areas): without the interpreter's lock.
PyObject* overlap_areas(PyObject*, PyObject* arguments) {
    PyObject* given[5];
    if (!PyArg_ParseTuple(arguments, "OOOOO", &given[0], &given[1], &given[2], &given[3],
                          &given[4]))
        return nullptr;
    const Points a(given[0], PyBUF_SIMPLE), b(given[2], PyBUF_SIMPLE);
    const Starts a_starts(given[1], PyBUF_SIMPLE), b_starts(given[3], PyBUF_SIMPLE);
    const Numbers<double> areas(given[4], PyBUF_WRITABLE);
    if (!a || !b || !a_starts || !b_starts || !areas) return nullptr;
    bool enough_memory = true;
    Py_BEGIN_ALLOW_THREADS try {
        find_areas({a.all(), a_starts.all()}, {b.all(), b_starts.all()}, areas.all());
    } catch (const std::bad_alloc&) {
        enough_memory = false;
    }
    Py_END_ALLOW_THREADS if (!enough_memory) return PyErr_NoMemory();
    Py_RETURN_NONE;
}

PyMethodDef functions[] = {
    {"clip", clip, METH_VARARGS, nullptr},
    {"overlap_areas", overlap_areas, METH_VARARGS, nullptr},
    {nullptr, nullptr, 0, nullptr},
};

}  // namespace

bool add_polygon(PyObject* module) { return PyModule_AddFunctions(module, functions) == 0; }

}  // namespace quorvel::python
