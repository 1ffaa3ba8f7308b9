#include "mac/MainBundle.h"

#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

id theMainBundle() { return foundation.bundle.mainBundle(); }

} // namespace kestrune::mac
