#include "tests/gnustep/standins/Protocols.h"

#include "tests/gnustep/standins/Methods.h"

// What the runtime does for each protocol of a module.
//
// Source: libobjc of GCC 12, objc-private/protocols.h.
// NOLINTNEXTLINE(readability-identifier-naming, bugprone-reserved-identifier)
extern "C" void __objc_protocols_add_protocol(const char* name, void* protocol);

namespace kestrune::gnustep {

namespace {

// As compilers lay it out.
//
// Source: libobjc of GCC 12, objc-private/module-abi-8.h.
struct ProtocolLayout {
    Class type;
    const char* name;
    void* protocols = nullptr;
    void* instanceMethods = nullptr;
    void* classMethods = nullptr;
};

bool areDelegateProtocolsLeftOut = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

} // namespace

void installDelegateProtocols() {
    if (areDelegateProtocolsLeftOut) {
        return;
    }
    for (const char* const name : {"NSApplicationDelegate", "NSMenuDelegate", "NSWindowDelegate"}) {
        if (objc_getProtocol(name) == nullptr) {
            makeProtocol(name);
        }
    }
}

void leaveDelegateProtocolsOut() { areDelegateProtocolsLeftOut = true; }

void makeProtocol(const char* name) {
    __objc_protocols_add_protocol(name, new ProtocolLayout{classNamed("Protocol"), name});
}

bool adopts(Class type, const char* protocol) {
    return class_conformsToProtocol(type, objc_getProtocol(protocol)) != 0;
}

} // namespace kestrune::gnustep
