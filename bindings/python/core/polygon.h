// Clipping of polygons for quorvel/geometry/polygon.py.
#pragma once

#include "python.h"

namespace quorvel::python {

bool add_polygon(PyObject* module);

}  // namespace quorvel::python
