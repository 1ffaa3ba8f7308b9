// The user-defaults system.
//
// Source: Foundation, NSUserDefaults.h; developer.apple.com, UserDefaults and NSString.boolValue.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace kestrune {

// The name of a defaults entry. Make one for each entry, with static storage, so that an implementation can
// keep the platform's string object for it.
class UserDefaultsKey {
public:
    constexpr explicit UserDefaultsKey(std::string_view name) : name_(name) {}

    constexpr std::string_view name() const { return name_; }

private:
    std::string_view name_;
};

// NSUserDefaults. Every read looks the value up afresh, so that a change by any writer, this process or
// another, is seen by the next reader.
class UserDefaults {
public:
    // A borrowed property-list object; valid until the entry changes.
    class Object;

    // NSUserDefaults.standardUserDefaults.
    static std::shared_ptr<UserDefaults> standardUserDefaults();

    // objectForKey: the stored object, null when there is none.
    const Object* objectForKey(const UserDefaultsKey& key) const;

    // boolForKey: a number is true unless 0; a string is true when, after white space, a sign and zeros, it
    // goes on with Y, y, T, t or a digit from 1 to 9; anything else is false.
    bool boolForKey(const UserDefaultsKey& key) const;

    // doubleForKey: a number's value, the number at the head of a string; anything else is 0.
    double doubleForKey(const UserDefaultsKey& key) const;

    // stringForKey: a string, or the text of a number; absent for anything else.
    std::optional<std::string> stringForKey(const UserDefaultsKey& key) const;

    // setBool:forKey:
    void setBool(bool value, const UserDefaultsKey& key);

    // setObject:forKey: with a string, or with nil, which removes the entry.
    void setObject(std::optional<std::string_view> value, const UserDefaultsKey& key);

    UserDefaults(const UserDefaults&) = delete;
    UserDefaults& operator=(const UserDefaults&) = delete;
    ~UserDefaults();

private:
    struct State;
    explicit UserDefaults(std::unique_ptr<State> state);

    std::unique_ptr<State> state_;
};

} // namespace kestrune
