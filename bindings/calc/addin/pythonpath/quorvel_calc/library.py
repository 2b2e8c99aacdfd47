"""The array library, through which all routines are called: its functions say what a routine takes."""

import ctypes
import functools
import os
import platform
import sys
from ctypes import POINTER, c_char_p, c_double, c_float, c_int32, c_size_t, c_ssize_t, c_void_p
from math import nan

from quorvel_calc.faults import UNFIT, Fault

FILES = {("linux", "x86_64"): "libquorvel_arrays.so", ("win32", "AMD64"): "quorvel_arrays.dll"}
TYPES = {1: c_float, 2: c_double, 3: c_int32}


class Argument(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("type", c_int32), ("numbers", c_int32), ("counted_by", c_int32),
                ("lowest", c_int32), ("highest", c_int32)]


class Description(ctypes.Structure):
    _fields_ = [("name", c_char_p), ("exported_name", c_char_p), ("family", c_char_p), ("inputs", c_int32),
                ("outputs", c_int32), ("elementwise", c_int32), ("in_place", c_int32), ("arguments", POINTER(Argument))]


@functools.lru_cache(None)
def loaded():
    name = FILES.get((sys.platform, platform.machine()))
    path = os.path.join(os.path.dirname(os.path.abspath(__file__)), "lib", name or "none")
    if not os.path.exists(path):
        raise Fault(UNFIT, "the add-in has no library for this kind of machine")
    library = ctypes.CDLL(path)
    library.quorvel_find_routine.restype = POINTER(Description)
    library.quorvel_message.restype = c_size_t
    library.quorvel_climate_file_open.restype = c_void_p
    library.quorvel_climate_file_close.restype = None
    return library


@functools.lru_cache(None)
def description(name):
    """Of a routine, with its arguments as Python objects: the inputs, then the outputs."""
    found = loaded().quorvel_find_routine(name.encode())
    arguments = found.contents.arguments[:found.contents.inputs + found.contents.outputs]
    return found, [(argument.name.decode(), argument) for argument in arguments]


def call(name, count, given):
    """The routine for `count` elements. `given` has by name, of each input, the numbers of each element or of the one
    that all have in common. Returned are by name, of each output, the numbers of each element: as many as the largest
    count has, not-a-number beyond the element's own."""
    found, arguments = description(name)
    arrays, strides, room = [], [], []
    for index, (own, argument) in enumerate(arguments):
        numbers = argument.numbers * _most(arguments, argument.counted_by, given)
        elements = given[own] if index < found.contents.inputs else [[_unwritten(argument)] * numbers] * count
        flat = [number for element in elements for number in element]
        kind = TYPES[argument.type]
        arrays.append((kind * max(len(flat), 1))(*flat))
        strides.append(numbers * ctypes.sizeof(kind) if len(elements) > 1 else 0)
        room.append(numbers)
    at = (c_void_p * len(arrays))(*map(ctypes.addressof, arrays))
    status = loaded().quorvel_call(found, c_size_t(count), at, (c_ssize_t * len(strides))(*strides))
    if status:
        raise Fault(UNFIT, message(found, status))
    return {own: [array[k * numbers:(k + 1) * numbers] for k in range(count)]
            for (own, _), array, numbers in list(zip(arguments, arrays, room))[found.contents.inputs:]}


def _unwritten(argument):
    return 0 if TYPES[argument.type] is c_int32 else nan


def _most(arguments, counted_by, given):
    """The largest of a count; a count beyond what there may be is refused and needs no room."""
    if counted_by < 0:
        return 1
    name, count = arguments[counted_by]
    return min(max(max(element[0] for element in given[name]), 0), count.highest)


def message(found, status):
    text = ctypes.create_string_buffer(400)
    loaded().quorvel_message(found, c_int32(status), text, c_size_t(len(text)))
    return text.value.decode()
