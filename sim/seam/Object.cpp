#include "platform/Object.h"

#include "sim/seam/ObjectCounterpart.h"
#include "sim/session/Session.h"

namespace kestrune {

Object::Object() = default;

Object::~Object() = default;

void Object::init() {
    sim::Session::current().journal().record("-[", className(), " init]");
    counterpart_ = std::make_unique<Counterpart>();
}

} // namespace kestrune
