#include "mac/Protocols.h"

#include "mac/vocabulary/Missing.h"

namespace kestrune::mac {

namespace {

constexpr LogFormat MissingProtocol = LogFormat::of<"There is no protocol %{public}s at run time">();

} // namespace

void adopt(Class type, const ProtocolReference& protocol) {
    Protocol* const found = protocol.find();
    if (found == nullptr) {
        logOnce(MissingProtocol, protocol.name());
    } else {
        class_addProtocol(type, found);
    }
}

} // namespace kestrune::mac
