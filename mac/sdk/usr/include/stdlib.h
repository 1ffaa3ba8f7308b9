#pragma once

#include <_darwin.h>

#define EXIT_SUCCESS 0
#define EXIT_FAILURE 1

typedef struct {
    int quot, rem;
} div_t;
typedef struct {
    long quot, rem;
} ldiv_t;
typedef struct {
    long long quot, rem;
} lldiv_t;

__BEGIN_DECLS
void abort(void) __attribute__((__noreturn__));

void* malloc(size_t);
void* calloc(size_t, size_t);
void* aligned_alloc(size_t, size_t);
int posix_memalign(void**, size_t, size_t);
void free(void*);

int abs(int);
long labs(long);
long long llabs(long long);
div_t div(int, int);
ldiv_t ldiv(long, long);
lldiv_t lldiv(long long, long long);
__END_DECLS
