#include "platform/Timer.h"

#include "mac/objc/Block.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Retained.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

struct Timer::State {
    mac::Retained timer;
};

Timer Timer::scheduledTimer(double interval, bool repeats, std::function<void(Timer&)> block) {
    const mac::Pool pool;
    const mac::Block fired([block = std::move(block)](id timer) {
        Timer handle(std::make_shared<State>(State{mac::Retained::retaining(timer)}));
        block(handle);
    });
    const id timer = mac::foundation.timer.scheduledTimer(interval, mac::truth(repeats), fired.get());
    return Timer(std::make_shared<State>(State{mac::Retained::retaining(timer)}));
}

void Timer::invalidate() { mac::foundation.timer.invalidate(state_->timer.get()); }

} // namespace kestrune
