#pragma once

#include <_darwin.h>
#include <sched.h>
#include <time.h>

/* A signature and room for the rest, whose sizes are part of the binary interface. */
#define _PTHREAD_OPAQUE(name, size)                                                                          \
    struct name {                                                                                            \
        long __sig;                                                                                          \
        char __opaque[size];                                                                                 \
    }
_PTHREAD_OPAQUE(_opaque_pthread_attr_t, 56);
_PTHREAD_OPAQUE(_opaque_pthread_cond_t, 40);
_PTHREAD_OPAQUE(_opaque_pthread_condattr_t, 8);
_PTHREAD_OPAQUE(_opaque_pthread_mutex_t, 56);
_PTHREAD_OPAQUE(_opaque_pthread_mutexattr_t, 8);
_PTHREAD_OPAQUE(_opaque_pthread_once_t, 8);
#undef _PTHREAD_OPAQUE

typedef struct _opaque_pthread_t* pthread_t;
typedef unsigned long pthread_key_t;
typedef struct _opaque_pthread_attr_t pthread_attr_t;
typedef struct _opaque_pthread_cond_t pthread_cond_t;
typedef struct _opaque_pthread_condattr_t pthread_condattr_t;
typedef struct _opaque_pthread_mutex_t pthread_mutex_t;
typedef struct _opaque_pthread_mutexattr_t pthread_mutexattr_t;
typedef struct _opaque_pthread_once_t pthread_once_t;

#define PTHREAD_MUTEX_INITIALIZER                                                                            \
    {                                                                                                        \
        0x32AAABA7, { 0 }                                                                                    \
    }
#define PTHREAD_COND_INITIALIZER                                                                             \
    {                                                                                                        \
        0x3CB0B1BB, { 0 }                                                                                    \
    }
#define PTHREAD_ONCE_INIT                                                                                    \
    {                                                                                                        \
        0x30B1BCBA, { 0 }                                                                                    \
    }
#define PTHREAD_MUTEX_RECURSIVE 2

__BEGIN_DECLS
int pthread_create(pthread_t*, const pthread_attr_t*, void* (*)(void*), void*);
int pthread_join(pthread_t, void**);
int pthread_detach(pthread_t);
int pthread_equal(pthread_t, pthread_t);
pthread_t pthread_self(void);
int pthread_mutex_init(pthread_mutex_t*, const pthread_mutexattr_t*);
int pthread_mutex_destroy(pthread_mutex_t*);
int pthread_mutex_lock(pthread_mutex_t*);
int pthread_mutex_trylock(pthread_mutex_t*);
int pthread_mutex_unlock(pthread_mutex_t*);
int pthread_mutexattr_init(pthread_mutexattr_t*);
int pthread_mutexattr_destroy(pthread_mutexattr_t*);
int pthread_mutexattr_settype(pthread_mutexattr_t*, int);
int pthread_cond_destroy(pthread_cond_t*);
int pthread_cond_signal(pthread_cond_t*);
int pthread_cond_broadcast(pthread_cond_t*);
int pthread_cond_wait(pthread_cond_t*, pthread_mutex_t*);
int pthread_cond_timedwait(pthread_cond_t*, pthread_mutex_t*, const struct timespec*);
int pthread_once(pthread_once_t*, void (*)(void));
int pthread_key_create(pthread_key_t*, void (*)(void*));
void* pthread_getspecific(pthread_key_t);
int pthread_setspecific(pthread_key_t, const void*);
__END_DECLS
