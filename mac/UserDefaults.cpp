#include "platform/UserDefaults.h"

#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"

#include <utility>
#include <vector>

namespace kestrune {

namespace {

// The platform's string of each key, made at its first use and kept, as keys are few and some are read for
// every event. A key's text has static storage, so its address tells it from others.
class Keys {
public:
    id operator[](const UserDefaultsKey& key) {
        for (const auto& [address, string] : strings_) {
            if (address == key.name().data()) {
                return string.get();
            }
        }
        return strings_.emplace_back(key.name().data(), mac::nsString(key.name())).second.get();
    }

private:
    std::vector<std::pair<const char*, mac::Retained>> strings_;
};

id stringFor(const UserDefaultsKey& key) {
    // Never destroyed, as the platform's objects may be used until the process has ended.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables)
    static Keys& keys = *new Keys;
    return keys[key];
}

} // namespace

struct UserDefaults::State {
    mac::Retained defaults;
};

UserDefaults::UserDefaults(std::unique_ptr<State> state) : state_(std::move(state)) {}

UserDefaults::~UserDefaults() = default;

std::shared_ptr<UserDefaults> UserDefaults::standardUserDefaults() {
    const id defaults = mac::foundation.userDefaults.standardUserDefaults();
    return std::shared_ptr<UserDefaults>(
        new UserDefaults(std::make_unique<State>(State{mac::Retained::retaining(defaults)})));
}

const UserDefaults::Object* UserDefaults::objectForKey(const UserDefaultsKey& key) const {
    return reinterpret_cast<const Object*>(
        mac::foundation.userDefaults.objectForKey(state_->defaults.get(), stringFor(key)));
}

bool UserDefaults::boolForKey(const UserDefaultsKey& key) const {
    return mac::foundation.userDefaults.boolForKey(state_->defaults.get(), stringFor(key)) != 0;
}

double UserDefaults::doubleForKey(const UserDefaultsKey& key) const {
    return mac::foundation.userDefaults.doubleForKey(state_->defaults.get(), stringFor(key));
}

std::optional<std::string> UserDefaults::stringForKey(const UserDefaultsKey& key) const {
    const mac::Pool pool;
    return mac::textIfString(
        mac::foundation.userDefaults.stringForKey(state_->defaults.get(), stringFor(key)));
}

void UserDefaults::setBool(bool value, const UserDefaultsKey& key) {
    const mac::Pool pool;
    mac::foundation.userDefaults.setBool(state_->defaults.get(), mac::truth(value), stringFor(key));
}

void UserDefaults::setObject(std::optional<std::string_view> value, const UserDefaultsKey& key) {
    const mac::Pool pool;
    const mac::Retained object = value ? mac::nsString(*value) : mac::Retained();
    mac::foundation.userDefaults.setObject(state_->defaults.get(), object.get(), stringFor(key));
}

} // namespace kestrune
