#pragma once

#include <_darwin.h>
#include <stdarg.h>

typedef struct __sFILE FILE;
typedef long long fpos_t;

#define EOF (-1)

__BEGIN_DECLS
extern FILE* __stdinp;
extern FILE* __stdoutp;
extern FILE* __stderrp;
#define stdin __stdinp
#define stdout __stdoutp
#define stderr __stderrp

int fprintf(FILE*, const char*, ...) __attribute__((__format__(__printf__, 2, 3)));
int printf(const char*, ...) __attribute__((__format__(__printf__, 1, 2)));
int fputs(const char*, FILE*);
int remove(const char*);
int rename(const char*, const char*);
size_t fwrite(const void*, size_t, size_t, FILE*);
__END_DECLS
