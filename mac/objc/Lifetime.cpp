#include "mac/objc/Lifetime.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

// The receiver of a delayed message is retained until it gets it, in the default mode alone; this one has no
// effect.
void keepForThisTurn(id object) {
    foundation.object.performSelector(object, foundation.object.self.selector(), nullptr, 0);
}

} // namespace kestrune::mac
