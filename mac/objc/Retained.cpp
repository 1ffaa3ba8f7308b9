#include "mac/objc/Retained.h"

#include "mac/Vocabulary.h"

namespace kestrune::mac {

Retained Retained::retaining(id object) { return Retained(ns_object::retain(object)); }

Retained::~Retained() { ns_object::release(object_); }

} // namespace kestrune::mac
