"""quorvel_arrays.h: the documented C header of the array library, and the functions and data behind it."""

import re

from array_kernels import has_kernel, inputs, outputs
from catalogue import C_TYPES
from header import WIDTH, about, paragraph, result_meaning, rows

PREAMBLE = """\
/*
 * Quorvel - building-physics and building-services calculations, for whole arrays.
 *
 * Produced from the catalogue of routines (catalogue/); do not edit.
 *
 * Every routine under its readable name, for `count` elements: of each argument the address of its
 * first element and the stride, the distance in bytes from one element to the next. A stride of 0
 * repeats one value, strides may be negative. An argument that is an array itself, such as a vector or
 * the layers of a construction, has its numbers one after the other in each element. The value of a
 * function is the output `result`; an argument that is both given and returned has an array for
 * either.
 *
 * Each element gets the bits that the routine of quorvel.h gives for it, whatever the processor. An
 * output that the routine leaves as it was is not a number (an Integer: 0), or as it was given. Where
 * no name in brackets says otherwise, quorvel.h has no such routine.
 *
 * The functions return QUORVEL_OK, or what is wrong, found before anything is written; quorvel_message
 * says it in words. An output may stand where an input of its element stands (not where that is an
 * array itself that is counted), and columns of one table may be inputs and outputs; arrays that overlap
 * in any other way are refused. Numbers may begin at any byte, but in lists and records (routines whose
 * in_place is 0) as their type is aligned. No function starts a thread, and but for those of climate
 * data files none allocates memory or keeps anything; all may be called from any thread.
 */
#ifndef QUORVEL_ARRAYS_H
#define QUORVEL_ARRAYS_H

#include <stddef.h>
#include <stdint.h>

#if defined(QUORVEL_ARRAYS_STATIC)
#define QUORVEL_ARRAYS_API
#elif defined(_WIN32) && defined(QUORVEL_ARRAYS_BUILDING)
#define QUORVEL_ARRAYS_API /* exported by a list: a library that contains this one exports other names */
#elif defined(_WIN32)
#define QUORVEL_ARRAYS_API __declspec(dllimport)
#else
#define QUORVEL_ARRAYS_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* What a function returns: one of these, plus 256 times the number of the argument that it is about. */
enum {
    QUORVEL_OK = 0,
    QUORVEL_NO_ARRAY = 1,           /* an address is null */
    QUORVEL_OUTSIDE_RANGE = 2,      /* a count says more or fewer numbers than there may be */
    QUORVEL_OVERLAP = 3,            /* an output overlaps another array, or itself */
    QUORVEL_NOT_ELEMENTWISE = 4,    /* the routine has a state or takes a text: see quorvel.h */
    QUORVEL_NO_FILE = 5,            /* there is no regular file of that name, or it may not be read */
    QUORVEL_NO_MEMORY = 6,
    QUORVEL_UNREADABLE = 7          /* a climate data file has no such record, or fails to be read */
};

/* ---- For bindings: any routine by its name ---------------------------------------------------- */

enum { QUORVEL_REAL = 1, QUORVEL_DOUBLE_REAL = 2, QUORVEL_INTEGER = 3 }; /* float, double, int32_t */

typedef struct quorvel_argument {
    const char *name;
    int32_t type;
    int32_t numbers;        /* in an element, where they are not counted */
    int32_t counted_by;     /* the input that counts so many numbers again; -1 for none */
    int32_t lowest, highest; /* of an input that counts */
} quorvel_argument;

typedef struct quorvel_routine {
    const char *name;          /* readable, as in quorvel_NAME */
    const char *exported_name; /* in quorvel.h; null where only this library has the routine */
    const char *family;
    int32_t inputs, outputs;
    int32_t elementwise;       /* 0 for those that only quorvel.h has */
    int32_t in_place;          /* whether an output may stand where an input of its element stands */
    const quorvel_argument *arguments; /* the inputs, then the outputs */
} quorvel_routine;

/* A routine by either name; null if there is none. */
QUORVEL_ARRAYS_API const quorvel_routine *quorvel_find_routine(const char *name);

/* All routines, one after the other; their number goes to *count. */
QUORVEL_ARRAYS_API const quorvel_routine *quorvel_routines(size_t *count);

/* A routine for `count` elements: of each input, then of each output, the address of its first element
 * and its stride. */
QUORVEL_ARRAYS_API int32_t quorvel_call(const quorvel_routine *routine, size_t count, void *const *at,
                                        const ptrdiff_t *stride);

/* What a function of that routine returned, in words that name the argument. Writes at most `size`
 * characters with the NUL, and returns how many the whole text has. */
QUORVEL_ARRAYS_API size_t quorvel_message(const quorvel_routine *routine, int32_t status, char *text,
                                          size_t size);

/* ---- Levels of instructions --------------------------------------------------------------------- */

/* The level in use: "v2", "v3" or "v4" of x86-64, or "scalar". It is the best one that the processor
 * supports, unless the environment variable QUORVEL_LEVEL names a lower one. */
QUORVEL_ARRAYS_API const char *quorvel_level(void);

/* Takes another level from now on; a null pointer stands for the best. 0, and no change, if it is not
 * supported. Results do not depend on it. */
QUORVEL_ARRAYS_API int32_t quorvel_choose_level(const char *name);

/* ---- Climate data files -------------------------------------------------------------------------
 *
 * Each object is one open file, with what was read of it. It may be used by one thread at a time;
 * different objects have nothing in common. The functions give the bits that the routine of quorvel.h
 * in brackets gives once CLBNF0 or CLBNFI was called for that station, and take what lies outside the
 * ranges as it does. They return QUORVEL_OK, or QUORVEL_UNREADABLE and leave what they return as it was.
 */

typedef struct quorvel_climate_file quorvel_climate_file;

/* Null where the file cannot be opened: *status (which may be null) says why. The path is in UTF-8,
 * on Windows too; elsewhere its bytes are taken as they are. */
QUORVEL_ARRAYS_API quorvel_climate_file *quorvel_climate_file_open(const char *path, int32_t *status);

QUORVEL_ARRAYS_API void quorvel_climate_file_close(quorvel_climate_file *file); /* null is let be */

/* Monthly climate of a band, or for band 0 interpolated at the percentage [CLBNFI]: seven quantities
 * Q1 to Q7, and times A and B. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_climate(
    quorvel_climate_file *file, int32_t station, int32_t band, int32_t month, int32_t band_set,
    float percentage, float *quantities, float *times);

/* Where a cumulative fraction of days lies among the ten bands of a month [CLBNF1]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_locate_station_band(
    quorvel_climate_file *file, int32_t station, int32_t band_set, float fraction, int32_t month,
    int32_t *lower_band, int32_t *upper_band, float *band_weight);

/* Value between two rows of a station [CLBNF2]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_interpolate_station_rows(
    quorvel_climate_file *file, int32_t station, int32_t base_row, int32_t lower_band,
    int32_t upper_band, int32_t month, float band_weight, float *value);

/* One row of a station, twelve values [CLBNF3]. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_row(
    quorvel_climate_file *file, int32_t station, int32_t row, float *values);

/* Monthly records, twelve of eleven values, all of them or that of one month [CLBNF0]; filled up to the
 * first that cannot be read. */
QUORVEL_ARRAYS_API int32_t quorvel_climate_file_station_records(
    quorvel_climate_file *file, int32_t station, int32_t month, float *records);
"""

POSTAMBLE = """
#ifdef __cplusplus
}
#endif

#endif /* QUORVEL_ARRAYS_H */
"""

TYPES = {"Real": "QUORVEL_REAL", "DoubleReal": "QUORVEL_DOUBLE_REAL", "Integer": "QUORVEL_INTEGER"}


def name_of(arg):
    """Of an argument, or of the value of a function."""
    return getattr(arg, "name", "result")


def columns(routine):
    """Name in C, and argument, of each input and output."""
    given = [(arg.name, arg) for arg in inputs(routine)]
    taken = {name for name, _ in given}
    return given, [
        (f"new_{name_of(arg)}" if name_of(arg) in taken else name_of(arg), arg) for arg in outputs(routine)
    ]


def _parameters(routine):
    given, returned = columns(routine)
    pairs = [(f"const {C_TYPES[arg.type]} *{name}", name) for name, arg in given]
    pairs += [(f"{C_TYPES[arg.type]} *{name}", name) for name, arg in returned]
    return ["size_t count", *(f"{pointer}, ptrdiff_t {name}_stride" for pointer, name in pairs)]


def _comment(routine):
    given = inputs(routine)
    returned = [arg for arg in routine.args if arg.dir != "in"]
    exported = f" ({routine.export})" if routine.export else ""
    lines = paragraph(f"quorvel_{routine.name}{exported}: {routine.summary}", "", "    ")
    if given:
        lines += ["Given:", *rows(given, returned=False)]
    if routine.result:
        first = f"    {routine.result.unit}  ".rstrip() + "  "
        lines += ["Result:", *paragraph(result_meaning(routine.result), first, "        ")]
    if returned:
        lines += ["Returned:", *rows(returned, returned=True)]
    if not routine.export:
        lines += about(routine)
    return "\n".join(["/*", *(f" * {line}".rstrip() for line in lines), " */"])


def _prototype(routine):
    parameters = ",\n    ".join(_parameters(routine))
    return f"QUORVEL_ARRAYS_API int32_t quorvel_{routine.name}(\n    {parameters});"


def header(families):
    parts = [PREAMBLE]
    for family in families:
        parts.append(f"\n/* ---- {family.title} {'-' * (WIDTH - 12 - len(family.title))} */\n")
        kept = [routine for routine in family.routines if has_kernel(routine)]
        parts += [f"\n{_comment(routine)}\n{_prototype(routine)}\n" for routine in kept]
    return "".join(parts) + POSTAMBLE


def _definition(number, routine):
    given, returned = columns(routine)
    listed = ", ".join(f"column({name}, {name}_stride)" for name, _ in (*given, *returned))
    parameters = ", ".join(_parameters(routine))
    return f"\nint32_t quorvel_{routine.name}({parameters}) {{\n    return call({number}, count, {listed});\n}}\n"


def _data(arg, name, places, counts):
    numbers, counted_by = 1, -1
    for extent in getattr(arg, "shape", ()):
        if isinstance(extent, int):
            numbers *= extent
        else:
            counted_by = places[extent]
    most = 2**31 - 1
    low, high = (max(arg.range[0], 0), min(arg.range[1], most)) if name in counts else (-most - 1, most)
    return f'{{"{name}", {TYPES[arg.type]}, {numbers}, {counted_by}, {low}, {high}}}'


def _arguments(routine):
    given, returned = columns(routine)
    places = {name: index for index, (name, _) in enumerate(given)}
    counts = {extent for arg in routine.args for extent in arg.shape if not isinstance(extent, int)}
    rows_of_data = [_data(arg, name, places, counts) for name, arg in given]
    rows_of_data += [_data(arg, name, places, ()) for name, arg in returned]
    return f"const quorvel_argument {routine.name}[] = {{{', '.join(rows_of_data)}}};\n"


def _listed(family, routine):
    arguments = f"arguments::{routine.name}" if has_kernel(routine) else "nullptr"
    exported = f'"{routine.export}"' if routine.export else "nullptr"
    known = has_kernel(routine)
    counts = f"{len(inputs(routine)) * known}, {len(outputs(routine)) * known}, {int(known)}, {int(known and not routine.entry)}"
    return f'    {{"{routine.name}", {exported}, "{family.family}", {counts}, {arguments}}},\n'


def definitions(families):
    """Included by src/arrays/interface.cpp."""
    pairs = [(family, routine) for family in families for routine in family.routines]
    kept = [routine for _, routine in pairs if has_kernel(routine)]
    arguments = "".join(map(_arguments, kept))
    listed = "".join(_listed(family, routine) for family, routine in pairs)
    functions = "".join(_definition(n, routine) for n, (_, routine) in enumerate(pairs) if has_kernel(routine))
    return (
        f"namespace {{\nnamespace arguments {{\n{arguments}}}  // namespace arguments\n\n"
        f"const quorvel_routine routines[] = {{\n{listed}}};\n}}  // namespace\n{functions}"
    )


def prototypes(families):
    """What the array library exports, a line each."""
    declared = re.findall(r"^QUORVEL_ARRAYS_API (.*?);", header(families), re.MULTILINE | re.DOTALL)
    return [" ".join(text.split()).replace("( ", "(") for text in declared]


def names(families):
    return sorted(re.search(r"\bquorvel_\w+(?=\()", text).group() for text in prototypes(families))
