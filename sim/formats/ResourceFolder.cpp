#include "sim/formats/ResourceFolder.h"

#include "sim/formats/DefaultsFile.h"
#include "sim/formats/StringsTable.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <string_view>
#include <system_error>
#include <utility>

namespace kestrune::sim {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view DoubleDensity = "@2x";

// Without the file the table is empty, as of one that says nothing.
std::optional<std::string> loadStrings(const fs::path& path, BundleContents& contents) {
    std::ifstream file(path, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    auto table = readStringsTable(text);
    if (const auto* error = std::get_if<StringsTableError>(&table)) {
        return path.string() + ":" + std::to_string(error->line) + ": " + error->message;
    }
    contents.localizedStrings = std::get<StringsTable>(std::move(table));
    return std::nullopt;
}

std::optional<std::string> findImages(const fs::path& folder, BundleContents& contents) {
    contents.images.clear();
    std::error_code failure;
    for (const fs::directory_entry& entry : fs::directory_iterator(folder, failure)) {
        if (entry.path().extension() != ".png") {
            continue;
        }
        std::string name = entry.path().stem().string();
        const bool isDense = name.ends_with(DoubleDensity);
        if (isDense) {
            name.resize(name.size() - DoubleDensity.size());
        }
        std::string& file = contents.images[name];
        if (file.empty() || isDense) {
            file = entry.path().string();
        }
    }
    return failure ? std::optional(folder.string() + ": cannot be read: " + failure.message()) : std::nullopt;
}

} // namespace

std::variant<BundleContents, std::string> loadResourceFolder(const std::string& folder) {
    const fs::path root(folder);
    BundleContents contents;
    if (auto error = findImages(root, contents)) {
        return *std::move(error);
    }
    auto information = loadDefaultsFile((root / "Info.plist").string());
    if (auto* error = std::get_if<std::string>(&information)) {
        return std::move(*error);
    }
    contents.infoDictionary = std::get<PropertyListDictionary>(std::move(information));
    if (auto error = loadStrings(root / "en.lproj" / "Localizable.strings", contents)) {
        return *std::move(error);
    }
    return contents;
}

} // namespace kestrune::sim
