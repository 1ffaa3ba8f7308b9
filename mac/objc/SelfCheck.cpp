#include "mac/objc/SelfCheck.h"

#include "mac/vocabulary/Missing.h"

#include <algorithm>

namespace kestrune::mac {

namespace {

constexpr LogFormat AnotherEncoding = LogFormat::of<"There is another encoding of %{public}s">();

// Null when there is no such method.
const char* encodingIn(Class type, const MessageDeclaration& message) {
    const Method method = message.kind() == MethodKind::ofClass
                              ? class_getClassMethod(type, message.selector())
                              : class_getInstanceMethod(type, message.selector());
    return method != nullptr ? method_getTypeEncoding(method) : nullptr;
}

// The same, whether the protocol requires the method or not.
const char* encodingIn(Protocol* protocol, const MessageDeclaration& message) {
    for (const bool isRequired : {true, false}) {
        const char* const encoding =
            protocol_getMethodDescription(protocol, message.selector(), truth(isRequired), truth(true)).types;
        if (encoding != nullptr) {
            return encoding;
        }
    }
    return nullptr;
}

// `found` is a class or a protocol; null when it is missing, as its methods are then.
template <typename Found>
void checkMessage(const std::string& owner, Found found, const MessageDeclaration& message,
                  SelfCheckResult& result) {
    ++result.messages;
    const std::string name = methodName(message.kind(), owner, message.selectorName());
    const char* const actual = found != nullptr ? encodingIn(found, message) : nullptr;
    if (actual == nullptr) {
        (message.availability() == Availability::everySystem ? result.missingMethods : result.laterMethods)
            .push_back(name);
    } else if (normalizedEncoding(actual) != normalizedEncoding(message.encoding())) {
        result.differences.push_back(name + ": expected " + message.encoding() + ", found " + actual);
    }
}

void checkClass(const ClassReference& type, Presence presence, SelfCheckResult& result) {
    const Class found = type.find();
    if (found == nullptr && presence == Presence::onceLoaded) {
        result.classesNotLoaded.emplace_back(type.name());
        return;
    }
    ++result.classes;
    if (found == nullptr) {
        result.missingClasses.emplace_back(type.name());
    }
    for (const auto* message = type.firstMessage(); message != nullptr; message = message->next()) {
        checkMessage(type.name(), found, *message, result);
    }
}

void checkProtocol(const ProtocolReference& protocol, SelfCheckResult& result) {
    Protocol* const found = protocol.find();
    if (found == nullptr) {
        result.protocolsNotThere.emplace_back(protocol.name());
        return;
    }
    const std::string owner = std::string("<") + protocol.name() + ">";
    for (const auto* message = protocol.firstMessage(); message != nullptr; message = message->next()) {
        checkMessage(owner, found, *message, result);
    }
}

bool isOfOneOf(const std::vector<std::string>& classes, const std::string& method) {
    return std::any_of(classes.begin(), classes.end(), [&method](const std::string& name) {
        return method.compare(1, name.size() + 2, "[" + name + " ") == 0;
    });
}

} // namespace

SelfCheckResult checkVocabulary(std::span<const Framework* const> frameworks) {
    SelfCheckResult result;
    for (const Framework* const framework : frameworks) {
        for (const auto* type = framework->firstClass(); type != nullptr; type = type->next()) {
            checkClass(*type, framework->presence(), result);
        }
        for (const auto* protocol = framework->firstProtocol(); protocol != nullptr;
             protocol = protocol->next()) {
            checkProtocol(*protocol, result);
        }
    }
    return result;
}

void logWhatDiffers(std::span<const Framework* const> frameworks) {
    SelfCheckResult result = checkVocabulary(frameworks);
    std::erase_if(result.missingMethods,
                  [&result](const std::string& name) { return isOfOneOf(result.missingClasses, name); });
    std::for_each(result.missingClasses.begin(), result.missingClasses.end(), logMissingClass);
    std::for_each(result.missingMethods.begin(), result.missingMethods.end(), logMissingMethod);
    for (const std::string& name : result.differences) {
        logOnce(AnotherEncoding, name);
    }
}

} // namespace kestrune::mac
