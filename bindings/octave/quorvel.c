/* Octave's function of all routines: [results...] = quorvel(name, arguments...); see README.md. */
#include <mex.h>
#include <quorvel_arrays.h>
#include <string.h>

enum { MOST = 64 }; /* arguments of a routine */

typedef struct {
    const quorvel_routine *routine;
    size_t count; /* of elements */
    void *at[MOST];
    ptrdiff_t stride[MOST];
    int32_t counts[MOST]; /* of inputs that count, the number */
    const mxArray *shape; /* an argument that has as many elements */
} call_t;

static const quorvel_argument *argument(const call_t *call, int i) { return &call->routine->arguments[i]; }

static size_t bytes(const quorvel_argument *argument) {
    return argument->type == QUORVEL_DOUBLE_REAL ? sizeof(double) : sizeof(float);
}

static void put(const quorvel_argument *argument, void *at, size_t i, double value) {
    if (argument->type == QUORVEL_REAL) ((float *)at)[i] = (float)value;
    if (argument->type == QUORVEL_DOUBLE_REAL) ((double *)at)[i] = value;
    if (argument->type != QUORVEL_INTEGER) return;
    if (!(value >= -2147483648.0 && value <= 2147483647.0) || value != (int32_t)value)
        mexErrMsgIdAndTxt("quorvel:value", "%s is %g, which is no whole number of 32 bits", argument->name, value);
    ((int32_t *)at)[i] = (int32_t)value;
}

static double get(const quorvel_argument *argument, const void *at, size_t i) {
    if (argument->type == QUORVEL_REAL) return ((const float *)at)[i];
    return argument->type == QUORVEL_INTEGER ? ((const int32_t *)at)[i] : ((const double *)at)[i];
}

/* Whether a list tells this count, which is then not passed. */
static int is_told(const call_t *call, int count) {
    for (int i = 0; i < call->routine->inputs; ++i)
        if (argument(call, i)->counted_by == count) return 1;
    return 0;
}

/* A list is one for all elements, and tells its count; of others any number of elements may stand there. */
static void take(call_t *call, int i, const mxArray *given) {
    const quorvel_argument *const own = argument(call, i);
    const size_t total = mxGetNumberOfElements(given);
    const size_t numbers = own->counted_by < 0 ? (size_t)own->numbers : total;
    if (!mxIsDouble(given) || mxIsComplex(given) || total % (size_t)own->numbers != 0)
        mexErrMsgIdAndTxt("quorvel:argument", "%s needs doubles, %d for each element", own->name, (int)own->numbers);
    call->at[i] = mxMalloc((total + 1) * bytes(own));
    for (size_t k = 0; k < total; ++k) put(own, call->at[i], k, mxGetPr(given)[k]);
    if (own->counted_by >= 0) {
        int32_t *const count = &call->counts[own->counted_by];
        const int32_t length = (int32_t)(total / (size_t)own->numbers);
        if (*count >= 0 && *count != length)
            mexErrMsgIdAndTxt("quorvel:argument", "%s has %d %s and another list %d", own->name, (int)length,
                              argument(call, own->counted_by)->name, (int)*count);
        *count = length;
        return;
    }
    const size_t elements = total / numbers;
    if (elements == 1) {
        if (own->type == QUORVEL_INTEGER) call->counts[i] = ((int32_t *)call->at[i])[0];
        return;
    }
    if (call->count != 1 && call->count != elements)
        mexErrMsgIdAndTxt("quorvel:argument", "%s has %d elements and another argument %d", own->name, (int)elements,
                          (int)call->count);
    call->count = elements;
    call->stride[i] = (ptrdiff_t)(numbers * bytes(own));
    if (numbers == 1) call->shape = given;
}

static void take_all(call_t *call, int given, const mxArray **arguments) {
    int next = 0;
    for (int i = 0; i < call->routine->inputs; ++i) call->counts[i] = -1;
    for (int i = 0; i < call->routine->inputs; ++i) {
        if (is_told(call, i)) continue;
        if (next == given) mexErrMsgIdAndTxt("quorvel:argument", "%s is not given", argument(call, i)->name);
        take(call, i, arguments[next++]);
    }
    if (next < given) mexErrMsgIdAndTxt("quorvel:argument", "%s takes %d arguments", call->routine->name, next);
    for (int i = 0; i < call->routine->inputs; ++i)
        if (is_told(call, i)) call->at[i] = &call->counts[i];
}

static size_t room(const call_t *call, int i) {
    const quorvel_argument *const own = argument(call, i);
    if (own->counted_by < 0) return (size_t)own->numbers;
    const int32_t count = call->counts[own->counted_by], highest = argument(call, own->counted_by)->highest;
    if (count > highest || count < 0) return 0; /* refused, or several counts */
    return (size_t)own->numbers * (size_t)count;
}

static mxArray *returned(const call_t *call, int i) {
    const size_t numbers = room(call, i), total = numbers * call->count;
    mxArray *const result = mxCreateDoubleMatrix(numbers, call->count, mxREAL);
    for (size_t k = 0; k < total; ++k) mxGetPr(result)[k] = get(argument(call, i), call->at[i], k);
    if (numbers == 1 && call->shape) mxSetDimensions(result, mxGetDimensions(call->shape), mxGetNumberOfDimensions(call->shape));
    return result;
}

void mexFunction(int results, mxArray *result[], int given, const mxArray *arguments[]) {
    char name[100];
    call_t call = {.count = 1};
    if (given == 0 || mxGetString(arguments[0], name, sizeof name) != 0)
        mexErrMsgIdAndTxt("quorvel:name", "the first argument is the name of a routine");
    call.routine = quorvel_find_routine(name);
    if (!call.routine || !call.routine->elementwise || call.routine->inputs + call.routine->outputs > MOST)
        mexErrMsgIdAndTxt("quorvel:name", "there is no routine %s", name);
    take_all(&call, given - 1, arguments + 1);
    const int inputs = call.routine->inputs, all = inputs + call.routine->outputs;
    for (int i = inputs; i < all; ++i) {
        call.at[i] = mxMalloc((room(&call, i) * call.count + 1) * bytes(argument(&call, i)));
        call.stride[i] = (ptrdiff_t)(room(&call, i) * bytes(argument(&call, i)));
    }
    const int32_t status = quorvel_call(call.routine, call.count, call.at, call.stride);
    if (status != QUORVEL_OK) {
        char text[400];
        quorvel_message(call.routine, status, text, sizeof text);
        mexErrMsgIdAndTxt("quorvel:call", "%s", text);
    }
    for (int i = inputs; i < all && (i == inputs || i - inputs < results); ++i) result[i - inputs] = returned(&call, i);
}
