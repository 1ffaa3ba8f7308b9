#pragma once

#include <objc/objc.h>

typedef struct objc_ivar* Ivar;
typedef struct objc_method* Method;
typedef struct objc_object Protocol;

struct objc_method_description {
    SEL name;
    char* types;
};

__BEGIN_DECLS
Class objc_getClass(const char*);
Class objc_allocateClassPair(Class, const char*, size_t);
void objc_registerClassPair(Class);
Protocol* objc_getProtocol(const char*);
struct objc_method_description protocol_getMethodDescription(Protocol*, SEL, BOOL, BOOL);
Class object_getClass(id);
Class class_getSuperclass(Class);
BOOL class_addIvar(Class, const char*, size_t, uint8_t, const char*);
BOOL class_addMethod(Class, SEL, IMP, const char*);
BOOL class_addProtocol(Class, Protocol*);
Ivar class_getInstanceVariable(Class, const char*);
Method class_getInstanceMethod(Class, SEL);
Method class_getClassMethod(Class, SEL);
IMP class_getMethodImplementation(Class, SEL);
const char* method_getTypeEncoding(Method);
ptrdiff_t ivar_getOffset(Ivar);
__END_DECLS
