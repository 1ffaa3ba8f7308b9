#include "mac/objc/Message.h"

#include "base/Fatal.h"

namespace kestrune::mac {

ClassReference::ClassReference(const char* name, ClassPresence presence)
    : name_(name), presence_(presence), next_(first_) {
    first_ = this;
}

Class ClassReference::find() const { return reinterpret_cast<Class>(objc_getClass(name_)); }

id ClassReference::object() const {
    if (object_ == nullptr) {
        object_ = reinterpret_cast<id>(find());
        if (object_ == nullptr) {
            fatal(std::string("The platform has no class ") + name_ + ".");
        }
    }
    return object_;
}

MessageDeclaration::MessageDeclaration(const ClassReference& receiver, const char* selectorName,
                                       MethodKind kind, std::string (*encode)())
    : receiver_(receiver),
      selectorName_(selectorName),
      kind_(kind),
      encode_(encode),
      selector_(sel_registerName(selectorName)),
      next_(first_) {
    first_ = this;
}

} // namespace kestrune::mac
