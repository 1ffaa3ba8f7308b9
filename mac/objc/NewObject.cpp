#include "mac/objc/NewObject.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

id allocate(Class type) { return foundation.object.alloc(reinterpret_cast<id>(type)); }

id allocate(const ClassReference& type) { return foundation.object.alloc(type.object()); }

Retained newObject(const ClassReference& type) {
    return Retained::adopting(foundation.object.init(allocate(type)));
}

} // namespace kestrune::mac
