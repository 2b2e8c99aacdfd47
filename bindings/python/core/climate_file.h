// Climate data files for quorvel/climate_file.py: a capsule for an open file, and functions of it.
#pragma once

#include "python.h"

namespace quorvel::python {

bool add_climate_file(PyObject* module);

}  // namespace quorvel::python
