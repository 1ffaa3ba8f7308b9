#include "mac/objc/SelfCheck.h"

#include "base/Fatal.h"

namespace kestrune::mac {

namespace {

std::string nameOf(const ClassReference& type, const MessageDeclaration& message) {
    return std::string(message.kind() == MethodKind::ofClass ? "+[" : "-[") + type.name() + " " +
           message.selectorName() + "]";
}

Method methodOf(Class type, const MessageDeclaration& message) {
    return message.kind() == MethodKind::ofClass ? class_getClassMethod(type, message.selector())
                                                 : class_getInstanceMethod(type, message.selector());
}

void checkMessage(const ClassReference& type, const MessageDeclaration& message, SelfCheckResult& result) {
    ++result.messages;
    const Class found = type.find();
    const Method method = found != nullptr ? methodOf(found, message) : nullptr;
    if (method == nullptr) {
        (message.availability() == Availability::everySystem ? result.missingMethods : result.laterMethods)
            .push_back(nameOf(type, message));
        return;
    }
    const char* const encoding = method_getTypeEncoding(method);
    const std::string actual = encoding != nullptr ? encoding : "";
    if (normalizedEncoding(actual) != normalizedEncoding(message.encoding())) {
        result.differences.push_back(nameOf(type, message) + ": expected " + message.encoding() + ", found " +
                                     actual);
    }
}

void checkClass(const ClassReference& type, Presence presence, SelfCheckResult& result) {
    const bool isThere = type.find() != nullptr;
    if (!isThere && presence == Presence::onceLoaded) {
        result.classesNotLoaded.emplace_back(type.name());
        return;
    }
    ++result.classes;
    if (!isThere) {
        result.missingClasses.emplace_back(type.name());
    }
    for (const auto* message = type.firstMessage(); message != nullptr; message = message->next()) {
        checkMessage(type, *message, result);
    }
}

} // namespace

SelfCheckResult checkVocabulary(std::span<const Framework* const> frameworks) {
    SelfCheckResult result;
    for (const Framework* const framework : frameworks) {
        for (const auto* type = framework->firstClass(); type != nullptr; type = type->next()) {
            checkClass(*type, framework->presence(), result);
        }
    }
    return result;
}

void requireVocabulary() {
    const SelfCheckResult result = checkVocabulary();
    if (result.isClean()) {
        return;
    }
    std::string message = "The platform is not as the binding expects it:";
    const auto append = [&message](const char* kind, const std::vector<std::string>& names) {
        for (const std::string& name : names) {
            message += std::string("\n  ") + kind + " " + name;
        }
    };
    append("no class", result.missingClasses);
    append("no method", result.missingMethods);
    append("another encoding:", result.differences);
    fatal(message);
}

} // namespace kestrune::mac
