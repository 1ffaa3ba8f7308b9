#include "mac/objc/Retained.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

Retained Retained::retaining(id object) { return Retained(foundation.object.retain(object)); }

Retained::~Retained() { foundation.object.release(object_); }

} // namespace kestrune::mac
