// What NSObject is to the application's own classes whose methods the platform calls.
//
// Source: Objective-C runtime, NSObject.h.
#pragma once

#include <memory>
#include <span>
#include <string_view>

namespace kestrune {

class MenuItem;
class Object;

// The name of a method as the runtime knows it, such as "selectScreen:". The text must have static storage.
class Selector {
public:
    constexpr explicit Selector(std::string_view name) : name_(name) {}

    constexpr std::string_view name() const { return name_; }

    friend constexpr bool operator==(const Selector&, const Selector&) = default;

private:
    std::string_view name_;
};

// A method that the platform calls by its selector, as the action of a menu item. A selector without a colon
// takes no argument on the platform, so `perform` gets an item that stands for nothing. Receiver and sender
// are retained until it returns, whatever it lets go of.
struct ActionMethod {
    Selector selector;
    void (*perform)(Object& receiver, const MenuItem& sender) noexcept;
};

template <typename Receiver>
void performMethod(void (Receiver::*method)(), Object& receiver, const MenuItem& /*sender*/) {
    (static_cast<Receiver&>(receiver).*method)();
}

template <typename Receiver>
void performMethod(void (Receiver::*method)(const MenuItem&), Object& receiver, const MenuItem& sender) {
    (static_cast<Receiver&>(receiver).*method)(sender);
}

// The action that is the receiver's own `Method`, which takes the sender or nothing:
// `action<&MenuBarController::quit>(Quit)`. Objects of other classes do not list it.
template <auto Method>
constexpr ActionMethod action(const Selector& selector) {
    return {selector, [](Object& receiver, const MenuItem& sender) noexcept {
                performMethod(Method, receiver, sender);
            }};
}

// The platform calls the object through a counterpart of its own, an instance of the run-time class
// `className`, which the object retains. Delegates and targets are held weakly by the platform, so an object
// that is gone is not called any more.
class Object {
public:
    virtual ~Object();

    Object(const Object&) = delete;
    Object& operator=(const Object&) = delete;

    virtual std::string_view className() const = 0;

    // Every action of the class; static storage.
    virtual std::span<const ActionMethod> actionMethods() const = 0;

    struct Counterpart;

protected:
    Object();

    // -[NSObject init]. Once, in the constructor of the most derived class, when its fields are set.
    void init();

private:
    friend class WindowController; // which has a counterpart of another kind

    std::unique_ptr<Counterpart> counterpart_;
};

} // namespace kestrune
