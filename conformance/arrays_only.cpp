#include "conformance/arrays_only.h"

#include "entry/entry.h"

#include "arrays_only.inc"
