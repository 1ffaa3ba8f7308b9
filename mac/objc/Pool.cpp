#include "mac/objc/Pool.h"

#ifdef __APPLE__
// Source: clang.llvm.org, Objective-C Automatic Reference Counting, Runtime support.
extern "C" {
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);
}
#else
#include "mac/Vocabulary.h"
#endif

namespace kestrune::mac {

#ifdef __APPLE__

Pool::Pool() : pool_(objc_autoreleasePoolPush()) {}

Pool::~Pool() { objc_autoreleasePoolPop(pool_); }

#else

// GCC's runtime leaves pools to Foundation.
Pool::Pool() : pool_(ns_object::init(ns_object::alloc(ns_autorelease_pool::type.object()))) {}

Pool::~Pool() { ns_autorelease_pool::drain(static_cast<id>(pool_)); }

#endif

} // namespace kestrune::mac
