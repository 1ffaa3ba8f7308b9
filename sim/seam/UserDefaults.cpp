#include "platform/UserDefaults.h"

#include "sim/seam/RecordCall.h"
#include "sim/services/Current.h"
#include "sim/services/DefaultsDomain.h"

#include <utility>

namespace kestrune {

// The store is the session's; the object is only the way to it.
struct UserDefaults::State {};

namespace {

const sim::PropertyList* stored(std::string_view selector, const UserDefaultsKey& key) {
    sim::recordCall("-[NSUserDefaults ", selector, "] ", key.name());
    return sim::current<sim::DefaultsDomain>().find(key.name());
}

} // namespace

UserDefaults::UserDefaults(std::unique_ptr<State> state) : state_(std::move(state)) {}

UserDefaults::~UserDefaults() = default;

std::shared_ptr<UserDefaults> UserDefaults::standardUserDefaults() {
    sim::recordCall("NSUserDefaults.standardUserDefaults");
    return std::shared_ptr<UserDefaults>(new UserDefaults(nullptr));
}

const UserDefaults::Object* UserDefaults::objectForKey(const UserDefaultsKey& key) const {
    return reinterpret_cast<const Object*>(stored("objectForKey:", key));
}

bool UserDefaults::boolForKey(const UserDefaultsKey& key) const {
    const sim::PropertyList* value = stored("boolForKey:", key);
    return value != nullptr && value->asBool();
}

double UserDefaults::doubleForKey(const UserDefaultsKey& key) const {
    const sim::PropertyList* value = stored("doubleForKey:", key);
    return value != nullptr ? value->asDouble() : 0;
}

std::optional<std::string> UserDefaults::stringForKey(const UserDefaultsKey& key) const {
    const sim::PropertyList* value = stored("stringForKey:", key);
    return value != nullptr ? value->asString() : std::nullopt;
}

void UserDefaults::setBool(bool value, const UserDefaultsKey& key) {
    sim::recordCall("-[NSUserDefaults setBool:forKey:] ", key.name(), " = ", value);
    sim::current<sim::DefaultsDomain>().set(key.name(), sim::PropertyList{value});
}

void UserDefaults::setObject(std::optional<std::string_view> value, const UserDefaultsKey& key) {
    sim::recordCall("-[NSUserDefaults setObject:forKey:] ", key.name(), " = ", value.value_or("nil"));
    sim::current<sim::DefaultsDomain>().set(
        key.name(), value ? std::optional(sim::PropertyList{std::string(*value)}) : std::nullopt);
}

} // namespace kestrune
