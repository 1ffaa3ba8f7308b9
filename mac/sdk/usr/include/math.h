#pragma once

#include <_darwin.h>

typedef float float_t;
typedef double double_t;

#define HUGE_VAL __builtin_huge_val()
#define INFINITY __builtin_inff()
#define NAN __builtin_nanf("")
#define FP_NAN 1
#define FP_INFINITE 2
#define FP_ZERO 3
#define FP_NORMAL 4
#define FP_SUBNORMAL 5

__BEGIN_DECLS
double ceil(double);
double fabs(double);
double floor(double);
double modf(double, double*);
double round(double);
double sqrt(double);
__END_DECLS
