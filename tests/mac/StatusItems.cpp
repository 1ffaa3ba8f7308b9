#include "tests/mac/StatusItems.h"

#include "mac/objc/Retained.h"
#include "mac/vocabulary/TypeEncoding.h"
#include "tests/mac/Send.h"

#include <vector>

namespace kestrune::native {

namespace {

using Maker = id (*)(id, SEL, double);

// Never released, as AppKit is not there any more when the process ends.
std::vector<mac::Retained>& made() {
    static auto& items = *new std::vector<mac::Retained>;
    return items;
}

Maker& platformsMaker() {
    static Maker maker = nullptr;
    return maker;
}

id makeAndKeep(id bar, SEL selector, double length) {
    const id item = platformsMaker()(bar, selector, length);
    made().push_back(mac::Retained::retaining(item));
    return item;
}

} // namespace

void watchStatusItems() {
    if (platformsMaker() == nullptr) {
        platformsMaker() = mac::asFunction<Maker>(class_replaceMethod(
            classNamed("NSStatusBar"), sel_registerName("statusItemWithLength:"),
            mac::asImplementation(makeAndKeep), mac::EncodingOfMethod<id, double>.data()));
    }
}

id statusItem(std::size_t index) { return index < made().size() ? made()[index].get() : nullptr; }

} // namespace kestrune::native
