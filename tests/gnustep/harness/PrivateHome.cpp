#include "tests/gnustep/harness/PrivateHome.h"

#include "base/Fatal.h"

#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace kestrune::gnustep {

namespace {

std::string& path() {
    static std::string& home = *new std::string;
    return home;
}

// Without an icon of the application's own, and with borders left to a window manager.
constexpr const char* Settings = "{ GSSuppressAppIcon = YES; GSX11HandlesWindowDecorations = NO; }\n";

void remove() {
    std::error_code ignored;
    std::filesystem::remove_all(path(), ignored);
}

} // namespace

void enterPrivateHome() {
    path() = (std::filesystem::temp_directory_path() / "kestrune-gnustep-XXXXXX").string();
    if (mkdtemp(path().data()) == nullptr) {
        fatal("No private home can be made in the folder for temporary files.");
    }
    std::atexit(remove);
    const std::filesystem::path defaults = std::filesystem::path(path()) / "GNUstep" / "Defaults";
    std::filesystem::create_directories(defaults);
    std::ofstream(defaults / "NSGlobalDomain.plist") << Settings;
    setenv("HOME", path().c_str(), 1);
    setenv("TMPDIR", path().c_str(), 1);
    setenv("LC_ALL", "C.UTF-8", 1);
    setenv("LANGUAGES", "English", 1);
    setenv("GNUSTEP_STRING_ENCODING", "NSUTF8StringEncoding", 1);
    // Otherwise each process looks into all of ImageMagick's hundred formats.
    setenv("MAGICK_CODER_MODULE_PATH", path().c_str(), 1);
}

const std::string& privateHome() { return path(); }

} // namespace kestrune::gnustep
