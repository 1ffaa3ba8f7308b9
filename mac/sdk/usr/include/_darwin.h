/* What every C header here needs: the types of Darwin on 64-bit processors. */
#pragma once

#ifndef __APPLE__
#error "These headers describe Darwin."
#endif

#define __need_NULL
#define __need_size_t
#include <stddef.h>

#ifdef __cplusplus
#define __BEGIN_DECLS extern "C" {
#define __END_DECLS }
#else
#define __BEGIN_DECLS
#define __END_DECLS
#endif

typedef long ssize_t;
typedef long time_t;
typedef unsigned long clock_t;
typedef long long off_t;
typedef int pid_t;
