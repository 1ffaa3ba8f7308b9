#include "platform/Screen.h"

#include "mac/Vocabulary.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"

#include <cstring>
#include <utility>

namespace kestrune {

struct Screen::State {
    mac::Retained screen;
};

namespace {

// A number is whole unless it is stored as a floating-point one.
DeviceDescriptionValue valueOfNumber(id number) {
    const char* type = mac::ns_number::objCType(number);
    if (std::strcmp(type, "d") == 0 || std::strcmp(type, "f") == 0) {
        return mac::ns_number::doubleValue(number);
    }
    return std::int64_t{mac::ns_number::longLongValue(number)};
}

} // namespace

Screen::Screen(std::shared_ptr<const State> state) : state_(std::move(state)) {}

std::vector<Screen> Screen::screens() {
    const mac::Pool pool;
    const id list = mac::ns_screen::screens(mac::ns_screen::type.object());
    std::vector<Screen> result;
    const mac::Unsigned count = mac::ns_array::count(list);
    for (mac::Unsigned index = 0; index < count; ++index) {
        result.push_back(Screen(std::make_shared<State>(
            State{mac::Retained::retaining(mac::ns_array::objectAtIndex(list, index))})));
    }
    return result;
}

std::optional<Screen> Screen::mainScreen() {
    const mac::Pool pool;
    const id screen = mac::ns_screen::mainScreen(mac::ns_screen::type.object());
    if (screen == nullptr) {
        return std::nullopt;
    }
    return Screen(std::make_shared<State>(State{mac::Retained::retaining(screen)}));
}

std::optional<DeviceDescriptionValue> Screen::deviceDescription(std::string_view key) const {
    const mac::Pool pool;
    const id description = mac::ns_screen::deviceDescription(state_->screen.get());
    const id value = mac::ns_dictionary::objectForKey(description, mac::nsString(key).get());
    if (auto text = mac::textIfString(value)) {
        return DeviceDescriptionValue(*std::move(text));
    }
    const bool isNumber = mac::ns_object::isKindOfClass(value, mac::ns_number::type.find()) != 0;
    return isNumber ? std::optional(valueOfNumber(value)) : std::nullopt;
}

std::string Screen::localizedName() const {
    const mac::Pool pool;
    return mac::textOf(mac::ns_screen::localizedName(state_->screen.get()));
}

Rect Screen::frame() const { return mac::ns_screen::frame(state_->screen.get()); }

} // namespace kestrune
