#include "mac/objc/Message.h"

#include "base/Fatal.h"

#include <string>

namespace kestrune::mac {

Class ClassReference::find() const { return reinterpret_cast<Class>(objc_getClass(name_)); }

id ClassReference::object() const {
    if (const id known = object_.load(std::memory_order_relaxed); known != nullptr) {
        return known;
    }
    const id found = reinterpret_cast<id>(find());
    if (found == nullptr) {
        fatal(std::string("The platform has no class ") + name_ + ".");
    }
    object_.store(found, std::memory_order_relaxed);
    return found;
}

// Whichever thread comes first, the runtime gives the same selector.
SEL MessageDeclaration::registerSelector() const {
    const SEL selector = sel_registerName(selectorName_);
    selector_.store(selector, std::memory_order_relaxed);
    return selector;
}

} // namespace kestrune::mac
