#pragma once

#include <_darwin.h>

struct timespec {
    time_t tv_sec;
    long tv_nsec;
};

typedef enum {
    CLOCK_REALTIME = 0,
    CLOCK_MONOTONIC_RAW = 4,
    CLOCK_MONOTONIC = 6,
} clockid_t;

__BEGIN_DECLS
int clock_gettime(clockid_t, struct timespec*);
int nanosleep(const struct timespec*, struct timespec*);
__END_DECLS
