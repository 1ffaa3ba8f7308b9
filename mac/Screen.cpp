#include "platform/Screen.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>

namespace kestrune {

struct Screen::State {
    mac::Retained screen;
};

namespace {

// A number is whole unless it is stored as a floating-point one.
DeviceDescriptionValue valueOfNumber(id number) {
    const char* type = mac::foundation.number.objCType(number);
    if (type != nullptr && (*type == 'd' || *type == 'f')) {
        return mac::foundation.number.doubleValue(number);
    }
    return std::int64_t{mac::foundation.number.longLongValue(number)};
}

} // namespace

Screen::Screen(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::vector<Screen> Screen::screens() {
    const mac::Pool pool;
    const id list = mac::appKit.screen.screens();
    std::vector<Screen> result;
    const mac::Unsigned count = mac::foundation.array.count(list);
    for (mac::Unsigned index = 0; index < count; ++index) {
        result.push_back(Screen(std::make_shared<State>(
            State{mac::Retained::retaining(mac::foundation.array.objectAtIndex(list, index))})));
    }
    return result;
}

std::optional<Screen> Screen::mainScreen() {
    const mac::Pool pool;
    const id screen = mac::appKit.screen.mainScreen();
    if (screen == nullptr) {
        return std::nullopt;
    }
    return Screen(std::make_shared<State>(State{mac::Retained::retaining(screen)}));
}

std::optional<DeviceDescriptionValue> Screen::deviceDescription(std::string_view key) const {
    const mac::Pool pool;
    const id description = mac::appKit.screen.deviceDescription(state_->screen.get());
    const id value = mac::foundation.dictionary.objectForKey(description, mac::nsString(key).get());
    if (auto text = mac::textIfString(value)) {
        return DeviceDescriptionValue(*std::move(text));
    }
    const bool isNumber = mac::foundation.object.isKindOfClass(value, mac::foundation.number.find()) != 0;
    return isNumber ? std::optional(valueOfNumber(value)) : std::nullopt;
}

std::string Screen::localizedName() const {
    const mac::Pool pool;
    return mac::textOf(mac::appKit.screen.localizedName(state_->screen.get()));
}

Rect Screen::frame() const { return mac::appKit.screen.frame(state_->screen.get()); }

} // namespace kestrune
