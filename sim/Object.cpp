#include "platform/Object.h"

#include "sim/LiveObject.h"
#include "sim/Session.h"

namespace kestrune {

struct Object::Counterpart {
    sim::LiveObject object{"object", sim::LiveObject::Release::unrecorded};
};

Object::Object() = default;

Object::~Object() = default;

void Object::init() {
    sim::Session::current().journal().record("-[", className(), " init]");
    counterpart_ = std::make_unique<Counterpart>();
}

} // namespace kestrune
