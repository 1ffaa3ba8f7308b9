// Messages with a fixed signature, each declared once.
//
// The signature is part of the declaration and never deduced from a call: an argument of another type is
// converted as for any function, and one that does not convert does not compile. A message to nil gives zero.
#pragma once

#include "mac/objc/Runtime.h"
#include "mac/objc/TypeEncoding.h"

#include <string>
#include <type_traits>

namespace kestrune::mac {

// Whether a class has to be there from the start, or only once a framework is loaded that may be missing.
enum class ClassPresence { always, onceLoaded };

// A class of the platform's. `name` must have static storage.
class ClassReference {
public:
    explicit ClassReference(const char* name, ClassPresence presence = ClassPresence::always);

    ClassReference(const ClassReference&) = delete;
    ClassReference& operator=(const ClassReference&) = delete;

    const char* name() const { return name_; }
    ClassPresence presence() const { return presence_; }

    // Null when no library that is loaded has the class.
    Class find() const;

    // As the receiver of a message; stops the process when there is no such class.
    id object() const;

    // Every class that was declared, in a list.
    static const ClassReference* first() { return first_; }
    const ClassReference* next() const { return next_; }

private:
    // Filled before main, then only read.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables, readability-identifier-naming)
    inline static const ClassReference* first_ = nullptr;

    const char* name_;
    ClassPresence presence_;
    const ClassReference* next_;
    mutable id object_ = nullptr;
};

enum class MethodKind { ofInstances, ofClass };

// What the self-check knows of a message.
class MessageDeclaration {
public:
    MessageDeclaration(const MessageDeclaration&) = delete;
    MessageDeclaration& operator=(const MessageDeclaration&) = delete;

    const ClassReference& receiver() const { return receiver_; }
    const char* selectorName() const { return selectorName_; }
    MethodKind kind() const { return kind_; }
    std::string encoding() const { return encode_(); }

    // Every message that was declared, in a list.
    static const MessageDeclaration* first() { return first_; }
    const MessageDeclaration* next() const { return next_; }

protected:
    MessageDeclaration(const ClassReference& receiver, const char* selectorName, MethodKind kind,
                       std::string (*encode)());
    ~MessageDeclaration() = default;

    SEL selector() const { return selector_; }

private:
    // Filled before main, then only read.
    // NOLINTNEXTLINE(cppcoreguidelines-avoid-non-const-global-variables, readability-identifier-naming)
    inline static const MessageDeclaration* first_ = nullptr;

    const ClassReference& receiver_;
    const char* selectorName_;
    MethodKind kind_;
    std::string (*encode_)();
    SEL selector_;
    const MessageDeclaration* next_;
};

template <typename Signature>
class Message;

template <typename Result, typename... Arguments>
class Message<Result(Arguments...)> : public MessageDeclaration {
public:
    // `selectorName` must have static storage.
    Message(const ClassReference& receiver, const char* selectorName,
            MethodKind kind = MethodKind::ofInstances)
        : MessageDeclaration(receiver, selectorName, kind, encodingOfMethod<Result, Arguments...>) {}

    Result operator()(id receiver, std::type_identity_t<Arguments>... arguments) const {
        using Function = Result (*)(id, SEL, Arguments...);
        if (receiver == nullptr) {
            return Result();
        }
#if defined(__APPLE__) && defined(__x86_64__)
        if constexpr (std::is_class_v<Result> && sizeof(Result) > 16) {
            return reinterpret_cast<Function>(objc_msgSend_stret)(receiver, selector(), arguments...);
        } else {
            return reinterpret_cast<Function>(objc_msgSend)(receiver, selector(), arguments...);
        }
#elif defined(__APPLE__)
        return reinterpret_cast<Function>(objc_msgSend)(receiver, selector(), arguments...);
#else
        return asFunction<Function>(objc_msg_lookup(receiver, selector()))(receiver, selector(),
                                                                           arguments...);
#endif
    }

    // As `type` implements it, whatever the receiver's own class does: what `super` is to a subclass.
    Result asImplementedBy(Class type, id receiver, std::type_identity_t<Arguments>... arguments) const {
        static_assert(!std::is_class_v<Result>, "a structure may be returned in another way");
        using Function = Result (*)(id, SEL, Arguments...);
        return asFunction<Function>(class_getMethodImplementation(type, selector()))(receiver, selector(),
                                                                                     arguments...);
    }
};

} // namespace kestrune::mac
