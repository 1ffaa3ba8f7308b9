#include "platform/Object.h"

#include "sim/seam/ObjectCounterpart.h"
#include "sim/seam/RecordCall.h"

namespace kestrune {

Object::Object() = default;

Object::~Object() = default;

void Object::init() {
    sim::recordCall("-[", className(), " init]");
    counterpart_ = std::make_unique<Counterpart>();
}

} // namespace kestrune
