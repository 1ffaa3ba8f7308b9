#include "mac/objc/NewObject.h"

#include "mac/Vocabulary.h"

namespace kestrune::mac {

Retained newObject(const ClassReference& type) {
    return Retained::adopting(ns_object::init(ns_object::alloc(type.object())));
}

} // namespace kestrune::mac
