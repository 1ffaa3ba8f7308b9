// A method that the platform calls by its selector and has no declaration of.
#pragma once

#include "mac/vocabulary/Runtime.h"

namespace kestrune::mac {

// An action of our own. `selectorName` has to live as long as the action is named by it.
template <typename Signature>
struct Action {
    const char* selectorName;

    SEL selector() const { return sel_registerName(selectorName); }
};

} // namespace kestrune::mac
