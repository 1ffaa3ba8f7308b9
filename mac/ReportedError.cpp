#include "mac/ReportedError.h"

#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

namespace kestrune::mac {

std::optional<Error> errorUnless(BOOL isDone, id reported) {
    return isDone != 0 ? std::nullopt
                       : std::optional(Error{textOf(foundation.error.localizedDescription(reported))});
}

} // namespace kestrune::mac
