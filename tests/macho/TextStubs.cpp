#include "tests/macho/TextStubs.h"

#include <yaml-cpp/yaml.h>

namespace kestrune::macho {

namespace {

constexpr std::string_view SystemOfTargets = "-macos";

// Of a target such as "arm64-macos".
Processor processorOf(const std::string& target, const std::string& name) {
    for (const Processor processor : {Processor::arm64, Processor::x86_64}) {
        if (target == std::string(nameOf(processor)) + std::string(SystemOfTargets)) {
            return processor;
        }
    }
    throw MachError(name + ": " + printable(target) + " is no target that is known here");
}

std::set<Processor> processorsOf(const YAML::Node& targets, const std::string& name) {
    std::set<Processor> processors;
    for (const YAML::Node& target : targets) {
        processors.insert(processorOf(target.as<std::string>(), name));
    }
    return processors;
}

} // namespace

TextStubs TextStubs::in(const FileTree& sdk) {
    TextStubs stubs;
    for (const auto& [path, entry] : sdk.entries) {
        const auto* const content = std::get_if<FileContent>(&entry);
        if (content && path.ends_with(".tbd")) {
            stubs.add(std::string(content->begin(), content->end()), sdk.name + "/" + path);
        }
    }
    return stubs;
}

void TextStubs::add(const std::string& text, const std::string& name) {
    try {
        const YAML::Node stub = YAML::Load(text);
        Symbols& symbols = libraries_[stub["install-name"].as<std::string>()];
        for (const YAML::Node& part : stub["exports"]) {
            const std::set<Processor> processors = processorsOf(part["targets"], name);
            for (const YAML::Node& symbol : part["symbols"]) {
                symbols[symbol.as<std::string>()].insert(processors.begin(), processors.end());
            }
        }
    } catch (const YAML::Exception& error) {
        throw MachError(name + ": " + printable(error.what()));
    }
}

bool TextStubs::has(std::string_view library, std::string_view symbol, Processor processor) const {
    const auto found = libraries_.find(library);
    if (found == libraries_.end()) {
        return false;
    }
    const auto processors = found->second.find(symbol);
    return processors != found->second.end() && processors->second.contains(processor);
}

} // namespace kestrune::macho
