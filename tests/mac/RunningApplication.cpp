#include "tests/mac/RunningApplication.h"

#include "base/Geometry.h"
#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/mac/Objects.h"

namespace kestrune::native {

// `run` looks after each event whether it is to stop.
void stopRunning() {
    constexpr mac::Unsigned ApplicationDefined = 15;
    const id application = mac::appKit.application.sharedApplication();
    const id event =
        send(classObject("NSEvent"),
             "otherEventWithType:location:modifierFlags:timestamp:windowNumber:context:subtype:data1:data2:",
             ApplicationDefined, Point{}, mac::Unsigned{0}, 0.0, mac::Integer{0}, id{}, short{0},
             mac::Integer{0}, mac::Integer{0});
    send<void>(application, "stop:", id{});
    send<void>(application, "postEvent:atStart:", event, mac::truth(true));
}

// The loop comes after the launch, so it is asked again and again until it is there. GNUstep's notices an
// event that was posted within it only when a timer wakes it up, which this one does too.
void runUntilLaunched(const std::function<void()>& work) {
    constexpr double Often = 0.01; // seconds
    const mac::Pool pool;
    bool isLaunched = false;
    const mac::Block launched([&](id) { isLaunched = true; });
    const mac::Block stop([&](id) {
        if (isLaunched) {
            stopRunning();
        }
    });
    const id center = mac::foundation.notificationCenter.defaultCenter();
    const id observer = mac::foundation.notificationCenter.addObserver(
        center, objectFor("NSApplicationDidFinishLaunchingNotification"), nullptr, nullptr, launched.get());
    const mac::Retained timer =
        mac::Retained::retaining(mac::foundation.timer.scheduledTimer(Often, mac::truth(true), stop.get()));
    work();
    mac::foundation.timer.invalidate(timer.get());
    mac::foundation.notificationCenter.removeObserver(center, observer);
}

} // namespace kestrune::native
