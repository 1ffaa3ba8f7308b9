#pragma once

#include <_darwin.h>

__BEGIN_DECLS
void* memchr(const void*, int, size_t);
int memcmp(const void*, const void*, size_t);
void* memcpy(void*, const void*, size_t);
void* memmove(void*, const void*, size_t);
void* memset(void*, int, size_t);
char* strchr(const char*, int);
int strcmp(const char*, const char*);
size_t strlen(const char*);
char* strpbrk(const char*, const char*);
char* strrchr(const char*, int);
char* strstr(const char*, const char*);
__END_DECLS
