#pragma once

#include <_darwin.h>
#include <stddef.h>
#include <stdint.h>

typedef struct objc_class* Class;
struct objc_object {
    Class isa;
};
typedef struct objc_object* id;
typedef struct objc_selector* SEL;
typedef void (*IMP)(void);

#ifdef __x86_64__
typedef signed char BOOL;
#else
typedef bool BOOL;
#endif

__BEGIN_DECLS
SEL sel_registerName(const char*);
const char* sel_getName(SEL);
const char* object_getClassName(id);
__END_DECLS
