// Messages with a fixed signature, each declared once.
//
// The signature is part of the declaration and never deduced from a call: an argument of another type is
// converted as for any function, and one that does not convert does not compile. A message to nil gives zero,
// and so does one that its receiver has no method for.
//
// Declarations are constants: a framework's is one object, written out by the compiler with the lists that
// the self-check reads, and nothing runs before main. Selectors and classes are looked up at first use.
#pragma once

#include "mac/vocabulary/Runtime.h"
#include "mac/vocabulary/TypeEncoding.h"

#include <atomic>
#include <string>
#include <type_traits>
#include <utility>

namespace kestrune::mac {

class ClassReference;
class MessageDeclaration;
class ProtocolReference;

// Whether a framework's classes have to be there from the start, or only once it is loaded, as it may be
// missing.
enum class Presence { always, onceLoaded };

// Where the classes and protocols of one framework are declared.
class Framework {
public:
    constexpr explicit Framework(Presence presence = Presence::always) : presence_(presence) {}

    Framework(const Framework&) = delete;
    Framework& operator=(const Framework&) = delete;

    Presence presence() const { return presence_; }

    // Every class and every protocol that was declared, in lists.
    const ClassReference* firstClass() const { return firstClass_; }
    const ProtocolReference* firstProtocol() const { return firstProtocol_; }

private:
    friend class ClassReference;
    friend class ProtocolReference;

    Presence presence_;
    const ClassReference* firstClass_ = nullptr;
    const ProtocolReference* firstProtocol_ = nullptr;
};

// A class or a protocol of the platform's, with the messages that are declared for it.
class MessageOwner {
public:
    MessageOwner(const MessageOwner&) = delete;
    MessageOwner& operator=(const MessageOwner&) = delete;

    const char* name() const { return name_; }

    // Every message that was declared, in a list.
    const MessageDeclaration* firstMessage() const { return firstMessage_; }

protected:
    constexpr explicit MessageOwner(const char* name) : name_(name) {}
    ~MessageOwner() = default;

private:
    friend class MessageDeclaration;

    const char* name_;
    const MessageDeclaration* firstMessage_ = nullptr;
};

// `name` must have static storage. The application goes on without what is not there, as far as it can.
class ClassReference : public MessageOwner {
public:
    constexpr ClassReference(Framework& framework, const char* name)
        : MessageOwner(name), next_(std::exchange(framework.firstClass_, this)) {}

    // Null when no library that is loaded has the class.
    Class find() const;

    // As the receiver of a message; nil, which the log says once, when there is no such class.
    id object() const;

    const ClassReference* next() const { return next_; }

private:
    const ClassReference* next_;
    mutable std::atomic<id> object_ = nullptr;
};

// What the platform sends to those who adopt it. `name` must have static storage.
class ProtocolReference : public MessageOwner {
public:
    constexpr ProtocolReference(Framework& framework, const char* name)
        : MessageOwner(name), next_(std::exchange(framework.firstProtocol_, this)) {}

    // Null when no image that is loaded has kept it.
    Protocol* find() const { return objc_getProtocol(name()); }

    const ProtocolReference* next() const { return next_; }

private:
    const ProtocolReference* next_;
};

enum class MethodKind { ofInstances, ofClass };

// Whether the oldest system that the program runs on has the method. Another one is asked for first.
enum class Availability { everySystem, newerSystems };

// "-[NSWindow center]"; a protocol stands between angle brackets.
std::string methodName(MethodKind kind, const std::string& owner, const char* selectorName);

// What the self-check knows of a message. `selectorName` and `encoding` must have static storage.
class MessageDeclaration {
public:
    MessageDeclaration(const MessageDeclaration&) = delete;
    MessageDeclaration& operator=(const MessageDeclaration&) = delete;

    const char* selectorName() const { return selectorName_; }
    MethodKind kind() const { return kind_; }
    Availability availability() const { return availability_; }
    const char* encoding() const { return encoding_; }
    const MessageDeclaration* next() const { return next_; }

    SEL selector() const {
        const SEL known = selector_.load(std::memory_order_relaxed);
        return known != nullptr ? known : registerSelector();
    }

    // No for nil, and for an object that has no such method, which the log says once.
    bool canBeSentTo(id receiver) const {
        return receiver != nullptr &&
               (object_getClass(receiver) == lastReceiver_.load(std::memory_order_relaxed) ||
                hasMethod(receiver));
    }

protected:
    // The log says once that it is not.
    bool isImplementedBy(Class type) const;

    constexpr MessageDeclaration(MessageOwner& owner, const char* selectorName, MethodKind kind,
                                 Availability availability, const char* encoding)
        : selectorName_(selectorName),
          kind_(kind),
          availability_(availability),
          encoding_(encoding),
          next_(std::exchange(owner.firstMessage_, this)) {}
    ~MessageDeclaration() = default;

private:
    SEL registerSelector() const;
    bool hasMethod(id receiver) const;

    const char* selectorName_;
    MethodKind kind_;
    Availability availability_;
    const char* encoding_;
    const MessageDeclaration* next_;
    mutable std::atomic<SEL> selector_ = nullptr;
    mutable std::atomic<Class> lastReceiver_ = nullptr; // a class that has the method
};

// The function behind a message whose result is of that type.
template <typename Result, typename Function>
Function functionOf(id receiver, SEL selector) {
#ifdef __APPLE__
    static_cast<void>(receiver);
    static_cast<void>(selector);
#ifdef __x86_64__
    // Not one condition, as void is no class and has no size.
    if constexpr (std::is_class_v<Result>) {
        if constexpr (sizeof(Result) > 16) {
            return reinterpret_cast<Function>(objc_msgSend_stret);
        }
    }
#endif
    return reinterpret_cast<Function>(objc_msgSend);
#else
    return asFunction<Function>(objc_msg_lookup(receiver, selector));
#endif
}

template <typename Signature>
class Message;

template <typename Result, typename... Arguments>
class Message<Result(Arguments...)> : public MessageDeclaration {
public:
    constexpr Message(MessageOwner& owner, const char* selectorName,
                      MethodKind kind = MethodKind::ofInstances,
                      Availability availability = Availability::everySystem)
        : MessageDeclaration(owner, selectorName, kind, availability,
                             EncodingOfMethod<Result, Arguments...>.data()) {}

    Result operator()(id receiver, std::type_identity_t<Arguments>... arguments) const {
        using Function = Result (*)(id, SEL, Arguments...);
        if (!canBeSentTo(receiver)) {
            return Result();
        }
        const SEL name = selector();
        return functionOf<Result, Function>(receiver, name)(receiver, name, arguments...);
    }

    // As `type` implements it, whatever the receiver's own class does: what `super` is to a subclass. Zero
    // for nil, and where the type does not implement it.
    Result asImplementedBy(Class type, id receiver, std::type_identity_t<Arguments>... arguments) const {
        static_assert(!std::is_class_v<Result>, "a structure may be returned in another way");
        using Function = Result (*)(id, SEL, Arguments...);
        if (receiver == nullptr || !isImplementedBy(type)) {
            return Result();
        }
        const SEL name = selector();
        return asFunction<Function>(class_getMethodImplementation(type, name))(receiver, name, arguments...);
    }
};

// A message to the very class that it is declared for.
template <typename Signature>
class ClassMessage;

template <typename Result, typename... Arguments>
class ClassMessage<Result(Arguments...)> : private Message<Result(Arguments...)> {
public:
    constexpr ClassMessage(ClassReference& receiver, const char* name,
                           Availability availability = Availability::everySystem)
        : Message<Result(Arguments...)>(receiver, name, MethodKind::ofClass, availability),
          receiver_(receiver) {}

    using MessageDeclaration::selectorName;

    bool isThere() const { return class_getClassMethod(receiver_.find(), this->selector()) != nullptr; }

    Result operator()(std::type_identity_t<Arguments>... arguments) const {
        return Message<Result(Arguments...)>::operator()(receiver_.object(), arguments...);
    }

private:
    const ClassReference& receiver_;
};

} // namespace kestrune::mac
