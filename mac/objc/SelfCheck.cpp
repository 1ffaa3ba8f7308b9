#include "mac/objc/SelfCheck.h"

#include "base/Fatal.h"
#include "mac/objc/Message.h"

namespace kestrune::mac {

namespace {

std::string nameOf(const MessageDeclaration& message) {
    return std::string(message.kind() == MethodKind::ofClass ? "+[" : "-[") + message.receiver().name() +
           " " + message.selectorName() + "]";
}

Method methodOf(const MessageDeclaration& message, Class type) {
    const SEL selector = sel_registerName(message.selectorName());
    return message.kind() == MethodKind::ofClass ? class_getClassMethod(type, selector)
                                                 : class_getInstanceMethod(type, selector);
}

bool isLoaded(const ClassReference& type) {
    return type.presence() == ClassPresence::always || type.find() != nullptr;
}

} // namespace

SelfCheckResult checkVocabulary() {
    SelfCheckResult result;
    for (const auto* type = ClassReference::first(); type != nullptr; type = type->next()) {
        if (!isLoaded(*type)) {
            result.classesNotLoaded.emplace_back(type->name());
            continue;
        }
        ++result.classes;
        if (type->find() == nullptr) {
            result.missingClasses.emplace_back(type->name());
        }
    }
    for (const auto* message = MessageDeclaration::first(); message != nullptr; message = message->next()) {
        if (!isLoaded(message->receiver())) {
            continue;
        }
        ++result.messages;
        const Class type = message->receiver().find();
        const Method method = type != nullptr ? methodOf(*message, type) : nullptr;
        if (method == nullptr) {
            result.missingMethods.push_back(nameOf(*message));
            continue;
        }
        const char* const encoding = method_getTypeEncoding(method);
        const std::string actual = encoding != nullptr ? encoding : "";
        if (normalizedEncoding(actual) != normalizedEncoding(message->encoding())) {
            result.differences.push_back(nameOf(*message) + ": expected " + message->encoding() + ", found " +
                                         actual);
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
