/* R's vectors as the arrays of libquorvel_arrays, in the library's single precision, and its results as vectors. */
#include <R.h>
#include <R_ext/Rdynload.h>
#include <Rinternals.h>
#include <quorvel_arrays.h>
#include <stdio.h>
#include <string.h>

enum { MOST = 64 }; /* arguments of a routine */

typedef struct {
    const quorvel_routine *routine;
    size_t count; /* of elements */
    void *at[MOST];
    ptrdiff_t stride[MOST];
    int32_t counts[MOST]; /* of inputs that count: the number, the highest of all elements */
    char fault[400];      /* empty while all is well */
} call_t;

static const quorvel_argument *argument(const call_t *call, int i) { return &call->routine->arguments[i]; }

static size_t bytes(int32_t type) { return type == QUORVEL_DOUBLE_REAL ? sizeof(double) : sizeof(float); }

/* Numbers as the library has them, those that there are over and over again. */
static void *copied(int32_t type, SEXP given, size_t total) {
    const size_t own = (size_t)XLENGTH(given);
    void *const copy = R_alloc(total + 1, (int)bytes(type));
    for (size_t k = 0, from = 0; k < total; ++k, from = from + 1 == own ? 0 : from + 1) {
        if (type == QUORVEL_INTEGER) ((int32_t *)copy)[k] = INTEGER(given)[from];
        else if (type == QUORVEL_REAL) ((float *)copy)[k] = (float)REAL(given)[from];
        else ((double *)copy)[k] = REAL(given)[from];
    }
    return copy;
}

/* Whether a list tells this count, which is then not given. */
static int is_told(const call_t *call, int count) {
    for (int i = 0; i < call->routine->inputs; ++i)
        if (argument(call, i)->counted_by == count) return 1;
    return 0;
}

static int32_t highest(SEXP given) {
    int32_t most = 0;
    for (R_xlen_t k = 0; k < XLENGTH(given); ++k)
        if (INTEGER(given)[k] > most) most = INTEGER(given)[k];
    return most;
}

static void refuse(call_t *call, const char *what) {
    snprintf(call->fault, sizeof call->fault, "%s: %s", call->routine->name, what);
}

/* What a list counts. */
static void tell(call_t *call, int i, size_t length) {
    const quorvel_argument *const own = argument(call, i);
    int32_t *const count = &call->counts[own->counted_by];
    if (length > INT32_MAX || (*count >= 0 && (size_t)*count != length))
        snprintf(call->fault, sizeof call->fault, "%s: %s has %.0f %s, and another argument %d", call->routine->name,
                 own->name, (double)length, argument(call, own->counted_by)->name, (int)*count);
    *count = (int32_t)length;
}

/* An argument of `elements` elements, which are recycled. */
static void take(call_t *call, int i, SEXP given, size_t elements) {
    const quorvel_argument *const own = argument(call, i);
    const size_t row = (size_t)own->numbers, total = (size_t)XLENGTH(given);
    const size_t numbers = elements == 0 ? row : total / elements;
    const int fits = own->counted_by < 0 ? numbers == row : numbers % row == 0;
    const SEXPTYPE type = own->type == QUORVEL_INTEGER ? INTSXP : REALSXP;
    if (TYPEOF(given) != type || total != numbers * elements || !fits) {
        refuse(call, "the library has other arguments: is it of another version?");
        return;
    }
    const size_t used = elements == 1 || call->count == 0 ? elements : call->count;
    call->at[i] = copied(own->type, given, used * numbers);
    call->stride[i] = elements == 1 ? 0 : (ptrdiff_t)(numbers * bytes(own->type));
    if (own->counted_by >= 0) tell(call, i, numbers / row);
    else if (own->type == QUORVEL_INTEGER) call->counts[i] = highest(given);
}

static void take_all(call_t *call, SEXP given, const int *elements) {
    const int inputs = call->routine->inputs;
    int next = 0;
    for (int i = 0; i < inputs; ++i) call->counts[i] = -1;
    for (int i = 0; i < inputs && call->fault[0] == 0; ++i) {
        if (is_told(call, i)) call->at[i] = &call->counts[i];
        else if (next == length(given)) refuse(call, "the library has more arguments: is it of another version?");
        else {
            take(call, i, VECTOR_ELT(given, next), (size_t)elements[next]);
            ++next;
        }
    }
}

/* Numbers of an output in each element; none where its count is refused. */
static size_t room(const call_t *call, int i) {
    const quorvel_argument *const own = argument(call, i);
    if (own->counted_by < 0) return (size_t)own->numbers;
    const int32_t count = call->counts[own->counted_by];
    return count < 0 || count > argument(call, own->counted_by)->highest ? 0 : (size_t)own->numbers * (size_t)count;
}

/* Room for an output: a vector of R, in place of which single precision has a copy of its own. */
static SEXP make_room(call_t *call, int i) {
    const quorvel_argument *const own = argument(call, i);
    const size_t numbers = room(call, i), total = numbers * call->count;
    call->stride[i] = (ptrdiff_t)(numbers * bytes(own->type));
    call->at[i] = R_alloc(total + 1, (int)bytes(own->type));
    for (size_t k = 0; k < total; ++k) { /* beyond a count that is not the same for all, nothing is written */
        if (own->type == QUORVEL_INTEGER) ((int32_t *)call->at[i])[k] = 0;
        else if (own->type == QUORVEL_REAL) ((float *)call->at[i])[k] = (float)R_NaN;
        else ((double *)call->at[i])[k] = R_NaN;
    }
    return allocVector(own->type == QUORVEL_INTEGER ? INTSXP : REALSXP, (R_xlen_t)total);
}

static void hand_over(const call_t *call, int i, SEXP result) {
    const int32_t type = argument(call, i)->type;
    const size_t total = (size_t)XLENGTH(result);
    if (total == 0) return;
    if (type == QUORVEL_INTEGER) memcpy(INTEGER(result), call->at[i], total * sizeof(int32_t));
    if (type == QUORVEL_DOUBLE_REAL) memcpy(REAL(result), call->at[i], total * sizeof(double));
    if (type == QUORVEL_REAL)
        for (size_t k = 0; k < total; ++k) REAL(result)[k] = ((const float *)call->at[i])[k];
}

static SEXP worked_out(call_t *call) {
    const int inputs = call->routine->inputs, outputs = call->routine->outputs;
    SEXP results = PROTECT(allocVector(VECSXP, outputs));
    for (int i = 0; i < outputs; ++i) SET_VECTOR_ELT(results, i, make_room(call, inputs + i));
    const int32_t status = quorvel_call(call->routine, call->count, call->at, call->stride);
    if (status != QUORVEL_OK) quorvel_message(call->routine, status, call->fault, sizeof call->fault);
    else
        for (int i = 0; i < outputs; ++i) hand_over(call, inputs + i, VECTOR_ELT(results, i));
    UNPROTECT(1);
    return results;
}

/* The results of a routine over so many elements, a vector each; or a text that says what is wrong. */
static SEXP run(SEXP name, SEXP given, SEXP elements, SEXP count) {
    call_t call = {.routine = quorvel_find_routine(CHAR(asChar(name))), .count = (size_t)asReal(count)};
    if (!call.routine || !call.routine->elementwise || call.routine->inputs + call.routine->outputs > MOST)
        return mkString("the library has no such routine: is it of another version?");
    take_all(&call, given, INTEGER(elements));
    SEXP results = call.fault[0] ? R_NilValue : worked_out(&call);
    return call.fault[0] ? mkString(call.fault) : results;
}

/* ---- Climate data files ---- */

static void close_file(SEXP file) {
    quorvel_climate_file_close(R_ExternalPtrAddr(file));
    R_ClearExternalPtr(file);
}

/* An external pointer to an open file, or what is wrong. */
static SEXP open_file(SEXP path) {
    int32_t status = QUORVEL_OK;
    quorvel_climate_file *const file = quorvel_climate_file_open(CHAR(asChar(path)), &status);
    if (!file) return ScalarInteger(status);
    SEXP pointer = PROTECT(R_MakeExternalPtr(file, R_NilValue, R_NilValue));
    R_RegisterCFinalizerEx(pointer, close_file, TRUE);
    UNPROTECT(1);
    return pointer;
}

static SEXP close_now(SEXP file) {
    close_file(file);
    return R_NilValue;
}

enum { CLIMATE, BAND, ROWS, ROW, RECORDS };

/* One of the five readings, of whole numbers in the order of quorvel_arrays.h and a real. */
static int32_t read_one(quorvel_climate_file *file, int what, const int *n, float real, float *out) {
    if (what == CLIMATE)
        return quorvel_climate_file_station_climate(file, n[0], n[1], n[2], n[3], real, out, out + 7);
    if (what == ROWS)
        return quorvel_climate_file_interpolate_station_rows(file, n[0], n[1], n[2], n[3], n[4], real, out);
    if (what == ROW) return quorvel_climate_file_station_row(file, n[0], n[1], out);
    if (what == RECORDS) return quorvel_climate_file_station_records(file, n[0], n[1], out);
    int32_t lower = 0, upper = 0;
    const int32_t status =
        quorvel_climate_file_locate_station_band(file, n[0], n[1], real, n[2], &lower, &upper, out + 2);
    if (status != QUORVEL_OK) return status;
    out[0] = (float)lower;
    out[1] = (float)upper;
    return status;
}

/* A column of numbers for each column of `whole` and of `given`, which has what stands there before; and the status of
 * each. */
static SEXP read_file(SEXP file, SEXP what, SEXP whole, SEXP real, SEXP given) {
    const size_t count = (size_t)ncols(whole), size = (size_t)nrows(given);
    quorvel_climate_file *const open = R_ExternalPtrAddr(file);
    if (!open) error("the climate data file is of an earlier session");
    SEXP results = PROTECT(allocVector(VECSXP, 2));
    SET_VECTOR_ELT(results, 0, duplicate(given));
    SET_VECTOR_ELT(results, 1, allocVector(INTSXP, (R_xlen_t)count));
    float *const out = (float *)R_alloc(size, sizeof(float));
    for (size_t k = 0; k < count; ++k) {
        double *const column = REAL(VECTOR_ELT(results, 0)) + k * size;
        for (size_t i = 0; i < size; ++i) out[i] = (float)column[i];
        const int *const n = INTEGER(whole) + k * (size_t)nrows(whole);
        INTEGER(VECTOR_ELT(results, 1))[k] = read_one(open, asInteger(what), n, (float)REAL(real)[k], out);
        for (size_t i = 0; i < size; ++i) column[i] = out[i];
    }
    UNPROTECT(1);
    return results;
}

static const R_CallMethodDef calls[] = {
    {"C_run", (DL_FUNC)&run, 4},
    {"C_open", (DL_FUNC)&open_file, 1},
    {"C_close", (DL_FUNC)&close_now, 1},
    {"C_read", (DL_FUNC)&read_file, 5},
    {NULL, NULL, 0},
};

void R_init_quorvel(DllInfo *library) {
    R_registerRoutines(library, NULL, calls, NULL, NULL);
    R_useDynamicSymbols(library, FALSE);
    R_forceSymbols(library, TRUE);
}
