#pragma once

/* The numbers of the compiler's own types. */
#include_next <limits.h>

#define MB_LEN_MAX 6
