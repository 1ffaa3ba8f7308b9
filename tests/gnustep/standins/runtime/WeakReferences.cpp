// Targets and delegates that read as nil once they are gone; GNUstep keeps the bare pointer.
//
// This is what we believe the Mac does, and no proof of it, though its headers declare these properties weak.
#include "tests/gnustep/standins/runtime/WeakReferences.h"

#include "tests/gnustep/standins/runtime/Deallocation.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <unordered_map>

namespace kestrune::gnustep {

namespace {

using Setter = Method<void, id>;

// A property of one class. `tag` tells it from others of the same object.
template <int tag>
class WeakProperty {
public:
    static void install(const char* type, const char* selector) {
        before() = replaceMethod(classNamed(type), selector, set);
        name() = sel_registerName(selector);
    }

private:
    static Setter& before() {
        static Setter setter = nullptr;
        return setter;
    }

    static SEL& name() {
        static SEL selector = nullptr;
        return selector;
    }

    // What each object refers to.
    static std::unordered_map<id, id>& references() {
        static auto& all = *new std::unordered_map<id, id>;
        return all;
    }

    static void set(id object, SEL selector, id value) {
        forget(object);
        if (value != nullptr) {
            references()[object] = value;
            whenDeallocated(value, object, [object] {
                references().erase(object);
                before()(object, name(), nullptr);
            });
            whenDeallocated(object, &before(), [object] { forget(object); });
        }
        before()(object, selector, value);
    }

    static void forget(id object) {
        if (const auto node = references().extract(object)) {
            forgetDeallocation(node.mapped(), object);
        }
    }
};

} // namespace

void installWeakReferences() {
    WeakProperty<0>::install("NSMenuItem", "setTarget:");
    WeakProperty<1>::install("NSMenu", "setDelegate:");
    WeakProperty<2>::install("NSApplication", "setDelegate:");
    WeakProperty<3>::install("NSWindow", "setDelegate:");
}

} // namespace kestrune::gnustep
