// The application's own event loop, which on GNUstep as on the Mac is left only with the process or when
// something in it asks for that. It stands in for nothing of the Mac's.
#include "tests/gnustep/standins/system/RunningApplication.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Subclass.h"

#include <dlfcn.h>

#include <cstdlib>

namespace kestrune::gnustep {

namespace {

struct EndOfProcess {};

bool isEndHeldBack = false; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

void doNothing(id, SEL, id /*timer*/) {}

void doWork(id work, SEL) {
    Subclass<std::function<void()>>::of(work)();
    native::stopRunning();
}

// An object whose method is the work, as a block's function may not throw.
mac::Retained workObject(const std::function<void()>& work) {
    static const auto type = Subclass<std::function<void()>>("KestruneWork")
                                 .method("doWork", doWork)
                                 .method("doNothing:", doNothing);
    return mac::Retained::adopting(type.make(work));
}

// GNUstep's loop notices an event that was posted within it only when a timer wakes it up.
class Heartbeat {
public:
    explicit Heartbeat(id work)
        : timer_(mac::Retained::retaining(
              send(classObject("NSTimer"), "scheduledTimerWithTimeInterval:target:selector:userInfo:repeats:",
                   Seconds, work, sel_registerName("doNothing:"), id{}, mac::truth(true)))) {}
    ~Heartbeat() { send<void>(timer_.get(), "invalidate"); }

    Heartbeat(const Heartbeat&) = delete;
    Heartbeat& operator=(const Heartbeat&) = delete;

private:
    static constexpr double Seconds = 0.01;

    mac::Retained timer_;
};

void doSoon(id work) {
    send<void>(work, "performSelectorOnMainThread:withObject:waitUntilDone:", sel_registerName("doWork"),
               id{}, mac::truth(false));
}

} // namespace

void runWork(const std::function<void()>& work) {
    const mac::Pool pool;
    const mac::Retained object = workObject(work);
    const Heartbeat heartbeat(object.get());
    doSoon(object.get());
    isEndHeldBack = true;
    try {
        mac::appKit.application.run(mac::appKit.application.sharedApplication());
    } catch (const EndOfProcess&) {
    }
    isEndHeldBack = false;
}

// GNUstep finds this in the program before the system's. Under its own name it could not throw.
extern "C" [[noreturn]] void endProcess(int status) asm("exit");

extern "C" void endProcess(int status) {
    using Exit = void(int);
    static auto* const systemExit = reinterpret_cast<Exit*>(dlsym(RTLD_NEXT, "exit"));
    if (isEndHeldBack) {
        throw EndOfProcess();
    }
    systemExit(status);
    std::abort();
}

} // namespace kestrune::gnustep
