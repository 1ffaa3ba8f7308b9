#include "benchmarks/gnustep/CallbackFloor.h"

#include "mac/c/Quartz.h"

namespace kestrune::benchmarks {

namespace {

template <typename Result, typename... Arguments>
[[gnu::always_inline]] inline Result send(id receiver, SEL selector, Arguments... arguments) {
    using Function = Result (*)(id, SEL, Arguments...);
    return mac::asFunction<Function>(objc_msg_lookup(receiver, selector))(receiver, selector, arguments...);
}

// Resolved once, before the first event.
struct Selectors {
    id poolClass = reinterpret_cast<id>(objc_getClass("NSAutoreleasePool"));
    SEL alloc = sel_registerName("alloc");
    SEL init = sel_registerName("init");
    SEL drain = sel_registerName("drain");
    SEL objectForKey = sel_registerName("objectForKey:");
    SEL boolForKey = sel_registerName("boolForKey:");
    SEL doubleForKey = sel_registerName("doubleForKey:");
};

const Selectors& selectors() {
    static const Selectors all;
    return all;
}

[[gnu::always_inline]] inline Event* decide(const Selectors& all, const CallbackFloor& floor, Event* event) {
    const id defaults = floor.defaults.get();
    if (send<id>(defaults, all.objectForKey, floor.isEnabledKey.get()) != nullptr &&
        send<BOOL>(defaults, all.boolForKey, floor.isEnabledKey.get()) == 0) {
        return event;
    }
    const CGPoint location = CGEventGetLocation(event);
    const bool isInside =
        location.x >= 0 && location.x < 2 * floor.width && location.y >= 0 && location.y < floor.height;
    if (!isInside || (location.x < floor.width) == floor.isLeftPinned) {
        return event;
    }
    double margin = send<double>(defaults, all.doubleForKey, floor.blockMarginKey.get());
    if (!(margin > 0)) {
        margin = 4.0;
    }
    const double threshold = floor.height - 1.0 - margin;
    if (threshold < location.y) {
        CGEventSetLocation(event, {location.x, threshold <= 1.0 ? 1.0 : threshold});
    }
    return event;
}

} // namespace

Event* floorCallback(EventTapProxy*, EventType type, Event* event, void* userInfo) noexcept {
    if (type == EventType::tapDisabledByTimeout || type == EventType::tapDisabledByUserInput) {
        return event;
    }
    const Selectors& all = selectors();
    const auto& floor = *static_cast<const CallbackFloor*>(userInfo);
    if (!floor.hasPool) {
        return decide(all, floor, event);
    }
    const id pool = send<id>(send<id>(all.poolClass, all.alloc), all.init);
    Event* const result = decide(all, floor, event);
    send<void>(pool, all.drain);
    return result;
}

} // namespace kestrune::benchmarks
