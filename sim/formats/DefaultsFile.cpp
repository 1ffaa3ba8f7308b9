#include "sim/formats/DefaultsFile.h"

#include "sim/formats/PropertyListReader.h"
#include "sim/formats/PropertyListWriter.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace kestrune::sim {

std::variant<PropertyListDictionary, std::string> loadDefaultsFile(const std::string& path) {
    std::error_code failure;
    if (!std::filesystem::exists(path, failure) && !failure) {
        return PropertyListDictionary();
    }
    if (failure) {
        return path + ": cannot be read: " + failure.message();
    }
    if (!std::filesystem::is_regular_file(path, failure)) {
        return path + ": expected a property list, found something that is no file";
    }
    std::ifstream file(path, std::ios::binary);
    if (!file) {
        return path + ": cannot be read";
    }
    const std::string xml{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    auto result = readPropertyList(xml);
    if (const auto* error = std::get_if<PropertyListError>(&result)) {
        return path + ":" + std::to_string(error->line) + ": " + error->message;
    }
    auto& list = std::get<PropertyList>(result);
    if (auto* dictionary = std::get_if<PropertyListDictionary>(&list.value)) {
        return std::move(*dictionary);
    }
    return path + ": expected a dictionary";
}

std::optional<std::string> saveDefaultsFile(const std::string& path, const PropertyListDictionary& entries) {
    const std::string replacement = path + ".new";
    std::ofstream file(replacement, std::ios::binary | std::ios::trunc);
    const bool opened = file.is_open();
    file << writePropertyList({entries});
    file.close();
    std::error_code ignored;
    if (!file) {
        if (opened) {
            std::filesystem::remove(replacement, ignored);
        }
        return replacement + ": cannot be written";
    }
    std::error_code failure;
    std::filesystem::rename(replacement, path, failure);
    if (failure) {
        std::filesystem::remove(replacement, ignored);
        return path + ": cannot be replaced: " + failure.message();
    }
    return std::nullopt;
}

} // namespace kestrune::sim
