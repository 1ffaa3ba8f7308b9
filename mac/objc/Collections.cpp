#include "mac/objc/Collections.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

void append(const Retained& mutableArray, id object) {
    if (object != nullptr) {
        foundation.mutableArray.addObject(mutableArray.get(), object);
    }
}

void set(const Retained& mutableDictionary, id key, id object) {
    if (object != nullptr) {
        foundation.mutableDictionary.setObject(mutableDictionary.get(), object, key);
    }
}

} // namespace kestrune::mac
