// The main bundle: a folder laid out as GNUstep has it, read by GNUstep's own NSBundle. A program outside of
// a bundle has none worth the name.
#include "tests/gnustep/standins/system/MainBundle.h"

#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "tests/gnustep/harness/Objects.h"
#include "tests/gnustep/standins/runtime/Methods.h"

#include <array>
#include <filesystem>
#include <fstream>
#include <variant>

namespace kestrune::gnustep {

namespace {

// One black point, which every image here consists of.
constexpr std::array<unsigned char, 67> Picture = {
    0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a, 0x00, 0x00, 0x00, 0x0d, 0x49, 0x48, 0x44, 0x52, 0x00,
    0x00, 0x00, 0x01, 0x00, 0x00, 0x00, 0x01, 0x08, 0x00, 0x00, 0x00, 0x00, 0x3a, 0x7e, 0x9b, 0x55, 0x00,
    0x00, 0x00, 0x0a, 0x49, 0x44, 0x41, 0x54, 0x78, 0xda, 0x63, 0x60, 0x00, 0x00, 0x00, 0x02, 0x00, 0x01,
    0xe5, 0x27, 0xde, 0xfc, 0x00, 0x00, 0x00, 0x00, 0x49, 0x45, 0x4e, 0x44, 0xae, 0x42, 0x60, 0x82};

// Never released, as Foundation is not there any more when the process ends.
id currentBundle = nullptr; // NOLINT(cppcoreguidelines-avoid-non-const-global-variables)

id mainBundle(id, SEL) { return currentBundle; }

void writePropertyList(id dictionary, const std::filesystem::path& path) {
    if (send<BOOL>(dictionary, "writeToFile:atomically:", objectFor(path.string()), mac::truth(false)) == 0) {
        fatal("The bundle cannot be written to " + path.string() + ".");
    }
}

// GNUstep reads no property list as a table of strings.
void writeStrings(id dictionary, const std::filesystem::path& path) {
    std::ofstream(path) << mac::textOf(send(dictionary, "descriptionInStringsFileFormat"));
}

void writePicture(const std::filesystem::path& path) {
    std::ofstream(path, std::ios::binary)
        .write(reinterpret_cast<const char*>(Picture.data()), std::streamsize{Picture.size()});
}

} // namespace

void installMainBundle() { replaceMethod(classOf(classNamed("NSBundle")), "mainBundle", mainBundle); }

void setMainBundle(const contract::BundleFiles& files, const std::string& parent) {
    const mac::Pool pool;
    static int count = 0;
    const std::filesystem::path folder =
        std::filesystem::path(parent) / ("Contract" + std::to_string(++count) + ".app");
    const std::filesystem::path resources = folder / "Resources";
    std::filesystem::create_directories(resources / "English.lproj");

    const id info = send(classObject("NSMutableDictionary"), "dictionary");
    for (const auto& [key, value] : files.infoDictionary) {
        send<void>(info,
                   "setObject:forKey:", std::visit([](const auto& plain) { return objectFor(plain); }, value),
                   objectFor(key));
    }
    writePropertyList(info, resources / "Info-gnustep.plist");

    const id strings = send(classObject("NSMutableDictionary"), "dictionary");
    for (const auto& [key, value] : files.localizedStrings) {
        send<void>(strings, "setObject:forKey:", objectFor(value), objectFor(key));
    }
    writeStrings(strings, resources / "English.lproj" / "Localizable.strings");

    for (const std::string& name : files.imageNames) {
        writePicture(resources / (name + ".png"));
    }
    currentBundle = send(send(classObject("NSBundle"), "alloc"), "initWithPath:", objectFor(folder.string()));
}

} // namespace kestrune::gnustep
