// kestrune-pictures FOLDER: the wizard's pages and Settings as the platform draws them, light and dark, each
// a file of the folder and the name that kestrune-desk gives its own picture of that state. Nothing is asked
// of the user, and nothing of the user's is changed.
#include "Kestrune/SettingsWindowController.h"
#include "Kestrune/WelcomeWindowController.h"
#include "base/Fatal.h"
#include "mac/objc/Pool.h"
#include "mac/objc/Text.h"
#include "mac/vocabulary/Vocabulary.h"
#include "platform/Application.h"
#include "tests/mac/EventLoop.h"
#include "tests/mac/Objects.h"
#include "tests/mac/Preparation.h"
#include "tests/mac/WindowPicture.h"

#include <cstdio>
#include <cstdlib>
#include <string>

extern "C" {
// NOLINTBEGIN(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables): the names
// are the platform's
extern id NSApp;
extern const id NSDefaultRunLoopMode;
extern const id NSEventTrackingRunLoopMode;
// NOLINTEND(readability-identifier-naming, cppcoreguidelines-avoid-non-const-global-variables)
}

namespace {

using namespace kestrune;
using namespace kestrune::native;

using Step = WelcomeViewModel::Step;

struct Page {
    const char* name;
    Step step;
    bool isTrusted;
    bool hasRequestedPermission;
};
constexpr Page Pages[] = {
    {"intro", Step::intro, true, false},
    {"permission", Step::accessibility, false, false},
    {"waiting", Step::accessibility, false, true},
    {"granted", Step::accessibility, true, true},
};

struct Appearance {
    const char* name; // in that of the file
    const char* platformName;
};
constexpr Appearance Appearances[] = {{"light", "NSAppearanceNameAqua"},
                                      {"dark", "NSAppearanceNameDarkAqua"}};

id windowTitled(const std::string& title) {
    const id windows = send(NSApp, "windows");
    for (mac::Unsigned index = 0; index < mac::foundation.array.count(windows); ++index) {
        const id window = mac::foundation.array.objectAtIndex(windows, index);
        if (mac::textOf(send(window, "title")) == title) {
            return window;
        }
    }
    fatal("There is no window \"" + title + "\".");
}

// The controllers' own way asks for the permission, as it lists the application among those that want it.
id show(const std::string& title) {
    constexpr double UntilItIsActive = 0.5; // seconds
    const id window = windowTitled(title);
    send<void>(window, "makeKeyAndOrderFront:", id{});
    runEventLoop(NSDefaultRunLoopMode, UntilItIsActive);
    return window;
}

// Timers do nothing in this mode, so that the wizard keeps what it was told of the permission.
void layOut() {
    constexpr double UntilItIsDone = 0.1; // seconds
    runEventLoop(NSEventTrackingRunLoopMode, UntilItIsDone);
}

// GNUstep's windows have none.
void setAppearance(id window, const char* name) {
    constexpr const char* Set = "setAppearance:";
    if (send<BOOL>(window, "respondsToSelector:", sel_registerName(Set)) != 0) {
        send<void>(window, Set,
                   send(classObject("NSAppearance"), "appearanceNamed:", objectFor(std::string(name))));
    }
}

bool write(id window, const std::string& path) {
    for (const Appearance& appearance : Appearances) {
        setAppearance(window, appearance.platformName);
        layOut();
        const std::string file = path + "-" + appearance.name + ".png";
        if (!WindowPicture(window).write(file)) {
            std::fprintf(stderr, "kestrune-pictures: %s cannot be written; name another folder\n",
                         file.c_str());
            return false;
        }
    }
    return true;
}

bool makeFolder(const std::string& folder) {
    const id manager = send(classObject("NSFileManager"), "defaultManager");
    id* const nobody = nullptr;
    if (send<BOOL>(manager, "createDirectoryAtPath:withIntermediateDirectories:attributes:error:",
                   objectFor(folder), mac::truth(true), id{}, nobody) == 0) {
        std::fprintf(stderr, "kestrune-pictures: %s cannot be made; name another folder\n", folder.c_str());
        return false;
    }
    return true;
}

bool writeWizard(const std::string& folder) {
    const auto preferences = std::make_shared<Preferences>(UserDefaults::standardUserDefaults());
    const auto controller = WelcomeWindowController::make(preferences, [] {});
    const id window = show("Welcome to Kestrune");
    for (const Page& page : Pages) {
        controller->model()->currentStep = page.step;
        controller->model()->isAccessibilityTrusted = page.isTrusted;
        controller->model()->hasRequestedPermission = page.hasRequestedPermission;
        if (!write(window, folder + "/" + page.name)) {
            return false;
        }
    }
    send<void>(window, "orderOut:", id{});
    return true;
}

bool writeSettings(const std::string& folder) {
    const auto controller = SettingsWindowController::make();
    controller->model()->onLaunchAtLoginChanged = nullptr;
    const id window = show("Kestrune Settings");
    controller->model()->launchAtLogin = false;
    if (!write(window, folder + "/in-front")) {
        return false;
    }
    controller->model()->launchAtLogin = true;
    return write(window, folder + "/on");
}

// The application does not launch: the platform would take the program's argument for a document to open.
bool writePictures(const std::string& folder) {
    Application application = Application::sharedApplication();
    application.setActivationPolicy(ActivationPolicy::regular);
    application.activateIgnoringOtherApps(true);
    return makeFolder(folder + "/wizard") && writeWizard(folder + "/wizard") &&
           makeFolder(folder + "/settings") && writeSettings(folder + "/settings");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr,
                     "kestrune-pictures: name the folder for the pictures: kestrune-pictures FOLDER\n");
        return EXIT_FAILURE;
    }
    preparation()();
    const mac::Pool pool;
    return writePictures(argv[1]) ? EXIT_SUCCESS : EXIT_FAILURE;
}
