"""The routines of the climate data file. A call opens the file and closes it again: the next one sees its changes."""

import ctypes
import os
from ctypes import byref, c_float, c_int32, c_void_p

from quorvel_calc import library
from quorvel_calc.faults import MISSING, Fault

TYPES = {"Real": c_float, "Integer": c_int32}
# The outputs of the library's functions, beside what is changed in place.
OUTPUTS = {
    "station_records": (),
    "station_climate": (c_float * 7, c_float * 2),
    "locate_station_band": (c_int32, c_int32, c_float),
    "interpolate_station_rows": (c_float,),
    "station_row": (c_float * 12,),
}


def calculate(routine, elements, folder):
    """Of each element a fault, or by result the numbers."""
    files = {}
    try:
        for [name], *_ in elements:
            if name not in files:
                files[name] = _opened(os.path.join(folder, name))
        return [_result(routine, files[name], name, own) for [name], *own in elements]
    finally:
        for file in files.values():
            library.loaded().quorvel_climate_file_close(c_void_p(file))


def _opened(path):
    return library.loaded().quorvel_climate_file_open(path.encode(), None)


def _result(routine, file, name, arguments):
    if not file:
        return Fault(MISSING, f"there is no climate data file {name}")
    function = getattr(library.loaded(), f"quorvel_climate_file_{routine.name}")
    given = [_passed(parameter, numbers) for parameter, numbers in zip(routine.parameters[1:], arguments)]
    outputs = [kind() for kind in OUTPUTS[routine.name]]
    if function(c_void_p(file), *given, *map(byref, outputs)):
        return Fault(MISSING, f"station {arguments[0][0]} cannot be read from {name}")
    outputs = outputs or given[-1:]  # records, in place
    numbers = [number for output in outputs for number in _numbers(output)]
    return [numbers] if len(routine.results) == 1 else [[number] for number in numbers]


def _passed(parameter, numbers):
    kind = TYPES[parameter.kind]
    return (kind * len(numbers))(*numbers) if parameter.shape else kind(numbers[0])


def _numbers(output):
    return output if isinstance(output, ctypes.Array) else [output.value]
