#include "mac/objc/Pool.h"

#ifdef __APPLE__
// Source: clang.llvm.org, Objective-C Automatic Reference Counting, Runtime support.
extern "C" {
void* objc_autoreleasePoolPush();
void objc_autoreleasePoolPop(void* pool);
}
#else
#include "mac/objc/NewObject.h"
#include "mac/vocabulary/Vocabulary.h"
#endif

namespace kestrune::mac {

#ifdef __APPLE__

Pool::Pool() : pool_(objc_autoreleasePoolPush()) {}

Pool::~Pool() { objc_autoreleasePoolPop(pool_); }

#else

// GCC's runtime leaves pools to Foundation.
Pool::Pool() : pool_(foundation.object.init(allocate(foundation.autoreleasePool))) {}

Pool::~Pool() { foundation.autoreleasePool.drain(static_cast<id>(pool_)); }

#endif

} // namespace kestrune::mac
