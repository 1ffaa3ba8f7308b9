// What a contract test's world is by messages that a Mac and GNUstep both understand.
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/contract/World.h"
#include "tests/mac/Objects.h"
#include "tests/mac/ShownWindows.h"

#include <thread>

namespace kestrune::contract {

using namespace native;

namespace {

struct AsObject {
    template <typename Plain>
    id operator()(const Plain& value) const {
        return objectFor(value);
    }
    id operator()(const StoredData& data) const {
        return send(classObject("NSData"),
                    "dataWithBytes:length:", static_cast<const void*>(data.bytes.data()),
                    mac::Unsigned{data.bytes.size()});
    }
    // The getters look at the kind alone.
    id operator()(const StoredDate& /*date*/) const { return send(classObject("NSDate"), "date"); }
    id operator()(const StoredArray& array) const {
        const id items = send(classObject("NSMutableArray"), "array");
        for (const std::string& item : array.items) {
            send<void>(items, "addObject:", objectFor(item));
        }
        return items;
    }
    id operator()(const StoredDictionary& dictionary) const {
        return send(classObject("NSDictionary"), "dictionaryWithObject:forKey:", objectFor(dictionary.value),
                    objectFor(dictionary.key));
    }
};

// A class of windows that the platform does not have.
id windowClass(const std::string& name) {
    Class type = objc_getClass(name.c_str());
    if (type == nullptr) {
        type = objc_allocateClassPair(classNamed("NSWindow"), name.c_str(), 0);
        objc_registerClassPair(type);
    }
    return reinterpret_cast<id>(type);
}

} // namespace

// GNUstep hears of what other processes store only now and then, so this process does it.
void World::store(std::string_view key, const StoredValue& value) {
    const mac::Pool pool;
    mac::foundation.userDefaults.setObject(mac::foundation.userDefaults.standardUserDefaults(),
                                           std::visit(AsObject(), value), objectFor(std::string(key)));
}

void World::onAnotherThread(const std::function<void()>& work) {
    std::thread thread(work);
    thread.join();
}

// As AppKit posts it.
void World::announceDisplays() {
    const mac::Pool pool;
    send<void>(mac::foundation.notificationCenter.defaultCenter(), "postNotificationName:object:",
               objectFor("NSApplicationDidChangeScreenParametersNotification"),
               mac::appKit.application.sharedApplication());
}

std::vector<ShownWindow> World::shownWindows() const {
    const mac::Pool pool;
    std::vector<ShownWindow> shown;
    for (const id window : visibleWindows()) {
        shown.push_back(describeWindow(window));
    }
    return shown;
}

void World::clickCloseButton(std::size_t window) {
    const mac::Pool pool;
    send<void>(visibleWindows().at(window), "performClose:", id{});
}

// On its way into the Dock the window is still to be seen.
void World::clickMinimizeButton(std::size_t window) {
    constexpr double UntilItIsThere = 1; // seconds
    const mac::Pool pool;
    send<void>(visibleWindows().at(window), "performMiniaturize:", id{});
    letTimePass(UntilItIsThere);
}

void World::clickButton(std::string_view title, std::size_t window) {
    const mac::Pool pool;
    send<void>(buttonNamed(visibleWindows().at(window), title), "performClick:", id{});
}

void World::constructFromArchive(std::string_view className) {
    send(send(classObject(std::string(className).c_str()), "alloc"), "initWithCoder:", id{});
}

void World::constructFromWindow(std::string_view className) {
    send(send(classObject(std::string(className).c_str()), "alloc"), "initWithWindow:", id{});
}

std::shared_ptr<void> World::showFrameworkWindow(std::string_view className, std::string_view title,
                                                 bool hidesOnDeactivate) {
    const mac::Pool pool;
    constexpr Rect Content(0, 0, 300, 120);
    const id window = mac::appKit.window.initWithContentRect(
        mac::foundation.object.alloc(windowClass(std::string(className))), Content,
        static_cast<mac::Unsigned>(WindowStyleMask::titled),
        static_cast<mac::Unsigned>(BackingStoreType::buffered), mac::truth(false));
    mac::appKit.window.setReleasedWhenClosed(window, mac::truth(false));
    mac::appKit.window.setHidesOnDeactivate(window, mac::truth(hidesOnDeactivate));
    mac::appKit.window.setTitle(window, objectFor(std::string(title)));
    mac::appKit.window.makeKeyAndOrderFront(window, nullptr);
    return {static_cast<void*>(window), [window](void*) {
                const mac::Pool poolOfTheEnd;
                const mac::Retained ending = mac::Retained::adopting(window);
                send<void>(window, "close");
            }};
}

} // namespace kestrune::contract
