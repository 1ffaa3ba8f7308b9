#include "tests/gnustep/standins/runtime/Protocols.h"

#include "tests/gnustep/standins/runtime/Methods.h"

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
struct MethodList {
    int count;
    objc_method_description methods[8];
};
struct ProtocolLayout {
    Class type;
    const char* name;
    void* protocols = nullptr;
    const MethodList* instanceMethods = nullptr;
    void* classMethods = nullptr;
};

// What tells of something: it takes a notification, or a menu.
constexpr const char* Telling = "v24@0:8@16";

} // namespace

void installDelegateProtocols() {
    makeProtocol("NSApplicationDelegate",
                 {{"applicationDidFinishLaunching:", Telling},
                  {"applicationShouldHandleReopen:hasVisibleWindows:", "B28@0:8@16B24"},
                  {"applicationWillTerminate:", Telling}});
    makeProtocol("NSMenuDelegate", {{"menuWillOpen:", Telling}});
    makeProtocol("NSWindowDelegate", {{"windowDidBecomeKey:", Telling}, {"windowWillClose:", Telling}});
}

void makeProtocol(const char* name, const std::vector<ProtocolMethod>& methods) {
    if (objc_getProtocol(name) != nullptr || isLeftOut(name)) {
        return;
    }
    auto* const list = new MethodList{};
    for (const ProtocolMethod& method : methods) {
        list->methods[list->count++] = {sel_registerName(method.selectorName),
                                        const_cast<char*>(method.encoding)};
    }
    __objc_protocols_add_protocol(name, new ProtocolLayout{classNamed("Protocol"), name, nullptr, list});
}

bool adopts(Class type, const char* protocol) {
    return class_conformsToProtocol(type, objc_getProtocol(protocol)) != 0;
}

} // namespace kestrune::gnustep
